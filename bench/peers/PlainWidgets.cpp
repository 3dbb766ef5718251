#include "peers/PlainWidgets.h"

#include "PageGenerator.h"

#include <QPainter>

#include <algorithm>

namespace bench {

const QPixmap* PictureCache::get(const std::string& path)
{
    const auto found = m_pictures.find(path);
    if (found != m_pictures.end())
        return &found->second;
    return &m_pictures.emplace(path, QPixmap(QString::fromStdString(path))).first->second;
}

const QFont& bodyFont()
{
    static const QFont font(QString::fromLatin1(Site::fontFamily), Site::pointSize);
    return font;
}

namespace {

void paintButton(QWidget& widget, const QPixmap& picture, const QString& title)
{
    QPainter painter(&widget);
    painter.drawPixmap(widget.rect(), picture);
    painter.setFont(bodyFont());
    painter.setPen(Qt::white);
    painter.drawText(widget.rect(), Qt::AlignCenter, title);
}

} // namespace

void PictureWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(rect(), *m_pUp);
}

void TextWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(bodyFont());
    painter.setPen(Qt::white);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, m_text);
}

void ButtonWidget::paintEvent(QPaintEvent*)
{
    paintButton(*this, m_bPressed ? *m_pDown : *m_pUp, m_title);
}

void ButtonWidget::setPressed(bool pressed)
{
    m_bPressed = pressed;
    update();
}

void ButtonWidget::mousePressEvent(QMouseEvent*)
{
    setPressed(true);
}

void ButtonWidget::mouseReleaseEvent(QMouseEvent*)
{
    setPressed(false);
}

void QtButtonWidget::paintEvent(QPaintEvent*)
{
    paintButton(*this, isDown() ? *m_pDown : *m_pUp, m_title);
}

void GaugeWidget::setPercent(int percent)
{
    m_percent = percent;
    update();
}

void RoundWidget::paintEvent(QPaintEvent*)
{
    constexpr int sixteenths = 16;
    QPainter painter(this);
    painter.drawPixmap(0, 0, *m_pBack);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(*m_pFill));
    painter.drawPie(rect(), 90 * sixteenths, -360 * sixteenths * m_percent / 100);
}

void BarWidget::paintEvent(QPaintEvent*)
{
    const int left = Site::capOffset.x();
    const int top = Site::capOffset.y();
    const int cap = m_pFill->width();
    const int fill = (width() - 2 * left) * m_percent / 100;
    const int between = std::max(fill - 2 * cap, 0);
    QPainter painter(this);
    painter.drawPixmap(0, 0, *m_pBack);
    if (fill > 0) {
        painter.drawPixmap(left, top, *m_pFill);
        painter.setRenderHint(QPainter::SmoothPixmapTransform); // as the library draws it
        painter.drawPixmap(QRect(left + cap, top, between, m_pFill->height()), *m_pFill);
        painter.drawPixmap(left + cap + between, top, *m_pFill);
    }
    painter.setFont(bodyFont());
    painter.setPen(Qt::white);
    painter.drawText(rect(), Qt::AlignCenter, QString::number(m_percent) + QLatin1Char('%'));
}

} // namespace bench
