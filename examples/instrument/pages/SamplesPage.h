#pragma once

#include "Record.h"
#include "pages/InstrumentPage.h"
#include "pages/ListTable.h"

#include <set>

/// The samples that have been measured, each with the number of its measurements, to be checked
/// and then shown on the page of the results or deleted.
class SamplesPage : public InstrumentPage
{
public:
    SamplesPage(const std::string& strID, InstrumentFrame* pFrame);

    void activating() override;

    /// Names of the checked samples, those of all pages of the list.
    std::vector<std::string> pickedSamples() const;

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

protected:
    bool event(QEvent* pEvent) override;

private:
    void watchBox(PANFx::Components::ZELComponent* pBox);
    void readBoxes();
    void readHeadBox();
    void pick(int nRow);
    void show();
    void askToClear();

    void fillList();
    void fillRow(int nRow);
    void showPicked();

    ListTable m_list;
    std::vector<SampleSummary> m_samples;
    std::set<std::string> m_picked; ///< names
};
