#pragma once

#include "pages/InstrumentPage.h"

#include "resource/QwertyPadFactory.h"

#include <QString>

#include <functional>

namespace PANFx::Components {
class ZELKeyButton;
class ZELLineEdit;
} // namespace PANFx::Components

/// The name of the next sample, typed on a keyboard with Latin and Korean letters, and the code
/// of its label, read by a scanner that acts as a keyboard.
class SamplePage : public InstrumentPage
{
public:
    SamplePage(const std::string& strID, InstrumentFrame* pFrame);

    void activating() override;
    void activated() override;

    static constexpr int nameLength = 12; ///< characters

protected:
    bool event(QEvent* pEvent) override;

private:
    /// What the key buttons call the languages.
    enum Language : short { latin = 1, korean = 2 };

    bool touch(const std::string& strID);
    void hold(const std::string& strID, bool bLong);
    void type(const std::string& strKey);
    void erase();
    void setShift(bool bShift);
    void setLanguage(Language language);
    void showName(const QString& strText);
    void showFaces();
    void takeCode();
    void finish();
    void forEachKey(const std::function<void(PANFx::Components::ZELKeyButton&)>& action);

    PANFx::Resource::QwertyPadFactory m_composer;
    PANFx::Components::ZELLineEdit* m_pName;
    PANFx::Components::ZELLineEdit* m_pCode;
    Language m_language = latin;
    bool m_bShift = false;
    QString m_strCode;      ///< the code that the field shows
    bool m_bErased = false; ///< the key that is held has erased already
};
