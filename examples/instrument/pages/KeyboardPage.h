#pragma once

#include "pages/InstrumentPage.h"

#include "resource/QwertyPadFactory.h"
#include "resource/ZELLayout.h"

#include <QString>

#include <functional>

namespace PANFx::Components {
class ZELKeyButton;
}

/// A page with a keyboard of Latin and Korean letters, which it takes from a layout of its own.
/// What the keys type goes to where the derived class says.
class KeyboardPage : public InstrumentPage
{
public:
    /// The keyboard takes no more than so many characters.
    KeyboardPage(const std::string& strID, InstrumentFrame* pFrame, int nMaxLength);

    void activating() override;

protected:
    bool event(QEvent* pEvent) override;

    /// The text in front of the place where the next character goes.
    virtual QString typedText() = 0;

    /// Puts another text in the place of that one.
    virtual void showTypedText(const QString& strText) = 0;

private:
    /// What the key buttons call the languages.
    enum Language : short { latin = 1, korean = 2 };

    void addKeys();
    bool touch(const std::string& strID);
    void hold(const std::string& strID, bool bLong);
    void type(const std::string& strKey);
    void erase();
    void setShift(bool bShift);
    void setLanguage(Language language);
    void showFaces();
    void forEachKey(const std::function<void(PANFx::Components::ZELKeyButton&)>& action);

    PANFx::Resource::ZELLayout m_keys;
    PANFx::Resource::QwertyPadFactory m_composer;
    int m_nMaxLength;
    Language m_language = latin;
    bool m_bShift = false;
    bool m_bErased = false; ///< the key that is held has erased already
};
