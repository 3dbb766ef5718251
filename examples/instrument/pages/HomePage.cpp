#include "pages/HomePage.h"

#include "InstrumentFrame.h"

bool HomePage::event(QEvent* pEvent)
{
    const std::string strName = touchedName(pEvent);
    if (strName == "measure" || strName == "results" || strName == "settings")
        m_pFrame->moveTo(strName, true, true);
    else if (strName == "language")
        m_pFrame->moveTo("settings", true, true);
    else
        return InstrumentPage::event(pEvent);
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
