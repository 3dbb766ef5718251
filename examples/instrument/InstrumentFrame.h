#pragma once

#include "Analyser.h"
#include "RecordStore.h"
#include "Settings.h"

#include "windows/ZELMainFrame.h"

#include <QDateTime>

class ConsoleSound;

/// The one top-level window: it makes the pages, reads the analyser, sounds the alarm and changes
/// the language.
class InstrumentFrame : public PANFx::Windows::ZELMainFrame
{
public:
    InstrumentFrame();

    PANFx::Windows::ZELChildWindow* createChildWindow(std::string strID) override;

    Analyser& analyser() { return m_analyser; }
    RecordStore& records() { return m_records; }
    const Settings& settings() const { return m_settings; }
    void setSettings(const Settings& settings);

    /// Date and time by the instrument's clock, which the user can set.
    QDateTime now() const;

    /// Switches to another language and goes back one page, to the first one where there is none
    /// to go back to. Meant to be called by the page on screen from its own event(): that page is
    /// deleted once it has returned from there.
    void changeLanguage(const std::string& strLocale);

    /// Whether the next start comes up in the language that was chosen last; true at first.
    void setRemembersLanguage(bool bRemembers) { m_bRemembersLanguage = bRemembers; }

protected:
    bool event(QEvent* pEvent) override;

private:
    void rememberLanguage(const std::string& strLocale);
    void watchLimits();

    Analyser m_analyser;
    RecordStore m_records;
    Settings m_settings;
    ConsoleSound* m_pSound; ///< belongs to the sound factory
    bool m_bRemembersLanguage = true;
    bool m_bAboveLimit = false; ///< a channel was above its limit at the last reading
};
