#include "pages/ResultsPage.h"

#include "Calendar.h"
#include "InstrumentFrame.h"
#include "dialogs/PrintDialog.h"
#include "dialogs/QuestionDialog.h"
#include "report/Report.h"

#include "components/buttons/ZELCheckButton.h"
#include "components/editors/ZELImageEdit.h"
#include "components/lists/ZELComboList.h"
#include "components/lists/ZELHeaderButton.h"
#include "events/EventNumbers.h"
#include "events/ZELListEvent.h"

using PANFx::Components::ZELCheckButton;
using PANFx::Components::ZELComboList;
using PANFx::Components::ZELHeaderButton;
using PANFx::Components::ZELImageEdit;
using PANFx::Components::ZELList;
using Order = RecordQuery::Order;

namespace {

/// Columns of the list, as they stand in its layout.
enum Column { pick, timeOfRecord, sample, firstValue, temperature = firstValue + 3 };

const struct
{
    Order order;
    int nColumn;
} heads[] = {{Order::time, timeOfRecord}, {Order::temperature, temperature}};

} // namespace

ResultsPage::ResultsPage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
    , m_list(component<ZELList>("records", "ZELList"))
    , m_filter(component<ZELComboList>("filter_names", "ZELComboList"))
{
    m_list.setElided(sample);
    if (auto* pField = component<ZELImageEdit>("filter", "ZELImageEdit"))
        pField->setElidedText(Qt::ElideRight);
}

void ResultsPage::activating()
{
    InstrumentPage::activating();
    fillFilter();
    const std::vector<Record> selected = selectedRecords(); // some may be gone
    m_selected.clear();
    for (const Record& record : selected)
        m_selected.insert(record.nID);
    m_list.rewind();
    fillList();
}

bool ResultsPage::event(QEvent* pEvent)
{
    if (m_filter.choose(pEvent))
        filter();
    else if (!touch(touchedID(pEvent)) && !takeListEvent(pEvent))
        return InstrumentPage::event(pEvent);
    return true;
}

bool ResultsPage::touch(const std::string& strID)
{
    if (strID == "filter") {
        m_filter.turn();
        return true;
    }
    if (!strID.empty() && strID != "filter_names")
        m_filter.close();
    if (strID == "back")
        m_pFrame->moveBack(true);
    else if (strID == "mean.temp")
        changeUnit();
    else if (strID == "samples")
        m_pFrame->moveTo("samples", true, true);
    else if (strID == "print")
        print();
    else if (strID == "clear")
        askToClear();
    else
        return false;
    return true;
}

// A touch on the ground of the page, or of the list, which lets it through.
void ResultsPage::mousePressEvent(QMouseEvent* pEvent)
{
    m_filter.close();
    InstrumentPage::mousePressEvent(pEvent);
}

bool ResultsPage::takeListEvent(QEvent* pEvent)
{
    if (senderID(pEvent) != "records")
        return false;
    m_filter.close();
    const QEvent::Type type = pEvent->type();
    if (type == EVENT_PAGE_UP || type == EVENT_PAGE_DOWN) {
        fillList(); // the list has turned its page already
        return true;
    }
    const ZELListEvent* pPlace = listEvent(pEvent);
    if (pPlace == nullptr)
        return false;
    if (type == EVENT_LIST_ITEM_CHECKED || type == EVENT_LIST_ITEM_UNCHECKED ||
        type == EVENT_LIST_ITEM_CLICK)
        select(pPlace->m_nRow);
    else if (type == EVENT_LIST_HEADER_CHECKED || type == EVENT_LIST_HEADER_UNCHECKED)
        selectAll(type == EVENT_LIST_HEADER_CHECKED);
    else if (type == EVENT_HEADER_UP || type == EVENT_HEADER_DOWN)
        sort(pPlace->m_nColumn);
    return true;
}

const RecordQuery& ResultsPage::query() const
{
    return m_pFrame->settings().results;
}

void ResultsPage::setQuery(const RecordQuery& query)
{
    Settings settings = m_pFrame->settings();
    settings.results = query;
    m_pFrame->setSettings(settings);
    m_list.rewind();
    fillList();
}

// The box has turned round by itself, after a touch on another cell it follows here.
void ResultsPage::select(int nRow)
{
    const auto nShown = static_cast<std::size_t>(nRow);
    if (nShown >= m_shown.size())
        return;
    const long long nID = m_shown[nShown].nID;
    if (m_selected.erase(nID) == 0)
        m_selected.insert(nID);
    showSelection();
}

void ResultsPage::selectAll(bool bSelected)
{
    m_selected.clear();
    if (bSelected) {
        for (const Record& record : m_pFrame->records().records(query()))
            m_selected.insert(record.nID);
    }
    showSelection();
}

std::vector<Record> ResultsPage::selectedRecords() const
{
    std::vector<Record> selected;
    for (const Record& record : m_pFrame->records().records(query())) {
        if (m_selected.count(record.nID) > 0)
            selected.push_back(record);
    }
    return selected;
}

// The button knows whether it was chosen before, and so whether its direction has changed.
void ResultsPage::sort(int nColumn)
{
    RecordQuery next = query();
    for (const auto& head : heads) {
        auto* pHead = m_list.headCell<ZELHeaderButton>(head.nColumn, "ZELHeaderButton");
        if (pHead == nullptr || head.nColumn != nColumn)
            continue;
        next.order = head.order;
        next.bAscending = pHead->m_bDirection;
    }
    setQuery(next);
}

