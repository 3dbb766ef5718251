#include "components/editors/ZELImageNumberEdit.h"

#include "common/Numbers.h"
#include "components/editors/DigitText.h"
#include "components/support/EditorFrame.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace PANFx::Components {

using Common::toDouble;
using Common::toFixed;
using Resource::Font;

namespace {

double valueOf(const std::string& text)
{
    return toDouble(text.c_str());
}

// how many characters stand behind the point, which is there
int placesBehind(const std::string& text, std::size_t point)
{
    return static_cast<int>(text.size() - 1 - point);
}

} // namespace

ZELImageNumberEdit::ZELImageNumberEdit(QWidget* pParent, std::string strID, std::string strType,
                                       TAMFx::Common::Xml::Node* pLayout)
    : ZELImageEdit(pParent, std::move(strID), std::move(strType), pLayout)
{
    ZELImageNumberEdit::clear();
    ZELImageEdit::setLayout(pLayout);
}

ZELImageNumberEdit::~ZELImageNumberEdit() = default;

void ZELImageNumberEdit::showWindow()
{
    setVisible(true);
}

void ZELImageNumberEdit::hideWindow()
{
    setVisible(false);
}

QWidget* ZELImageNumberEdit::getQWidget()
{
    return this;
}

void ZELImageNumberEdit::setRange(int nMin, int nMax)
{
    m_bRange = true;
    m_dMin = nMin;
    m_dMax = nMax;
}

void ZELImageNumberEdit::setDecimalplace(int nDecimalPlace)
{
    m_nDecimalPlace = nDecimalPlace;
}

int ZELImageNumberEdit::getDecimalplace()
{
    return m_nDecimalPlace;
}

void ZELImageNumberEdit::clear()
{
    m_strNumber.clear();
    update();
}

std::string ZELImageNumberEdit::text()
{
    return m_strNumber;
}

void ZELImageNumberEdit::setText(const char* pszText)
{
    if (!pszText || !*pszText) {
        clear();
        update();
    } else {
        setText(std::string(pszText));
    }
}

void ZELImageNumberEdit::setText(std::string strText)
{
    if (processText(std::move(strText)))
        update();
}

void ZELImageNumberEdit::addText(const char* pszText)
{
    const bool integer = m_nDecimalPlace == 0;
    typeEach(*this, pszText, [this, integer](char c) {
        return integer ? processIntText(c) : processDoubleText(c);
    });
}

void ZELImageNumberEdit::addText(std::string strText)
{
    addText(strText.c_str());
}

void ZELImageNumberEdit::backspace()
{
    if (m_strNumber.empty())
        return;
    m_strNumber.pop_back();
    update();
}

void ZELImageNumberEdit::setNumber(double dValue, int nPlaces)
{
    m_strNumber = toFixed(dValue, nPlaces);
}

// At the maximum no character is taken, the sign included. The digit is added to the value
// whatever its sign.
bool ZELImageNumberEdit::processIntText(char c)
{
    const double value = valueOf(m_strNumber);
    if (value == m_dMax || m_strNumber.size() >= m_nMaxLength)
        return false;
    if (c == '-' && m_strNumber.empty())
        m_strNumber = "-"; // shows with the next digit
    if (!isDigit(c))
        return false;
    if (m_strNumber == "0")
        m_strNumber = c;
    else if (m_bRange && value * 10 + digitOf(c) > m_dMax)
        setNumber(std::trunc(m_dMax), 0);
    else
        m_strNumber += c;
    return true;
}

bool ZELImageNumberEdit::processDoubleText(char c)
{
    const std::size_t point = m_strNumber.rfind('.');
    const bool hasPoint = point != std::string::npos;
    if (m_strNumber.size() >= m_nMaxLength)
        return false;
    if (hasPoint && placesBehind(m_strNumber, point) == m_nDecimalPlace)
        return false;
    if (c == '-') {
        if (!m_strNumber.empty())
            return false;
        m_strNumber = "-";
        return true;
    }
    if (c == '.') {
        if (hasPoint)
            return false;
        m_strNumber += m_strNumber.empty() ? "0." : ".";
        return true;
    }
    if (!isDigit(c))
        return false;
    if (c == '0' && (m_strNumber.empty() || valueOf(m_strNumber) == 0.0)) {
        typeZero();
    } else if (m_strNumber == "0") {
        m_strNumber = c;
    } else if (m_bRange) {
        checkRange(c);
    } else {
        m_strNumber += c;
    }
    return true;
}

// A zero behind a zero can only be a decimal, so it brings the point with it.
void ZELImageNumberEdit::typeZero()
{
    const std::size_t point = m_strNumber.rfind('.');
    if (m_strNumber.empty())
        m_strNumber = "0";
    else if (point == std::string::npos)
        m_strNumber += m_strNumber.front() == '-' ? "0." : ".0";
    else if (placesBehind(m_strNumber, point) + 1 <= m_nDecimalPlace)
        m_strNumber += '0';
}

// A digit that takes the number out of the range becomes a decimal: the number is divided by ten.
void ZELImageNumberEdit::checkRange(char c)
{
    const std::string longer = m_strNumber + c;
    const double value = valueOf(longer);
    const double tenth = value / 10;
    if (value > m_dMax) {
        if (value - m_dMax < 1.0)
            setNumber(m_dMax, m_nDecimalPlace);
        else
            setNumber(m_dMax < tenth ? m_dMax : tenth, tenth - m_dMax > 0 ? m_nDecimalPlace : 1);
    } else if (value < m_dMin && m_dMin < 0) {
        if (m_dMin - value < 1.0)
            setNumber(m_dMin, m_nDecimalPlace);
        else
            setNumber(m_dMin > tenth ? m_dMin : tenth, m_dMin - tenth > 0 ? m_nDecimalPlace : 1);
    } else {
        m_strNumber = longer;
    }
}

bool ZELImageNumberEdit::processText(std::string strText)
{
    if (strText == "." || strText == "-") {
        m_strNumber = strText == "." ? "0." : strText;
        return true;
    }
    const double value = valueOf(strText);
    if (m_bRange && (value < m_dMin || value > m_dMax))
        return false;
    setNumber(value, m_nDecimalPlace);
    return true;
}

// The minimum counts also where no range was set, and dimmed too; the maximum is not looked at.
void ZELImageNumberEdit::focusOutEvent(QFocusEvent* pEvent)
{
    if (!m_strNumber.empty()) {
        const double value = valueOf(m_strNumber);
        setNumber(m_dMin > value ? m_dMin : value, m_nDecimalPlace);
    }
    ZELImageEdit::focusOutEvent(pEvent);
}

void ZELImageNumberEdit::paintEvent(QPaintEvent*)
{
    if (!hasFrame())
        return;
    QPainter painter(this);
    paintFrame(painter);
    const Font* font = m_bDimMode && m_pDimFont ? m_pDimFont : m_pFont;
    if (!setTextStyle(painter, font, m_logger))
        return;
    const std::string value = text(); // a derived class may show another one
    if (!value.empty() || m_strPlaceholder.empty())
        painter.drawText(m_paddingRect, m_nAlign, QString::fromUtf8(value.c_str()));
    else if (!m_pFont)
        tellNoFont(m_logger, "paintEvent");
    else
        drawPlaceholder(painter, QString::fromUtf8(m_strPlaceholder.c_str()), *m_pFont,
                        m_paddingRect, m_nAlign);
}

} // namespace PANFx::Components
