#pragma once

#include "ComponentAccess.h"

#include "windows/ZELChildWindow.h"

#include <QDate>

#include <functional>
#include <string>

class Analyser;
class InstrumentFrame;

/// What the pages of this instrument share: the frame, the clock, short ways to components, and a
/// picture of the screen for a page with a button "camera".
class InstrumentPage : public PANFx::Windows::ZELChildWindow
{
public:
    InstrumentPage(const std::string& strID, InstrumentFrame* pFrame);

    /// Runs before the page is shown: it comes up with present values.
    void activating() override { showValues(); }

protected:
    bool event(QEvent* pEvent) override;

    /// Writes the present values into the components; here the clock.
    virtual void showValues();

    Analyser& analyser();

    /// A date in the order that the user has chosen.
    std::string dateText(const QDate& date);

    /// The present time by the instrument's clock.
    std::string timeText();

    /// The component of that id, which may lie on a tab, or null if there is none or it is of
    /// another type.
    template <class T>
    T* component(const std::string& strID, const char* pszType)
    {
        return componentAs<T>(findComponent(m_dqSubComponents, strID), pszType);
    }

    void setText(const std::string& strLabel, const std::string& strText);

    /// Changes what is stored. As long as that fails, the user is warned and asked whether to try
    /// once more. False when the answer is no.
    /// \param strFailure key of the text that tells what has failed
    bool tryToChange(const std::string& strFailure, const std::function<bool()>& change);

    /// Switches a button off or on again: in dim mode it shows its third picture and style.
    void setDimmed(const std::string& strButton, bool bDimmed);

    InstrumentFrame* m_pFrame;

private:
    void mountCaptions();
    void savePicture();
};
