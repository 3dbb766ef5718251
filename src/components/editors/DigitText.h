#pragma once

#include "common/Numbers.h"

#include <QString>
#include <QWidget>

#include <algorithm>

namespace PANFx::Components {

// What the fields for values have in common: typing character by character, and parts of a few
// digits each.

/**
 * Offers the characters of a text one after the other to an operation that says whether it
 * changed something to see, and repaints the field after each that did. Null types nothing.
 */
template <typename Operation>
void typeEach(QWidget& field, const char* pszText, Operation type)
{
    for (const char* c = pszText; c && *c; ++c) {
        if (type(*c))
            field.update();
    }
}

/** Whether it is one of the ten ASCII digits, whatever the locale. */
inline bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/** The value of an ASCII digit; any other character is not checked. */
inline int digitOf(char c)
{
    return c - '0';
}

/** The number at the start of a text, 0 for an empty one. */
inline int numberIn(const QString& strText)
{
    return Common::toInt(strText.toLatin1().constData());
}

/** The number in decimal, without leading zeros. */
inline QString plainNumber(int nValue)
{
    return QString::asprintf("%d", nValue);
}

/** The number in decimal, with zeros in front up to two characters; more are not cut. */
inline QString twoDigits(int nValue)
{
    return QString::asprintf("%02d", nValue);
}

/** The same up to four characters. */
inline QString fourDigits(int nValue)
{
    return QString::asprintf("%04d", nValue);
}

/** The first digit of a part; from @p nBeyondFirst on it closes the part, as no second can follow.
 */
inline QString firstDigit(int nDigit, int nBeyondFirst)
{
    return nDigit < nBeyondFirst ? plainNumber(nDigit) : twoDigits(nDigit);
}

/**
 * Puts the second digit behind the first of a part and holds the part at a limit.
 * @return false when the part would become zero: the digit is refused
 */
inline bool typeSecondDigit(QString& strPart, int nDigit, int nLimit)
{
    const int value = numberIn(strPart) * 10 + nDigit;
    if (value == 0)
        return false;
    strPart = twoDigits(std::min(value, nLimit));
    return true;
}

} // namespace PANFx::Components
