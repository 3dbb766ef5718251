#include "components/editors/ZELImageDateEdit.h"

#include "common/Numbers.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/editors/DigitText.h"
#include "components/support/LayoutFont.h"
#include "components/support/LayoutPosition.h"
#include "resource/ParseHelper.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace PANFx::Components {

using Common::toInt;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

enum DateOrder : unsigned int { monthDayYear, dayMonthYear, yearMonthDay };

constexpr int lastMonth = 12;
constexpr int longestMonth = 31;
constexpr int lastYear = 2999;
constexpr int fullYear = 1000; // a year that can take no further digit
constexpr int yearDigits = 4;
constexpr int separatorWidth = 10; // pixels
constexpr std::size_t dateDigits = 8;
constexpr int beyondFirstOfMonth = 2; // a digit from here on can only be a whole month
constexpr int beyondFirstOfDay = 4;

void typeSecondOfMonth(QString& month, int digit)
{
    typeSecondDigit(month, digit, lastMonth);
}

bool typeSecondOfDay(QString& day, int digit)
{
    return typeSecondDigit(day, digit, longestMonth);
}

int digitsAt(const std::string& text, std::size_t place, std::size_t count)
{
    return toInt(text.substr(place, count).c_str());
}

} // namespace

ZELImageDateEdit::ZELImageDateEdit(QWidget* pParent, std::string strID, std::string strType,
                                   Node* pLayout)
    : ZELImageEdit(pParent, std::move(strID), std::move(strType), pLayout)
{
    ZELImageDateEdit::clear();
    ZELImageDateEdit::setLayout(pLayout);
    m_nAlign = Qt::AlignCenter;
}

ZELImageDateEdit::~ZELImageDateEdit() = default;

void ZELImageDateEdit::showWindow()
{
    setVisible(true);
}

void ZELImageDateEdit::hideWindow()
{
    setVisible(false);
}

QWidget* ZELImageDateEdit::getQWidget()
{
    return this;
}

void ZELImageDateEdit::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    m_pFont = fontNamedBy(pLayout, "style");
    m_nAlign = ParseHelper::getAlign(pLayout->getAttributeByName("align"), Qt::AlignCenter);
    readFrame(pLayout);
    Node* widths = pLayout->getNodeByName("datewidth");
    if (!widths)
        return;
    const auto read = [widths](const char* name, int& width) {
        if (Attribute* attribute = widths->getAttributeByName(name))
            width = heldPixels(toInt(attribute->getValue()));
    };
    read("year", m_nYearWidth);
    read("month", m_nMonthWidth);
    read("day", m_nDayWidth);
}

void ZELImageDateEdit::setDateOrder(unsigned int nDateOrder)
{
    m_nDateOrder = nDateOrder > yearMonthDay ? monthDayYear : nDateOrder;
}

void ZELImageDateEdit::setFixedYear(unsigned int nYear)
{
    m_strFixedYear = plainNumber(static_cast<int>(nYear));
    m_strYear = m_strFixedYear;
}

unsigned int ZELImageDateEdit::getLastDay(unsigned int nYear, unsigned int nMonth)
{
    if (nMonth > 12)
        return 0;
    if (nMonth == 2)
        return nYear % 400 == 0 || (nYear % 4 == 0 && nYear % 100 != 0) ? 29 : 28;
    const bool even = nMonth % 2 == 0;
    const bool longMonth = nMonth < 8 ? !even : even;
    return longMonth ? 31 : 30;
}

void ZELImageDateEdit::clear()
{
    m_strYear = m_strFixedYear;
    m_strMonth.clear();
    m_strDay.clear();
    update();
}

std::string ZELImageDateEdit::text()
{
    const QLatin1Char slash('/');
    QString date;
    if (m_nDateOrder == monthDayYear)
        date = m_strMonth + slash + m_strDay + slash + m_strYear;
    else if (m_nDateOrder == dayMonthYear)
        date = m_strDay + slash + m_strMonth + slash + m_strYear;
    else
        date = m_strYear + slash + m_strMonth + slash + m_strDay;
    return date.toStdString();
}

