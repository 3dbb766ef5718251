#pragma once

#include "components/editors/ZELImageEdit.h"

#include <string>

namespace PANFx::Components {

/**
 * A field for an IPv4 address. It moves to the next octet by itself as soon as no further digit
 * could fit into the present one, so that "." is needed only behind short octets.
 *
 * Layout: that of ZELImageEdit; "padding" has no effect.
 */
class QTPANFX_EXPORT ZELImageIPEdit : public ZELImageEdit
{
public:
    /** An empty field, not shown. The element is read twice, so a null one is told twice. */
    ZELImageIPEdit(QWidget* pParent, std::string strID, std::string strType,
                   TAMFx::Common::Xml::Node* pLayout);
    ~ZELImageIPEdit() override;

    void showWindow() override;
    void hideWindow() override;
    QWidget* getQWidget() override;

    void clear() override;

    /** The octets without leading zeros; ends with "." while the next octet is to be typed. */
    std::string text() override;

    /**
     * An address of four octets; a fifth one takes the place of the fourth. Three octets without
     * a point behind them stand as they are, and so does what comes before a fourth that is above
     * 255: ask isValidIP(). Fewer than three, or one above 255 among them, clear the field, as do
     * null and "".
     */
    void setText(const char* pszText) override;
    void setText(std::string strText) override;

    /** Types the first 15 characters. */
    void addText(const char* pszText) override;
    void addText(std::string strText) override;

    /**
     * Takes the last decimal digit of the present octet; where the field has moved on behind the
     * last octet, only steps back into it.
     */
    void backspace() override;

    /** What setText() does but for the repaint. @return whether the last octet was reached */
    virtual bool processText(std::string strText);

    /**
     * Types one character; any but "." is taken for the digit that its code makes it.
     * @return whether something changed
     */
    virtual bool processText(char c);

    /** Whether all four octets are there. */
    bool isValidIP();

protected:
    void paintEvent(QPaintEvent* pEvent) override;

    char m_szIP[13] = {}; ///< octets of three digits each, no separator
    int m_nCurOctet = 0;  ///< index of the octet now typed, or the one behind the last
    Common::SysLogger m_logger{"QTPANFx", "ZELImageIPEdit"};

private:
    int octetCount() const;
    int octetAt(int nIndex) const;
    bool storeOctet(int nValue);
    void typeDigit(char c);
};

} // namespace PANFx::Components
