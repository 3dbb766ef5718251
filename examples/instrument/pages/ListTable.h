#pragma once

#include "ComponentAccess.h"

#include "components/lists/ZELList.h"

#include <string>

/// A list on a page that shows any number of entries: turns them into pages and writes the cells.
/// Rows count from 0 on each page, entries from 0 on the first one. Null as the list does nothing.
class ListTable
{
public:
    explicit ListTable(PANFx::Components::ZELList* pList);

    /// Sets the number of entries. The page stays, or is the last one where it was beyond.
    void setEntries(int nCount);

    /// Goes to the first page.
    void rewind();

    int rows() const { return m_nRows; }

    /// The entry in the first row of this page.
    int firstEntry() const;

    /// The entry in a row of this page.
    std::size_t entry(int nRow) const
    {
        return static_cast<std::size_t>(firstEntry()) + static_cast<std::size_t>(nRow);
    }

    /// How many rows of this page have an entry.
    int filledRows() const;

    /// Shows so many rows from the first one on and hides the others.
    void showRows(int nRows);

    /// A cell, or null.
    PANFx::Components::ZELComponent* cell(int nRow, int nColumn) const;

    void setText(int nRow, int nColumn, const std::string& strText);
    void setElided(int nColumn);
    void setChecked(int nRow, int nColumn, bool bChecked);
    bool isChecked(int nRow, int nColumn) const;

    /// The cell of that type in the header, or null.
    template <class T>
    T* headCell(int nColumn, const char* pszType)
    {
        return m_pList == nullptr ? nullptr
                                  : componentAs<T>(m_pList->getHeaderComponent(nColumn), pszType);
    }

private:
    PANFx::Components::ZELList* m_pList;
    int m_nRows = 0;
    int m_nEntries = 0;
};
