#pragma once

#include "Record.h"
#include "pages/DropDown.h"
#include "pages/InstrumentPage.h"
#include "pages/ListTable.h"

#include <set>

/// The stored measurements as a list with pages: to be sorted by time or temperature, cut down to
/// samples, selected, printed and deleted. Beside it the mean values; a touch on the mean
/// temperature changes its unit.
class ResultsPage : public InstrumentPage
{
public:
    ResultsPage(const std::string& strID, InstrumentFrame* pFrame);

    void activating() override;

    /// The selected measurements, in the order of the list; those of all pages of it.
    std::vector<Record> selectedRecords() const;

    /// What a report holds: the selected measurements, or else those that are to be seen.
    std::vector<Record> recordsToPrint() const;

    /// The measurements on the page of the list that is to be seen.
    const std::vector<Record>& shownRecords() const { return m_shown; }

protected:
    bool event(QEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;

private:
    bool touch(const std::string& strID);
    bool takeListEvent(QEvent* pEvent);
    void select(int nRow);
    void selectAll(bool bSelected);
    void sort(int nColumn);
    void filter();
    void changeUnit();
    void print();
    void askToClear();

    const RecordQuery& query() const;
    void setQuery(const RecordQuery& query);

    void fillFilter();
    void fillList();
    void fillRow(int nRow);
    int shownRows() const;
    void showHeader();
    void showSelection();
    void showMeans();

    ListTable m_list;
    DropDown m_filter;
    std::vector<Record> m_shown;
    std::set<long long> m_selected; ///< ids of records
    int m_nCount = 0;               ///< of all measurements in the list
};
