#include "files/PageFiles.h"

namespace bench {

namespace {

std::string property(const std::string& name, const std::string& value)
{
    return "   <property name=\"" + name + "\">" + value + "</property>\n";
}

std::string text(const std::string& value)
{
    return "<string notr=\"true\">" + value + "</string>";
}

std::string textProperty(const std::string& name, const std::string& value)
{
    return property(name, text(value));
}

std::string geometry(const QRect& place)
{
    return property("geometry", "<rect><x>" + std::to_string(place.x()) + "</x><y>" +
                                    std::to_string(place.y()) + "</y><width>" +
                                    std::to_string(place.width()) + "</width><height>" +
                                    std::to_string(place.height()) + "</height></rect>");
}

std::string font()
{
    return property("font", std::string("<font><family>") + Site::fontFamily +
                                "</family><pointsize>" + std::to_string(Site::pointSize) +
                                "</pointsize></font>");
}

std::string widget(const std::string& type, const std::string& name, const std::string& body)
{
    return "  <widget class=\"" + type + "\" name=\"" + name + "\">\n" + body + "  </widget>\n";
}

std::string buttonSheet(const Site& site, const Item& item)
{
    return "QPushButton{border-image:url(" + site.picture(item.file) +
           ");color:white}QPushButton:pressed{border-image:url(" + site.picture(item.down) + ")}";
}

std::string bar(const Site& site, const Item& item)
{
    const std::string inset =
        std::to_string(Site::capOffset.y()) + "px " + std::to_string(Site::capOffset.x()) + "px";
    return widget(
        "QProgressBar", item.id,
        geometry(item.place) + font() + property("alignment", "<set>Qt::AlignCenter</set>") +
            textProperty("styleSheet", "QProgressBar{border-image:url(" + site.picture(item.file) +
                                           ");color:white;padding:" + inset +
                                           "}QProgressBar::chunk{border-image:url(" +
                                           site.picture(item.down) + ") 0 3 0 3 stretch}"));
}

std::string itemWidget(const Site& site, const Item& item, bool customClasses)
{
    std::string type = "QLabel";
    std::string body = geometry(item.place);
    if (!item.title.empty())
        body += font();
    switch (item.kind) {
    case Item::Kind::Label:
        body += textProperty("text", item.title);
        break;
    case Item::Kind::Picture:
        if (customClasses)
            type = "BenchPicture";
        body += customClasses
                    ? textProperty("up", site.picture(item.file))
                    : property("pixmap", "<pixmap>" + site.picture(item.file) + "</pixmap>");
        break;
    case Item::Kind::Button:
        type = customClasses ? "BenchButton" : "QPushButton";
        if (customClasses)
            body += textProperty("up", site.picture(item.file)) +
                    textProperty("down", site.picture(item.down)) +
                    textProperty("title", item.title);
        else
            body += textProperty("styleSheet", buttonSheet(site, item)) +
                    textProperty("text", item.title);
        break;
    case Item::Kind::RoundGauge:
        return {}; // the Designer has none
    case Item::Kind::BarGauge:
        return bar(site, item);
    }
    return widget(type, item.id, body);
}

std::string widgets(const Site& site, const std::vector<Item>& items, bool customClasses)
{
    std::string text;
    for (const Item& item : items)
        text += itemWidget(site, item, customClasses);
    return text;
}

std::string number(const std::string& name, int value)
{
    return "   <attribute name=\"" + name + "\"><number>" + std::to_string(value) +
           "</number></attribute>\n";
}

std::string hidden(const std::string& name)
{
    return "   <attribute name=\"" + name + "\"><bool>false</bool></attribute>\n";
}

// Its texts stand as far from the left edge of a cell as the style's frame for the focus is wide.
std::string table(const Page& page)
{
    constexpr int textMargin = 3;
    const std::vector<Panel>& rows = page.rows;
    const QRect cell = rows[0].items[0].place;
    std::string cells;
    for (int row = 0; row < Site::listRows; ++row) {
        for (int column = 0; column < Site::listColumns; ++column)
            cells += "   <item row=\"" + std::to_string(row) + "\" column=\"" +
                     std::to_string(column) + "\"><property name=\"text\">" +
                     text(rows[std::size_t(row)].items[std::size_t(column)].title) +
                     "</property></item>\n";
    }
    return widget(
        "QTableWidget", Site::listId,
        geometry(QRect(-textMargin, 0, rows[0].place.width() + textMargin, 480)) + font() +
            property("frameShape", "<enum>QFrame::NoFrame</enum>") +
            property("showGrid", "<bool>false</bool>") +
            property("rowCount", "<number>" + std::to_string(Site::listRows) + "</number>") +
            property("columnCount", "<number>" + std::to_string(Site::listColumns) + "</number>") +
            property("horizontalScrollBarPolicy", "<enum>Qt::ScrollBarAlwaysOff</enum>") +
            property("verticalScrollBarPolicy", "<enum>Qt::ScrollBarAlwaysOff</enum>") +
            hidden("horizontalHeaderVisible") + hidden("verticalHeaderVisible") +
            number("horizontalHeaderDefaultSectionSize", cell.width()) +
            number("verticalHeaderDefaultSectionSize", cell.height()) + cells);
}

std::string scroll(const Site& site)
{
    std::string text;
    for (const int part : {0, 2}) {
        const std::string picture = pictureFile(scrollPlace(part).size(), part);
        const Item button{Item::Kind::Button, "turn" + std::to_string(part), {}, picture, picture,
                          scrollPlace(part)};
        text += itemWidget(site, button, false);
    }
    return text +
           itemWidget(site, {Item::Kind::Label, "number", "1/1", {}, {}, scrollPlace(1)}, false);
}

// Its bar looks like the buttons of the others. The labels on it would not be white by themselves.
std::string tabs(const Site& site, const Page& page, bool customClasses)
{
    const Item button = tabButton(0);
    const int below = page.tabs[0].place.top() - button.place.height();
    std::string pages;
    for (std::size_t i = 0; i < page.tabs.size(); ++i)
        pages +=
            widget("QWidget", page.tabs[i].id,
                   "   <attribute name=\"title\">" + text(tabButton(static_cast<int>(i)).title) +
                       "</attribute>\n" + widgets(site, page.tabs[i].items, customClasses));
    return widget("QTabWidget", Site::tabId,
                  geometry(QRect(0, 0, 800, 480)) + font() +
                      textProperty("styleSheet",
                                   "QTabWidget::pane{border:0}QTabBar::tab{border-image:url(" +
                                       site.picture(button.file) + ");color:white;width:" +
                                       std::to_string(button.place.width()) +
                                       "px;height:" + std::to_string(button.place.height()) +
                                       "px;margin:0 0 " + std::to_string(below) +
                                       "px 0;padding:0}QTabBar::tab:selected{border-image:url(" +
                                       site.picture(button.down) + ")}QLabel{color:white}") +
                      pages);
}

} // namespace

std::string designerFile(const Site& site, const Page& page, bool customClasses)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\">\n "
           "<class>Form</class>\n" +
           widget("QWidget", "Form",
                  geometry(QRect(0, 0, 800, 480)) + widgets(site, page.items, customClasses) +
                      (page.rows.empty() ? "" : table(page) + scroll(site)) +
                      (page.tabs.empty() ? "" : tabs(site, page, customClasses))) +
           "</ui>\n";
}

} // namespace bench
