#include "components/editors/rules/IPRules.h"

#include "components/editors/rules/Digits.h"

namespace PANFx::Testing {

namespace {

// from here on a further digit can't fit
constexpr int fullFrom = 26;
constexpr int highest = 255;
constexpr int lastOctet = 3;

} // namespace

bool IPRules::key(char c)
{
    if (c == '.') {
        const bool closes = !digits.empty() && octet < lastOctet && octet < stored();
        octet += closes ? 1 : 0;
        return closes;
    }
    // other characters count by their distance from "0", on machines of either kind of char
    const int d = static_cast<unsigned char>(c) - '0';
    if (digits.empty())
        return store(0, d);
    const int v = 10 * value(octet) + d;
    if (v <= highest) {
        if (!store(octet, v))
            return false;
        if (v >= fullFrom && octet < lastOctet)
            ++octet;
        return true;
    }
    if (octet == lastOctet)
        return false;
    ++octet;
    return store(octet, d);
}

void IPRules::backspace()
{
    if (digits.empty())
        return;
    if (stored() == octet)
        --octet;
    else if (const int rest = value(octet) / 10; rest != 0)
        store(octet, rest);
    else
        digits.resize(static_cast<size_t>(3 * octet));
}

void IPRules::clear()
{
    digits.clear();
    octet = 0;
}

bool IPRules::setText(const std::string& address)
{
    octet = 0;
    size_t start = 0;
    while (true) {
        const size_t dot = address.find('.', start);
        const bool more = dot != std::string::npos;
        const int v = numberOf(address.substr(start, more ? dot - start : dot));
        if (v > highest || !store(octet, v, true))
            break;
        if (more && dot + 1 == address.size())
            break;
        if (octet < lastOctet)
            ++octet;
        if (!more)
            break;
        start = dot + 1;
    }
    if (octet == lastOctet)
        return true;
    clear();
    return false;
}

std::string IPRules::text() const
{
    std::string all;
    for (int i = 0; i < stored(); ++i)
        all += std::to_string(value(i)) + ".";
    if (octet < stored())
        all.pop_back();
    return all;
}

int IPRules::value(int index) const
{
    return index < stored() ? numberOf(digits.substr(static_cast<size_t>(3 * index), 3)) : 0;
}

bool IPRules::store(int index, int number, bool cut)
{
    const std::string text = padded(number, 3);
    if (text.size() > 3)
        return false; // by characters that are no digits: there is no place for it
    const auto place = static_cast<size_t>(3 * index);
    if (cut || place == digits.size()) {
        digits.resize(place);
        digits += text;
    } else {
        digits.replace(place, 3, text);
    }
    return true;
}

} // namespace PANFx::Testing
