#include "pages/KeyboardPage.h"

#include "components/buttons/ZELImageButton.h"
#include "components/pads/ZELKeyButton.h"
#include "events/EventNumbers.h"
#include "resource/ZELResourceMgr.h"

using PANFx::Components::ZELComponent;
using PANFx::Components::ZELImageButton;
using PANFx::Components::ZELKeyButton;
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

} // namespace

KeyboardPage::KeyboardPage(const std::string& strID, InstrumentFrame* pFrame, int nMaxLength)
    : InstrumentPage(strID, pFrame)
    , m_nMaxLength(nMaxLength)
{
    addKeys();
    // a key returns to its rest position, which its layout does not tell it
    forEachKey([](ZELKeyButton& key) { key.setOrgPos(key.x(), key.y()); });
    m_composer.setMaxLength(nMaxLength);
    m_composer.changeLang("en");
    setLanguage(ZELResourceMgr::getInstance()->m_strLocale == "kr" ? korean : latin);
}

// The components of a second layout file, between the background and what the page has of its own.
void KeyboardPage::addKeys()
{
    const std::deque<ZELComponent*> own = m_dqSubComponents;
    ZELResourceMgr* pResources = ZELResourceMgr::getInstance();
    if (m_keys.loadLayout(pResources->getBasePath() + pResources->m_strLocale +
                          "/layout/keyboard.resource"))
        createSubComponent(m_keys.getFirstNodebyName("Components"));
    showSubComponent();
    for (ZELComponent* pComponent : own) {
        if (pComponent->m_strID != "background")
            pComponent->getQWidget()->raise();
    }
}

void KeyboardPage::activating()
{
    setShift(false);
    InstrumentPage::activating();
}

bool KeyboardPage::event(QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if (type == EVENT_LONG_PRESS || type == EVENT_LONG_PRESS_HELD)
        hold(senderID(pEvent), type == EVENT_LONG_PRESS_HELD);
    else if (!touch(touchedID(pEvent)))
        return InstrumentPage::event(pEvent);
    return true;
}

bool KeyboardPage::touch(const std::string& strID)
{
    if (strID == "shift")
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

// The key composes with what stands there, which an attached keyboard may have changed.
void KeyboardPage::type(const std::string& strKey)
{
    auto* pKey = component<ZELKeyButton>(strKey, "ZELKeyButton");
    const QString strTyped = typedText();
    if (pKey == nullptr || strTyped.size() > m_nMaxLength)
        return;
    if (strTyped != fromComposer(m_composer.getCompleteText()))
        m_composer.setCompleteText(toComposer(strTyped));
    showTypedText(fromComposer(m_composer.getCompleteText(pKey->getKeyCode(m_language, m_bShift),
                                                          pKey->getKeyIndex(m_bShift))));
    if (m_bShift)
        setShift(false);
}

void KeyboardPage::hold(const std::string& strID, bool bLong)
{
    if (strID != backspaceKey)
        return;
    if (bLong) {
        m_composer.clearText();
        showTypedText(QString());
    } else {
        type(backspaceKey);
    }
    m_bErased = true;
}

// The end of a long press is a touch too, and must not erase once more.
void KeyboardPage::erase()
{
    if (!m_bErased)
        type(backspaceKey);
    m_bErased = false;
}

void KeyboardPage::setShift(bool bShift)
{
    m_bShift = bShift;
    if (auto* pShift = component<ZELImageButton>("shift", "ZELImageButton")) {
        pShift->setImages("key_shift_down.png", bShift ? "key_shift_on.png" : "key_shift_up.png",
                          "key_shift_dim.png");
        pShift->update();
    }
    showFaces();
}

void KeyboardPage::setLanguage(Language language)
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
void KeyboardPage::showFaces()
{
    forEachKey([this](ZELKeyButton& key) {
        if (key.getKeyCode(latin, false) <= ' ')
            return;
        key.changeKeyTitle(m_language);
        key.setShiftMode(m_language, m_bShift);
    });
}

void KeyboardPage::forEachKey(const std::function<void(ZELKeyButton&)>& action)
{
    for (ZELComponent* pComponent : m_dqSubComponents) {
        if (auto* pKey = componentAs<ZELKeyButton>(pComponent, "ZELKeyButton"))
            action(*pKey);
    }
}
