#pragma once

#include <QTemporaryDir>

#include <string>

namespace PANFx::Testing {

/**
 * Has the process write and read "3,5" for three and a half while the object lives, as it does
 * where a language of the panel writes a decimal comma. The locale is made on the spot with the
 * system's localedef, so none need be installed.
 */
class DecimalComma
{
public:
    DecimalComma();
    ~DecimalComma();

    DecimalComma(const DecimalComma&) = delete;
    DecimalComma& operator=(const DecimalComma&) = delete;

    /** False where the system has no localedef: skip the test then. */
    bool active() const;

private:
    QTemporaryDir m_folder;
    std::string m_numbersBefore;
    QByteArray m_pathBefore;
};

} // namespace PANFx::Testing
