#include "pages/InstrumentPage.h"

#include "ApplicationEvents.h"
#include "Calendar.h"
#include "InstrumentFrame.h"
#include "dialogs/PictureDialog.h"
#include "dialogs/QuestionDialog.h"

#include "common/systemPath.h"
#include "components/buttons/ZELImageButton.h"
#include "print/Capture.h"
#include "resource/SoundFactory.h"

#include <QFile>

#include <algorithm>

using PANFx::Components::ZELComponent;
using PANFx::Components::ZELImageButton;
using PANFx::Resource::SoundFactory;

InstrumentPage::InstrumentPage(const std::string& strID, InstrumentFrame* pFrame)
    : ZELChildWindow(strID, pFrame, "")
    , m_pFrame(pFrame)
{
    mountCaptions();
}

// A button has one title. A label "measure.note" becomes a second one of the button "measure": it
// moves with it, and a touch on it is a touch on the button.
void InstrumentPage::mountCaptions()
{
    for (ZELComponent* pLabel : m_dqSubComponents) {
        const std::string strButton = pLabel->m_strID.substr(0, pLabel->m_strID.find('.'));
        const auto isButton = [&](const ZELComponent* pOther) {
            return pOther->m_strType == "ZELImageButton" && pOther->m_strID == strButton;
        };
        const auto found =
            std::find_if(m_dqSubComponents.begin(), m_dqSubComponents.end(), isButton);
        if (pLabel->m_strType != "ZELLabel" || found == m_dqSubComponents.end())
            continue;
        QWidget* pCaption = pLabel->getQWidget();
        QWidget* pButton = (*found)->getQWidget();
        const QPoint place = pCaption->pos() - pButton->pos();
        pCaption->setParent(pButton);
        pCaption->move(place);
        pCaption->setAttribute(Qt::WA_TransparentForMouseEvents);
        pCaption->show();
    }
}

bool InstrumentPage::event(QEvent* pEvent)
{
    if (touchedID(pEvent) == "camera") {
        savePicture();
        return true;
    }
    if (pEvent->type() != EVENT_READING)
        return ZELChildWindow::event(pEvent);
    showValues();
    return true;
}

// The page's own CaptureView() would do as well, but it doesn't tell the name that it takes.
void InstrumentPage::savePicture()
{
    const QString strStamp = m_pFrame->now().toString(QStringLiteral("yyMMdd_HHmmss"));
    const std::string strPath = "/tmp/screen_" + m_strID + "_" + strStamp.toStdString() + ".jpg";
    const QString strFile = QFile::decodeName(PANFx::Common::systemPath(strPath).c_str());
    QFile::remove(strFile); // failures are not reported: it is there afterwards, or it is not
    Capture::viewCapture(100, strPath.c_str());
    PictureDialog(m_pFrame, strPath, QFile::exists(strFile)).exec();
}

void InstrumentPage::showValues()
{
    setText("clock", dateText(m_pFrame->now().date()) + "  " + timeText());
}

std::string InstrumentPage::dateText(const QDate& date)
{
    return ::dateText(date, m_pFrame->settings().strDateOrder);
}

std::string InstrumentPage::timeText()
{
    return m_pFrame->now().toString(QStringLiteral("HH:mm")).toStdString();
}

Analyser& InstrumentPage::analyser()
{
    return m_pFrame->analyser();
}

void InstrumentPage::setText(const std::string& strLabel, const std::string& strText)
{
    showText(findComponent(m_dqSubComponents, strLabel), strText);
}

bool InstrumentPage::tryToChange(const std::string& strFailure, const std::function<bool()>& change)
{
    while (!change()) {
        SoundFactory::getInstance()->playWarningSound();
        if (QuestionDialog(m_pFrame, strFailure, "@try_again", "retry").exec() !=
            QuestionDialog::yes)
            return false;
    }
    return true;
}

void InstrumentPage::setDimmed(const std::string& strButton, bool bDimmed)
{
    if (auto* pButton = component<ZELImageButton>(strButton, "ZELImageButton"))
        pButton->setDimMode(bDimmed);
}
