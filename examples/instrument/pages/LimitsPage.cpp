#include "pages/LimitsPage.h"

#include "Analyser.h"
#include "InstrumentFrame.h"

#include "components/editors/ZELImageNumberEdit.h"
#include "components/lists/ZELList.h"
#include "components/text/ZELLabel.h"
#include "events/EventNumbers.h"
#include "events/ZELListEvent.h"

#include <QString>

using PANFx::Components::ZELImageEdit;
using PANFx::Components::ZELImageNumberEdit;
using PANFx::Components::ZELLabel;
using PANFx::Components::ZELList;

namespace {

/// Columns of the list, as they stand in its layout. Its rows are the channels.
enum Column { name, value, unit };

} // namespace

LimitsPage::LimitsPage(const std::string& strID, InstrumentFrame* pFrame)
    : PadPage(strID, pFrame)
{
}

// The unit of the temperature may have changed since the page was here.
void LimitsPage::activating()
{
    auto* pList = component<ZELList>("limits", "ZELList");
    const std::vector<Analyser::Channel>& channels = analyser().channels();
    for (std::size_t n = 0; pList != nullptr && n < channels.size(); ++n) {
        const Analyser::Channel& channel = channels[n];
        const auto nRow = static_cast<int>(n);
        const std::string strLow = Analyser::wholeText(channel, channel.dLow);
        const std::string strHigh = Analyser::wholeText(channel, channel.dHigh);
        auto* pNumber = componentAs<ZELImageNumberEdit>(pList->getItemComponent(nRow, value),
                                                        "ZELImageNumberEdit");
        if (pNumber == nullptr)
            continue;
        pNumber->setRange(std::stoi(strLow), std::stoi(strHigh));
        pNumber->setDecimalplace(channel.nPlaces);
        addField(channel.strName, pNumber, channel.nPlaces > 0 ? withPoint : digits,
                 strLow + " – " + strHigh);
        showText(pList->getItemComponent(nRow, unit), channel.strUnit);
    }
    PadPage::activating();
}

// A field in a list reports to its row, and the list tells the page which row that is.
bool LimitsPage::event(QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    const ZELListEvent* pPlace = listEvent(pEvent);
    const bool bFocus = type == EVENT_LIST_ITEM_FOCUS_IN || type == EVENT_LIST_ITEM_FOCUS_OUT;
    const std::vector<Analyser::Channel>& channels = analyser().channels();
    const std::size_t nRow =
        bFocus && pPlace != nullptr ? static_cast<std::size_t>(pPlace->m_nRow) : channels.size();
    if (nRow < channels.size()) {
        const std::string& strField = channels[nRow].strName;
        type == EVENT_LIST_ITEM_FOCUS_IN ? openPad(strField) : leaveField(strField);
    } else if (touchedID(pEvent) == "back") {
        m_pFrame->moveBack(true);
    } else {
        return PadPage::event(pEvent);
    }
    return true;
}

void LimitsPage::showValues()
{
    PadPage::showValues();
    for (const Analyser::Channel& channel : analyser().channels()) {
        const std::string strLabel = "now." + channel.strName;
        if (auto* pReading = component<ZELLabel>(strLabel, "ZELLabel"))
            pReading->setFontStyle(channel.isAboveLimit() ? 1 : 0);
        setText(strLabel, Analyser::text(channel, channel.readings.back()) + " " + channel.strUnit);
    }
}

std::size_t LimitsPage::channelOf(const std::string& strField)
{
    const std::vector<Analyser::Channel>& channels = analyser().channels();
    std::size_t n = 0;
    while (n + 1 < channels.size() && channels[n].strName != strField)
        ++n;
    return n;
}

void LimitsPage::fillField(const std::string& strField)
{
    const Analyser::Channel& channel = analyser().channels()[channelOf(strField)];
    if (ZELImageEdit* pField = field(strField))
        pField->setText(Analyser::text(channel, channel.dLimit));
}

void LimitsPage::takeField(const std::string& strField)
{
    ZELImageEdit* pField = field(strField);
    bool bNumber = false;
    const double dTyped =
        pField != nullptr ? QString::fromStdString(pField->text()).toDouble(&bNumber) : 0;
    const std::size_t nChannel = channelOf(strField);
    const Analyser::Channel& channel = analyser().channels()[nChannel];
    // what only looks the same must not change the limit by a rounding
    if (bNumber && pField->text() != Analyser::text(channel, channel.dLimit))
        analyser().setLimit(nChannel, (dTyped - channel.dOffset) / channel.dFactor);
}
