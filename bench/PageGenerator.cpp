#include "PageGenerator.h"

namespace bench {

namespace {

constexpr int pageWidth = 800;
constexpr int pageHeight = 480;
constexpr int tabsHeight = 60;
constexpr QSize cellSize(110, 48); // of a list
constexpr int largeCount = 60;     // up to this many widgets get large cells

struct Grid
{
    int columns;
    int rows;
    QSize picture;
    int height = pageHeight;

    QRect place(int index) const
    {
        const int width = pageWidth / columns;
        return QRect(QPoint(index % columns * width, index / columns % rows * (height / rows)),
                     picture);
    }
};

Grid gridFor(int count)
{
    if (count <= largeCount)
        return {10, 6, QSize(80, 48)};
    return {30, 20, QSize(26, 24)};
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
    case Item::Kind::RoundGauge:
    case Item::Kind::BarGauge:
        break; // in no grid
    }
    return item;
}

std::vector<Item> commonItems(int count, const Grid& grid)
{
    const int buttons = count * 24 / 60;
    const int labels = count * 24 / 60;
    std::vector<Item> items;
    for (int i = 0; i < count; ++i) {
        Item::Kind kind = Item::Kind::Picture;
        if (i < buttons)
            kind = Item::Kind::Button;
        else if (i < buttons + labels)
            kind = Item::Kind::Label;
        items.push_back(makeItem(kind, grid, i));
    }
    return items;
}

} // namespace

std::string pictureFile(const QSize& size, int index)
{
    return "p" + std::to_string(size.width()) + "x" + std::to_string(size.height()) + "_" +
           std::to_string(index % Site::pictureCount) + ".png";
}

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
    return {name, commonItems(count, gridFor(count))};
}

Page listPage(const std::string& name)
{
    Page page{name, {}};
    const std::vector<std::string> texts = cellTexts(0);
    for (int row = 0; row < Site::listRows; ++row) {
        Panel panel{"row" + std::to_string(row),
                    QRect(0, row * cellSize.height(), Site::listColumns * cellSize.width(),
                          cellSize.height()),
                    {}};
        for (int column = 0; column < Site::listColumns; ++column) {
            const int index = row * Site::listColumns + column;
            panel.items.push_back({Item::Kind::Label,
                                   "cell" + std::to_string(column),
                                   texts[static_cast<std::size_t>(index)],
                                   {},
                                   {},
                                   QRect(QPoint(column * cellSize.width(), 0), cellSize)});
        }
        page.rows.push_back(std::move(panel));
    }
    return page;
}

std::vector<std::string> cellTexts(int page)
{
    constexpr int cells = Site::listRows * Site::listColumns;
    std::vector<std::string> texts;
    texts.reserve(cells);
    for (int i = 0; i < cells; ++i)
        texts.push_back(std::to_string(page) + "." + std::to_string(i) + " mmol/l");
    return texts;
}

Page tabPage(const std::string& name, const std::vector<int>& counts)
{
    Grid grid = gridFor(largeCount);
    grid.height = pageHeight - tabsHeight;
    Page page{name, {}};
    for (const int count : counts)
        page.tabs.push_back({"page" + std::to_string(page.tabs.size()),
                             QRect(0, tabsHeight, pageWidth, grid.height),
                             commonItems(count, grid)});
    return page;
}

Item tabButton(int tab)
{
    Item item = makeItem(Item::Kind::Button, gridFor(largeCount), tab);
    item.id = "tab" + std::to_string(tab);
    return item;
}

QRect scrollPlace(int part)
{
    return {pageWidth - 80, part * 160, 80, 48};
}

Page gaugePage(const std::string& name, Item::Kind kind)
{
    const QSize size = kind == Item::Kind::RoundGauge ? Site::discSize : Site::barSize;
    const QSize filling = kind == Item::Kind::RoundGauge ? Site::discSize : Site::capSize;
    return {name,
            {{kind,
              Site::gaugeId,
              {},
              pictureFile(size, 0),
              pictureFile(filling, Site::pictureCount / 2),
              QRect(QPoint(200, 100), size)}}};
}

Page homePage()
{
    return {"home", {}};
}

} // namespace bench
