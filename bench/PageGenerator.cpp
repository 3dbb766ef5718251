#include "PageGenerator.h"

namespace bench {

namespace {

constexpr int pageWidth = 800;
constexpr int pageHeight = 480;
constexpr int largeCount = 60; // up to this many widgets get large cells

struct Grid
{
    int columns;
    int rows;
    QSize picture;

    QRect place(int index) const
    {
        const int width = pageWidth / columns;
        const int height = pageHeight / rows;
        return QRect(QPoint(index % columns * width, index / columns % rows * height), picture);
    }
};

Grid gridFor(int count)
{
    if (count <= largeCount)
        return {10, 6, QSize(80, 48)};
    return {30, 20, QSize(26, 24)};
}

std::string pictureFile(const QSize& size, int index)
{
    return "p" + std::to_string(size.width()) + "x" + std::to_string(size.height()) + "_" +
           std::to_string(index % Site::pictureCount) + ".png";
}

Item makeItem(Item::Kind kind, const Grid& grid, int index)
{
    const std::string number = std::to_string(index);
    const std::string title = std::to_string(index % 100); // fits into the smallest cell
    Item item{kind, {}, {}, {}, {}, grid.place(index)};
    switch (kind) {
    case Item::Kind::Button:
        item.id = "button" + number;
        item.title = title;
        item.file = pictureFile(grid.picture, index);
        item.down = pictureFile(grid.picture, index + 1);
        break;
    case Item::Kind::Label:
        item.id = "label" + number;
        item.title = title;
        break;
    case Item::Kind::Picture:
        item.id = "picture" + number;
        item.file = pictureFile(grid.picture, index);
        break;
    }
    return item;
}

} // namespace

Page picturePage(const std::string& name, int count)
{
    const Grid grid = gridFor(count);
    Page page{name, {}};
    for (int i = 0; i < count; ++i)
        page.items.push_back(makeItem(Item::Kind::Picture, grid, i));
    return page;
}

Page commonPage(const std::string& name, int count)
{
    const Grid grid = gridFor(count);
    const int buttons = count * 24 / 60;
    const int labels = count * 24 / 60;
    Page page{name, {}};
    for (int i = 0; i < count; ++i) {
        Item::Kind kind = Item::Kind::Picture;
        if (i < buttons)
            kind = Item::Kind::Button;
        else if (i < buttons + labels)
            kind = Item::Kind::Label;
        page.items.push_back(makeItem(kind, grid, i));
    }
    return page;
}

Page homePage()
{
    return {"home", {}};
}

} // namespace bench
