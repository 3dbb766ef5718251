#pragma once

#include "components/gauges/ZELProgressBar.h"
#include "components/support/TellOnce.h"

#include <string>

class QPixmap;

namespace PANFx::Resource {
class Font;
}

namespace PANFx::Components {

/**
 * A horizontal bar of four pictures: a background, and a fill of a left cap, a stretched middle
 * and a right cap. Prints the number over it where there is a style.
 *
 * Layout: attribute "style"; children "image" with "bg", "start", "mid" and "end", "position", and
 * "offset" with "x" (left and right inset of the fill in pixels) and "y" (its top), 0 without the
 * element and 1 where the element leaves one out. An "image" that lacks one of its four ends the
 * reading: neither place nor offset is taken. Without the element there are no pictures, and the
 * rest is read.
 */
class QTPANFX_EXPORT ZELImageProgressBar : public ZELProgressBar
{
public:
    /**
     * Reads the element; the number is 0. A null element writes an error line and leaves a bar
     * without pictures.
     */
    ZELImageProgressBar(QWidget* pParent, std::string strID, std::string strType,
                        TAMFx::Common::Xml::Node* pLayout);
    ~ZELImageProgressBar() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Pictures by file name; what is missing becomes null. @return whether all four exist */
    bool setImage(std::string strBackground, std::string strStart, std::string strMid,
                  std::string strEnd);

protected:
    void paintEvent(QPaintEvent* pEvent) override;

    QPixmap* m_pBGPixmap = nullptr;    ///< not owned; null paints nothing at all
    QPixmap* m_pStartPixmap = nullptr; ///< not owned; left cap
    QPixmap* m_pMidPixmap = nullptr;   ///< not owned; stretched between the caps
    QPixmap* m_pEndPixmap = nullptr;   ///< not owned; right cap
    int m_nOffsetX = 0; ///< inset of the fill at the left and at the right, in pixels
    int m_nOffsetY = 0; ///< top of the fill, in pixels
    Resource::Font* m_pFont = nullptr; ///< not owned; null for no text
    Common::SysLogger m_logger{"QTPANFx", "ZELImageProgressBar"};

private:
    void readOffset(TAMFx::Common::Xml::Node* pOffset);
    void paintFill(QPainter& painter);
    void tellNoFill();

    TellOnce m_noFill;
};

} // namespace PANFx::Components
