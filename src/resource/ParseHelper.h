#pragma once

#include "common/Export.h"

#include <string>

namespace TAMFx::Common::Xml {
class Attribute;
class Node;
} // namespace TAMFx::Common::Xml

/** Reads the attributes of a layout element that components share. */
class QTPANFX_EXPORT ParseHelper
{
public:
    /**
     * Reads "x", "y", "width" and "height", in pixels; an absent attribute leaves its reference
     * as it was, so the caller's starting values are the defaults.
     * @return false for a null node, else true
     */
    static bool getPosition(TAMFx::Common::Xml::Node* pNode, int& x, int& y, int& width,
                            int& height);

    /**
     * Qt alignment flags: 0x84 for "center", 0x82 for "right", 0x81 for "left", each also with
     * a slash behind it. A null attribute and any other value give @p nDefault.
     */
    static int getAlign(TAMFx::Common::Xml::Attribute* pAttr, int nDefault);

    /**
     * Reads "up", "down" and "dim", each for itself; what is absent becomes "".
     * Mind the order: the pressed picture comes first.
     * @return false for a null node, else true
     */
    static bool getButtonImage(TAMFx::Common::Xml::Node* pNode, std::string& strDown,
                               std::string& strUp, std::string& strDim);

    /**
     * Reads "start", "mid" and "end", all or none.
     * @return true when all three exist; else false, and all three are ""
     */
    static bool getEditorImage(TAMFx::Common::Xml::Node* pNode, std::string& strStart,
                               std::string& strMid, std::string& strEnd);
};
