#include "Gauges.h"

#include "Album.h"
#include "Icons.h"
#include "Palette.h"
#include "Shapes.h"
#include "States.h"

#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <string>

namespace art {

namespace {

const QSize tabSize(172, 50);
const int tabFoot = 2; // pixels by which a tab overlaps its panel
const QSize progressSize(376, 24);
const int progressInset = 3;
const int progressCap = 9;
const int meanSize = 60;
const int meanPen = 6;

// ---- drawings of 48 by 48 units

QPainterPath sun()
{
    QPainterPath path;
    path.addEllipse(QPointF(24, 24), 9, 9);
    for (int n = 0; n < 8; ++n) {
        QTransform turn;
        turn.translate(24, 24);
        turn.rotate(n * 45.0);
        path.moveTo(turn.map(QPointF(0, -15)));
        path.lineTo(turn.map(QPointF(0, -20)));
    }
    return path;
}

QPainterPath speaker()
{
    QPainterPath path;
    path.addPolygon(QVector<QPointF>{{7, 18}, {15, 18}, {26, 9}, {26, 39}, {15, 30}, {7, 30}});
    path.closeSubpath();
    path.moveTo(32, 17);
    path.quadTo(37, 24, 32, 31);
    path.moveTo(37, 11);
    path.quadTo(46, 24, 37, 37);
    return path;
}

QPainterPath question()
{
    QPainterPath path;
    path.moveTo(15, 16);
    path.cubicTo(15, 4, 34, 4, 34, 16);
    path.cubicTo(34, 24, 24, 23, 24, 32);
    path.addEllipse(QPointF(24, 41), 0.6, 0.6);
    return path;
}

QPainterPath notes()
{
    QPainterPath path;
    path.addRoundedRect(8, 6, 32, 36, 5, 5);
    for (const qreal y : {16.0, 24.0}) {
        path.moveTo(16, y);
        path.lineTo(32, y);
    }
    path.moveTo(16, 32);
    path.lineTo(25, 32);
    return path;
}

QPainterPath download()
{
    QPainterPath path;
    path.addEllipse(QPointF(24, 24), 18, 18);
    path.moveTo(24, 13);
    path.lineTo(24, 34);
    path.addPolygon(QVector<QPointF>{{16, 26}, {24, 34}, {32, 26}});
    return path;
}

/// An x with a bar over it, the sign of a mean.
QPainterPath mean()
{
    QPainterPath path;
    path.moveTo(13, 9);
    path.lineTo(35, 9);
    path.moveTo(14, 20);
    path.lineTo(34, 41);
    path.moveTo(34, 20);
    path.lineTo(14, 41);
    return path;
}

// ---- tabs

/// A shape that is open at its foot: two rounded corners above.
QPainterPath tabShape(const QRectF& rect, qreal dRadius)
{
    QPainterPath path;
    path.moveTo(rect.bottomLeft());
    path.lineTo(rect.left(), rect.top() + dRadius);
    path.quadTo(rect.topLeft(), QPointF(rect.left() + dRadius, rect.top()));
    path.lineTo(rect.right() - dRadius, rect.top());
    path.quadTo(rect.topRight(), QPointF(rect.right(), rect.top() + dRadius));
    path.lineTo(rect.bottomRight());
    return path;
}

/// The tab that is shown is one piece with its panel, the others lie behind it.
void drawTab(QPainter& painter, State state)
{
    const bool bShown = state == State::Down;
    const QRectF whole(0.5, 0.5, tabSize.width() - 1, tabSize.height());
    const QRectF rect = bShown ? whole : whole.adjusted(0, 5, 0, -tabFoot - 0.5);
    const QPainterPath shape = tabShape(rect, 12);
    painter.fillPath(shape, bShown ? panelTop : state == State::Dim ? plateBottom : bar);
    painter.strokePath(shape, QPen(bShown ? edgeBright : edge, 1));
    if (!bShown)
        return;
    painter.setPen(QPen(blue, 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(18, 3), QPointF(tabSize.width() - 18, 3));
}

void addTabs(Album& album)
{
    for (const State state : pushStates)
        addPicture(album, "tab", tabSize, state, drawTab);
    QImage image = emptyPicture(QSize(800, 424));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPanel(painter, QRectF(24, 56, 752, 352), 16);
    painter.end();
    album.add("tabs", image);
}

// ---- ranges

QLinearGradient glow(const QRectF& rect, const QColor& color)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0, color.lighter(112));
    gradient.setColorAt(1, color.darker(140));
    return gradient;
}

void addRange(Album& album)
{
    QImage column = emptyPicture(QSize(96, 228));
    QPainter painter(&column);
    painter.setRenderHint(QPainter::Antialiasing);
    drawWell(painter, column.rect(), 10);
    painter.setPen(Qt::NoPen);
    painter.setBrush(line);
    for (int n = 0; n < 9; ++n)
        painter.drawRoundedRect(8, 200 - 24 * n, 80, 20, 5, 5);
    painter.end();
    album.add("range_column", column);

    QImage thumb = emptyPicture(QSize(80, 20));
    painter.begin(&thumb);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow(thumb.rect(), amber));
    painter.drawRoundedRect(thumb.rect(), 5, 5);
    painter.end();
    album.add("range_thumb", thumb);
}

