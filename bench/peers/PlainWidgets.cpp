#include "peers/PlainWidgets.h"

#include "PageGenerator.h"

#include <QPainter>

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

void ButtonWidget::mousePressEvent(QMouseEvent*)
{
    m_bPressed = true;
    update();
}

void ButtonWidget::mouseReleaseEvent(QMouseEvent*)
{
    m_bPressed = false;
    update();
}

void QtButtonWidget::paintEvent(QPaintEvent*)
{
    paintButton(*this, isDown() ? *m_pDown : *m_pUp, m_title);
}

} // namespace bench
