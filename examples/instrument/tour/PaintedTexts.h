#pragma once

#include <QString>

class QWidget;

/// What is to be read on the panel.
struct PaintedTexts
{
    QString strAll; ///< all texts, one behind the other, in the order in which they are painted
    QString strCut; ///< the first one that is wider than its place, or ""
};

/// Paints a window with all that is on it where no dots are kept, and takes down its texts. That
/// judges what components really paint, in the font and the place that they really take.
PaintedTexts paintedTexts(QWidget& window);
