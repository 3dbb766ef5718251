#include "Shapes.h"

#include "Palette.h"

#include <QPainter>
#include <QPainterPath>

namespace art {

namespace {

const int barHeight = 56;

QLinearGradient vertical(const QRectF& rect, const QColor& top, const QColor& bottom)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    return gradient;
}

QColor transparent(QColor color, int nAlpha)
{
    color.setAlpha(nAlpha);
    return color;
}

/// A fill with an edge of one pixel that lies wholly inside of the rectangle.
void drawField(QPainter& painter, const QRectF& rect, qreal dRadius, const QBrush& fill,
               const QBrush& outline)
{
    painter.setPen(QPen(outline, 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), dRadius, dRadius);
}

} // namespace

QImage emptyPicture(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage page()
{
    QImage image(800, 480, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.fillRect(image.rect(), vertical(image.rect(), groundTop, groundBottom));
    painter.fillRect(0, 0, 800, barHeight, bar);
    painter.fillRect(0, barHeight - 1, 800, 1, edge);
    return image;
}

void drawPanel(QPainter& painter, const QRectF& rect, qreal dRadius)
{
    drawField(painter, rect, dRadius, vertical(rect, panelTop, panelBottom),
              vertical(rect, edgeBright, edge));
}

void drawWell(QPainter& painter, const QRectF& rect, qreal dRadius)
{
    drawField(painter, rect, dRadius, well, line);
}

void drawTile(QPainter& painter, const QRectF& rect, qreal dRadius, State state,
              const QColor& accent)
{
    const QRectF inside = rect.adjusted(1, 1, -1, -1);
    switch (state) {
    case State::Up:
        drawPanel(painter, rect, dRadius);
        break;
    case State::Down:
        drawField(painter, rect, dRadius, vertical(rect, well, panelBottom), edge);
        painter.setPen(QPen(accent.darker(150), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(inside, dRadius - 1, dRadius - 1);
        break;
    case State::Dim:
        drawField(painter, rect, dRadius, vertical(rect, plateTop, plateBottom), plateEdge);
        break;
    case State::On:
        drawPanel(painter, rect, dRadius);
        painter.setPen(QPen(accent, 2));
        painter.setBrush(transparent(accent, 40));
        painter.drawRoundedRect(inside, dRadius - 1, dRadius - 1);
        break;
    }
}

void drawFilled(QPainter& painter, const QRectF& rect, qreal dRadius, State state,
                const QColor& color)
{
    if (state == State::Dim)
        drawTile(painter, rect, dRadius, state, color);
    else if (state == State::Down)
        drawField(painter, rect, dRadius, vertical(rect, color.darker(230), color.darker(180)),
                  color.darker(130));
    else
        drawField(painter, rect, dRadius, vertical(rect, color.darker(115), color.darker(160)),
                  vertical(rect, color.lighter(110), color.darker(140)));
}

void drawIcon(QPainter& painter, const QPainterPath& icon, const QRectF& rect, const QColor& color,
              qreal dPen)
{
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / 48, rect.height() / 48);
    painter.strokePath(icon, QPen(color, dPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

void drawMark(QPainter& painter, const QPainterPath& icon, const QRectF& rect, State state,
              const QColor& color, qreal dPen)
{
    if (state == State::Dim) {
        drawIcon(painter, icon, rect.translated(1, 1), cutEdge, dPen);
        drawIcon(painter, icon, rect, cut, dPen);
    } else {
        drawIcon(painter, icon, rect, state == State::Down ? blue.lighter(130) : color, dPen);
    }
}

QImage badge(const QPainterPath& icon, int nSize, const QColor& color)
{
    QImage image = emptyPicture(QSize(nSize, nSize));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF rect = image.rect();
    drawField(painter, rect, nSize / 4.0, vertical(rect, color.lighter(108), color.darker(135)),
              vertical(rect, color.lighter(125), color.darker(120)));
    const qreal dMargin = nSize * 0.18;
    drawIcon(painter, icon, rect.adjusted(dMargin, dMargin, -dMargin, -dMargin), white, 3.4);
    return image;
}

} // namespace art
