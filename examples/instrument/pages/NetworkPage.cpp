#include "pages/NetworkPage.h"

#include "Analyser.h"
#include "InstrumentFrame.h"

#include "components/editors/ZELImageIPEdit.h"
#include "components/editors/ZELImageNumberEdit.h"
#include "components/text/ZELLabel.h"

#include <QString>

using PANFx::Components::ZELImageEdit;
using PANFx::Components::ZELImageIPEdit;
using PANFx::Components::ZELImageNumberEdit;
using PANFx::Components::ZELLabel;

namespace {

const std::size_t phAt = 0; // place of the pH value among the channels
const unsigned int operatorLength = 8;

} // namespace

NetworkPage::NetworkPage(const std::string& strID, InstrumentFrame* pFrame)
    : PadPage(strID, pFrame)
{
    addField("address", withPoint, "IPv4");
    addField("interval", digits, "1 – 240 min");
    addField("ph_limit", withPoint, "0.00 – 14.00");
    addField("operator", withWord, "OP-…");
    prepareNumber("interval", 1, 240, 0);
    prepareNumber("ph_limit", 0, 14, 2);
    if (auto* pOperator = component<ZELImageEdit>("operator", "ZELImageEdit"))
        pOperator->setMaxLength(operatorLength);
}

void NetworkPage::prepareNumber(const std::string& strField, int nMin, int nMax, int nPlaces)
{
    if (auto* pNumber = component<ZELImageNumberEdit>(strField, "ZELImageNumberEdit")) {
        pNumber->setRange(nMin, nMax);
        pNumber->setDecimalplace(nPlaces);
    }
}

bool NetworkPage::event(QEvent* pEvent)
{
    if (touchedID(pEvent) != "back")
        return PadPage::event(pEvent);
    m_pFrame->moveBack(true);
    return true;
}

std::string NetworkPage::valueOf(const std::string& strField)
{
    const Settings& settings = m_pFrame->settings();
    const Analyser::Channel& ph = analyser().channels()[phAt];
    if (strField == "address")
        return settings.strAddress;
    if (strField == "interval")
        return std::to_string(settings.nInterval);
    if (strField == "ph_limit")
        return Analyser::text(ph, ph.dLimit);
    return settings.strOperator;
}

void NetworkPage::showValues()
{
    PadPage::showValues();
    setText("now.address", valueOf("address"));
    setText("now.interval", valueOf("interval") + " min");
    setText("now.ph_limit", valueOf("ph_limit") + " pH");
    setText("now.operator", valueOf("operator"));
    auto* pAddress = component<ZELImageIPEdit>("address", "ZELImageIPEdit");
    auto* pNote = component<ZELLabel>("address.note", "ZELLabel");
    if (pAddress == nullptr || pNote == nullptr)
        return;
    pNote->setFontStyle(pAddress->isValidIP() ? 0 : 1);
    setText("address.note", pAddress->isValidIP() ? "IPv4" : localText("@incomplete"));
}

void NetworkPage::fillField(const std::string& strField)
{
    if (auto* pField = field(strField))
        pField->setText(valueOf(strField));
}

void NetworkPage::takeField(const std::string& strField)
{
    auto* pField = field(strField);
    const std::string strText = pField != nullptr ? pField->text() : "";
    if (strText.empty())
        return;
    const QString text = QString::fromStdString(strText);
    Settings settings = m_pFrame->settings();
    auto* pAddress = component<ZELImageIPEdit>("address", "ZELImageIPEdit");
    if (strField == "address" && pAddress != nullptr && pAddress->isValidIP())
        settings.strAddress = strText;
    else if (strField == "interval")
        settings.nInterval = text.toInt();
    else if (strField == "ph_limit")
        analyser().setLimit(phAt, text.toDouble());
    else if (strField == "operator")
        settings.strOperator = strText;
    m_pFrame->setSettings(settings);
}
