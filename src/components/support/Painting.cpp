#include "components/support/Painting.h"

#include "components/support/Picture.h"
#include "resource/Font.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace PANFx::Components {

using Resource::Font;

namespace {

const QColor engravedShadow(200, 200, 200, 255);

} // namespace

bool isUnset(const QRect& rect)
{
    return rect.right() - rect.left() == -1;
}

QRect rectOrWhole(const QRect& rect, const QWidget& widget)
{
    return isUnset(rect) ? QRect(0, 0, widget.width(), widget.height()) : rect;
}

void drawPicture(QPainter& painter, const QPixmap* pPixmap, const QRect& rect)
{
    if (!hasPicture(pPixmap))
        return;
    // where nothing is scaled or turned, smoothing changes no pixel and takes Qt off its fast path
    const bool exact = rect.size() == pPixmap->size() &&
                       painter.deviceTransform().type() <= QTransform::TxTranslate;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !exact);
    painter.drawPixmap(rect, *pPixmap, QRect());
}

void drawStyledText(QPainter& painter, const QString& strText, const Font& font, const QRect& rect,
                    int nAlign)
{
    painter.setFont(*font.m_pFont);
    painter.setPen(*font.m_pColor);
    painter.drawText(rect, nAlign, strText);
}

void drawEngravedText(QPainter& painter, const QString& strText, const Font& font,
                      const QRect& rect, int nAlign)
{
    painter.setFont(*font.m_pFont);
    painter.setPen(engravedShadow);
    painter.drawText(rect.translated(1, 1), nAlign, strText);
    drawStyledText(painter, strText, font, rect, nAlign);
}

QString elided(const QString& strText, const Font& font, int nWidth)
{
    return QFontMetrics(*font.m_pFont).elidedText(strText, Qt::ElideRight, nWidth, 0);
}

} // namespace PANFx::Components
