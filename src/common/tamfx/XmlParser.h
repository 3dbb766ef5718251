#pragma once

#include "common/tamfx/XmlWalk.h"

#include <string>

namespace TAMFx::Common::Xml {

/** Parses the content of a file and hands its elements over. */
class XmlParser
{
public:
    /**
     * The texts of the elements lie in the parser's memory.
     * @param pszFileName stands in the message of the exception
     * @throws XmlException* for content that is not well-formed, perhaps after some elements
     */
    static void parse(const char* pszFileName, const std::string& strContent,
                      XmlWalk::Visitor& visitor);

    /** The same for the content of a file. @return false when the file can't be read */
    static bool parseFile(const std::string& strPath, XmlWalk::Visitor& visitor);
};

} // namespace TAMFx::Common::Xml
