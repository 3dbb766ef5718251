#include "Lists.h"

#include "Album.h"
#include "Icons.h"
#include "Keys.h"
#include "Palette.h"
#include "Shapes.h"
#include "States.h"

#include <QPainter>
#include <QPainterPath>
#include <QTransform>

namespace art {

namespace {

const int headHeight = 48;
const int rowHeight = 40;
const int rows = 7;
const int dropRow = 44;
const int dropRows = 6;

enum class Side { Left, Right, Up, Down };

/// The chevron, turned about the middle of its field.
QPainterPath chevronTo(Side side)
{
    const int nAngle = side == Side::Left   ? 180
                       : side == Side::Up   ? 270
                       : side == Side::Down ? 90
                                            : 0;
    return QTransform().translate(24, 24).rotate(nAngle).translate(-24, -24).map(chevron());
}

/// Sheets on a pile.
QPainterPath pile()
{
    QPainterPath path;
    path.addPolygon(QVector<QPointF>{{24, 6}, {42, 15}, {24, 24}, {6, 15}, {24, 6}});
    path.addPolygon(QVector<QPointF>{{6, 24}, {24, 33}, {42, 24}});
    path.addPolygon(QVector<QPointF>{{6, 33}, {24, 42}, {42, 33}});
    return path;
}

QPainterPath eye()
{
    QPainterPath path;
    path.moveTo(5, 24);
    path.cubicTo(13, 10, 35, 10, 43, 24);
    path.cubicTo(35, 38, 13, 38, 5, 24);
    path.addEllipse(QPointF(24, 24), 6, 6);
    return path;
}

QPainterPath letterI()
{
    QPainterPath path;
    path.addEllipse(QPointF(24, 24), 19, 19);
    path.moveTo(24, 22);
    path.lineTo(24, 34);
    path.moveTo(24, 14.5);
    path.lineTo(24, 14.6);
    return path;
}

/// A panel with a line below the head and one below each row.
QImage listGround(const QSize& size)
{
    QImage image = emptyPicture(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPanel(painter, image.rect(), 16);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(1, headHeight - 1, size.width() - 2, 1, edge);
    for (int nRow = 1; nRow < rows; ++nRow)
        painter.fillRect(16, headHeight + nRow * rowHeight - 1, size.width() - 32, 1, line);
    painter.fillRect(1, headHeight + rows * rowHeight - 1, size.width() - 2, 1, edge);
    return image;
}

QImage panelPage(const QRectF& panel)
{
    QImage image = page();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPanel(painter, panel, 16);
    return image;
}

/// A box without a ground, which lets the row be seen; "down" is the checked one too.
void addBox(Album& album)
{
    const QSize size(rowHeight, rowHeight);
    const QRectF box(9, 8, 24, 24);
    for (const State state : pushStates)
        addPicture(album, "box", size, state, [&](QPainter& painter, State) {
            const bool bChecked = state == State::Down;
            painter.setPen(QPen(bChecked ? blue : state == State::Dim ? line : edgeBright, 2));
            painter.setBrush(bChecked ? blue : well);
            painter.drawRoundedRect(box.adjusted(1, 1, -1, -1), 5, 5);
            if (bChecked)
                drawIcon(painter, tick(), box.adjusted(3, 3, -3, -3), white, 8);
        });
}

/// The head of a column that sorts; "down" is the one that it is sorted by.
void addHead(Album& album, const std::string& strName, int nWidth)
{
    const QSize size(nWidth, 36);
    for (const State state : pushStates)
        addPicture(album, strName, size, state, [&](QPainter& painter, State) {
            const State look = state == State::Down ? State::On : state;
            drawTile(painter, QRectF(QPointF(0, 0), size), 8, look, blue);
        });
}

/// The mark of the direction in which a column is sorted.
QImage sortMark(bool bAscending)
{
    QImage image = emptyPicture(QSize(12, 12));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(blue.lighter(130));
    const qreal dBase = bAscending ? 9.5 : 2.5;
    const qreal dTip = 12 - dBase;
    painter.drawPolygon(QPolygonF({{1, dBase}, {11, dBase}, {6, dTip}}));
    return image;
}

void addTurner(Album& album, const std::string& strName, const QSize& size, Side side)
{
    const QRectF place((size.width() - 24) / 2.0, (size.height() - 24) / 2.0, 24, 24);
    addTile(album, strName, size, 10, pushStates, [&](QPainter& painter, State state) {
        drawMark(painter, chevronTo(side), place, state, white, 5);
    });
}

/// The last piece of the frame of a field with a drop-down; the others are those of any field.
void addFieldEnd(Album& album, const std::string& strName, Side side)
{
    const std::pair<State, const char*> looks[] = {
        {State::Up, "_up_end"}, {State::Down, "_down_end"}, {State::Dim, "_dim_end"}};
    const int nWidth = 44;
    for (const auto& [state, pszSuffix] : looks) {
        QImage whole = field(state, QSize(100, 48));
        QPainter painter(&whole);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(QRectF(100 - nWidth, 8, 1, 32), edge);
        drawMark(painter, chevronTo(side), QRectF(67, 12, 24, 24),
                 state == State::Down ? State::Up : state, quiet.lighter(140), 4);
        painter.end();
        album.add(strName + pszSuffix, whole.copy(100 - nWidth, 0, nWidth, 48));
    }
}

/// A row of a drop-down, with an edge at the sides, and at its end where it is the farthest one
/// from the field.
QImage dropDownRow(int nWidth, bool bPressed, bool bEndUp, bool bEndDown)
{
    QImage image = emptyPicture(QSize(nWidth, dropRow));
    QPainter painter(&image);
    painter.fillRect(image.rect(), bPressed ? blue.darker(230) : keyBottom.darker(115));
    painter.fillRect(0, 0, 1, dropRow, edgeBright);
    painter.fillRect(nWidth - 1, 0, 1, dropRow, edgeBright);
    painter.fillRect(bEndDown ? 0 : 1, dropRow - 1, bEndDown ? nWidth : nWidth - 2, 1,
                     bEndDown ? edgeBright : edge);
    if (bEndUp)
        painter.fillRect(0, 0, nWidth, 1, edgeBright);
    return image;
}

void addDropDown(Album& album, const std::string& strName, int nWidth, Side side)
{
    album.add(strName + "_mid", dropDownRow(nWidth, false, false, false));
    album.add(strName + "_end", dropDownRow(nWidth, false, side == Side::Up, side == Side::Down));
    album.add(strName + "_press", dropDownRow(nWidth, true, false, false));
}

/// What lies behind the page turner of a drop-down.
QImage dropBackdrop()
{
    QImage image = emptyPicture(QSize(56, dropRows * dropRow));
    QPainter painter(&image);
    painter.fillRect(image.rect(), edgeBright);
    painter.fillRect(image.rect().adjusted(0, 1, -1, -1), panelBottom);
    return image;
}

void addIconButton(Album& album, const std::string& strName, const QSize& size,
                   const QPainterPath& icon, const QRectF& place)
{
    addTile(album, strName, size, 10, pushStates, [&](QPainter& painter, State state) {
        drawMark(painter, icon, place, state, white, 4);
    });
}

} // namespace

void addLists(Album& album)
{
    album.add("page_results", panelPage(QRectF(576, 72, 200, 392)));
    album.add("page_samples", page());
    album.add("page_about", panelPage(QRectF(24, 72, 752, 392)));
    album.add("list_records", listGround(QSize(536, 392)));
    album.add("list_samples", listGround(QSize(752, 392)));

    addBox(album);
    addHead(album, "head_time", 116);
    addHead(album, "head_temp", 60);
    album.add("sort_ascending", sortMark(true));
    album.add("sort_descending", sortMark(false));

    addTurner(album, "page_back", QSize(64, 48), Side::Left);
    addTurner(album, "page_on", QSize(64, 48), Side::Right);
    addTurner(album, "drop_back", QSize(48, 80), Side::Up);
    addTurner(album, "drop_on", QSize(48, 80), Side::Down);

    addFieldEnd(album, "filter", Side::Up);
    addDropDown(album, "drop", 256, Side::Up);
    album.add("drop_backdrop", dropBackdrop());
    addTurner(album, "recent", QSize(48, 48), Side::Down);
    addDropDown(album, "names", 368, Side::Down);

    const QRectF left(12, 8, 24, 24);
    addIconButton(album, "bar_show", QSize(144, 40), eye(), left);
    addIconButton(album, "samples", QSize(168, 56), pile(), QRectF(14, 14, 28, 28));
    addIconButton(album, "info", QSize(56, 40), letterI(), QRectF(16, 8, 24, 24));
}

} // namespace art
