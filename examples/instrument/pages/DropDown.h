#pragma once

#include <QEvent>

#include <string>
#include <vector>

namespace PANFx::Components {
class ZELComboList;
}

/// The drop-down list of a field with any number of entries: where they are more than the rows of
/// the list, it gets pages. The first entry stands next to the field. Null as the list does
/// nothing.
class DropDown
{
public:
    explicit DropDown(PANFx::Components::ZELComboList* pList);

    /// Closes the list and gives it other entries. The list shows none twice, so what comes again
    /// is left out, and what is empty: the numbers count what is left.
    void setEntries(std::vector<std::string> entries);

    /// Opens the list on its first page, or closes it where it is open.
    void turn();
    void close();

    /// Takes an event of the page: turns the list's pages, and keeps in mind what was chosen.
    /// @return whether an entry was chosen; the list has closed then
    bool choose(QEvent* pEvent);

    /// Number of the entry that was chosen last.
    std::size_t choice() const { return m_nChoice; }
    const std::string& chosenText() const { return m_entries[m_nChoice]; }

private:
    void fill();
    std::size_t firstOfPage() const;

    PANFx::Components::ZELComboList* m_pList;
    std::size_t m_nRows = 0;
    std::vector<std::string> m_entries;
    std::size_t m_nChoice = 0;
};
