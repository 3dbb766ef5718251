#pragma once

#include <QRect>
#include <QString>

class QPainter;
class QPixmap;
class QWidget;

namespace PANFx::Resource {
class Font;
}

namespace PANFx::Components {

// What the components that draw a picture and a text would otherwise repeat.

/** Whether no rectangle was set: the test is horizontal only, so a width of 0 counts as unset. */
bool isUnset(const QRect& rect);

/** @p rect, or the rectangle of the whole widget when it is unset. */
QRect rectOrWhole(const QRect& rect, const QWidget& widget);

/** Draws the whole picture, scaled smoothly into the rectangle; nothing without a picture. */
void drawPicture(QPainter& painter, const QPixmap* pPixmap, const QRect& rect);

/** Draws a text in the font and the colour of a style. */
void drawStyledText(QPainter& painter, const QString& strText, const Resource::Font& font,
                    const QRect& rect, int nAlign);

/** The same behind a grey copy one pixel down and right, which looks engraved. */
void drawEngravedText(QPainter& painter, const QString& strText, const Resource::Font& font,
                      const QRect& rect, int nAlign);

/** @p strText cut with an ellipsis to a width in pixels, measured in the font of a style. */
QString elided(const QString& strText, const Resource::Font& font, int nWidth);

} // namespace PANFx::Components
