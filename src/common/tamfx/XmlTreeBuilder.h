#pragma once

#include <string>

namespace TAMFx::Common::Xml {

class XmlDocument;

/** Makes the tree of a document from the content of a file. */
class XmlTreeBuilder
{
public:
    /**
     * Fills an empty document. The file name stands in the message of the exception.
     * @throws XmlException* for content that is not well-formed; the document stays empty.
     */
    static void build(const char* pszFileName, const std::string& strContent,
                      XmlDocument& document);

private:
    class Filler;
};

} // namespace TAMFx::Common::Xml
