#pragma once

#include "components/gauges/ZELRange.h"

#include <string>

namespace PANFx::Components {

/**
 * A range that shows its step as a column or a row of thumbs over a background, like a level
 * meter. Steps count from 0 to "max", which is 5 by default.
 *
 * Layout: attributes "type" ('V', the default, for a column that grows upward, any other letter
 * for a row that grows to the right), "offset" (pixels between thumbs), "max"; children
 * "position", "bgimg" and "thumbimg" ("file" and place; the "y" of a column's thumb is the bottom
 * of the first), "upbtn" and "downbtn" (place and the pictures "up", "down", "dim"). All of the
 * children but "position" must be there.
 */
class QTPANFX_EXPORT ZELProgressRange : public ZELRange
{
public:
    /**
     * Builds the components of the element, reads it and goes to step 0. A null element is told
     * twice and leaves a range with neither buttons nor pictures.
     */
    ZELProgressRange(QWidget* pParent, std::string strID, std::string strType,
                     TAMFx::Common::Xml::Node* pLayout);
    ~ZELProgressRange() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;
    void setStep(int nStep) override;
    void setEnable(bool bEnable) override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    Common::SysLogger m_logger{"QTPANFx", "ZELProgressRange"};
    QPixmap* m_pBGPixmap = nullptr;    ///< not owned
    QPixmap* m_pThumbPixmap = nullptr; ///< not owned
    int m_nOffset = 0;                 ///< pixels between thumbs
    int m_nThumbWidth = 1;             ///< pixels
    int m_nThumbHeight = 1;            ///< pixels
    int m_nThumbX = 0;                 ///< left side of the first thumb
    int m_nThumbY = 0;                 ///< its top in a row, its bottom in a column

    /// @{
    /** Place of the background in the widget, in pixels. */
    int m_nBGWidth = 1;
    int m_nBGHeight = 1;
    int m_nBGX = 0;
    int m_nBGY = 0;
    /// @}

    char m_chType = 'V'; ///< 'V' for a column, any other for a row

private:
    void readValues(TAMFx::Common::Xml::Node* pLayout);
    bool readPictures(TAMFx::Common::Xml::Node* pLayout);
    void makeButtons(TAMFx::Common::Xml::Node* pLayout);
    QRect thumb(int nIndex) const;
};

} // namespace PANFx::Components
