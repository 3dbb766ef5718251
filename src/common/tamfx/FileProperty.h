#pragma once

#include "common/tamfx/Export.h"
#include "common/tamfx/PropertyLine.h"

#include <string>
#include <vector>

namespace TAMFx::Config {
class ConfigurationManager;
}

/** Configuration files. */
namespace TAMFx::Data::Properties {

/**
 * A configuration file in memory, made by the ConfigurationManager and kept by it.
 *
 * The file is UTF-8 text with one "key = value" a line; blanks around key and value do not count.
 * A line that begins with "#" is a comment; a "#" further behind is part of the value. Blank
 * lines, comments, lines that are no property, the order of lines and their ends are kept byte
 * for byte. When a key stands more than once the last line counts. Keys are case-sensitive.
 *
 * A value stands as it is, backslashes too. Only one in double quotes is read differently: the
 * quotes go away, and inside them `\n`, `\r`, `\"` and `\\` stand for line feed, carriage return,
 * quote and backslash. A value is written like that only where it must be: when it begins or ends
 * with a blank, holds a line break, or begins with a quote.
 */
class TAMFX_EXPORT FileProperty
{
public:
    // Applications call these two by their place in the table of virtual operations: keep them
    // the first and second.

    /**
     * Changes a value in memory, or appends the key. A null value counts as "". A key that no
     * line can hold is ignored: null, empty, with "=" or a line break in it, beginning with "#",
     * or with a blank at either end.
     */
    virtual void setProperty(const char* pszKey, const char* pszValue);

    /**
     * Value of a key, "" when absent. The text stays readable until the next setProperty or
     * openProperty of this file.
     */
    virtual const char* getProperty(const char* pszKey) const;

    /**
     * Writes the file back, or creates it. The file on disk is replaced as a whole and the change
     * has reached the disk when this returns true: after a power cut the file is the old or the
     * new one. Permissions and owner are kept where the system lets us, and behind a symbolic
     * link it is the real file that is replaced.
     * @return false when any step failed; the values in memory stay and Update may be called again.
     */
    virtual bool Update();

    FileProperty(const FileProperty&) = delete;
    FileProperty& operator=(const FileProperty&) = delete;
    virtual ~FileProperty();

private:
    friend class Config::ConfigurationManager;
    explicit FileProperty(std::string strPath);

    /** Reads the file, unless changes wait for Update. Gives 0 or the system's error number. */
    int load();

    /** Position of the line that counts for a key; -1 when there is none. */
    int find(const std::string& strKey) const;

    std::string m_strPath;
    std::vector<PropertyLine> m_lines;
    bool m_bChanged = false;
};

} // namespace TAMFx::Data::Properties
