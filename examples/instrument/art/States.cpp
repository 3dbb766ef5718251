#include "States.h"

#include "Album.h"

#include <QPainter>

namespace art {

namespace {

const char* suffix(State state)
{
    switch (state) {
    case State::Down:
        return "_down";
    case State::Dim:
        return "_dim";
    case State::On:
        return "_on";
    default:
        return "_up";
    }
}

} // namespace

void addPicture(Album& album, const std::string& strName, const QSize& size, State state,
                const Inside& draw)
{
    QImage image = emptyPicture(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, state);
    painter.end();
    album.add(strName + suffix(state), image);
}

void addTile(Album& album, const std::string& strName, const QSize& size, qreal dRadius,
             std::initializer_list<State> states, const Inside& drawInside, const QColor& accent)
{
    for (const State state : states)
        addPicture(album, strName, size, state, [&](QPainter& painter, State) {
            drawTile(painter, QRectF(QPointF(0, 0), size), dRadius, state, accent);
            drawInside(painter, state);
        });
}

void drawNothing(QPainter&, State) {}

} // namespace art
