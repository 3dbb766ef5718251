#pragma once

#include <QImage>

namespace gallery {

/**
 * The number of pixels in which two pictures differ so much that it is seen: a channel by more than
 * 24 of 255. Between pictures of different sizes all pixels of the larger one are counted.
 */
int pixelsOff(const QImage& one, const QImage& other);

/** Whether they are more than the edge of a curve may make: a comma instead of a point is seen. */
bool looksOtherwise(const QImage& one, const QImage& other);

/**
 * A line of text in each of the gallery's fonts. Where two machines draw it alike, pixel for pixel,
 * they have the same fonts, and their pictures of components can be compared.
 */
QImage fontSample();

} // namespace gallery
