#include "Pages.h"

#include "Album.h"
#include "Icons.h"
#include "Palette.h"
#include "Shapes.h"

#include <QPainter>
#include <QPainterPath>

namespace art {

namespace {

const QSize pageSize(800, 480);
const int gaugeSize = 208;
const int gaugePen = 16;
const int waitSize = 104;
const int waitPen = 10;

/// The rectangle of a ring's middle line. The outermost pixel stays free: a pie box never masks
/// it.
QRectF ringLine(const QPointF& topLeft, int nSize, int nPen)
{
    const qreal dInset = nPen / 2.0 + 2;
    return QRectF(topLeft, QSizeF(nSize, nSize)).adjusted(dInset, dInset, -dInset, -dInset);
}

QImage ring(const QColor& color, int nSize, int nPen)
{
    QImage image = emptyPicture(QSize(nSize, nSize));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QConicalGradient gradient(nSize / 2.0, nSize / 2.0, 90);
    gradient.setColorAt(0, color.lighter(120));
    gradient.setColorAt(1, color.darker(160));
    painter.setPen(QPen(gradient, nPen));
    painter.drawEllipse(ringLine(QPointF(0, 0), nSize, nPen));
    return image;
}

/// The groove that a ring runs in.
void drawGroove(QPainter& painter, const QPointF& topLeft, int nSize, int nPen)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(well, nPen));
    painter.drawEllipse(ringLine(topLeft, nSize, nPen));
}

/// A page with panels on it.
QImage panelPage(std::initializer_list<QRectF> panels)
{
    QImage image = page();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QRectF& panel : panels)
        drawPanel(painter, panel, 16);
    return image;
}

QImage homePage()
{
    QImage image = panelPage({QRectF(24, 392, 752, 72)});
    QPainter painter(&image);
    for (int x = 212; x < 700; x += 188)
        painter.fillRect(x, 408, 1, 40, edge);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient water(0, 12, 0, 44);
    water.setColorAt(0, blue.lighter(115));
    water.setColorAt(1, teal);
    painter.translate(20, 10);
    painter.scale(0.75, 0.75);
    painter.fillPath(dropShape(), water);
    return image;
}

QImage measurePage()
{
    QImage image = panelPage({QRectF(24, 72, 272, 272), QRectF(312, 72, 464, 272)});
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawGroove(painter, QPointF(56, 104), gaugeSize, gaugePen);
    return image;
}

/// A panel with a soft shadow; all around it is transparent.
QImage dialog(const QSize& size, const QRectF& panel)
{
    QImage image = emptyPicture(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 14));
    for (int n = 1; n <= 12; ++n)
        painter.drawRoundedRect(panel.adjusted(-n, 4 - n, n, 4 + n), 18 + n, 18 + n);
    drawPanel(painter, panel, 18);
    return image;
}

/// A badge, two lines beside it, and a row of buttons.
QImage badgeDialog(const QPainterPath& icon, const QColor& color)
{
    QImage image = dialog(pageSize, QRectF(152, 128, 496, 224));
    QPainter painter(&image);
    painter.drawImage(176, 152, badge(icon, 64, color));
    return image;
}

/// A groove for a ring with a drawing in its middle, two lines beside it, and a button.
QImage waitDialog(const QPainterPath& icon)
{
    QImage image = dialog(pageSize, QRectF(152, 112, 496, 256));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawGroove(painter, QPointF(176, 140), waitSize, waitPen);
    drawIcon(painter, icon, QRectF(206, 170, 44, 44), white, 3.4);
    return image;
}

/// The background of the numeric pad: a dialog's panel alone, with room for its shadow.
QImage padPanel()
{
    return dialog(QSize(304, 424), QRectF(16, 16, 272, 392));
}

QImage samplePage()
{
    QImage image = page();
    QPainter painter(&image);
    painter.fillRect(0, 156, 800, 324, bar);
    painter.fillRect(0, 156, 800, 1, edge);
    return image;
}

QImage chart()
{
    QImage image = emptyPicture(QSize(384, 180));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawWell(painter, image.rect(), 8);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(line);
    for (int y = 22; y < 180; y += 45)
        painter.drawLine(8, y, 375, y);
    return image;
}

} // namespace

void addPages(Album& album)
{
    album.add("page_home", homePage());
    album.add("page_measure", measurePage());
    album.add("page_settings", panelPage({QRectF(24, 72, 464, 392), QRectF(504, 72, 272, 392)}));
    album.add("page_language", page());
    album.add("page_sample", samplePage());
    album.add("pad_panel", padPanel());
    album.add("dialog_question", badgeDialog(bin(), coral));
    album.add("dialog_retry", badgeDialog(bell(), coral));
    album.add("dialog_picture", badgeDialog(camera(), violet));
    album.add("dialog_calibration", waitDialog(flask()));
    album.add("dialog_print", waitDialog(printer()));
    album.add("chart", chart());
}

void addRings(Album& album)
{
    album.add("ring_ph", ring(violet, gaugeSize, gaugePen));
    album.add("ring_cond", ring(amber, gaugeSize, gaugePen));
    album.add("ring_oxygen", ring(teal, gaugeSize, gaugePen));
    album.add("ring_temp", ring(coral, gaugeSize, gaugePen));
    album.add("ring_wait", ring(teal, waitSize, waitPen));
}

} // namespace art
