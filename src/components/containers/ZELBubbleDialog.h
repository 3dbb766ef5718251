#pragma once

#include "components/pictures/ZELImageBox.h"

#include <string>

namespace PANFx::Components {

/**
 * A speech bubble: a picture on which the application places labels while it runs.
 *
 * Layout and event are those of ZELImageBox.
 */
class QTPANFX_EXPORT ZELBubbleDialog : public ZELImageBox
{
public:
    /** As that of ZELImageBox, but a fault of the element is told twice. */
    ZELBubbleDialog(QWidget* pParent, std::string strID, std::string strType,
                    TAMFx::Common::Xml::Node* pLayout);
    ~ZELBubbleDialog() override;

    /**
     * Places a label, in pixels of the bubble. The text, UTF-8 or "@key" of the string table, is
     * the label's id too.
     */
    void addLable(std::string strText, std::string strStyle, int x, int y, int width, int height);

    /** Takes all labels away. Their widgets stay, hidden, until the bubble is destroyed. */
    void deleteLabel();

protected:
    Common::SysLogger m_logger{"QTPANFx", "ZELLabel"}; ///< the label's name, and stays so
};

} // namespace PANFx::Components
