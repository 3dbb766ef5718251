#include "pages/DropDown.h"

#include "ComponentAccess.h"

#include "components/lists/ZELComboList.h"
#include "events/EventNumbers.h"
#include "events/ZELListEvent.h"

#include <algorithm>

using PANFx::Components::ZELComboList;
using PANFx::Components::ZELComponent;

DropDown::DropDown(ZELComboList* pList)
    : m_pList(pList)
{
    if (m_pList == nullptr)
        return;
    const auto isRow = [](const ZELComponent* pPart) { return pPart->m_strType == "ZELListItem"; };
    m_nRows = static_cast<std::size_t>(
        std::count_if(m_pList->m_dqSubComponents.begin(), m_pList->m_dqSubComponents.end(), isRow));
}

void DropDown::setEntries(std::vector<std::string> entries)
{
    close();
    m_entries.clear();
    for (std::string& strEntry : entries) {
        const bool bThere =
            std::find(m_entries.begin(), m_entries.end(), strEntry) != m_entries.end();
        if (!bThere && !strEntry.empty())
            m_entries.push_back(std::move(strEntry));
    }
    if (m_nRows == 0)
        return;
    const std::size_t nPages = std::max<std::size_t>(1, (m_entries.size() + m_nRows - 1) / m_nRows);
    m_pList->setTotalPage(static_cast<int>(nPages));
    // what lies behind the page turner is there only as long as that is
    if (ZELComponent* pBackdrop = m_pList->getSubComponent("backdrop"))
        nPages > 1 ? pBackdrop->showWindow() : pBackdrop->hideWindow();
}

// The last page is full as well: empty rows would part the entries from the field.
std::size_t DropDown::firstOfPage() const
{
    const std::size_t nFirst = static_cast<std::size_t>(m_pList->getNowPage() - 1) * m_nRows;
    return m_entries.size() < m_nRows ? 0 : std::min(nFirst, m_entries.size() - m_nRows);
}

// The list puts what is added last next to the field.
void DropDown::fill()
{
    const std::size_t nFirst = firstOfPage();
    m_pList->clearItem();
    for (std::size_t n = std::min(nFirst + m_nRows, m_entries.size()); n > nFirst; --n)
        m_pList->addItem(m_entries[n - 1]);
}

void DropDown::turn()
{
    if (m_pList == nullptr || m_entries.empty())
        return;
    if (m_pList->isVisible()) {
        m_pList->hideWindow();
        return;
    }
    m_pList->setNowPage(1);
    fill();
    m_pList->showWindow();
}

void DropDown::close()
{
    if (m_pList != nullptr)
        m_pList->hideWindow();
}

bool DropDown::choose(QEvent* pEvent)
{
    if (m_pList == nullptr || senderID(pEvent) != m_pList->m_strID)
        return false;
    if (pEvent->type() == EVENT_PAGE_UP || pEvent->type() == EVENT_PAGE_DOWN)
        fill();
    const ZELListEvent* pChoice = listEvent(pEvent);
    if (pChoice == nullptr || pChoice->type() != EVENT_MOUSE_UP)
        return false;
    m_nChoice = firstOfPage() + static_cast<std::size_t>(pChoice->m_nRow);
    return m_nChoice < m_entries.size();
}
