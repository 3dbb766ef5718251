#include "files/PageFiles.h"

namespace bench {

namespace {

std::string placed(const QRect& place)
{
    return "x: " + std::to_string(place.x()) + "; y: " + std::to_string(place.y()) +
           "; width: " + std::to_string(place.width()) +
           "; height: " + std::to_string(place.height());
}

std::string textItem(const std::string& place, const std::string& title, const char* alignment,
                     const std::string& child = "")
{
    return "Text { " + place + "; text: " + title + "; color: \"white\"; font.family: \"" +
           Site::fontFamily + "\"; font.pointSize: " + std::to_string(Site::pointSize) +
           "; verticalAlignment: Text.AlignVCenter; horizontalAlignment: " + alignment + child +
           " }";
}

std::string url(const Site& site, const std::string& file)
{
    return "\"file://" + site.picture(file) + "\"";
}

std::string imageItem(const Site& site, const std::string& place, const std::string& file)
{
    return "Image { " + place + "; source: " + url(site, file) + " }\n";
}

// the two ends as they are, what is between them stretched
std::string bar(const Site& site, const Item& item)
{
    const std::string x = std::to_string(Site::capOffset.x());
    const std::string y = "; y: " + std::to_string(Site::capOffset.y());
    const std::string cap = std::to_string(Site::capSize.width());
    return "  property int percent: 0\n  Item { id: gauge; " + placed(item.place) +
           "\n  property int fill: (width - 2 * " + x +
           ") * page.percent / 100\n  property int between: Math.max(0, fill - 2 * " + cap + ")\n" +
           imageItem(site, "anchors.fill: parent", item.file) +
           imageItem(site,
                     "visible: gauge.between > 0; x: " + x + " + " + cap + y +
                         "; width: gauge.between; height: sourceSize.height",
                     item.down) +
           imageItem(site, "visible: gauge.fill > 0; x: " + x + y, item.down) +
           imageItem(site,
                     "visible: gauge.fill > 0; x: " + x + " + " + cap + " + gauge.between" + y,
                     item.down) +
           textItem("anchors.fill: parent", "page.percent + \"%\"", "Text.AlignHCenter") +
           "\n  }\n";
}

std::string button(const Site& site, const Item& item, const std::string& up)
{
    return "  PanelButton { " + placed(item.place) + "; up: " + up +
           "; down: " + url(site, item.down) + "; title: \"" + item.title + "\" }\n";
}

std::string button(const Site& site, const Item& item)
{
    return button(site, item, url(site, item.file));
}

std::string qmlItem(const Site& site, const Item& item)
{
    switch (item.kind) {
    case Item::Kind::Button:
        return button(site, item);
    case Item::Kind::Label:
        return "  " + textItem(placed(item.place), "\"" + item.title + "\"", "Text.AlignLeft") +
               "\n";
    case Item::Kind::Picture:
        return "  " + imageItem(site, placed(item.place), item.file);
    case Item::Kind::RoundGauge:
        return {}; // the plain items have none
    case Item::Kind::BarGauge:
        return bar(site, item);
    }
    return {};
}

std::string qmlItems(const Site& site, const std::vector<Item>& items)
{
    std::string text;
    for (const Item& item : items)
        text += qmlItem(site, item);
    return text;
}

std::string list(const Site& site, const Page& page)
{
    const std::string columns = std::to_string(Site::listColumns);
    const QRect cell = page.rows[0].items[0].place;
    const std::string size =
        "width: " + std::to_string(cell.width()) + "; height: " + std::to_string(cell.height());
    std::string texts;
    for (const std::string& text : cellTexts(0))
        texts += (texts.empty() ? "\"" : ", \"") + text + "\"";
    std::string text =
        "  property int touched: -1\n  property var texts: [" + texts + "]\n  ListView {\n    " +
        placed(QRect(0, 0, page.rows[0].place.width(), 480)) +
        "; interactive: false; model: " + std::to_string(Site::listRows) +
        "\n    delegate: Row { id: row; property int number: index\n"
        "      Repeater { model: " +
        columns + "\n        " +
        textItem(size, "page.texts[row.number * " + columns + " + index]", "Text.AlignLeft",
                 "\n        MouseArea { anchors.fill: parent; "
                 "onClicked: page.touched = row.number * " +
                     columns + " + index }") +
        "\n      }\n    }\n  }\n";
    for (const int part : {0, 2}) {
        const std::string picture = pictureFile(scrollPlace(part).size(), part);
        text += button(site, {Item::Kind::Button, {}, {}, picture, picture, scrollPlace(part)});
    }
    return text + qmlItem(site, {Item::Kind::Label, {}, "1/1", {}, {}, scrollPlace(1)});
}

std::string tabs(const Site& site, const Page& page)
{
    std::string text = "  property int tab: 0\n";
    for (std::size_t i = 0; i < page.tabs.size(); ++i) {
        const std::string isUp = "page.tab === " + std::to_string(i);
        const Item tab = tabButton(static_cast<int>(i));
        text += button(site, tab, isUp + " ? down : " + url(site, tab.file)) +
                "  Item { visible: " + isUp + "; " + placed(page.tabs[i].place) + "\n" +
                qmlItems(site, page.tabs[i].items) + "  }\n";
    }
    return text;
}

} // namespace

std::string qmlFile(const Site& site, const Page& page)
{
    return "import QtQuick 2.15\nItem {\n  id: page; width: 800; height: 480\n" +
           qmlItems(site, page.items) + (page.rows.empty() ? "" : list(site, page)) +
           (page.tabs.empty() ? "" : tabs(site, page)) + "}\n";
}

std::string qmlButtonFile()
{
    return "import QtQuick 2.15\nMouseArea {\n  id: button\n"
           "  property url up\n  property url down\n  property string title\n"
           "  Image { anchors.fill: parent; source: button.pressed ? button.down : button.up }\n"
           "  " +
           textItem("anchors.fill: parent", "button.title", "Text.AlignHCenter") + "\n}\n";
}

} // namespace bench
