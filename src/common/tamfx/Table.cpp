#include "common/tamfx/Table.h"

namespace TAMFx::Data::Collection {

Table::Table() = default;

Table::~Table() = default;

const char* Table::getColumnName(int nColumn) const
{
    if (nColumn < 0 || nColumn >= getColumnCount())
        return "";
    return m_columns[static_cast<std::size_t>(nColumn)].c_str();
}

int Table::getColumnIndex(const char* pszName) const
{
    for (int i = 0; pszName && i < getColumnCount(); ++i) {
        if (m_columns[static_cast<std::size_t>(i)] == pszName)
            return i;
    }
    return -1;
}

const char* Table::getValue(int nRow, int nColumn) const
{
    const Cell* pCell = find(nRow, nColumn);
    return pCell ? pCell->strText.c_str() : "";
}

const char* Table::getValue(int nRow, const char* pszColumn) const
{
    return getValue(nRow, getColumnIndex(pszColumn));
}

bool Table::isNull(int nRow, int nColumn) const
{
    const Cell* pCell = find(nRow, nColumn);
    return !pCell || pCell->bNull;
}

bool Table::isNull(int nRow, const char* pszColumn) const
{
    return isNull(nRow, getColumnIndex(pszColumn));
}

void Table::Clear()
{
    m_columns.clear();
    m_rows.clear();
}

void Table::addColumn(const char* pszName)
{
    m_columns.emplace_back(pszName ? pszName : "");
    for (std::vector<Cell>& row : m_rows)
        row.emplace_back();
}

void Table::addRow()
{
    m_rows.emplace_back(m_columns.size());
}

void Table::setValue(int nRow, int nColumn, const char* pszText)
{
    if (!find(nRow, nColumn))
        return;
    Cell& cell = m_rows[static_cast<std::size_t>(nRow)][static_cast<std::size_t>(nColumn)];
    cell.strText = std::string(pszText ? pszText : "");
    cell.bNull = !pszText;
}

const Table::Cell* Table::find(int nRow, int nColumn) const
{
    if (nRow < 0 || nRow >= getRowCount() || nColumn < 0 || nColumn >= getColumnCount())
        return nullptr;
    return &m_rows[static_cast<std::size_t>(nRow)][static_cast<std::size_t>(nColumn)];
}

} // namespace TAMFx::Data::Collection
