#include "pages/ResultsPage.h"

#include "InstrumentFrame.h"

bool ResultsPage::event(QEvent* pEvent)
{
    if (touchedName(pEvent) != "back")
        return InstrumentPage::event(pEvent);
    m_pFrame->moveBack(true);
    return true;
}

void ResultsPage::showValues()
{
    InstrumentPage::showValues();
    const std::vector<Analyser::Record>& records = analyser().records();
    for (std::size_t nRow = 0; nRow < records.size(); ++nRow) {
        const std::string strRow = "row" + std::to_string(nRow) + ".";
        setText(strRow + "time", records[nRow].strTime);
        setText(strRow + "sample", records[nRow].strSample);
    }
    setText("count", std::to_string(records.size()));

    const std::vector<Analyser::Channel>& channels = analyser().channels();
    for (std::size_t n = 0; n < channels.size(); ++n) {
        double dSum = 0;
        for (std::size_t nRow = 0; nRow < records.size(); ++nRow) {
            const double dValue = records[nRow].values[n];
            dSum += dValue;
            setText("row" + std::to_string(nRow) + "." + channels[n].strName,
                    Analyser::text(channels[n], dValue));
        }
        const double dMean = dSum / static_cast<double>(records.size());
        setText("mean." + channels[n].strName,
                Analyser::text(channels[n], dMean) + " " + channels[n].strUnit);
    }
}
