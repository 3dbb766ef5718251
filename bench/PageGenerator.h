#pragma once

#include <QRect>

#include <string>
#include <vector>

namespace bench {

/** One widget of a generated page. */
struct Item
{
    enum class Kind { Button, Label, Picture };

    Kind kind;
    std::string id;
    std::string title; ///< of buttons and labels
    std::string file;  ///< of pictures and of buttons that are up
    std::string down;  ///< of buttons that are pressed
    QRect place;       ///< in pixels on the 800 by 480 page
};

struct Page
{
    std::string name;
    std::vector<Item> items;
};

/** @p count pictures in a grid over the page. */
Page picturePage(const std::string& name, int count);

/** The common page: of each 60 widgets 24 are buttons, 24 labels and 12 pictures. */
Page commonPage(const std::string& name, int count);

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

    explicit Site(std::string root)
        : m_root(std::move(root))
    {
    }

    /** Makes directories, pictures, styles, string table and configuration. */
    void create() const;

    /** Writes @p page for all candidates, and for ours once more below the language "kr". */
    void write(const Page& page) const;

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
