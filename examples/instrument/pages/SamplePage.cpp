#include "pages/SamplePage.h"

#include "InstrumentFrame.h"

#include "components/text/ZELLineEdit.h"
#include "resource/SoundFactory.h"

#include <QKeyEvent>

using PANFx::Components::ZELLineEdit;
using PANFx::Resource::SoundFactory;

namespace {

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
{
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
    if (m_pCode != nullptr) {
        m_strCode = QString::fromStdString(settings.strSampleCode);
        m_pCode->setText(m_strCode);
        m_pCode->setShowMode(true);
    }
    KeyboardPage::activating();
}

// A scanner may be used at once; the keys on the panel type the name all the same.
void SamplePage::activated()
{
    if (m_pCode != nullptr)
        m_pCode->setFocus();
}

bool SamplePage::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    if (strID == "back")
        m_pFrame->moveBack(true);
    else if (strID == "enter")
        finish();
    else if (isEnter(pEvent))
        takeCode();
    else
        return KeyboardPage::event(pEvent);
    return true;
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

void SamplePage::finish()
{
    Settings settings = m_pFrame->settings();
    if (m_pName != nullptr)
        settings.strSampleName = m_pName->text().trimmed().toStdString();
    if (m_pCode != nullptr)
        settings.strSampleCode = m_pCode->text().toStdString();
    m_pFrame->setSettings(settings);
    m_pFrame->moveBack(true);
}
