#include "pages/SamplePage.h"

#include "ApplicationEvents.h"
#include "InstrumentFrame.h"

#include "components/lists/ZELComboList.h"
#include "components/text/ZELLineEdit.h"
#include "events/ZELStringEvent.h"
#include "resource/SoundFactory.h"

#include <QKeyEvent>

using PANFx::Components::ZELComboList;
using PANFx::Components::ZELLineEdit;
using PANFx::Resource::SoundFactory;

namespace {

const int recentNames = 6; // as many as the drop-down has rows

bool isEnter(QEvent* pEvent)
{
    if (pEvent->type() != QEvent::KeyPress)
        return false;
    const int nKey = static_cast<QKeyEvent*>(pEvent)->key();
    return nKey == Qt::Key_Return || nKey == Qt::Key_Enter;
}

} // namespace

SamplePage::SamplePage(const std::string& strID, InstrumentFrame* pFrame)
    : KeyboardPage(strID, pFrame, nameLength)
    , m_pName(component<ZELLineEdit>("name", "ZELLineEdit"))
    , m_pCode(component<ZELLineEdit>("barcode", "ZELLineEdit"))
    , m_recent(component<ZELComboList>("recent_names", "ZELComboList"))
    , m_reader(*this)
{
    if (auto* pRecent = component<ZELComboList>("recent_names", "ZELComboList"))
        pRecent->setLineEdit(m_pName);
    if (m_pName != nullptr)
        m_pName->setMaxLength(nameLength);
    if (m_pCode != nullptr)
        m_pCode->setBarcodeMode(true);
}

void SamplePage::activating()
{
    const Settings& settings = m_pFrame->settings();
    if (m_pName != nullptr)
        m_pName->setText(QString::fromStdString(settings.strSampleName));
    showCode(QString::fromStdString(settings.strSampleCode));
    m_recent.setEntries(m_pFrame->records().recentSamples(recentNames));
    KeyboardPage::activating();
}

// A scanner may be used at once; the keys on the panel type the name all the same.
void SamplePage::activated()
{
    if (m_pCode != nullptr)
        m_pCode->setFocus();
    m_reader.start();
}

// A label that is read later is meant for whoever is on screen then.
void SamplePage::hideEvent(QHideEvent* pEvent)
{
    m_reader.stop();
    KeyboardPage::hideEvent(pEvent);
}

bool SamplePage::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    if (m_recent.choose(pEvent)) {
        // the list has filled the field in, but byte by byte: other letters than Latin ones are
        // right only from here
        showTypedText(QString::fromStdString(m_recent.chosenText()));
        return true;
    }
    if (strID == "recent") {
        m_recent.turn();
        return true;
    }
    if (!strID.empty())
        m_recent.close();
    if (strID == "back") {
        m_pFrame->moveBack(true);
    } else if (strID == "enter") {
        keep();
        m_pFrame->moveBack(true);
    } else if (strID == "go_notes") {
        keep(); // the page comes back with what is kept
        m_pFrame->moveTo("notes", true, true);
    } else if (isEnter(pEvent)) {
        takeCode();
    } else if (pEvent->type() == EVENT_LABEL_READ) {
        takeLabel(static_cast<ZELStringEvent&>(*pEvent)); // its number tells the class
    } else {
        return KeyboardPage::event(pEvent);
    }
    return true;
}

// A touch on the ground of the page.
void SamplePage::mousePressEvent(QMouseEvent* pEvent)
{
    m_recent.close();
    KeyboardPage::mousePressEvent(pEvent);
}

QString SamplePage::typedText()
{
    return m_pName != nullptr ? m_pName->text() : QString();
}

void SamplePage::showTypedText(const QString& strText)
{
    if (m_pName != nullptr)
        m_pName->setText(strText);
}

// A scanner ends with the enter key: from now on the field shows what came before it.
void SamplePage::takeCode()
{
    if (m_pCode == nullptr || !m_pCode->hasFocus())
        return;
    if (m_pCode->text().isEmpty()) {
        // a lone enter has emptied the field, as any first key does: the code before stays
        m_pCode->setText(m_strCode);
    } else {
        m_strCode = m_pCode->text();
        SoundFactory::getInstance()->playCompleteSound();
    }
    m_pCode->setShowMode(true);
    m_pCode->update();
}

void SamplePage::showCode(const QString& strCode)
{
    m_strCode = strCode;
    if (m_pCode == nullptr)
        return;
    m_pCode->setText(strCode);
    m_pCode->setShowMode(true);
    m_pCode->update();
}

// A label without a name leaves the one that has been typed.
void SamplePage::takeLabel(ZELStringEvent& label)
{
    showCode(QString::fromStdString(label.getString(1)));
    const QString strName = QString::fromStdString(label.getString(2)).left(nameLength);
    if (!strName.isEmpty())
        showTypedText(strName);
    SoundFactory::getInstance()->playCompleteSound();
}

void SamplePage::keep()
{
    Settings settings = m_pFrame->settings();
    if (m_pName != nullptr)
        settings.strSampleName = m_pName->text().trimmed().toStdString();
    if (m_pCode != nullptr)
        settings.strSampleCode = m_pCode->text().toStdString();
    m_pFrame->setSettings(settings);
}
