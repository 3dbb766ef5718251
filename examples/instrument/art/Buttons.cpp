#include "Buttons.h"

#include "Album.h"
#include "Icons.h"
#include "Palette.h"
#include "Shapes.h"
#include "States.h"

#include <QPainter>
#include <QPainterPath>

#include <string>

namespace art {

namespace {

/// A badge on a button: a little darker while the button is held, pale when it takes no touches.
void drawBadge(QPainter& painter, State state, const QPointF& at, const QPainterPath& icon,
               int nSize, const QColor& color)
{
    const QColor shade = state == State::Down ? color.darker(125) : color;
    painter.setOpacity(state == State::Dim ? 0.45 : 1);
    painter.drawImage(at, badge(icon, nSize, shade));
    painter.setOpacity(1);
}

void addHomeTile(Album& album, const std::string& strName, const QPainterPath& icon,
                 const QColor& color)
{
    addTile(
        album, strName, QSize(368, 144), 16, pushStates,
        [&](QPainter& painter, State state) {
            drawBadge(painter, state, QPointF(24, 32), icon, 80, color);
            drawMark(painter, chevron(), QRectF(320, 56, 32, 32), state, quiet, 4);
        },
        color);
}

void addChannelTile(Album& album, const std::string& strName, const QPainterPath& icon,
                    const QColor& color)
{
    addTile(album, strName, QSize(176, 104), 12, choiceStates, [&](QPainter& painter, State state) {
        drawBadge(painter, state, QPointF(12, 12), icon, 40, color);
    });
}

/// A button of the status bar; with a width of more than its drawing it has room for a title.
void addBarButton(Album& album, const std::string& strName, const QPainterPath& icon,
                  const QSize& size, const QRectF& place)
{
    addTile(album, strName, size, 10, pushStates, [&](QPainter& painter, State state) {
        drawMark(painter, icon, place, state, white, 4);
    });
}

/// A plain button for a title, filled with a colour or, without one, a tile.
void addFilled(Album& album, const std::string& strName, const QSize& size, const QColor& color)
{
    for (const State state : pushStates)
        addPicture(album, strName, size, state, [&](QPainter& painter, State) {
            drawFilled(painter, QRectF(QPointF(0, 0), size), 12, state, color);
        });
}

/// The box of a check button; its "down" picture is the checked one too.
void drawBox(QPainter& painter, State state)
{
    const QRectF box(16, 18, 28, 28);
    if (state == State::Dim) {
        painter.setPen(QPen(cut, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box.adjusted(1, 1, -1, -1), 6, 6);
    } else if (state == State::On) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(blue);
        painter.drawRoundedRect(box, 7, 7);
        drawIcon(painter, tick(), box.adjusted(3, 3, -3, -3), white, 8);
    } else {
        painter.setPen(QPen(edgeBright, 2));
        painter.setBrush(well);
        painter.drawRoundedRect(box.adjusted(1, 1, -1, -1), 6, 6);
    }
}

void drawDot(QPainter& painter, State state)
{
    const QPointF middle(26, 30);
    painter.setPen(QPen(state == State::Dim ? cut : state == State::On ? blue : edgeBright, 2));
    painter.setBrush(state == State::Dim ? QBrush(Qt::NoBrush) : QBrush(well));
    painter.drawEllipse(middle, 11, 11);
    if (state != State::On)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(blue);
    painter.drawEllipse(middle, 6, 6);
}

/// Buttons that can be checked show their "down" picture while they are.
void addCheckable(Album& album, const std::string& strName, const QSize& size,
                  const Inside& drawInside)
{
    const std::pair<State, State> looks[] = {
        {State::Up, State::Up}, {State::Down, State::On}, {State::Dim, State::Dim}};
    for (const auto& [state, look] : looks)
        addPicture(album, strName, size, state, [&, look = look](QPainter& painter, State) {
            drawTile(painter, QRectF(QPointF(0, 0), size), 12, look, blue);
            drawInside(painter, look);
        });
}

} // namespace

void addLanguageTile(Album& album, const QPainterPath& icon)
{
    addHomeTile(album, "home_language", icon, amber);
}

void addButtons(Album& album)
{
    addHomeTile(album, "home_measure", drop(), teal);
    addHomeTile(album, "home_results", results(), blue);
    addHomeTile(album, "home_settings", sliders(), violet);
    addLanguageTile(album, bubbleLatin());

    addChannelTile(album, "channel_ph", flask(), violet);
    addChannelTile(album, "channel_cond", bolt(), amber);
    addChannelTile(album, "channel_oxygen", oxygen(), teal);
    addChannelTile(album, "channel_temp", thermometer(), coral);

    const QSize bar(144, 40);
    const QRectF left(12, 8, 24, 24);
    addBarButton(album, "back", arrowBack(), QSize(64, 40), QRectF(18, 6, 28, 28));
    addBarButton(album, "camera", camera(), QSize(48, 40), QRectF(11, 7, 26, 26));
    addBarButton(album, "save", store(), bar, left);
    addBarButton(album, "print", printer(), bar, left);
    addBarButton(album, "clear", bin(), bar, left);
    addBarButton(album, "bar_sample", tag(), bar, left);
    const QRectF middle(12, 10, 24, 24);
    addBarButton(album, "minus", minus(), QSize(48, 44), middle);
    addBarButton(album, "plus", plus(), QSize(48, 44), middle);

    addTile(album, "language", QSize(368, 68), 14, choiceStates,
            [](QPainter& painter, State state) {
                if (state == State::On)
                    drawIcon(painter, tick(), QRectF(320, 20, 28, 28), blue, 6);
            });
    addTile(album, "plain", QSize(208, 56), 12, pushStates, drawNothing);
    addFilled(album, "primary", QSize(240, 56), blue);
    addFilled(album, "danger", QSize(208, 56), coral);

    addCheckable(album, "check", QSize(208, 64), drawBox);
    addCheckable(album, "radio", QSize(136, 60), drawDot);
    addTile(album, "row", QSize(432, 64), 12, pushStates, drawNothing, quiet);
}

} // namespace art
