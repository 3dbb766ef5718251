#include "support/PanelTest.h"

#include "common/tamfx/Node.h"
#include "common/tamfx/XmlDocument.h"
#include "common/tamfx/XmlException.h"
#include "components/ComponentFactory.h"
#include "components/ZELComponent.h"
#include "resource/SoundFactory.h"
#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/FrameForTest.h"
#include "windows/ZELChildWindow.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace PANFx::Testing {

namespace {

// the name of the first element of a text
std::string elementName(const std::string& xml)
{
    const size_t start = xml.find('<') + 1;
    return xml.substr(start, xml.find_first_of(" \t\r\n/>", start) - start);
}

} // namespace

const std::string PanelTest::resources = "/app/bin/resource/";

PanelTest::PanelTest()
{
#if !defined(QTPANFX_WITH_SYSROOT)
    // the library would work on the machine's own /app and /data
    [] { GTEST_SKIP() << "built for the instrument, without a file system for each test"; }();
#endif
    EXPECT_TRUE(m_root.isValid()) << m_root.errorString().toStdString();
    qputenv("QTPANFX_SYSROOT", QFile::encodeName(m_root.path()));
    for (const char* folder : {"/app/bin/resource/img", "/app/bin/resource/layout", "/data/config",
                               "/data/db", "/dev", "/tmp"})
        QDir().mkpath(m_root.path() + QLatin1String(folder));
    writeConfig("", resources);
    writeStyle("<style><Font>"
               "<normal size='14' family='DejaVu Sans Mono' color='000000'/>"
               "<pressed size='14' family='DejaVu Sans Mono' color='ff0000'/>"
               "<dimmed size='14' family='DejaVu Sans Mono' color='808080'/>"
               "</Font></style>");
    writeStrings("<table/>");
}

PanelTest::~PanelTest()
{
    m_frame.reset();
    m_panel.reset();
    EventLoop::deliverAndDelete();
    m_documents.clear();
    Components::ComponentFactory::destroyInstance();
    Resource::ZELResourceMgr::destroyInstance();
    Resource::SoundFactory::destroyInstance();
    qunsetenv("QTPANFX_SYSROOT");
}

void PanelTest::writeFile(const std::string& path, const std::string& bytes)
{
    const QString real = QFile::decodeName(realPath(path).c_str());
    QDir().mkpath(QFileInfo(real).path());
    QFile file(real);
    const auto size = static_cast<qint64>(bytes.size());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size)
        << path << ": " << file.errorString().toStdString();
}

std::string PanelTest::readFile(const std::string& path) const
{
    QFile file(QFile::decodeName(realPath(path).c_str()));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return file.readAll().toStdString();
}

bool PanelTest::fileExists(const std::string& path) const
{
    return QFile::exists(QFile::decodeName(realPath(path).c_str()));
}

void PanelTest::removeFile(const std::string& path)
{
    EXPECT_TRUE(QFile::remove(QFile::decodeName(realPath(path).c_str()))) << path;
}

std::string PanelTest::realPath(const std::string& path) const
{
    return QFile::encodeName(m_root.path()).toStdString() + path;
}

void PanelTest::writeLayout(const std::string& name, const std::string& xml,
                            const std::string& locale)
{
    writeFile(resources + locale + "/layout/" + name + ".resource", xml);
}

void PanelTest::writeStyle(const std::string& xml, const std::string& locale)
{
    writeFile(resources + locale + "/default.style", xml);
}

void PanelTest::writeStrings(const std::string& xml)
{
    writeFile(resources + "StringTable.Resource", xml);
}

void PanelTest::writePicture(const std::string& name, int width, int height, const QColor& colour,
                             const std::string& locale)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    writePicture(name, image, locale);
}

void PanelTest::writePicture(const std::string& name, const QImage& image,
                             const std::string& locale)
{
    const std::string path = realPath(resources + locale + "/img/" + name);
    const QString file = QFile::decodeName(path.c_str());
    QDir().mkpath(QFileInfo(file).path());
    EXPECT_TRUE(image.save(file, "PNG")) << path;
}

void PanelTest::writeConfig(const std::string& language, const std::string& resourcePath)
{
    writeFile("/data/config/config_zelapp.cfg",
              "Language = " + language + "\nResourcePath = " + resourcePath + "\n");
}

EventRecorder& PanelTest::panel()
{
    if (!m_panel) {
        m_panel = std::make_unique<EventRecorder>();
        m_panel->show();
        m_panel->activateWindow(); // for the focus of what is on it
        EventLoop::deliver();
    }
    return *m_panel;
}

TAMFx::Common::Xml::Node* PanelTest::element(const std::string& xml)
{
    const std::string path = "/tmp/element" + std::to_string(m_built++) + ".xml";
    writeFile(path, "<document>" + xml + "</document>");
    auto document = std::make_unique<TAMFx::Common::Xml::XmlDocument>();
    TAMFx::Common::Xml::Node* found = nullptr;
    try {
        if (document->LoadXMLFile(realPath(path).c_str()))
            found = document->getNodeByName(elementName(xml).c_str());
    } catch (TAMFx::Common::Xml::XmlException* fault) {
        ADD_FAILURE() << fault->GetMessage();
    }
    EXPECT_NE(found, nullptr) << "no element in " << xml;
    m_documents.push_back(std::move(document));
    return found;
}

FrameForTest& PanelTest::frame()
{
    if (!m_frame) {
        m_frame = std::make_unique<FrameForTest>();
        m_frame->show();
        m_frame->activateWindow();
        EventLoop::deliver();
    }
    return *m_frame;
}

void PanelTest::expectNoBackgroundLines(int pages)
{
    log().expectError("[getImage] No FileName Error", pages, "ZELImageMgr");
}

void PanelTest::expectBackgroundLines(int pages)
{
    log().expectError("[setLayout] background pLayout == NULL", pages, "ZELImageBox");
}

void PanelTest::expectNullLayoutLines(const std::string& id, int times)
{
    log().expectError("[setLayout] " + id + " pLayout == NULL", times);
}

Components::ZELComponent* PanelTest::build(const std::string& keyword, const std::string& xml,
                                           QWidget* parent)
{
    TAMFx::Common::Xml::Node* const node = element(xml);
    if (!node)
        return nullptr;
    Components::ZELComponent* const component =
        Components::ComponentFactory::getInstance()->createComponent(
            parent ? parent : &panel(), keyword, node->getName(), node);
    EXPECT_NE(component, nullptr) << "no component for the keyword " << keyword;
    if (component)
        component->showWindow();
    return component;
}

Components::ZELComponent* PanelTest::buildOnPage(const std::string& keyword, const std::string& xml)
{
    const std::string page = "page" + std::to_string(m_built++);
    writeLayout(page, "<layout><Components><" + keyword + ">" + xml + "</" + keyword +
                          "></Components></layout>");
    expectNoBackgroundLines();
    frame().addPage(page);
    Windows::ZELChildWindow* const window = frame().moveTo(page, true, true);
    EventLoop::deliver();
    return window->getSubComponent(elementName(xml));
}

} // namespace PANFx::Testing
