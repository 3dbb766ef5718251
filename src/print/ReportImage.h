#pragma once

#include "common/Export.h"

#include <QImage>
#include <QStringList>

namespace PANFx::Print {

/** Height of a line of print, in dots. */
constexpr int lineHeight = 32;

/**
 * Draws a report as the printer is to print it, 384 dots wide and 32 high for each line, black on
 * white. The first 32 rows stay blank, so the last line has no room and is not drawn. A point is a
 * dot whatever the resolution of the screen.
 * @param lines with their markup, each char of the UTF-8 text as one Latin-1 letter; lengths are
 *              counted and widths are measured on these, and only what is drawn is decoded
 * @param width dots that a heading or a fitted line may take before it is made narrower
 * @param mode 2 centres the plain line 8 instead of 0
 * @return a null image where there is no memory for it
 */
QTPANFX_EXPORT QImage drawReport(const QStringList& lines, int width, int mode);

} // namespace PANFx::Print
