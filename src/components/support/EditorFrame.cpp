#include "components/support/EditorFrame.h"

#include "common/tamfx/Node.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/Picture.h"
#include "resource/Font.h"
#include "resource/ParseHelper.h"

#include <QColor>
#include <QFontMetrics>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace PANFx::Components {

using Resource::Font;

namespace {

constexpr int margin = 8; // pixels left and right of the text
constexpr int passwordEcho = 1;
constexpr int lighter = 90; // steps of 255
constexpr int brightest = 255;

// Where a component would pass its largest value there is no such colour, and black is used.
QColor placeholderColor(const QColor& color)
{
    const int red = color.red() + lighter;
    const int green = color.green() + lighter;
    const int blue = color.blue() + lighter;
    if (red > brightest || green > brightest || blue > brightest)
        return Qt::black;
    return {red, green, blue};
}

} // namespace

bool FramePieces::complete() const
{
    return hasPicture(start) && hasPicture(mid) && hasPicture(end);
}

std::optional<FrameNames> readFrameNames(TAMFx::Common::Xml::Node* pLayout, const char* pszElement)
{
    FrameNames names;
    if (!ParseHelper::getEditorImage(pLayout->getNodeByName(pszElement), names.start, names.mid,
                                     names.end))
        return std::nullopt;
    return names;
}

bool findFrame(const FrameNames& names, QPixmap*& pStart, QPixmap*& pMid, QPixmap*& pEnd)
{
    pStart = findPicture(names.start);
    pMid = findPicture(names.mid);
    pEnd = findPicture(names.end);
    return pStart && pMid && pEnd;
}

QRect fieldPlace(TAMFx::Common::Xml::Node* pLayout)
{
    return readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1}).rect();
}

QRect readPadding(TAMFx::Common::Xml::Node* pLayout, const QWidget& widget)
{
    return readPosition(pLayout->getNodeByName("padding"),
                        {margin, 0, widget.width() - 2 * margin, widget.height()})
        .rect();
}

void drawFrame(QPainter& painter, const FramePieces& pieces, const QWidget& widget)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const int start = pieces.start->width();
    const int end = pieces.end->width();
    painter.drawPixmap(start, 0, widget.width() - start - end, pieces.mid->height(), *pieces.mid);
    painter.drawPixmap(0, 0, *pieces.start);
    painter.drawPixmap(widget.width() - end, 0, *pieces.end);
}

Elision elisionFor(int nMode)
{
    if (nMode == Elision::touchZones)
        return {Qt::ElideRight, Elision::touchZones};
    if (nMode < Qt::ElideLeft || nMode > Qt::ElideMiddle)
        return {};
    return {nMode, nMode};
}

void drawFieldText(QPainter& painter, const FieldText& text, const Font& font, const QRect& rect,
                   int nAlign)
{
    if (text.shown.isEmpty()) {
        drawPlaceholder(painter, text.placeholder, font, rect, nAlign);
        return;
    }
    QString shown = text.shown;
    if (text.echoMode == passwordEcho)
        shown.fill(QLatin1Char('*'));
    else if (text.elision.type != Elision::none)
        shown = QFontMetrics(*font.m_pFont)
                    .elidedText(shown, Qt::TextElideMode(text.elision.mode),
                                rect.right() + 1 - rect.left(), 0);
    painter.setPen(*font.m_pColor);
    painter.drawText(rect, nAlign, shown);
}

void drawPlaceholder(QPainter& painter, const QString& strText, const Font& font, const QRect& rect,
                     int nAlign)
{
    painter.setPen(placeholderColor(*font.m_pColor));
    painter.drawText(rect, nAlign, strText);
}

} // namespace PANFx::Components
