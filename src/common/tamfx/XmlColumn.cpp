#include "common/tamfx/XmlColumn.h"

#include <cstring>

namespace TAMFx::Common::Xml {

XmlColumn::XmlColumn(const char* pszRow, const char* pszKey, int nColumn)
    : m_pszRow(pszRow)
    , m_pszKey(pszKey)
    , m_nColumn(nColumn)
{
}

void XmlColumn::begin(std::size_t)
{
    m_rows.clear();
    m_strTexts.clear();
}

void XmlColumn::visit(const XmlWalk::Element& element)
{
    if (element.nDepth > 0) {
        Level& parent = m_levels[element.nDepth - 1];
        if (parent.nRow != none && parent.nChildren++ == m_nColumn)
            m_rows[parent.nRow].nText = copy(element.pszText);
    }
    const char* pszKey = keyOf(element);
    m_levels[element.nDepth] = {pszKey ? m_rows.size() : none, 0};
    if (pszKey)
        m_rows.push_back({copy(pszKey), none});
}

/** Null for an element that is no row or has no key. */
const char* XmlColumn::keyOf(const XmlWalk::Element& element) const
{
    // most elements are no rows, and differ in the first character
    if (*element.pszName != *m_pszRow || std::strcmp(element.pszName, m_pszRow) != 0)
        return nullptr;
    for (std::size_t i = 0; i < element.nAttributes; ++i) {
        if (std::strcmp(element.pAttributes[i].pszName, m_pszKey) == 0)
            return element.pAttributes[i].pszValue;
    }
    return nullptr;
}

std::size_t XmlColumn::copy(const char* pszText)
{
    const std::size_t nBegin = m_strTexts.size();
    m_strTexts.append(pszText, std::strlen(pszText) + 1);
    return nBegin;
}

void XmlColumn::handOver(XmlWalk::Visitor& target) const
{
    constexpr std::size_t shortTexts = 2; // of a row and of the column: the names, with their ends
    const std::size_t nNames = std::strlen(m_pszRow) + std::strlen(m_pszKey) + shortTexts;
    target.begin(m_strTexts.size() + m_rows.size() * nNames);
    target.visit({"", "", nullptr, 0, m_rows.size(), 0});
    for (const Row& row : m_rows) {
        const XmlWalk::Attribute key = {m_pszKey, m_strTexts.c_str() + row.nKey};
        const bool bText = row.nText != none;
        target.visit({m_pszRow, "", &key, 1, bText ? 1u : 0u, 1});
        if (bText)
            target.visit({"", m_strTexts.c_str() + row.nText, nullptr, 0, 0, 2});
    }
}

} // namespace TAMFx::Common::Xml
