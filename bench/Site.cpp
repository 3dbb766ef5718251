#include "PageGenerator.h"
#include "files/PageFiles.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace bench {

namespace {

const char* const languages[] = {"kr",  "en",  "esp", "ita", "fra",
                                 "ger", "rus", "pol", "chn", "por"};

std::ofstream openFile(const std::string& path)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream file(path, std::ios::trunc);
    if (!file)
        throw std::runtime_error("cannot write " + path);
    return file;
}

} // namespace

std::string Site::layout(const std::string& page) const
{
    return resource() + "layout/" + page + ".resource";
}

std::string Site::designer(const std::string& page, bool customClasses) const
{
    return m_root + "/peers/" + page + (customClasses ? ".classes.ui" : ".plain.ui");
}

void Site::create() const
{
    std::filesystem::create_directories(m_root + "/data/db");
    std::filesystem::create_directories(resource() + "img");
    openFile(m_root + "/data/config/config_zelapp.cfg")
        << "Language = \nResourcePath = /app/bin/resource/\n";
    std::filesystem::create_directories(m_root + "/tmp");
    std::filesystem::create_directories(m_root + "/dev");
    writePictures(QSize(80, 48));
    writePictures(QSize(26, 24));
    writePictures(discSize);
    writePictures(barSize);
    writePictures(capSize);
    writeStyles(styleCount);
    writeStringTable();
    openFile(qml("PanelButton")) << qmlButtonFile();
}

void Site::write(const Page& page) const
{
    const std::string text = layoutFile(page);
    openFile(layout(page.name)) << text;
    openFile(resource() + "kr/layout/" + page.name + ".resource") << text;
    for (const bool customClasses : {true, false})
        openFile(designer(page.name, customClasses)) << designerFile(*this, page, customClasses);
    openFile(qml(page.name)) << qmlFile(*this, page);
}

void Site::writeComponents(const std::string& page, const std::string& components) const
{
    openFile(layout(page)) << "<Page><Components>\n" << components << "</Components></Page>\n";
}

void Site::writePictures(const QSize& size) const
{
    for (int i = 0; i < pictureCount; ++i) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        QLinearGradient shade(0, 0, size.width(), size.height());
        shade.setColorAt(0, QColor::fromHsv(i * 360 / pictureCount, 200, 255));
        shade.setColorAt(1, QColor::fromHsv(i * 360 / pictureCount, 255, 90));
        painter.setBrush(shade);
        const QRectF shape(QPointF(0.5, 0.5), size - QSize(1, 1));
        const double corner = size == discSize ? size.width() / 2.0 : 6;
        painter.drawRoundedRect(shape, corner, corner);
        painter.end();
        const std::string file = picture(pictureFile(size, i));
        if (!image.save(QString::fromStdString(file)))
            throw std::runtime_error("cannot write " + file);
    }
}

void Site::writeStyles(int count) const
{
    const char* const names[styleCount] = {bodyStyle, "title", "small", "warning"};
    std::ofstream file = openFile(resource() + "default.style");
    file << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Style>\n  <Font>\n";
    for (int i = 0; i < count; ++i)
        file << "    <" << names[i] << " size=\"" << pointSize << "\" family=\"" << fontFamily
             << "\" color=\"FFFFFF\"/>\n";
    file << "  </Font>\n</Style>\n";
}

void Site::writeStringTable() const
{
    std::ofstream file = openFile(stringTable());
    file << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Table>\n";
    for (int key = 0; key < stringKeys; ++key) {
        file << "  <String key=\"text_" << key << "\">";
        for (const char* language : languages)
            file << "<" << language << ">Text number " << key << " in " << language << "</"
                 << language << ">";
        file << "</String>\n";
    }
    file << "</Table>\n";
}

} // namespace bench
