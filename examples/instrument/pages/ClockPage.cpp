#include "pages/ClockPage.h"

#include "Calendar.h"
#include "InstrumentFrame.h"

#include "components/buttons/ZELRadioGroup.h"
#include "components/editors/ZELImageDateEdit.h"
#include "components/editors/ZELImageTimeEdit.h"
#include "events/EventNumbers.h"
#include "resource/SoundFactory.h"

using PANFx::Components::ZELImageDateEdit;
using PANFx::Components::ZELImageTimeEdit;
using PANFx::Components::ZELRadioGroup;
using PANFx::Resource::SoundFactory;

namespace {

const char timeFormat[] = "HH:mm"; // what a time field takes and gives

} // namespace

ClockPage::ClockPage(const std::string& strID, InstrumentFrame* pFrame)
    : PadPage(strID, pFrame)
{
    addField("time", timeOfDay, "AM / PM");
}

void ClockPage::activating()
{
    m_date = m_pFrame->now().date();
    m_time = m_pFrame->now().time();
    m_bTyped = false;
    applyOrder();
    PadPage::activating();
}

bool ClockPage::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    if (strID == "back")
        m_pFrame->moveBack(true);
    else if (strID == "set")
        setClock();
    else if (strID.empty() && pEvent->type() == EVENT_MOUSE_UP)
        readOrder(); // the buttons of a group come without an id
    else
        return PadPage::event(pEvent);
    return true;
}

void ClockPage::readOrder()
{
    auto* pOrder = component<ZELRadioGroup>("date_order", "ZELRadioGroup");
    if (pOrder == nullptr || pOrder->getSelectedButton() == nullptr)
        return;
    Settings settings = m_pFrame->settings();
    settings.strDateOrder = pOrder->m_strSelected;
    m_pFrame->setSettings(settings);
    applyOrder();
    showValues();
}

void ClockPage::applyOrder()
{
    const std::string& strOrder = m_pFrame->settings().strDateOrder;
    if (auto* pOrder = component<ZELRadioGroup>("date_order", "ZELRadioGroup"))
        pOrder->setButtonSelect(strOrder.c_str());
    if (auto* pDate = component<ZELImageDateEdit>("date", "ZELImageDateEdit")) {
        pDate->setDateOrder(orderNumber(strOrder));
        pDate->update();
    }
    addField("date", digits, localText("@order." + strOrder));
}

void ClockPage::setClock()
{
    Settings settings = m_pFrame->settings();
    settings.nClockOffset = QDateTime::currentDateTime().msecsTo(QDateTime(m_date, m_time));
    m_pFrame->setSettings(settings);
    m_bTyped = false;
    SoundFactory::getInstance()->playCompleteSound();
    showValues();
}

void ClockPage::showValues()
{
    PadPage::showValues();
    setText("now.time", timeText());
    setText("now.date", dateText(m_pFrame->now().date()));
    setDimmed("set", !m_bTyped);
}

void ClockPage::fillField(const std::string& strField)
{
    auto* pDate = component<ZELImageDateEdit>("date", "ZELImageDateEdit");
    auto* pTime = component<ZELImageTimeEdit>("time", "ZELImageTimeEdit");
    if (strField == "date" && pDate != nullptr)
        pDate->setText(static_cast<unsigned int>(m_date.year()),
                       static_cast<unsigned int>(m_date.month()),
                       static_cast<unsigned int>(m_date.day()));
    else if (strField == "time" && pTime != nullptr)
        pTime->setText(m_time.toString(QLatin1String(timeFormat)).toStdString());
}

void ClockPage::takeField(const std::string& strField)
{
    auto* pDate = component<ZELImageDateEdit>("date", "ZELImageDateEdit");
    auto* pTime = component<ZELImageTimeEdit>("time", "ZELImageTimeEdit");
    if (strField == "date" && pDate != nullptr) {
        const QDate date = typedDate(pDate->text(), m_pFrame->settings().strDateOrder);
        m_bTyped = m_bTyped || (date.isValid() && date != m_date);
        m_date = date.isValid() ? date : m_date;
    } else if (strField == "time" && pTime != nullptr) {
        const QTime time =
            QTime::fromString(QString::fromStdString(pTime->text()), QLatin1String(timeFormat));
        m_bTyped = m_bTyped || (time.isValid() && time != m_time);
        m_time = time.isValid() ? time : m_time;
    }
}
