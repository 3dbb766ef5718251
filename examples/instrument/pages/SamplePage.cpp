#include "pages/SamplePage.h"

#include "InstrumentFrame.h"

#include "components/buttons/ZELImageButton.h"
#include "components/pads/ZELKeyButton.h"
#include "components/text/ZELLineEdit.h"
#include "events/EventNumbers.h"
#include "resource/SoundFactory.h"
#include "resource/ZELResourceMgr.h"

#include <QKeyEvent>

using PANFx::Components::ZELComponent;
using PANFx::Components::ZELImageButton;
using PANFx::Components::ZELKeyButton;
using PANFx::Components::ZELLineEdit;
using PANFx::Resource::SoundFactory;
using PANFx::Resource::ZELResourceMgr;

namespace {

const char backspaceKey[] = "key_backspace";

// The composer takes and gives texts of which each character is one byte of the UTF-8 form.

QString toComposer(const QString& strText)
{
    return QString::fromLatin1(strText.toUtf8());
}

QString fromComposer(const QString& strText)
{
    return QString::fromUtf8(strText.toLatin1());
}

bool isEnter(QEvent* pEvent)
{
    if (pEvent->type() != QEvent::KeyPress)
        return false;
    const int nKey = static_cast<QKeyEvent*>(pEvent)->key();
    return nKey == Qt::Key_Return || nKey == Qt::Key_Enter;
}

} // namespace

SamplePage::SamplePage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
    , m_pName(component<ZELLineEdit>("name", "ZELLineEdit"))
    , m_pCode(component<ZELLineEdit>("barcode", "ZELLineEdit"))
{
    if (m_pName != nullptr)
        m_pName->setMaxLength(nameLength);
    if (m_pCode != nullptr)
        m_pCode->setBarcodeMode(true);
    // a key returns to its rest position, which its layout does not tell it
    forEachKey([](ZELKeyButton& key) { key.setOrgPos(key.x(), key.y()); });
    m_composer.setMaxLength(nameLength);
    m_composer.changeLang("en");
    setLanguage(ZELResourceMgr::getInstance()->m_strLocale == "kr" ? korean : latin);
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
    setShift(false);
    InstrumentPage::activating();
}

// A scanner may be used at once; the keys on the panel type the name all the same.
void SamplePage::activated()
{
    if (m_pCode != nullptr)
        m_pCode->setFocus();
}

bool SamplePage::event(QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if (type == EVENT_LONG_PRESS || type == EVENT_LONG_PRESS_HELD)
        hold(senderID(pEvent), type == EVENT_LONG_PRESS_HELD);
    else if (isEnter(pEvent))
        takeCode();
    else if (!touch(touchedID(pEvent)))
        return InstrumentPage::event(pEvent);
    return true;
}

bool SamplePage::touch(const std::string& strID)
{
    if (strID == "back")
        m_pFrame->moveBack(true);
    else if (strID == "enter")
        finish();
    else if (strID == "shift")
        setShift(!m_bShift);
    else if (strID == "typing")
        setLanguage(m_language == latin ? korean : latin);
    else if (strID == backspaceKey)
        erase();
    else if (strID.rfind("key_", 0) == 0)
        type(strID);
    else
        return false;
    return true;
}

// The key composes with what stands in the field, which an attached keyboard may have changed.
void SamplePage::type(const std::string& strKey)
{
    auto* pKey = component<ZELKeyButton>(strKey, "ZELKeyButton");
    if (pKey == nullptr || m_pName == nullptr)
        return;
    if (m_pName->text() != fromComposer(m_composer.getCompleteText()))
        m_composer.setCompleteText(toComposer(m_pName->text()));
    showName(m_composer.getCompleteText(pKey->getKeyCode(m_language, m_bShift),
                                        pKey->getKeyIndex(m_bShift)));
    if (m_bShift)
        setShift(false);
}

void SamplePage::hold(const std::string& strID, bool bLong)
{
    if (strID != backspaceKey)
        return;
    if (bLong) {
        m_composer.clearText();
        showName(m_composer.getCompleteText());
    } else {
        type(backspaceKey);
    }
    m_bErased = true;
}

// The end of a long press is a touch too, and must not erase once more.
void SamplePage::erase()
{
    if (!m_bErased)
        type(backspaceKey);
    m_bErased = false;
}

void SamplePage::setShift(bool bShift)
{
    m_bShift = bShift;
    if (auto* pShift = component<ZELImageButton>("shift", "ZELImageButton")) {
        pShift->setImages("key_shift_down.png", bShift ? "key_shift_on.png" : "key_shift_up.png",
                          "key_shift_dim.png");
        pShift->update();
    }
    showFaces();
}

void SamplePage::setLanguage(Language language)
{
    // naming the present language once more would wipe the text
    if (language != m_language)
        m_composer.changeLang(language == korean ? "kr" : "en");
    m_language = language;
    if (auto* pKey = component<ZELImageButton>("typing", "ZELImageButton")) {
        pKey->setTitle(language == korean ? "가" : "A");
        pKey->update();
    }
    setShift(false);
}

// Keys that type no character have their face in their picture.
void SamplePage::showFaces()
{
    forEachKey([this](ZELKeyButton& key) {
        if (key.getKeyCode(latin, false) <= ' ')
            return;
        key.changeKeyTitle(m_language);
        key.setShiftMode(m_language, m_bShift);
    });
}

void SamplePage::forEachKey(const std::function<void(ZELKeyButton&)>& action)
{
    for (ZELComponent* pComponent : m_dqSubComponents) {
        if (auto* pKey = componentAs<ZELKeyButton>(pComponent, "ZELKeyButton"))
            action(*pKey);
    }
}

void SamplePage::showName(const QString& strText)
{
    if (m_pName != nullptr)
        m_pName->setText(fromComposer(strText));
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
