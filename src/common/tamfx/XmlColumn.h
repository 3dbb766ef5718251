#pragma once

#include "common/tamfx/XmlWalk.h"

#include <array>
#include <string>
#include <vector>

namespace TAMFx::Common::Xml {

/**
 * Picks one column of a file that is a table: rows are elements of one name, anywhere in the
 * file, with a key in an attribute, and columns are their child elements.
 */
class XmlColumn : public XmlWalk::Visitor
{
public:
    /**
     * The texts must live as long as this object.
     * @param pszRow name of the rows
     * @param pszKey name of the rows' attribute
     * @param nColumn position of the child element, counted from 0
     */
    XmlColumn(const char* pszRow, const char* pszKey, int nColumn);

    void begin(std::size_t nBytes) override;
    void visit(const XmlWalk::Element& element) override;

    /**
     * Hands over what was picked: a root without a name, whose children are the rows that have
     * the key, in document order; a row's one child, without a name, is the column, if it is there.
     */
    void handOver(XmlWalk::Visitor& target) const;

private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    /** Offsets in the texts. */
    struct Row
    {
        std::size_t nKey;
        std::size_t nText; ///< none without that column
    };

    /** The element of a depth on the way to the present one. */
    struct Level
    {
        std::size_t nRow; ///< none for an element that is no row
        int nChildren;    ///< child elements so far
    };

    const char* keyOf(const XmlWalk::Element& element) const;
    std::size_t copy(const char* pszText);

    const char* const m_pszRow;
    const char* const m_pszKey;
    const int m_nColumn;
    std::vector<Row> m_rows;
    std::string m_strTexts;
    std::array<Level, XmlWalk::maximumDepth> m_levels;
};

} // namespace TAMFx::Common::Xml
