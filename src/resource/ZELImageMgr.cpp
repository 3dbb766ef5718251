#include "resource/ZELImageMgr.h"

#include "common/systemPath.h"
#include "common/tamfx/Object.h"

#include <QFile>
#include <QImage>

#include <cstdio>
#include <new>
#include <utility>
#include <vector>

namespace PANFx::Resource {

namespace {

// A loaded picture as an entry of the table: its end frees the pixels, not the object.
class LoadedPicture : public TAMFx::Data::Object
{
public:
    explicit LoadedPicture(QPixmap* pixmap)
        : m_pixmap(pixmap)
    {
    }
    ~LoadedPicture() override { *m_pixmap = QPixmap(); }
    LoadedPicture(const LoadedPicture&) = delete;
    LoadedPicture& operator=(const LoadedPicture&) = delete;

    QPixmap* const m_pixmap;
};

bool canOpen(const std::string& path)
{
    std::FILE* file = std::fopen(Common::systemPath(path).c_str(), "rb");
    if (!file)
        return false;
    std::fclose(file);
    return true;
}

} // namespace

ZELImageMgr::ZELImageMgr()
{
    m_tableImages.setDeleteFlag(true);
}

ZELImageMgr::~ZELImageMgr()
{
    m_tableImages.ClearAll();
    // Never freed, and empty by now: a window that outlives the manager still points to them.
    static auto* const outlived = new std::vector<std::unique_ptr<QPixmap>>;
    for (auto& [name, shell] : m_shells)
        outlived->push_back(std::move(shell));
}

void ZELImageMgr::setBasePath(std::string strBasePath)
{
    m_strBasePath = std::move(strBasePath);
    m_logger.WriteDebug("[%s] m_strBasePath:%s", "setBasePath", m_strBasePath.c_str());
}

void ZELImageMgr::changeLocale(std::string strLocale)
{
    m_strLocale = std::move(strLocale);
    m_logger.WriteDebug("[%s] m_strLocale:%s", "changeLocale", m_strLocale.c_str());
    m_tableImages.ClearAll();
}

QPixmap* ZELImageMgr::getImage(std::string strName)
{
    if (strName.empty()) {
        m_logger.WriteError("[%s] No FileName Error", "getImage");
        return nullptr;
    }
    if (TAMFx::Data::Object* hit = m_tableImages.getValue(strName.c_str()))
        return static_cast<LoadedPicture*>(hit)->m_pixmap;

    std::string path;
    try {
        path = pathOf(strName);
    } catch (...) {
        m_logger.WriteDebug("[%s] string exception", "getImage");
        return nullptr;
    }
    QPixmap* pixmap = shellOf(strName);
    if (!pixmap) {
        m_logger.WriteError("[%s] cannot load image -->%s\n", "getImage", path.c_str());
        return nullptr;
    }
    // QPixmap's own reading goes through Qt's cache, which would keep the pixels when the language
    // goes, and could give back what the file held before
    *pixmap = QPixmap::fromImage(QImage(QFile::decodeName(Common::systemPath(path).c_str())));
    pixmap->setDevicePixelRatio(1.0); // a name such as "a@2x.png" says nothing here
    m_tableImages.AddObj(strName.c_str(), new LoadedPicture(pixmap));
    return pixmap;
}

QPixmap* ZELImageMgr::shellOf(const std::string& strName)
{
    std::unique_ptr<QPixmap>& shell = m_shells[strName];
    if (!shell)
        shell.reset(new (std::nothrow) QPixmap);
    return shell.get();
}

std::string ZELImageMgr::pathOf(const std::string& strName) const
{
    const std::string ownPath = m_strBasePath + m_strLocale + "/img/" + strName;
    return canOpen(ownPath) ? ownPath : m_strBasePath + "img/" + strName;
}

} // namespace PANFx::Resource
