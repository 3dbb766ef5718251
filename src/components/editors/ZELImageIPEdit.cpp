#include "components/editors/ZELImageIPEdit.h"

#include "common/Numbers.h"

#include <QPainter>

#include <cstdio>
#include <cstring>
#include <utility>

namespace PANFx::Components {

using Common::toInt;

namespace {

constexpr int octetDigits = 3;
constexpr int lastOctet = 3;
constexpr std::size_t fullLength = 12;
constexpr int largestOctet = 255;
constexpr int smallestStored = -99; // what three characters can hold
constexpr int nextMustPass = 26;    // from here on one more digit is above 255
constexpr std::size_t mostTyped = 15;
constexpr int margin = 8; // pixels left and right of the text

std::size_t placeOf(int octet)
{
    return static_cast<std::size_t>(octet) * octetDigits;
}

// a character is what its code says, whether the machine's char has a sign or not
int valueOf(char c)
{
    return static_cast<unsigned char>(c) - '0';
}

} // namespace

ZELImageIPEdit::ZELImageIPEdit(QWidget* pParent, std::string strID, std::string strType,
                               TAMFx::Common::Xml::Node* pLayout)
    : ZELImageEdit(pParent, std::move(strID), std::move(strType), pLayout)
{
    ZELImageIPEdit::clear();
    ZELImageEdit::setLayout(pLayout);
}

ZELImageIPEdit::~ZELImageIPEdit() = default;

void ZELImageIPEdit::showWindow()
{
    setVisible(true);
}

void ZELImageIPEdit::hideWindow()
{
    setVisible(false);
}

QWidget* ZELImageIPEdit::getQWidget()
{
    return this;
}

bool ZELImageIPEdit::isValidIP()
{
    return std::strlen(m_szIP) == fullLength;
}

void ZELImageIPEdit::clear()
{
    std::memset(m_szIP, 0, sizeof m_szIP);
    m_nCurOctet = 0;
    update();
}

int ZELImageIPEdit::octetCount() const
{
    return static_cast<int>(std::strlen(m_szIP)) / octetDigits;
}

int ZELImageIPEdit::octetAt(int nIndex) const
{
    if (nIndex >= octetCount())
        return 0;
    return toInt(std::string(m_szIP + placeOf(nIndex), octetDigits).c_str());
}

// Stores the present octet and cuts what lies behind it. A value of more than three characters
// has no place in the buffer and is refused.
bool ZELImageIPEdit::storeOctet(int nValue)
{
    if (nValue < smallestStored) {
        m_logger.WriteError("[%s] %s can't hold the octet %d", "processText", m_strID.c_str(),
                            nValue);
        return false;
    }
    const std::size_t place = placeOf(m_nCurOctet);
    std::snprintf(m_szIP + place, sizeof m_szIP - place, "%03d", nValue);
    return true;
}

std::string ZELImageIPEdit::text()
{
    const int count = octetCount();
    std::string address;
    for (int i = 0; i < count; ++i)
        address += std::to_string(octetAt(i)) + '.';
    if (m_nCurOctet < count)
        address.pop_back();
    return address;
}

void ZELImageIPEdit::setText(const char* pszText)
{
    if (!pszText || !*pszText) {
        clear();
        update();
    } else {
        setText(std::string(pszText));
    }
}

void ZELImageIPEdit::setText(std::string strText)
{
    if (processText(std::move(strText)))
        update();
}

void ZELImageIPEdit::addText(const char* pszText)
{
    if (pszText)
        ZELImageIPEdit::addText(std::string(pszText));
}

void ZELImageIPEdit::addText(std::string strText)
{
    const std::string typed = strText.substr(0, mostTyped);
    for (const char c : typed)
        typeDigit(c);
}

void ZELImageIPEdit::typeDigit(char c)
{
    if (processText(c))
        update();
}

void ZELImageIPEdit::backspace()
{
    const int count = octetCount();
    if (count == 0)
        return;
    const int shorter = octetAt(m_nCurOctet) / 10;
    if (m_nCurOctet == count)
        --m_nCurOctet;
    else if (shorter == 0)
        m_szIP[placeOf(m_nCurOctet)] = '\0';
    else
        storeOctet(shorter);
    update();
}

bool ZELImageIPEdit::processText(char c)
{
    const bool point = c == '.';
    const int count = octetCount();
    if (count == 0)
        return !point && storeOctet(valueOf(c));
    const bool canMoveOn = m_nCurOctet < lastOctet;
    if (point) {
        if (!canMoveOn || m_nCurOctet >= count)
            return false;
        ++m_nCurOctet;
        return true;
    }
    const int value = octetAt(m_nCurOctet) * 10 + valueOf(c);
    if (value <= largestOctet) {
        if (!storeOctet(value))
            return false;
        if (value >= nextMustPass && canMoveOn)
            ++m_nCurOctet;
        return true;
    }
    if (!canMoveOn)
        return false;
    // the digit that doesn't fit begins the next octet
    ++m_nCurOctet;
    return storeOctet(valueOf(c));
}

// Whether the last octet was reached is all that counts in the end: "1.2.3" passes, and so does
// an address whose fourth octet is above 255, without that octet.
bool ZELImageIPEdit::processText(std::string strText)
{
    m_nCurOctet = 0;
    std::size_t start = 0;
    for (;;) {
        const std::size_t point = strText.find('.', start);
        const int value = toInt(strText.substr(start, point - start).c_str());
        if (value > largestOctet || !storeOctet(value))
            break;
        if (point != std::string::npos && point + 1 == strText.size())
            break;
        if (m_nCurOctet < lastOctet)
            ++m_nCurOctet;
        if (point == std::string::npos)
            break;
        start = point + 1;
    }
    const bool passed = m_nCurOctet >= lastOctet;
    if (!passed)
        clear();
    return passed;
}

void ZELImageIPEdit::paintEvent(QPaintEvent*)
{
    if (!hasFrame())
        return;
    QPainter painter(this);
    paintFrame(painter);
    if (!setTextStyle(painter, m_pFont, m_logger))
        return;
    const std::string value = text();
    const std::string& shown = value.empty() ? m_strPlaceholder : value;
    painter.drawText(QRect(margin, 0, width() - 2 * margin, height()), m_nAlign,
                     QString::fromUtf8(shown.c_str()));
}

} // namespace PANFx::Components
