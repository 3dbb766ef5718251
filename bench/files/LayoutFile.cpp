#include "files/PageFiles.h"

#include <utility>

namespace bench {

namespace {

std::string box(const QRect& place)
{
    return "x=\"" + std::to_string(place.x()) + "\" y=\"" + std::to_string(place.y()) +
           "\" width=\"" + std::to_string(place.width()) + "\" height=\"" +
           std::to_string(place.height()) + "\"";
}

std::string position(const QRect& place)
{
    return "<position " + box(place) + "/>";
}

std::string element(const std::string& id, const std::string& attributes,
                    const std::string& children)
{
    return "<" + id + attributes + ">\n" + children + "</" + id + ">\n";
}

std::string gaugeElement(const Item& item)
{
    const std::string size = box(QRect(QPoint(0, 0), item.place.size()));
    if (item.kind == Item::Kind::RoundGauge)
        return position(item.place) + "<image file=\"" + item.file + "\" " + size +
               "/><round file=\"" + item.down + "\"/>";
    return position(item.place) + "<image bg=\"" + item.file + "\" start=\"" + item.down +
           "\" mid=\"" + item.down + "\" end=\"" + item.down + "\"/><offset x=\"" +
           std::to_string(Site::capOffset.x()) + "\" y=\"" + std::to_string(Site::capOffset.y()) +
           "\"/>";
}

std::string itemElement(const Item& item)
{
    const std::string style = std::string(" style=\"") + Site::bodyStyle + "\"";
    const std::string head = "      <" + item.id;
    switch (item.kind) {
    case Item::Kind::Button:
        return head + " title=\"" + item.title + "\"" + style + ">\n        " +
               position(item.place) + "\n        <image up=\"" + item.file + "\" down=\"" +
               item.down + "\"/>\n      </" + item.id + ">\n";
    case Item::Kind::Label:
        return head + " title=\"" + item.title + "\"" + style + ">\n        <position " +
               box(item.place) + " align=\"left\"/>\n      </" + item.id + ">\n";
    case Item::Kind::Picture:
        return head + " file=\"" + item.file + "\" " + box(item.place) + "/>\n";
    case Item::Kind::RoundGauge:
    case Item::Kind::BarGauge:
        return element(item.id, style, gaugeElement(item));
    }
    return {};
}

std::string groups(const std::vector<Item>& items)
{
    const std::pair<Item::Kind, const char*> kinds[] = {{Item::Kind::Button, "button"},
                                                        {Item::Kind::Label, "label"},
                                                        {Item::Kind::Picture, "imagebox"},
                                                        {Item::Kind::RoundGauge, "roundprogress"},
                                                        {Item::Kind::BarGauge, "imageprogress"}};
    std::string text;
    for (const auto& [kind, keyword] : kinds) {
        std::string elements;
        for (const Item& item : items) {
            if (item.kind == kind)
                elements += itemElement(item);
        }
        if (!elements.empty())
            text += std::string("    <") + keyword + ">\n" + elements + "    </" + keyword + ">\n";
    }
    return text;
}

std::string panelElement(const Panel& panel)
{
    return element(panel.id, "", position(panel.place) + groups(panel.items));
}

std::string scrollButton(const std::string& id, int part)
{
    const std::string picture = pictureFile(scrollPlace(part).size(), part);
    return "<" + id + " " + box(scrollPlace(part)) + " up=\"" + picture + "\" down=\"" + picture +
           "\" dim=\"" + picture + "\"/>\n";
}

// A list has rows only where it has an element for its background.
std::string listElement(const Page& page)
{
    const std::string whole = position(QRect(0, 0, 800, 480));
    std::string rows;
    for (const Panel& row : page.rows)
        rows += panelElement(row);
    const std::string scroll = "<page " + box(scrollPlace(1)) + " style=\"" + Site::bodyStyle +
                               "\"/>\n" + scrollButton("upbtn", 0) + scrollButton("downbtn", 2);
    return element("list", "",
                   element(Site::listId, "",
                           whole + "<image x=\"0\" y=\"0\" width=\"0\" height=\"0\"/>" +
                               element("listscroll", "", element("scroll", "", whole + scroll)) +
                               element("listitem", "", rows)));
}

// buttons and pages by turns
std::string tabElement(const Page& page)
{
    std::string pairs;
    for (std::size_t i = 0; i < page.tabs.size(); ++i)
        pairs += element("tabbutton", "", itemElement(tabButton(static_cast<int>(i)))) +
                 element("tabpage", "", panelElement(page.tabs[i]));
    return element("tab", "", element(Site::tabId, "", position(QRect(0, 0, 800, 480)) + pairs));
}

} // namespace

std::string layoutFile(const Page& page)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Layout>\n  <Components>\n" +
           groups(page.items) + (page.rows.empty() ? "" : listElement(page)) +
           (page.tabs.empty() ? "" : tabElement(page)) + "  </Components>\n</Layout>\n";
}

} // namespace bench
