#include "pages/HomePage.h"

#include "InstrumentFrame.h"

bool HomePage::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    if (strID != "measure" && strID != "results" && strID != "settings" && strID != "language")
        return InstrumentPage::event(pEvent);
    m_pFrame->moveTo(strID, true, true); // each button has the name of its page
    return true;
}

void HomePage::showValues()
{
    InstrumentPage::showValues();
    for (const Analyser::Channel& channel : analyser().channels()) {
        setText(channel.strName + ".value", Analyser::text(channel, channel.readings.back()));
        setText(channel.strName + ".unit", channel.strUnit);
    }
}
