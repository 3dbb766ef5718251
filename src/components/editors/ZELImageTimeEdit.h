#pragma once

#include "components/editors/ZELImageEdit.h"

#include <QString>

#include <string>

namespace PANFx::Components {

/**
 * A field for a time of day: typed digit by digit in the 12-hour form with an AM or PM mark, and
 * handed out in the 24-hour form.
 *
 * Layout: that of ZELImageEdit. The columns are as wide as twice the point size of "style", so
 * the style must be there; "align" has no effect.
 */
class QTPANFX_EXPORT ZELImageTimeEdit : public ZELImageEdit
{
public:
    /**
     * An empty field, not shown, set to AM. The element is read twice, so a null one is told twice;
     * one without "style" is told too.
     */
    ZELImageTimeEdit(QWidget* pParent, std::string strID, std::string strType,
                     TAMFx::Common::Xml::Node* pLayout);
    ~ZELImageTimeEdit() override;

    void showWindow() override;
    void hideWindow() override;
    QWidget* getQWidget() override;

    /** Empties hour and minute; the mark becomes AM. */
    void clear() override;

    /** "HH:MM" from 00:00 to 23:59; "" while the hour is empty or the minute incomplete. */
    std::string text() override;

    /** "HH:MM" of 24 hours; fewer than 5 characters change nothing. Null and "" clear the field. */
    void setText(const char* pszText) override;

    /** The same, but "" changes nothing. */
    void setText(std::string strText) override;

    /**
     * Doesn't repaint.
     * @param nHour of 12 hours; more is taken modulo 12, 0 becomes 12
     * @param nMinute above 59 becomes 0
     */
    void setText(int nHour, int nMinute, bool bAM);

    /** Types the characters: digits, "A" for AM and "P" for PM; others are skipped. */
    void addText(const char* pszText) override;
    void addText(std::string strText) override;

    /** Takes the last digit of the minute, or else of the hour. */
    void backspace() override;

    /** AM becomes PM, PM becomes AM. */
    void changeAMPM();

    /** Whether the mark is AM, as it is in an empty field. */
    bool isAM();

protected:
    void paintEvent(QPaintEvent* pEvent) override;

    /** Types one character. @return whether the field is to be repainted */
    bool processText(char c);

    /**
     * Takes "HH:MM" of 24 hours, and doesn't repaint.
     * @return false for fewer than 5 characters, which change nothing
     */
    bool processText(std::string strText);

    /** What setText() with numbers does. @return true */
    bool processText(int nHour, int nMinute, bool bAM);

    QString m_strHour;                        ///< up to 2 digits of 12 hours
    QString m_strMinute;                      ///< up to 2 digits
    QString m_strAmPm = QStringLiteral("AM"); ///< "AM" or "PM"
    int m_nColumnWidth = 0;                   ///< pixels
    Common::SysLogger m_logger{"QTPANFx", "ZELImageTimeEdit"};

private:
    void typeDigit(int nDigit);
    void paintColumns(QPainter& painter) const;
};

} // namespace PANFx::Components