/// Rising bars, of which those of the volume shine.
QImage volumeBars(int nVolume)
{
    const int nBars = 12;
    const int nPitch = 27;
    QImage image = emptyPicture(QSize(320, 148));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int n = 0; n < nBars; ++n) {
        const int nHeight = 16 + 12 * n;
        const QRectF bar(n * nPitch, image.height() - nHeight, nPitch - 4, nHeight);
        const bool bShines = n < nBars * nVolume / 3;
        painter.setBrush(bShines ? QBrush(glow(bar, teal)) : QBrush(well));
        painter.drawRoundedRect(bar, 5, 5);
    }
    return image;
}

// ---- progress

void addBar(Album& album, const std::string& strName, const QColor& color)
{
    const int nHeight = progressSize.height() - 2 * progressInset;
    QImage fill = emptyPicture(QSize(3 * progressCap, nHeight));
    QPainter painter(&fill);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow(fill.rect(), color.darker(125)));
    painter.drawRoundedRect(fill.rect(), nHeight / 2.0, nHeight / 2.0);
    painter.end();
    album.add(strName + "_start", fill.copy(0, 0, progressCap, nHeight));
    album.add(strName + "_mid", fill.copy(progressCap, 0, progressCap, nHeight));
    album.add(strName + "_end", fill.copy(2 * progressCap, 0, progressCap, nHeight));
}

QImage circle(const QBrush& brush)
{
    QImage image = emptyPicture(QSize(meanSize, meanSize));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(brush, meanPen));
    // the outermost pixel stays free: a pie box never masks it
    const qreal dInset = meanPen / 2.0 + 2;
    painter.drawEllipse(QRectF(image.rect()).adjusted(dInset, dInset, -dInset, -dInset));
    return image;
}

void addProgress(Album& album)
{
    QImage groove = emptyPicture(progressSize);
    QPainter painter(&groove);
    painter.setRenderHint(QPainter::Antialiasing);
    drawWell(painter, groove.rect(), progressSize.height() / 2.0);
    painter.end();
    album.add("progress", groove);
    addBar(album, "progress", teal);
    addBar(album, "progress_total", blue);

    album.add("mean_groove", circle(well));
    album.add("mean_ring", circle(teal));
    const QSize button(40, 40);
    addTile(album, "mean", button, 20, pushStates, [](QPainter& painter, State state) {
        drawMark(painter, mean(), QRectF(11, 11, 18, 18), state, white, 5);
    });
}

// ---- help

/// A bubble with its tip at the upper edge, and a soft shadow.
QImage bubble()
{
    QImage image = emptyPicture(QSize(400, 182));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath body;
    body.addRoundedRect(QRectF(12.5, 18.5, 375, 146), 16, 16);
    QPainterPath tip;
    tip.addPolygon(QVector<QPointF>{{192, 2}, {210, 24}, {174, 24}, {192, 2}});
    const QPainterPath shape = body.united(tip);
    painter.setBrush(Qt::NoBrush);
    for (int n = 12; n >= 1; --n)
        painter.strokePath(shape.translated(0, 3), QPen(QColor(0, 0, 0, 16), 2 * n, Qt::SolidLine,
                                                        Qt::RoundCap, Qt::RoundJoin));
    QLinearGradient fill(0, 0, 0, 166);
    fill.setColorAt(0, blue.darker(245));
    fill.setColorAt(1, blue.darker(310));
    painter.fillPath(shape, fill);
    painter.strokePath(shape,
                       QPen(blue.darker(120), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    return image;
}

// ---- ways

/// A tile that leads to another page.
void addWay(Album& album, const std::string& strName, const QPainterPath& icon, const QColor& color)
{
    addTile(
        album, strName, QSize(336, 72), 14, pushStates,
        [&](QPainter& painter, State state) {
            painter.setOpacity(state == State::Dim ? 0.45 : 1);
            painter.drawImage(14, 14,
                              badge(icon, 44, state == State::Down ? color.darker(125) : color));
            painter.setOpacity(1);
            drawMark(painter, chevron(), QRectF(298, 22, 28, 28), state, quiet, 4);
        },
        color);
}

void addBarButton(Album& album, const std::string& strName, const QPainterPath& icon, int nWidth)
{
    addTile(album, strName, QSize(nWidth, 40), 10, pushStates, [&](QPainter& painter, State state) {
        drawMark(painter, icon, QRectF(12, 8, 24, 24), state, white, 4);
    });
}

/// A quiet drawing beside a caption.
void addIcon(Album& album, const std::string& strName, const QPainterPath& icon)
{
    QImage image = emptyPicture(QSize(24, 24));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawIcon(painter, icon, image.rect(), quiet.lighter(125), 3.6);
    painter.end();
    album.add(strName, image);
}

QImage updatePage()
{
    QImage image = page();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPanel(painter, QRectF(24, 72, 752, 392), 16);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(40, 308, 720, 1, edge);
    return image;
}

} // namespace

void addGauges(Album& album)
{
    addTabs(album);
    addRange(album);
    for (int nVolume = 0; nVolume <= 3; ++nVolume)
        album.add("volume_" + std::to_string(nVolume), volumeBars(nVolume));
    addProgress(album);
    album.add("bubble", bubble());
    addBarButton(album, "bar_help", question(), 48);
    addBarButton(album, "bar_notes", notes(), 144);
    addIcon(album, "icon_sun", sun());
    addIcon(album, "icon_speaker", speaker());
    addWay(album, "way_clock", clock(), violet);
    addWay(album, "way_network", network(), blue);
    addWay(album, "way_update", download(), teal);
    album.add("sensor", badge(flask(), 96, violet));
    album.add("page_tabs", page());
    album.add("page_update", updatePage());
}

} // namespace art
