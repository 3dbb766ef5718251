#include "pages/InstrumentPage.h"

#include "InstrumentFrame.h"

#include "components/pictures/ZELImageBox.h"
#include "components/text/ZELLabel.h"
#include "events/EventNumbers.h"
#include "events/ZELEvent.h"

#include <QDateTime>

using PANFx::Components::ZELImageBox;
using PANFx::Components::ZELLabel;

InstrumentPage::InstrumentPage(const std::string& strID, InstrumentFrame* pFrame)
    : ZELChildWindow(strID, pFrame, "")
    , m_pFrame(pFrame)
{
}

bool InstrumentPage::event(QEvent* pEvent)
{
    if (pEvent->type() != EVENT_READING)
        return ZELChildWindow::event(pEvent);
    showValues();
    return true;
}

void InstrumentPage::showValues()
{
    const QDateTime now = QDateTime::currentDateTime();
    setText("clock", now.toString(QStringLiteral("yyyy-MM-dd  HH:mm")).toStdString());
}

const Analyser& InstrumentPage::analyser() const
{
    return m_pFrame->analyser();
}

std::string InstrumentPage::touchedName(QEvent* pEvent)
{
    if (pEvent->type() != EVENT_MOUSE_UP)
        return "";
    const std::string& strID = ZELEvent::from(pEvent)->m_strID;
    return strID.substr(0, strID.find('.'));
}

void InstrumentPage::setText(const std::string& strLabel, const std::string& strText)
{
    if (ZELLabel* pLabel = component<ZELLabel>(strLabel, "ZELLabel")) {
        pLabel->setTitle(strText);
        pLabel->update();
    }
}

void InstrumentPage::setPicture(const std::string& strImageBox, const std::string& strFile)
{
    if (ZELImageBox* pBox = component<ZELImageBox>(strImageBox, "ZELImageBox")) {
        pBox->setImage(strFile);
        pBox->update();
    }
}
