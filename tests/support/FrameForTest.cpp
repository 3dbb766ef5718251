#include "support/FrameForTest.h"

#include "windows/ZELChildWindow.h"

#include <utility>

namespace PANFx::Testing {

void FrameForTest::addPage(const std::string& id, const std::string& resource)
{
    addPage(id, [this, resource](const std::string& asked) {
        auto* const page = new Windows::ZELChildWindow(asked, this, resource);
        m_recorder.listenAt(page);
        return page;
    });
}

void FrameForTest::addPage(const std::string& id, Creator creator)
{
    m_creators[id] = std::move(creator);
}

Windows::ZELChildWindow* FrameForTest::createChildWindow(std::string strID)
{
    m_asked.push_back(strID);
    const auto found = m_creators.find(strID);
    return found == m_creators.end() ? nullptr : found->second(strID);
}

std::vector<std::string> FrameForTest::history()
{
    std::vector<std::string> ids;
    for (int i = 0; i < m_listWindowHistory.Count(); ++i)
        ids.push_back(m_listWindowHistory.AtString(i));
    return ids;
}

} // namespace PANFx::Testing