void ZELImageDateEdit::setText(const char* pszText)
{
    if (!pszText || !*pszText)
        clear();
    else
        setText(std::string(pszText));
}

void ZELImageDateEdit::setText(std::string strText)
{
    if (processText(std::move(strText)))
        update();
}

void ZELImageDateEdit::setText(unsigned int nYear, unsigned int nMonth, unsigned int nDay)
{
    processText(nYear, nMonth, nDay);
    update();
}

void ZELImageDateEdit::addText(const char* pszText)
{
    typeEach(*this, pszText, [this](char c) { return processText(c); });
}

void ZELImageDateEdit::addText(std::string strText)
{
    addText(strText.c_str());
}

void ZELImageDateEdit::backspace()
{
    std::array<QString*, 3> lastFirst = {&m_strYear, &m_strDay, &m_strMonth};
    if (m_nDateOrder == dayMonthYear)
        lastFirst = {&m_strYear, &m_strMonth, &m_strDay};
    else if (m_nDateOrder == yearMonthDay)
        lastFirst = {&m_strDay, &m_strMonth, &m_strYear};
    for (QString* part : lastFirst) {
        const auto kept = part == &m_strYear ? m_strFixedYear.size() : 0;
        if (part->size() > kept) {
            part->chop(1);
            break;
        }
    }
    update();
}

bool ZELImageDateEdit::processText(char c)
{
    if (!isDigit(c))
        return false;
    if (m_nDateOrder == monthDayYear)
        MDYProcess(c);
    else if (m_nDateOrder == dayMonthYear)
        DMYProcess(c);
    else
        YMDProcess(c);
    return true;
}

void ZELImageDateEdit::MDYProcess(char c)
{
    const int digit = digitOf(c);
    if (m_strMonth.isEmpty())
        m_strMonth = firstDigit(digit, beyondFirstOfMonth);
    else if (m_strDay.isEmpty() && m_strMonth.size() == 1)
        typeSecondOfMonth(m_strMonth, digit);
    else if (m_strDay.isEmpty())
        m_strDay = firstDigit(digit, beyondFirstOfDay);
    else if (atFixedYear() && m_strDay.size() == 1)
        typeSecondOfDay(m_strDay, digit);
    else
        typeYear(digit);
}

void ZELImageDateEdit::DMYProcess(char c)
{
    const int digit = digitOf(c);
    if (m_strDay.isEmpty())
        m_strDay = firstDigit(digit, beyondFirstOfDay);
    else if (m_strMonth.isEmpty() && m_strDay.size() == 1)
        typeSecondOfDay(m_strDay, digit);
    else if (m_strMonth.isEmpty())
        m_strMonth = firstDigit(digit, beyondFirstOfMonth);
    else if (atFixedYear() && m_strMonth.size() == 1)
        typeSecondOfMonth(m_strMonth, digit);
    else
        typeYear(digit);
}

// The year comes first here and is not looked at before the day: a first digit of the day that
// closes it limits the year, a second one checks the whole date.
void ZELImageDateEdit::YMDProcess(char c)
{
    const int digit = digitOf(c);
    if (m_strYear.size() < yearDigits) {
        if (!m_strYear.isEmpty() || digit != 0)
            m_strYear += plainNumber(digit);
    } else if (m_strMonth.isEmpty()) {
        m_strMonth = firstDigit(digit, beyondFirstOfMonth);
    } else if (m_strDay.isEmpty() && m_strMonth.size() == 1) {
        typeSecondOfMonth(m_strMonth, digit);
    } else if (m_strDay.isEmpty()) {
        m_strDay = firstDigit(digit, beyondFirstOfDay);
        if (digit >= beyondFirstOfDay && numberIn(m_strYear) > lastYear)
            m_strYear = plainNumber(lastYear);
    } else if (m_strDay.size() == 1 && typeSecondOfDay(m_strDay, digit)) {
        checkYear();
    }
}

bool ZELImageDateEdit::atFixedYear() const
{
    return m_strYear.size() == m_strFixedYear.size();
}

void ZELImageDateEdit::typeYear(int nDigit)
{
    if (atFixedYear())
        typeFirstYear(nDigit);
    else
        typeLaterYear(nDigit);
}

