#pragma once

#include "components/ZELComponent.h"
#include "windows/ZELChildWindow.h"

class Analyser;
class InstrumentFrame;

/// What the pages of this instrument share: the frame, the clock, and short ways to components.
class InstrumentPage : public PANFx::Windows::ZELChildWindow
{
public:
    InstrumentPage(const std::string& strID, InstrumentFrame* pFrame);

    /// Runs before the page is shown: it comes up with present values.
    void activating() override { showValues(); }

protected:
    bool event(QEvent* pEvent) override;

    /// Writes the present values into the labels; here the clock.
    virtual void showValues();

    const Analyser& analyser() const;

    /// The id of what was touched, up to its first dot, or "" for any other event. So a touch on
    /// "measure", "measure.icon" or "measure.title" is the same touch.
    static std::string touchedName(QEvent* pEvent);

    /// The component of that id, or null if there is none or it is of another type.
    template <class T>
    T* component(const std::string& strID, const char* pszType)
    {
        PANFx::Components::ZELComponent* pComponent = getSubComponent(strID);
        const bool bFits = pComponent != nullptr && pComponent->m_strType == pszType;
        return bFits ? static_cast<T*>(pComponent) : nullptr;
    }

    void setText(const std::string& strLabel, const std::string& strText);
    void setPicture(const std::string& strImageBox, const std::string& strFile);

    InstrumentFrame* m_pFrame;
};
