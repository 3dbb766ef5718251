#pragma once

#include <QRect>

#include <string>
#include <vector>

namespace bench {

/** One widget of a generated page. */
struct Item
{
    enum class Kind { Button, Label, Picture, RoundGauge, BarGauge };

    Kind kind;
    std::string id;
    std::string title; ///< of buttons and labels
    std::string file;  ///< of pictures, of buttons that are up, and behind gauges
    std::string down;  ///< of buttons that are pressed, and what gauges fill with
    QRect place;       ///< in pixels on the 800 by 480 page
};

/** A part of a page that holds widgets: a row of a list, or what one tab brings up. */
struct Panel
{
    std::string id;
    QRect place; ///< in pixels on the page; its widgets count from its corner
    std::vector<Item> items;
};

struct Page
{
    std::string name;
    std::vector<Item> items;
    std::vector<Panel> rows = {}; ///< of a list, all with labels only
    std::vector<Panel> tabs = {}; ///< of a tab, the first one is up
};

/** @p count pictures in a grid over the page. */
Page picturePage(const std::string& name, int count);

/** The common page: of each 60 widgets 24 are buttons, 24 labels and 12 pictures. */
Page commonPage(const std::string& name, int count);

/** A list of labels, and beside it the two buttons and the label that its pages are turned with. */
Page listPage(const std::string& name);

/** The texts of the cells of a list's page, row by row. */
std::vector<std::string> cellTexts(int page);

/** A tab for each count; on it so many widgets, up to 60, in the shares of the common page. */
Page tabPage(const std::string& name, const std::vector<int>& counts);

/** A page with one gauge. */
Page gaugePage(const std::string& name, Item::Kind kind);

/** The button of a tab. */
Item tabButton(int tab);

/** Where the buttons to the page before and after, and the page number between them, stand. */
QRect scrollPlace(int part);

/** Name of the picture of that size and number. */
std::string pictureFile(const QSize& size, int index);

/** A page without widgets, for a window to stand on while nothing is measured. */
Page homePage();

/**
 * The files of a run: below one directory the resources as the instrument has them, and the same
 * pages as the peers want them. Nothing of it is counted.
 */
class Site
{
public:
    static constexpr const char* bodyStyle = "body";
    static constexpr const char* fontFamily = "DejaVu Sans";
    static constexpr int pointSize = 12;
    static constexpr int stringKeys = 1000;
    static constexpr int pictureCount = 60; ///< different pictures of each size
    static constexpr int styleCount = 4;
    static constexpr int listRows = 10;
    static constexpr int listColumns = 6;
    static constexpr const char* listId = "table";
    static constexpr const char* tabId = "tabs";
    static constexpr const char* gaugeId = "gauge";
    static constexpr QSize discSize{200, 200};
    static constexpr QSize barSize{400, 40};
    static constexpr QSize capSize{10, 36}; ///< of each piece that a bar is filled with
    static constexpr QPoint capOffset{4, 2};

    explicit Site(std::string root)
        : m_root(std::move(root))
    {
    }

    /** Makes directories, pictures, styles, string table and configuration. */
    void create() const;

    /** Writes @p page for all candidates, and for ours once more below the language "kr". */
    void write(const Page& page) const;

    /** Writes a page for the library only, with these components. */
    void writeComponents(const std::string& page, const std::string& components) const;

    /** Writes the style file anew with the first @p count of the four styles. */
    void writeStyles(int count) const;

    const std::string& root() const { return m_root; }
    std::string resource() const { return m_root + "/app/bin/resource/"; }
    std::string picture(const std::string& file) const { return resource() + "img/" + file; }
    std::string layout(const std::string& page) const;
    std::string stringTable() const { return resource() + "StringTable.Resource"; }

    /** Designer file: with custom classes, or with QLabel and style-sheet buttons only. */
    std::string designer(const std::string& page, bool customClasses) const;
    std::string qml(const std::string& page) const { return m_root + "/peers/" + page + ".qml"; }

private:
    void writePictures(const QSize& size) const;
    void writeStringTable() const;

    std::string m_root;
};

} // namespace bench
