#pragma once

#include "UpdateService.h"
#include "pages/InstrumentPage.h"

class ZELUpdateInfoEvent;
class ZELUpdateStatusEvent;

/// New software: how far its images have been loaded. Leaving the page stops the loading.
class UpdatePage : public InstrumentPage
{
public:
    UpdatePage(const std::string& strID, InstrumentFrame* pFrame);

    void activating() override;

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;

private:
    enum class State { ready, running, stopped, done };

    bool touch(const std::string& strID);
    void leave();
    void showImages(ZELUpdateInfoEvent& event);
    void takeStatus(ZELUpdateStatusEvent& event);
    void showPercent(const std::string& strBar, int nPercent);

    UpdateService m_service;
    State m_state = State::ready;
    bool m_bKnown = false; ///< which images there are
};
