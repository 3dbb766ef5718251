#include "Keys.h"

#include "Album.h"
#include "Icons.h"
#include "Palette.h"
#include "Shapes.h"
#include "States.h"

#include <QPainter>
#include <QPainterPath>

namespace art {

namespace {

const QSize fieldSize(32, 48);
const int fieldEnd = 14; // width of the first and the last piece
const QSize padKey(72, 64);
const QSize padWideKey(156, 64);
const int keyHeight = 54;

void addField(Album& album, const std::string& strName, State state)
{
    const QImage whole = field(state, fieldSize);
    const int nMid = fieldSize.width() - 2 * fieldEnd;
    album.add(strName + "_start", whole.copy(0, 0, fieldEnd, fieldSize.height()));
    album.add(strName + "_mid", whole.copy(fieldEnd, 0, nMid, fieldSize.height()));
    album.add(strName + "_end", whole.copy(fieldEnd + nMid, 0, fieldEnd, fieldSize.height()));
}

QLinearGradient keyFill(const QRectF& rect, State state, bool bLight)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    const QColor top = bLight ? keyTop : panelTop;
    const QColor bottom = bLight ? keyBottom : panelBottom;
    const bool bDown = state == State::Down;
    gradient.setColorAt(0, bDown ? blue.darker(260) : top);
    gradient.setColorAt(1, bDown ? blue.darker(210) : bottom);
    return gradient;
}

/// A key stands on a dark foot of two pixels, into which it is pressed. Light ones type a
/// character, the others do something.
void drawKey(QPainter& painter, const QSize& size, State state, bool bLight)
{
    const QRectF rect(QPointF(0, 0), size);
    if (state == State::Dim) {
        drawTile(painter, rect, 10, state, blue);
        return;
    }
    const bool bDown = state == State::Down;
    painter.setPen(Qt::NoPen);
    painter.setBrush(well);
    painter.drawRoundedRect(rect, 10, 10);
    const QRectF cap = rect.adjusted(0.5, 0.5, -0.5, bDown ? -0.5 : -2.5);
    painter.setPen(QPen(bDown || state == State::On ? blue : edgeBright, 1));
    painter.setBrush(keyFill(cap, state, bLight));
    painter.drawRoundedRect(cap, 9, 9);
    if (state != State::On)
        return;
    painter.setPen(QPen(blue, 2));
    painter.setBrush(QColor(blue.red(), blue.green(), blue.blue(), 60));
    painter.drawRoundedRect(cap.adjusted(0.5, 0.5, -0.5, -0.5), 9, 9);
}

void addKey(Album& album, const std::string& strName, const QSize& size, bool bLight,
            const Inside& drawInside = drawNothing,
            std::initializer_list<State> states = pushStates)
{
    for (const State state : states)
        addPicture(album, strName, size, state, [&](QPainter& painter, State) {
            drawKey(painter, size, state, bLight);
            drawInside(painter, state);
        });
}

/// The key that ends the typing.
void addDoneKey(Album& album, const std::string& strName, const QSize& size,
                const Inside& drawInside = drawNothing)
{
    for (const State state : pushStates)
        addPicture(album, strName, size, state, [&](QPainter& painter, State) {
            drawFilled(painter, QRectF(QPointF(0, 0), size), 10, state, blue);
            drawInside(painter, state);
        });
}

QPainterPath nextLine()
{
    QPainterPath path;
    path.addPolygon(QVector<QPointF>{{38, 10}, {38, 28}, {10, 28}});
    path.addPolygon(QVector<QPointF>{{19, 18}, {9, 28}, {19, 38}});
    return path;
}

/// Draws a mark of that size in the middle of a key.
Inside markOn(const QSize& key, const QPainterPath& icon, int nSize)
{
    const QRectF place((key.width() - nSize) / 2.0, (key.height() - 2 - nSize) / 2.0, nSize, nSize);
    return [=](QPainter& painter, State state) {
        drawMark(painter, icon, place, state, state == State::On ? blue.lighter(130) : white, 3.6);
    };
}

} // namespace

QImage field(State state, const QSize& size)
{
    QImage image = emptyPicture(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF rect(QPointF(0, 0), size);
    if (state == State::Dim) {
        drawTile(painter, rect, 10, state, blue);
        return image;
    }
    drawWell(painter, rect, 10);
    const bool bTyping = state == State::Down;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(bTyping ? blue : edgeBright, bTyping ? 2 : 1));
    const qreal dInset = bTyping ? 1 : 0.5;
    painter.drawRoundedRect(rect.adjusted(dInset, dInset, -dInset, -dInset), 10, 10);
    return image;
}

void addFields(Album& album)
{
    addField(album, "edit_up", State::Up);
    addField(album, "edit_down", State::Down);
    addField(album, "edit_dim", State::Dim);
}

void addKeys(Album& album)
{
    addKey(album, "pad_key", padKey, true);
    addKey(album, "pad_wide", padWideKey, true);
    addKey(album, "pad_special", padKey, false);
    addKey(album, "pad_back", padKey, false, markOn(padKey, backspace(), 30));
    const QSize close(56, 48);
    addDoneKey(album, "pad_close", close, markOn(close, tick(), 28));

    addKey(album, "key", QSize(68, keyHeight), true);
    addKey(album, "key_space", QSize(334, keyHeight), true);
    const QSize wide(106, keyHeight);
    addKey(album, "key_shift", wide, false, markOn(wide, shift(), 26), choiceStates);
    addKey(album, "key_back", wide, false, markOn(wide, backspace(), 30));
    addKey(album, "key_language", wide, false, [](QPainter& painter, State state) {
        drawMark(painter, globe(), QRectF(14, 14, 24, 24), state, white, 3.6);
    });
    const QSize enter(144, keyHeight);
    addDoneKey(album, "key_enter", enter);
    addKey(album, "key_line", enter, false, markOn(enter, nextLine(), 30));
}

} // namespace art
