#pragma once

#include <QRect>

namespace TAMFx::Common::Xml {
class Node;
}

namespace PANFx::Components {

/** A place as a layout gives it, in pixels. */
struct LayoutPosition
{
    int x; ///< from the left side of the parent
    int y; ///< from its upper side
    int width;
    int height;

    /**
     * The rectangle from x, y to x + width - 1, y + height - 1. Numbers beyond what Qt takes for
     * a widget (2^24 - 1) are held there.
     */
    QRect rect() const;
};

/** A number of pixels, held at what Qt takes for a widget. */
int heldPixels(int nValue);

/** Reads "x", "y", "width" and "height" of an element; what is absent, or null, is as @p defaults.
 */
LayoutPosition readPosition(TAMFx::Common::Xml::Node* pNode, LayoutPosition defaults);

} // namespace PANFx::Components
