#pragma once

#include "support/EventRecorder.h"
#include "windows/ZELMainFrame.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace PANFx::Testing {

/** An application's frame: pages by id, as a test fills them in. */
class FrameForTest : public Windows::ZELMainFrame
{
public:
    /** Makes the page for an id, with the frame as its parent. */
    using Creator = std::function<Windows::ZELChildWindow*(const std::string& id)>;

    /** A plain page for an id; @p resource names its layout, "" for the id's own. */
    void addPage(const std::string& id, const std::string& resource = "");

    /** A page that the test makes itself. */
    void addPage(const std::string& id, Creator creator);

    /** The ids that were asked for, oldest first, unknown ones included. */
    const std::vector<std::string>& asked() const { return m_asked; }

    /** What reached the plain pages. */
    EventRecorder& recorder() { return m_recorder; }

    Windows::ZELChildWindow* createChildWindow(std::string strID) override;

    // what an application's frame reaches, shown to tests
    using ZELMainFrame::m_bMoveToHiddenMain;
    using ZELMainFrame::m_csNavigation;
    using ZELMainFrame::m_dqChildWindows;
    using ZELMainFrame::m_listWindowHistory;
    using ZELMainFrame::m_pCurrentWindow;
    using ZELMainFrame::m_pTimer;

    /** The ids of the history, oldest first. */
    std::vector<std::string> history();

private:
    std::map<std::string, Creator> m_creators;
    std::vector<std::string> m_asked;
    EventRecorder m_recorder;
};

} // namespace PANFx::Testing
