#include "pages/ListTable.h"

#include "components/buttons/ZELCheckButton.h"
#include "components/text/ZELLabel.h"

#include <algorithm>

using PANFx::Components::ZELCheckButton;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELLabel;
using PANFx::Components::ZELList;

ListTable::ListTable(ZELList* pList)
    : m_pList(pList)
{
    while (m_pList != nullptr && m_pList->getListItem(m_nRows) != nullptr)
        ++m_nRows;
}

// The total comes first: a page above it would be refused.
void ListTable::setEntries(int nCount)
{
    m_nEntries = nCount;
    if (m_nRows == 0)
        return;
    const int nPages = std::max(1, (nCount + m_nRows - 1) / m_nRows);
    m_pList->setTotalPage(nPages);
    m_pList->setNowPage(std::clamp(m_pList->getNowPage(), 1, nPages));
}

void ListTable::rewind()
{
    if (m_pList != nullptr)
        m_pList->setNowPage(1);
}

int ListTable::firstEntry() const
{
    return m_pList == nullptr ? 0 : (m_pList->getNowPage() - 1) * m_nRows;
}

int ListTable::filledRows() const
{
    return std::clamp(m_nEntries - firstEntry(), 0, m_nRows);
}

void ListTable::showRows(int nRows)
{
    for (int nRow = 0; nRow < m_nRows; ++nRow) {
        ZELComponent* pRow = m_pList->getListItem(nRow);
        if (nRow < nRows)
            pRow->showWindow();
        else
            pRow->hideWindow();
    }
}

ZELComponent* ListTable::cell(int nRow, int nColumn) const
{
    return m_pList == nullptr ? nullptr : m_pList->getItemComponent(nRow, nColumn);
}

void ListTable::setText(int nRow, int nColumn, const std::string& strText)
{
    showText(cell(nRow, nColumn), strText);
}

void ListTable::setElided(int nColumn)
{
    for (int nRow = 0; nRow < m_nRows; ++nRow) {
        if (auto* pLabel = componentAs<ZELLabel>(cell(nRow, nColumn), "ZELLabel"))
            pLabel->setElidedText();
    }
}

void ListTable::setChecked(int nRow, int nColumn, bool bChecked)
{
    if (auto* pBox = componentAs<ZELCheckButton>(cell(nRow, nColumn), "ZELCheckButton")) {
        pBox->m_bChecked = bChecked;
        pBox->update();
    }
}

bool ListTable::isChecked(int nRow, int nColumn) const
{
    const auto* pBox = componentAs<ZELCheckButton>(cell(nRow, nColumn), "ZELCheckButton");
    return pBox != nullptr && pBox->m_bChecked;
}
