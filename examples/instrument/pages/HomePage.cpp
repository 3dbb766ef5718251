#include "pages/HomePage.h"

#include "InstrumentFrame.h"

#include <algorithm>
#include <iterator>

bool HomePage::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    const char* ways[] = {"measure", "results", "settings", "language", "about"};
    if (std::find(std::begin(ways), std::end(ways), strID) == std::end(ways))
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
