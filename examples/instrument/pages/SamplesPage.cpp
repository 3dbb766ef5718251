#include "pages/SamplesPage.h"

#include "ApplicationEvents.h"
#include "Calendar.h"
#include "InstrumentFrame.h"
#include "dialogs/QuestionDialog.h"

#include "components/buttons/ZELCheckButton.h"
#include "components/lists/ZELUnitList.h"
#include "components/text/ZELLabel.h"
#include "events/EventNumbers.h"
#include "events/ZELEvent.h"
#include "events/ZELListEvent.h"

#include <QCoreApplication>

#include <algorithm>

using PANFx::Components::ZELCheckButton;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELLabel;
using PANFx::Components::ZELUnitList;

namespace {

/// Columns of the list, as they stand in its layout.
enum Column { box, name, count, meanPH, meanTemperature, last };

const std::size_t phAt = 0; // place of the pH value among the channels

/// By that column: names from A on, and what is most, warmest or latest first.
bool isBefore(const SampleSummary& one, const SampleSummary& other, int nColumn)
{
    switch (nColumn) {
    case count:
        return one.nCount > other.nCount;
    case meanPH:
        return one.means[phAt] > other.means[phAt];
    case meanTemperature:
        return one.means[Analyser::temperatureAt] > other.means[Analyser::temperatureAt];
    case last:
        return one.strLast > other.strLast;
    default:
        return one.strName < other.strName;
    }
}

} // namespace

SamplesPage::SamplesPage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
    , m_list(component<ZELUnitList>("samples", "ZELUnitList"))
{
    m_list.setElided(name);
    watchBox(m_list.headCell<ZELCheckButton>(box, "ZELCheckButton"));
    for (int nRow = 0; nRow < m_list.rows(); ++nRow)
        watchBox(m_list.cell(nRow, box));
}

// A unit list does not tell of touches in its first column. This page wants to know of them at
// once, for the box in the head and the number below the list, and so looks at the widgets.
void SamplesPage::watchBox(ZELComponent* pBox)
{
    if (pBox != nullptr)
        pBox->getQWidget()->installEventFilter(this);
}

// The box itself turns round after this.
bool SamplesPage::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::MouseButtonRelease) {
        const auto* pHead = m_list.headCell<ZELCheckButton>(box, "ZELCheckButton");
        const bool bHead = pObject == pHead;
        QCoreApplication::postEvent(this,
                                    new ZELEvent(EVENT_BOX_TOUCHED, bHead ? "headcheck" : "pick"));
    }
    return InstrumentPage::eventFilter(pObject, pEvent);
}

void SamplesPage::activating()
{
    InstrumentPage::activating();
    m_picked.clear();
    m_list.rewind();
    readSamples();
    fillList();
}

bool SamplesPage::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    const QEvent::Type type = pEvent->type();
    if (strID == "back")
        m_pFrame->moveBack(true);
    else if (strID == "show")
        show();
    else if (strID == "clear")
        askToClear();
    else if (type == EVENT_PAGE_UP || type == EVENT_PAGE_DOWN)
        fillList();
    else if (type == EVENT_BOX_TOUCHED)
        senderID(pEvent) == "headcheck" ? readHeadBox() : readBoxes();
    else if (type == EVENT_LIST_ITEM_CLICK && listEvent(pEvent) != nullptr)
        pick(listEvent(pEvent)->m_nRow);
    else if (type == EVENT_LIST_HEADER_CLICK && listEvent(pEvent) != nullptr)
        sortBy(listEvent(pEvent)->m_nColumn);
    else
        return InstrumentPage::event(pEvent);
    return true;
}

void SamplesPage::readBoxes()
{
    for (int nRow = 0; nRow < m_list.filledRows(); ++nRow) {
        const std::string& strName = m_samples[m_list.entry(nRow)].strName;
        if (m_list.isChecked(nRow, box))
            m_picked.insert(strName);
        else
            m_picked.erase(strName);
    }
    showPicked();
}

void SamplesPage::readHeadBox()
{
    const auto* pHead = m_list.headCell<ZELCheckButton>(box, "ZELCheckButton");
    m_picked.clear();
    for (const SampleSummary& summary : m_samples) {
        if (pHead != nullptr && pHead->m_bChecked)
            m_picked.insert(summary.strName);
    }
    showPicked();
}