// No limit is looked at here, also where this one digit completes a fixed year of three.
void ZELImageDateEdit::typeFirstYear(int nDigit)
{
    if (!m_strYear.isEmpty() || nDigit != 0)
        m_strYear += plainNumber(nDigit);
}

void ZELImageDateEdit::typeLaterYear(int nDigit)
{
    if (numberIn(m_strYear) >= fullYear)
        return;
    m_strYear += plainNumber(nDigit);
    if (m_strYear.size() == yearDigits)
        checkYear();
}

void ZELImageDateEdit::checkYear()
{
    if (numberIn(m_strYear) > lastYear)
        m_strYear = plainNumber(lastYear);
    const unsigned int last = getLastDay(static_cast<unsigned int>(numberIn(m_strYear)),
                                         static_cast<unsigned int>(numberIn(m_strMonth)));
    if (numberIn(m_strDay) > static_cast<int>(last))
        m_strDay = plainNumber(static_cast<int>(last));
}

bool ZELImageDateEdit::processText(std::string strText)
{
    if (strText.size() < dateDigits)
        return false;
    const bool yearFirst = m_nDateOrder == yearMonthDay;
    const std::size_t year = yearFirst ? 0 : 4;
    const std::size_t month = yearFirst ? 4 : m_nDateOrder == dayMonthYear ? 2 : 0;
    const std::size_t day = yearFirst ? 6 : m_nDateOrder == dayMonthYear ? 0 : 2;
    return processText(static_cast<unsigned int>(digitsAt(strText, year, yearDigits)),
                       static_cast<unsigned int>(digitsAt(strText, month, 2)),
                       static_cast<unsigned int>(digitsAt(strText, day, 2)));
}

// The day is held at the last of the year as it was given, also where the year itself is held.
bool ZELImageDateEdit::processText(unsigned int nYear, unsigned int nMonth, unsigned int nDay)
{
    const unsigned int year = std::min<unsigned int>(nYear, lastYear);
    const unsigned int month = std::min<unsigned int>(nMonth, lastMonth);
    const unsigned int day = std::min(nDay, getLastDay(nYear, month));
    m_strYear = nYear == 0 ? QString() : fourDigits(static_cast<int>(year));
    m_strMonth = nMonth == 0 ? QString() : twoDigits(static_cast<int>(month));
    m_strDay = nDay == 0 ? QString() : twoDigits(static_cast<int>(day));
    return true;
}

void ZELImageDateEdit::paintEvent(QPaintEvent*)
{
    if (!hasFrame())
        return;
    QPainter painter(this);
    paintFrame(painter);
    if (!setTextStyle(painter, m_pFont, m_logger))
        return;
    const bool empty = m_strYear.isEmpty() && m_strMonth.isEmpty() && m_strDay.isEmpty();
    if (empty && !m_strPlaceholder.empty())
        drawPlaceholder(painter, QString::fromUtf8(m_strPlaceholder.c_str()), *m_pFont,
                        m_paddingRect, Qt::AlignLeft | Qt::AlignVCenter);
    else
        paintColumns(painter);
}

void ZELImageDateEdit::paintColumns(QPainter& painter) const
{
    int left = m_paddingRect.left();
    const auto column = [&](const QString& text, int width) {
        painter.drawText(QRect(left, 0, width, height()), m_nAlign, text);
        left += width;
    };
    const auto separator = [&] { column(QStringLiteral("/"), separatorWidth); };
    if (m_nDateOrder == yearMonthDay)
        column(m_strYear, m_nYearWidth);
    else if (m_nDateOrder == dayMonthYear)
        column(m_strDay, m_nDayWidth);
    else
        column(m_strMonth, m_nMonthWidth);
    separator();
    if (m_nDateOrder == monthDayYear)
        column(m_strDay, m_nDayWidth);
    else
        column(m_strMonth, m_nMonthWidth);
    separator();
    if (m_nDateOrder == yearMonthDay)
        column(m_strDay, m_nDayWidth);
    else
        column(m_strYear, m_nYearWidth);
}

} // namespace PANFx::Components