// The first entry of the drop-down stands for all samples.
void ResultsPage::filter()
{
    if (auto* pField = component<ZELImageEdit>("filter", "ZELImageEdit"))
        pField->clearFocus();
    RecordQuery next = query();
    next.samples.clear();
    if (m_filter.choice() > 0)
        next.samples.push_back(m_filter.chosenText());
    m_selected.clear();
    setQuery(next);
}

void ResultsPage::changeUnit()
{
    analyser().setFahrenheit(!analyser().isFahrenheit());
    fillList();
}

// What is selected, or else what is to be seen: all that is stored would be metres of paper.
std::vector<Record> ResultsPage::recordsToPrint() const
{
    return m_selected.empty() ? m_shown : selectedRecords();
}

void ResultsPage::print()
{
    const Settings& settings = m_pFrame->settings();
    const ReportHead head{m_pFrame->now(), settings.strDateOrder, settings.strOperator};
    PrintDialog(m_pFrame, reportText(head, analyser().channels(), recordsToPrint())).exec();
}

// Deletes what is selected, or all that the list shows when nothing is.
void ResultsPage::askToClear()
{
    const bool bAll = m_selected.empty() && query().samples.empty();
    const std::vector<Record> records =
        m_selected.empty() ? m_pFrame->records().records(query()) : selectedRecords();
    const std::string strTitle =
        bAll ? "@clear.title"
             : localText("@clear.some") + " (" + std::to_string(records.size()) + ")";
    QuestionDialog dialog(m_pFrame, strTitle, "@clear.note");
    if (dialog.exec() != QuestionDialog::yes)
        return;
    if (!tryToChange("@clear.failed", [&] { return m_pFrame->records().remove(records); }))
        return;
    m_selected.clear();
    fillFilter();
    setQuery(query());
}

// A sample without a measurement left is none to show.
void ResultsPage::fillFilter()
{
    std::vector<std::string> names = {localText("@all_samples")};
    RecordQuery next = query();
    next.samples.clear();
    for (const SampleSummary& summary : m_pFrame->records().samples()) {
        names.push_back(summary.strName);
        for (const std::string& strName : query().samples) {
            if (strName == summary.strName)
                next.samples.push_back(strName);
        }
    }
    Settings settings = m_pFrame->settings();
    settings.results = next;
    m_pFrame->setSettings(settings);
    m_filter.setEntries(std::move(names));
}

// By what has been read, since that may be less than was counted: each question opens the database
// anew, and one that fails has an empty answer.
int ResultsPage::shownRows() const
{
    return static_cast<int>(m_shown.size());
}

void ResultsPage::fillList()
{
    RecordStore& store = m_pFrame->records();
    m_nCount = store.count(query().samples);
    m_list.setEntries(m_nCount);
    m_shown = store.records(query(), m_list.firstEntry(), m_list.rows());
    for (int nRow = 0; nRow < shownRows(); ++nRow)
        fillRow(nRow);
    m_list.showRows(shownRows());
    showHeader();
    showSelection();
    showMeans();
}

void ResultsPage::fillRow(int nRow)
{
    const Record& record = m_shown[static_cast<std::size_t>(nRow)];
    m_list.setText(nRow, timeOfRecord,
                   shortTimeText(record.strTime, m_pFrame->settings().strDateOrder));
    m_list.setText(nRow, sample, record.strSample);
    const std::vector<Analyser::Channel>& channels = analyser().channels();
    for (std::size_t n = 0; n < channels.size(); ++n)
        m_list.setText(nRow, firstValue + static_cast<int>(n),
                       Analyser::text(channels[n], record.values[n]));
}

// The list doesn't care for the heads: which of them is chosen is told here.
void ResultsPage::showHeader()
{
    for (const auto& head : heads) {
        auto* pHead = m_list.headCell<ZELHeaderButton>(head.nColumn, "ZELHeaderButton");
        if (pHead == nullptr)
            continue;
        const bool bChosen = head.order == query().order;
        pHead->setCheck(bChosen, bChosen && query().bAscending);
        if (head.order == Order::temperature)
            pHead->setTitle(analyser().channels()[Analyser::temperatureAt].strUnit);
        pHead->update();
    }
    const std::vector<std::string>& samples = query().samples;
    std::string strFilter = samples.empty() ? localText("@all_samples") : "";
    for (const std::string& strName : samples)
        strFilter += (strFilter.empty() ? "" : ", ") + strName;
    if (auto* pField = component<ZELImageEdit>("filter", "ZELImageEdit")) {
        pField->setText(strFilter);
        pField->update();
    }
}

void ResultsPage::showSelection()
{
    for (int nRow = 0; nRow < shownRows(); ++nRow)
        m_list.setChecked(nRow, pick,
                          m_selected.count(m_shown[static_cast<std::size_t>(nRow)].nID) > 0);
    const auto nSelected = static_cast<int>(m_selected.size());
    if (auto* pAll = m_list.headCell<ZELCheckButton>(pick, "ZELCheckButton")) {
        pAll->m_bChecked = nSelected > 0 && nSelected == m_nCount;
        pAll->update();
    }
    setText("count",
            (nSelected > 0 ? std::to_string(nSelected) + " / " : "") + std::to_string(m_nCount));
    setDimmed("print", m_nCount == 0);
    setDimmed("clear", m_nCount == 0);
}

void ResultsPage::showMeans()
{
    const std::array<double, 4> means = m_pFrame->records().means(query().samples);
    const std::vector<Analyser::Channel>& channels = analyser().channels();
    for (std::size_t n = 0; n < channels.size(); ++n) {
        const std::string strMean = m_nCount == 0 ? "–" : Analyser::text(channels[n], means[n]);
        setText("mean." + channels[n].strName, strMean + " " + channels[n].strUnit);
    }
}
