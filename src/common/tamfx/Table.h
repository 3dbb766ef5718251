#pragma once

#include "common/tamfx/Export.h"

#include <string>
#include <vector>

namespace TAMFx::Data::Collection {

/**
 * Result of a query: named columns, and rows of text with a mark for database nulls. Rows and
 * columns count from 0. A bad index gives "", and isNull says true of it.
 */
class TAMFX_EXPORT Table
{
public:
    /** Without columns and rows. */
    Table();
    ~Table();

    /** Number of columns. */
    int getColumnCount() const { return static_cast<int>(m_columns.size()); }

    /** Number of rows. */
    int getRowCount() const { return static_cast<int>(m_rows.size()); }

    /** Name of a column, "" for a bad index. */
    const char* getColumnName(int nColumn) const;

    /** Position of the first column of that name, compared exactly; -1 when there is none. */
    int getColumnIndex(const char* pszName) const;

    /** Text of a cell. "" for an empty text, a database null and a bad index. */
    const char* getValue(int nRow, int nColumn) const;

    /** The same by the name of the column. */
    const char* getValue(int nRow, const char* pszColumn) const;

    /** True for a database null and for a cell that does not exist. */
    bool isNull(int nRow, int nColumn) const;

    /** The same by the name of the column. */
    bool isNull(int nRow, const char* pszColumn) const;

    /** Drops rows and columns. */
    void Clear();

    /** Appends a column; every row there is gets a null cell for it. Null counts as "". */
    void addColumn(const char* pszName);

    /** Appends a row of null cells. */
    void addRow();

    /** Sets a cell; a null text makes it a database null. A bad index changes nothing. */
    void setValue(int nRow, int nColumn, const char* pszText);

private:
    struct Cell
    {
        std::string strText;
        bool bNull = true;
    };

    const Cell* find(int nRow, int nColumn) const;

    std::vector<std::string> m_columns;
    std::vector<std::vector<Cell>> m_rows;
};

} // namespace TAMFx::Data::Collection
