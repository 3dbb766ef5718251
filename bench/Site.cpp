#include "PageGenerator.h"

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

std::string box(const QRect& place)
{
    return "x=\"" + std::to_string(place.x()) + "\" y=\"" + std::to_string(place.y()) +
           "\" width=\"" + std::to_string(place.width()) + "\" height=\"" +
           std::to_string(place.height()) + "\"";
}

// ---- the layout language

std::string layoutElement(const Item& item)
{
    const std::string style = std::string(" style=\"") + Site::bodyStyle + "\"";
    const std::string head = "      <" + item.id;
    switch (item.kind) {
    case Item::Kind::Button:
        return head + " title=\"" + item.title + "\"" + style + ">\n        <position " +
               box(item.place) + "/>\n        <image up=\"" + item.file + "\" down=\"" + item.down +
               "\"/>\n      </" + item.id + ">\n";
    case Item::Kind::Label:
        return head + " title=\"" + item.title + "\"" + style + ">\n        <position " +
               box(item.place) + " align=\"left\"/>\n      </" + item.id + ">\n";
    case Item::Kind::Picture:
        return head + " file=\"" + item.file + "\" " + box(item.place) + "/>\n";
    }
    return {};
}

void writeLayout(const std::string& path, const Page& page)
{
    const std::pair<Item::Kind, const char*> groups[] = {{Item::Kind::Button, "button"},
                                                         {Item::Kind::Label, "label"},
                                                         {Item::Kind::Picture, "imagebox"}};
    std::ofstream file = openFile(path);
    file << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Layout>\n  <Components>\n";
    for (const auto& [kind, keyword] : groups) {
        std::string elements;
        for (const Item& item : page.items) {
            if (item.kind == kind)
                elements += layoutElement(item);
        }
        if (!elements.empty())
            file << "    <" << keyword << ">\n" << elements << "    </" << keyword << ">\n";
    }
    file << "  </Components>\n</Layout>\n";
}

// ---- the Designer's language

std::string property(const std::string& name, const std::string& value)
{
    return "   <property name=\"" + name + "\">" + value + "</property>\n";
}

std::string text(const std::string& value)
{
    return "<string notr=\"true\">" + value + "</string>";
}

std::string designerFont()
{
    return property("font", std::string("<font><family>") + Site::fontFamily +
                                "</family><pointsize>" + std::to_string(Site::pointSize) +
                                "</pointsize></font>");
}

std::string designerWidget(const Site& site, const Item& item, bool customClasses)
{
    const QRect& place = item.place;
    std::string type = "QLabel";
    std::string body = property(
        "geometry", "<rect><x>" + std::to_string(place.x()) + "</x><y>" +
                        std::to_string(place.y()) + "</y><width>" + std::to_string(place.width()) +
                        "</width><height>" + std::to_string(place.height()) + "</height></rect>");
    if (!item.title.empty())
        body += designerFont();
    if (item.kind == Item::Kind::Label) {
        body += property("text", text(item.title));
    } else if (customClasses) {
        type = item.kind == Item::Kind::Button ? "BenchButton" : "BenchPicture";
        body += property("up", text(site.picture(item.file)));
        if (item.kind == Item::Kind::Button)
            body += property("down", text(site.picture(item.down))) +
                    property("title", text(item.title));
    } else if (item.kind == Item::Kind::Picture) {
        body += property("pixmap", "<pixmap>" + site.picture(item.file) + "</pixmap>");
    } else {
        type = "QPushButton";
        body +=
            property("styleSheet", text("QPushButton{border-image:url(" + site.picture(item.file) +
                                        ");color:white}QPushButton:pressed{border-image:url(" +
                                        site.picture(item.down) + ")}"));
        body += property("text", text(item.title));
    }
    return "  <widget class=\"" + type + "\" name=\"" + item.id + "\">\n" + body + "  </widget>\n";
}

void writeDesigner(const Site& site, const Page& page, bool customClasses)
{
    std::ofstream file = openFile(site.designer(page.name, customClasses));
    file << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\">\n "
            "<class>Form</class>\n"
         << " <widget class=\"QWidget\" name=\"Form\">\n"
         << property("geometry",
                     "<rect><x>0</x><y>0</y><width>800</width><height>480</height></rect>");
    for (const Item& item : page.items)
        file << designerWidget(site, item, customClasses);
    file << " </widget>\n</ui>\n";
}

// ---- QML

std::string qmlPlace(const QRect& place)
{
    return "x: " + std::to_string(place.x()) + "; y: " + std::to_string(place.y()) +
           "; width: " + std::to_string(place.width()) +
           "; height: " + std::to_string(place.height());
}

std::string qmlText(const std::string& place, const std::string& title, const char* alignment)
{
    return "Text { " + place + "; text: " + title + "; color: \"white\"; font.family: \"" +
           Site::fontFamily + "\"; font.pointSize: " + std::to_string(Site::pointSize) +
           "; verticalAlignment: Text.AlignVCenter; horizontalAlignment: " + alignment + " }";
}

// the button's type is a file of its own, as a QML application would have it
void writeQmlButton(const Site& site)
{
    openFile(site.qml("PanelButton"))
        << "import QtQuick 2.15\nMouseArea {\n  id: button\n"
           "  property url up\n  property url down\n  property string title\n"
           "  Image { anchors.fill: parent; source: button.pressed ? button.down : button.up }\n  "
        << qmlText("anchors.fill: parent", "button.title", "Text.AlignHCenter") << "\n}\n";
}

std::string qmlItem(const Site& site, const Item& item)
{
    const std::string up = "\"file://" + site.picture(item.file) + "\"";
    switch (item.kind) {
    case Item::Kind::Button:
        return "  PanelButton { " + qmlPlace(item.place) + "; up: " + up + "; down: \"file://" +
               site.picture(item.down) + "\"; title: \"" + item.title + "\" }\n";
    case Item::Kind::Label:
        return "  " + qmlText(qmlPlace(item.place), "\"" + item.title + "\"", "Text.AlignLeft") +
               "\n";
    case Item::Kind::Picture:
        return "  Image { " + qmlPlace(item.place) + "; source: " + up + " }\n";
    }
    return {};
}

void writeQml(const Site& site, const Page& page)
{
    std::ofstream file = openFile(site.qml(page.name));
    file << "import QtQuick 2.15\nItem {\n  width: 800; height: 480\n";
    for (const Item& item : page.items)
        file << qmlItem(site, item);
    file << "}\n";
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
    writePictures(QSize(80, 48));
    writePictures(QSize(26, 24));
    writeStyles(styleCount);
    writeStringTable();
    writeQmlButton(*this);
}

void Site::write(const Page& page) const
{
    writeLayout(layout(page.name), page);
    writeLayout(resource() + "kr/layout/" + page.name + ".resource", page);
    writeDesigner(*this, page, true);
    writeDesigner(*this, page, false);
    writeQml(*this, page);
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
        painter.drawRoundedRect(QRectF(QPointF(0.5, 0.5), size - QSize(1, 1)), 6, 6);
        painter.end();
        const std::string file =
            picture("p" + std::to_string(size.width()) + "x" + std::to_string(size.height()) + "_" +
                    std::to_string(i) + ".png");
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
