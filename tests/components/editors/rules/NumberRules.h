#pragma once

#include <string>

namespace PANFx::Testing {

/**
 * The rules of the number field, stated a second time without a widget. Tests hold the field
 * against it. Numbers are read and written without asking the process's locale.
 */
class NumberRules
{
public:
    std::string number;
    int places = 0; ///< 0 takes integers
    double min = 0.0;
    double max = 0.0;
    bool hasRange = false;
    unsigned maxLength = 1024;

    /** @return whether the field repaints for the character */
    bool key(char c);
    void backspace();
    void clear();
    bool setText(const std::string& wanted);
    void setRange(int lower, int upper);
    void focusOut();

    const std::string& text() const { return number; }

    /** Everything that changes by use, for comparing. */
    const std::string& state() const { return number; }

    double value() const { return valueOf(number); }

    /** The number that a text begins with, 0 for none. */
    static double valueOf(const std::string& text);

    /** Fixed notation; places below 0 give six of them. */
    static std::string fixed(double number, int places);

private:
    bool integerKey(char c);
    bool decimalKey(char c);
    bool zero();
    void checkRange(char c);
};

} // namespace PANFx::Testing
