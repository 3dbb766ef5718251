#pragma once

#include "Record.h"
#include "pages/InstrumentPage.h"
#include "pages/ListTable.h"

#include <set>

/// The samples that have been measured, each with the number of its measurements, to be sorted by a
/// touch on a head, checked, and then shown on the page of the results or deleted.
class SamplesPage : public InstrumentPage
{
public:
    SamplesPage(const std::string& strID, InstrumentFrame* pFrame);

    void activating() override;

    /// Names of the checked samples, those of all pages of the list.
    std::vector<std::string> pickedSamples() const;

    /// The samples in the order of the list.
    const std::vector<SampleSummary>& samples() const { return m_samples; }

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

protected:
    bool event(QEvent* pEvent) override;

private:
    void watchBox(PANFx::Components::ZELComponent* pBox);
    void readBoxes();
    void readHeadBox();
    void pick(int nRow);
    void sortBy(int nColumn);
    void readSamples();
    void show();
    void askToClear();

    void fillList();
    void fillRow(int nRow);
    void showHeads();
    void showPicked();

    ListTable m_list;
    std::vector<SampleSummary> m_samples;
    std::set<std::string> m_picked; ///< names
    int m_nSortedBy = 1;            ///< a column, at first that of the names
    bool m_bTurned = false;         ///< the other way round
};
