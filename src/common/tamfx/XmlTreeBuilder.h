#pragma once

#include <string>

namespace TAMFx::Common::Xml {

class XmlColumn;
class XmlDocument;

/** Makes the tree of a document from a file. */
class XmlTreeBuilder
{
public:
    /**
     * Fills an empty document. False for a file that can't be read.
     * @throws XmlException* for content that is not well-formed; the document stays empty.
     */
    static bool build(const std::string& strPath, XmlDocument& document);

    /** The same with one column of the file. */
    static bool build(const std::string& strPath, XmlColumn column, XmlDocument& document);

private:
    class Filler;

    static void fill(const Filler& filler, XmlDocument& document);
};

} // namespace TAMFx::Common::Xml
