#pragma once

#include "common/Export.h"

#include <QImage>

/** The steps from a report to the bytes on the printer's line. */
namespace PANFx::Print {

/** Dots across the paper. */
constexpr int paperWidth = 384;

/** Rows of dots that go out together. */
constexpr int bandRows = 24;

/** Bytes of a band: each column is three bytes, from top to bottom. */
constexpr int bandBytes = paperWidth * bandRows / 8;

/**
 * The image's first 384 columns in black and white, as high as the image: index 1, shown white, is
 * a dot on paper, and stands where the gray of a pixel is at most 180.
 * @return a null image for an image that is narrower or has no rows, or without memory for it
 */
QTPANFX_EXPORT QImage dotsOf(const QImage& image);

/**
 * Packs 24 rows of such an image as the printer takes them: column by column, the upper dot in the
 * highest bit.
 * @param band number of the band from the top, from 0
 * @param bytes room for bandBytes
 * @return bandBytes
 */
QTPANFX_EXPORT int packBand(const QImage& dots, int band, unsigned char* bytes);

} // namespace PANFx::Print
