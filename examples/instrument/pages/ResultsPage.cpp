#include "pages/ResultsPage.h"

#include "InstrumentFrame.h"
#include "dialogs/QuestionDialog.h"

#include "components/text/ZELLabel.h"

using PANFx::Components::ZELLabel;

ResultsPage::ResultsPage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
{
    for (std::size_t nRow = 0; nRow < Analyser::recordLimit; ++nRow) {
        const std::string strName = "row" + std::to_string(nRow) + ".sample";
        if (auto* pName = component<ZELLabel>(strName, "ZELLabel"))
            pName->setElidedText();
    }
}

bool ResultsPage::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    if (strID == "back")
        m_pFrame->moveBack(true);
    else if (strID == "head.time")
        turnOrder();
    else if (strID == "head.temp")
        changeUnit();
    else if (strID == "clear")
        askToClear();
    else
        return InstrumentPage::event(pEvent);
    return true;
}

void ResultsPage::turnOrder()
{
    Settings settings = m_pFrame->settings();
    settings.bOldestFirst = !settings.bOldestFirst;
    m_pFrame->setSettings(settings);
    showValues();
}

void ResultsPage::changeUnit()
{
    analyser().setFahrenheit(!analyser().isFahrenheit());
    showValues();
}

void ResultsPage::askToClear()
{
    QuestionDialog dialog(m_pFrame, "@clear.title", "@clear.note");
    if (dialog.exec() != QuestionDialog::yes)
        return;
    analyser().clearRecords();
    showValues();
}

void ResultsPage::showValues()
{
    InstrumentPage::showValues();
    const bool bOldestFirst = m_pFrame->settings().bOldestFirst;
    setText("head.time", localText("@time") + (bOldestFirst ? " ▲" : " ▼"));
    setText("head.temp", analyser().channels()[Analyser::temperatureAt].strUnit);
    for (std::size_t nRow = 0; nRow < Analyser::recordLimit; ++nRow)
        showRow(nRow);
    showMeans();
    setDimmed("print", true); // until there is a printer
    setDimmed("clear", analyser().records().empty());
}

void ResultsPage::showRow(std::size_t nRow)
{
    const std::vector<Analyser::Record>& records = analyser().records();
    const std::string strRow = "row" + std::to_string(nRow) + ".";
    const bool bFilled = nRow < records.size();
    Analyser::Record record = {};
    if (bFilled)
        record = records[m_pFrame->settings().bOldestFirst ? records.size() - 1 - nRow : nRow];
    setText(strRow + "time", record.strTime);
    setText(strRow + "sample", record.strSample);
    const std::vector<Analyser::Channel>& channels = analyser().channels();
    for (std::size_t n = 0; n < channels.size(); ++n)
        setText(strRow + channels[n].strName,
                bFilled ? Analyser::text(channels[n], record.values[n]) : "");
}

void ResultsPage::showMeans()
{
    const std::vector<Analyser::Record>& records = analyser().records();
    setText("count", std::to_string(records.size()));
    const std::vector<Analyser::Channel>& channels = analyser().channels();
    for (std::size_t n = 0; n < channels.size(); ++n) {
        double dSum = 0;
        for (const Analyser::Record& record : records)
            dSum += record.values[n];
        const std::string strMean =
            records.empty()
                ? "–"
                : Analyser::text(channels[n], dSum / static_cast<double>(records.size()));
        setText("mean." + channels[n].strName, strMean + " " + channels[n].strUnit);
    }
}
