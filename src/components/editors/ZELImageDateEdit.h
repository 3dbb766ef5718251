#pragma once

#include "components/editors/ZELImageEdit.h"

#include <QString>

#include <string>

namespace PANFx::Components {

/**
 * A field for a date, typed digit by digit: each digit is taken, corrected or refused as it
 * comes, so that what stands in the field is always a date in the making. Shows year, month and
 * day in columns with "/" between them.
 *
 * Layout: that of ZELImageEdit, and a child "datewidth" with the widths in pixels of the columns,
 * "year" (60), "month" (40) and "day" (40). "align" has no effect: the columns are centred, until
 * setAlign().
 *
 * text() gives the parts with "/" between them, setText() takes the digits alone.
 */
class QTPANFX_EXPORT ZELImageDateEdit : public ZELImageEdit
{
public:
    /**
     * An empty field, not shown, in the order month, day, year. The element is read twice, so a
     * null one is told twice.
     */
    ZELImageDateEdit(QWidget* pParent, std::string strID, std::string strType,
                     TAMFx::Common::Xml::Node* pLayout);
    ~ZELImageDateEdit() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Empties month and day, and the year down to the fixed year. */
    void clear() override;

    /** The parts as far as they are filled, in the field's order, with "/" between them. */
    std::string text() override;

    /** Eight digits in the field's order; fewer change nothing. Null and "" clear the field. */
    void setText(const char* pszText) override;

    /** The same, but "" changes nothing. */
    void setText(std::string strText) override;

    /** 0 empties a part, the year's fixed digits too; what is too large is held at the limit. */
    void setText(unsigned int nYear, unsigned int nMonth, unsigned int nDay);

    /** Types the characters; what is no digit is skipped. */
    void addText(const char* pszText) override;
    void addText(std::string strText) override;

    /** Takes the last digit of the part that was filled last. */
    void backspace() override;

    /** 0 month, day, year; 1 day, month, year; 2 year, month, day; others as 0. No repaint. */
    void setDateOrder(unsigned int nDateOrder);

    /** First digits of the year, which the user cannot delete; 0 gives "0". No repaint. */
    void setFixedYear(unsigned int nYear);

    /** Days of a month: 0 for a month above 12, 30 for month 0. Year 0 is a leap year. */
    unsigned int getLastDay(unsigned int nYear, unsigned int nMonth);

protected:
    void paintEvent(QPaintEvent* pEvent) override;

    /** Types one character. @return whether it is a digit, taken or not */
    bool processText(char c);

    /**
     * Takes eight digits in the field's order, and doesn't repaint.
     * @return false for fewer characters, which change nothing
     */
    bool processText(std::string strText);

    /** What setText() with three numbers does but for the repaint. @return true */
    bool processText(unsigned int nYear, unsigned int nMonth, unsigned int nDay);

    /// @{
    /**
     * Type one digit into a field of the order that the name says: it is taken, corrected or
     * dropped. Don't repaint.
     */
    void MDYProcess(char c);
    void DMYProcess(char c);
    void YMDProcess(char c);
    /// @}

    QString m_strFixedYear;             ///< digits of the year that stay
    QString m_strYear = m_strFixedYear; ///< as typed so far
    QString m_strMonth;                 ///< up to 2 digits
    QString m_strDay;                   ///< up to 2 digits
    unsigned int m_nDateOrder = 0;      ///< 0, 1 or 2, as setDateOrder() takes it
    int m_nYearWidth = 60;              ///< pixels
    int m_nMonthWidth = 40;             ///< pixels
    int m_nDayWidth = 40;               ///< pixels
    Common::SysLogger m_logger{"QTPANFx", "ZELImageDateEdit"};

private:
    void typeYear(int nDigit);
    void typeFirstYear(int nDigit);
    void typeLaterYear(int nDigit);
    void checkYear();
    bool atFixedYear() const;
    void paintColumns(QPainter& painter) const;
};

} // namespace PANFx::Components
