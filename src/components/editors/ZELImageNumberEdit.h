#pragma once

#include "components/editors/ZELImageEdit.h"

#include <string>

namespace PANFx::Components {

/**
 * A field for a number, typed character by character and kept in a range. Without decimal places
 * it takes integers and a digit too many makes it the maximum; with decimal places a digit too
 * many becomes a decimal, and a negative minimum holds while typing. Any minimum is applied when
 * the field loses the focus.
 *
 * Layout: that of ZELImageEdit. "dimstyle" is the style of the text while dimmed.
 *
 * An integer field takes no key while its value is the maximum, and an empty one counts as 0: so
 * it takes none before setRange() has been called, nor with a maximum of 0.
 */
class QTPANFX_EXPORT ZELImageNumberEdit : public ZELImageEdit
{
public:
    /**
     * An empty field for integers, not shown. The element is read twice, so a null one is told
     * twice.
     */
    ZELImageNumberEdit(QWidget* pParent, std::string strID, std::string strType,
                       TAMFx::Common::Xml::Node* pLayout);
    ~ZELImageNumberEdit() override;

    void showWindow() override;
    void hideWindow() override;
    QWidget* getQWidget() override;

    void clear() override;

    /** The number as it stands, ASCII, with a decimal point in every locale. */
    std::string text() override;

    /**
     * Sets and formats a number; one outside the range changes nothing. Null and "" clear the
     * field. "." and "-" stand as the beginning of a number.
     */
    void setText(const char* pszText) override;

    /** The same, but "" is the number 0. */
    void setText(std::string strText) override;

    /** Types the characters; what doesn't fit is skipped. */
    void addText(const char* pszText) override;
    void addText(std::string strText) override;

    void backspace() override;

    /** The bounds; neither their order nor the present number is checked. */
    void setRange(int nMin, int nMax);

    /** 0 is for integers. The present number is not formatted anew. */
    void setDecimalplace(int nDecimalPlace);

    /** Number of decimal places; 0 at first. */
    int getDecimalplace();

protected:
    void paintEvent(QPaintEvent* pEvent) override;

    /** Raises the number to the minimum and formats it. */
    void focusOutEvent(QFocusEvent* pEvent) override;

    /** Types one character into an integer. @return whether the field is to be repainted */
    bool processIntText(char c);

    /** The same for a number with decimal places. */
    bool processDoubleText(char c);

    /** Appends a digit and holds the number in the range. */
    void checkRange(char c);

    /** What setText() does but for the repaint. @return false for a number outside the range */
    bool processText(std::string strText);

    std::string m_strNumber; ///< as typed so far, ASCII
    int m_nDecimalPlace = 0;
    double m_dMax = 0.0;   ///< 0 until setRange(); an integer stops at it all the same
    double m_dMin = 0.0;   ///< 0 until setRange(); holds all the same when the focus goes
    bool m_bRange = false; ///< whether setRange() has been called
    Common::SysLogger m_logger{"QTPANFx", "ZELImageNumberEdit"};

private:
    void typeZero();
    void setNumber(double dValue, int nPlaces);
};

} // namespace PANFx::Components
