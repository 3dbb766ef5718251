#pragma once

#include "common/Numbers.h"

#include <QString>
#include <QWidget>

namespace PANFx::Components {

// Digits as the fields for values hold them: a few characters for each part.

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

inline bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

inline int digitOf(char c)
{
    return c - '0';
}

/** The number at the start of a text, 0 for an empty one. */
inline int numberIn(const QString& strText)
{
    return Common::toInt(strText.toLatin1().constData());
}

inline QString plainNumber(int nValue)
{
    return QString::asprintf("%d", nValue);
}

inline QString twoDigits(int nValue)
{
    return QString::asprintf("%02d", nValue);
}

inline QString fourDigits(int nValue)
{
    return QString::asprintf("%04d", nValue);
}

} // namespace PANFx::Components
