#include "pages/PadPage.h"

#include "components/editors/ZELImageEdit.h"
#include "components/pads/ZELNumPad.h"
#include "events/EventNumbers.h"

using PANFx::Components::ZELComponent;
using PANFx::Components::ZELImageEdit;
using PANFx::Components::ZELNumPad;

namespace {

/// The component as what all fields for values are, or null.
ZELImageEdit* asField(ZELComponent* pComponent)
{
    for (const char* pszType : {"ZELImageEdit", "ZELImageDateEdit", "ZELImageTimeEdit",
                                "ZELImageIPEdit", "ZELImageNumberEdit"}) {
        if (auto* pEdit = componentAs<ZELImageEdit>(pComponent, pszType))
            return pEdit;
    }
    return nullptr;
}

} // namespace

PadPage::PadPage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
    , m_pPad(component<ZELNumPad>("pad", "ZELNumPad"))
{
    if (m_pPad != nullptr)
        m_pPad->setPopupMode(true);
}

void PadPage::activating()
{
    if (m_pPad != nullptr)
        m_pPad->hideWindow();
    for (const auto& [strField, field] : m_fields)
        fillField(strField);
    InstrumentPage::activating();
}

void PadPage::addField(const std::string& strField, Keys keys, const std::string& strRange)
{
    addField(strField, getSubComponent(strField), keys, strRange);
}

void PadPage::addField(const std::string& strField, ZELComponent* pField, Keys keys,
                       const std::string& strRange)
{
    if (ZELImageEdit* pEdit = asField(pField))
        m_fields[strField] = {pEdit, keys, strRange};
}

ZELImageEdit* PadPage::field(const std::string& strField)
{
    const auto found = m_fields.find(strField);
    return found != m_fields.end() ? found->second.pEdit : nullptr;
}

bool PadPage::event(QEvent* pEvent)
{
    const std::string strID = senderID(pEvent);
    const bool bField = m_fields.count(strID) != 0;
    const QEvent::Type type = pEvent->type();
    if (bField && (type == EVENT_FOCUS_IN || type == EVENT_MOUSE_DOWN))
        openPad(strID);
    else if (bField && type == EVENT_FOCUS_OUT)
        leaveField(strID);
    else if (strID == "pad" && type == EVENT_MOUSE_UP)
        showValues(); // a key has been touched
    else if (type == EVENT_NUMPAD_CLOSE && m_pPad != nullptr)
        m_pPad->setEdit(nullptr);
    else
        return InstrumentPage::event(pEvent);
    return true;
}

void PadPage::openPad(const std::string& strField)
{
    const auto found = m_fields.find(strField);
    if (m_pPad == nullptr || found == m_fields.end())
        return;
    const Field& field = found->second;
    if (m_pPad->getEdit() == field.pEdit && m_pPad->isVisible())
        return;
    m_pPad->setEdit(field.pEdit);
    m_pPad->setType(field.keys);
    showValues();
    m_pPad->showWindow();
}

void PadPage::showValues()
{
    InstrumentPage::showValues();
    for (const auto& [strField, field] : m_fields) {
        if (m_pPad == nullptr || m_pPad->getEdit() != field.pEdit)
            continue;
        showText(m_pPad->getSubComponent("caption"), localText("@" + strField));
        showText(m_pPad->getSubComponent("range"), field.strRange);
    }
}

void PadPage::leaveField(const std::string& strField)
{
    takeField(strField);
    fillField(strField);
    showValues();
}
