#pragma once

#include <string>

namespace PANFx::Testing {

/**
 * The rules of the address field, stated a second time without a widget. Tests hold the field
 * against it.
 */
class IPRules
{
public:
    std::string digits; ///< three characters for each octet stored
    int octet = 0;      ///< the one being typed

    /** @return whether something changed */
    bool key(char c);
    void backspace();
    void clear();

    /** @return whether the text passes for an address; the field is empty when it doesn't */
    bool setText(const std::string& address);

    std::string text() const;
    bool isValid() const { return digits.size() == 12; }

    /** Everything that the field holds, for comparing. */
    std::string state() const { return digits + "|" + std::to_string(octet); }

    int stored() const { return static_cast<int>(digits.size() / 3); }

    /** The value of an octet, 0 for one that isn't there. */
    int value(int index) const;

private:
    bool store(int index, int number, bool cut = false);
};

} // namespace PANFx::Testing
