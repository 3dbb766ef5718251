#pragma once

#include "common/tamfx/Export.h"
#include "common/tamfx/Node.h"

#include <cstddef>

/** XML files as trees of elements. */
namespace TAMFx::Common::Xml {

class NodeList;

/**
 * An XML file as a tree of elements, all of them in one piece of memory.
 *
 * As an element the document has one child, the root element of the file, and no name, text or
 * attributes. Only getNodeByName looks one level deeper, at the children of the root.
 */
class TAMFX_EXPORT XmlDocument : public Node
{
public:
    /** Empty, until a file is loaded. */
    XmlDocument();
    ~XmlDocument() override;

    /**
     * Replaces the content with that of a file, whose encoding is found by itself (UTF-8, UTF-16,
     * UTF-32 or Latin-1). False for what cannot be read: a missing file, a directory or anything
     * else that is no regular file, a refused or failing read. After a failure the document is
     * empty. Elements from the former content are gone.
     * @throws XmlException* for a file that was read and is not well-formed: what the parser
     * reports, and besides it a missing or second root element, text outside the root, an
     * attribute given twice, elements nested deeper than 256 and NUL characters. Entities other
     * than the five built-in ones and character references are left as they stand.
     */
    bool LoadXMLFile(const char* pszPath);

    /**
     * Lets the loads from now on keep one column of a table and forget the rest, for files of
     * which no more is wanted. Rows are the elements of one name that have a key, wherever they
     * stand in the file. The document then has a root without a name; its children are the rows
     * in document order, with their key alone, and a row has one child without a name, the column,
     * or none where the file has none. What is refused in a file stays the same.
     * @param pszRow name of the rows; it must outlive the loads, as must the next
     * @param pszKey name of the attribute that holds the key
     * @param nColumn position of the column among a row's child elements, counted from 0
     */
    void setColumn(const char* pszRow, const char* pszKey, int nColumn);

    /**
     * All elements of that name, compared exactly, in document order, the root included; an empty
     * list when there is none. Null when the document is empty. The caller deletes the list.
     */
    NodeList* getNodeListByName(const char* pszName) const;

    /** First child of the root element with that name; null when there is none. */
    Node* getNodeByName(const char* pszName) const override;

    /** Empties the document. */
    void removeAll() override;

private:
    friend class XmlTreeBuilder;

    Node* m_pNodes = nullptr; ///< begin of the one piece of memory: all elements of the file
    std::size_t m_nNodes = 0;
    const char* m_pszRow = nullptr; ///< null without a column, as is the next
    const char* m_pszKey = nullptr;
    int m_nColumn = 0;
};

} // namespace TAMFx::Common::Xml
