#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QSize>

class QPainter;
class QPainterPath;

/// The parts that the pictures are put together from.
namespace art {

/// The three pictures of everything that can be pressed, and the one of a chosen tile.
enum class State { Up, Down, Dim, On };

QImage emptyPicture(const QSize& size);

/// Dark ground with the status bar, as every page has it.
QImage page();

/// A raised field with rounded corners and a bright upper edge.
void drawPanel(QPainter& painter, const QRectF& rect, qreal dRadius);

/// A sunk field.
void drawWell(QPainter& painter, const QRectF& rect, qreal dRadius);

/// A panel in one of its states; `accent` is the colour of the edge when it is pressed or chosen.
void drawTile(QPainter& painter, const QRectF& rect, qreal dRadius, State state,
              const QColor& accent);

/// Strokes a drawing of 48 by 48 units into a square.
void drawIcon(QPainter& painter, const QPainterPath& icon, const QRectF& rect, const QColor& color,
              qreal dPen);

/// Strokes a drawing as it looks on a button of that state; `color` is that of the raised one.
void drawMark(QPainter& painter, const QPainterPath& icon, const QRectF& rect, State state,
              const QColor& color, qreal dPen);

/// A button filled with a colour, raised or sunk.
void drawFilled(QPainter& painter, const QRectF& rect, qreal dRadius, State state,
                const QColor& color);

/// A coloured, rounded square with a white drawing in it.
QImage badge(const QPainterPath& icon, int nSize, const QColor& color);

} // namespace art