void SamplesPage::pick(int nRow)
{
    m_list.setChecked(nRow, box, !m_list.isChecked(nRow, box));
    readBoxes();
}

// A head of a unit list knows nothing of directions, so the page does: the second touch on it turns
// the order round.
void SamplesPage::sortBy(int nColumn)
{
    m_bTurned = nColumn == m_nSortedBy && !m_bTurned;
    m_nSortedBy = nColumn;
    readSamples();
    m_list.rewind();
    fillList();
}

void SamplesPage::readSamples()
{
    m_samples = m_pFrame->records().samples();
    std::stable_sort(m_samples.begin(), m_samples.end(),
                     [this](const SampleSummary& one, const SampleSummary& other) {
                         return m_bTurned ? isBefore(other, one, m_nSortedBy)
                                          : isBefore(one, other, m_nSortedBy);
                     });
}

std::vector<std::string> SamplesPage::pickedSamples() const
{
    return {m_picked.begin(), m_picked.end()};
}

void SamplesPage::show()
{
    Settings settings = m_pFrame->settings();
    settings.results.samples.clear(); // which stands for all of them
    if (m_picked.size() < m_samples.size())
        settings.results.samples = pickedSamples();
    m_pFrame->setSettings(settings);
    m_pFrame->moveBack(true);
}

void SamplesPage::askToClear()
{
    if (m_picked.empty())
        return; // a query without a name stands for all samples
    RecordQuery query;
    query.samples = pickedSamples();
    const std::vector<Record> records = m_pFrame->records().records(query);
    QuestionDialog dialog(m_pFrame,
                          localText("@clear.some") + " (" + std::to_string(records.size()) + ")",
                          "@clear.note");
    if (dialog.exec() != QuestionDialog::yes)
        return;
    if (!tryToChange("@clear.failed", [&] { return m_pFrame->records().remove(records); }))
        return;
    m_picked.clear();
    readSamples();
    fillList();
}

void SamplesPage::fillList()
{
    m_list.setEntries(static_cast<int>(m_samples.size()));
    showHeads();
    for (int nRow = 0; nRow < m_list.filledRows(); ++nRow)
        fillRow(nRow);
    m_list.showRows(m_list.filledRows());
    showPicked();
}

void SamplesPage::showHeads()
{
    const std::string& strUnit = analyser().channels()[Analyser::temperatureAt].strUnit;
    showText(m_list.headCell<ZELLabel>(meanTemperature, "ZELLabel"), "Ø " + strUnit);
    for (int nColumn = name; nColumn <= last; ++nColumn) {
        if (auto* pHead = m_list.headCell<ZELLabel>(nColumn, "ZELLabel")) {
            pHead->setFontStyle(nColumn == m_nSortedBy ? 1 : 0);
            pHead->update();
        }
    }
}

void SamplesPage::fillRow(int nRow)
{
    const SampleSummary& summary = m_samples[m_list.entry(nRow)];
    const std::vector<Analyser::Channel>& channels = analyser().channels();
    const auto mean = [&](std::size_t nChannel) {
        return Analyser::text(channels[nChannel], summary.means[nChannel]);
    };
    m_list.setText(nRow, name, summary.strName);
    m_list.setText(nRow, count, std::to_string(summary.nCount));
    m_list.setText(nRow, meanPH, mean(phAt));
    m_list.setText(nRow, meanTemperature, mean(Analyser::temperatureAt));
    m_list.setText(nRow, last, shortTimeText(summary.strLast, m_pFrame->settings().strDateOrder));
}

void SamplesPage::showPicked()
{
    for (int nRow = 0; nRow < m_list.filledRows(); ++nRow)
        m_list.setChecked(nRow, box, m_picked.count(m_samples[m_list.entry(nRow)].strName) > 0);
    if (auto* pList = component<ZELUnitList>("samples", "ZELUnitList"))
        pList->setHeaderCheckButton(!m_picked.empty() && m_picked.size() == m_samples.size());
    setText("picked", captioned("@picked", std::to_string(m_picked.size()) + " / " +
                                               std::to_string(m_samples.size())));
    setDimmed("show", m_picked.empty());
    setDimmed("clear", m_picked.empty());
}
