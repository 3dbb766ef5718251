#include "common/ZELWindow.h"

#include "support/LogCapture.h"
#include "support/VirtualSlot.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

using PANFx::Testing::LogCapture;
using PANFx::Testing::slot;
using PANFx::Windows::ZELWindow;

namespace {

class PlainWindow : public ZELWindow
{
public:
    PlainWindow(const std::string& id, bool& deleted)
        : ZELWindow(id)
        , m_deleted(deleted)
    {
    }
    ~PlainWindow() override { m_deleted = true; }

    void createSubComponent(TAMFx::Common::Xml::Node* node) override { m_node = node; }
    void showSubComponent() override { m_shown = true; }

    using ZELWindow::m_logger;

    TAMFx::Common::Xml::Node* m_node = nullptr;
    bool m_shown = false;

private:
    bool& m_deleted;
};

} // namespace

TEST(ZELWindow, keepsTheIdItWasGiven)
{
    bool deleted = false;
    EXPECT_EQ(PlainWindow("home", deleted).m_strID, "home");
    EXPECT_EQ(PlainWindow("", deleted).m_strID, "");
    EXPECT_EQ(PlainWindow("\xED\x99\x88", deleted).m_strID, "\xED\x99\x88");
}

TEST(ZELWindow, isAbstractAndDeletedThroughItsBase)
{
    EXPECT_TRUE(std::is_abstract_v<ZELWindow>);
    bool deleted = false;
    std::unique_ptr<ZELWindow> window = std::make_unique<PlainWindow>("home", deleted);
    window->createSubComponent(nullptr);
    window->showSubComponent();
    EXPECT_TRUE(static_cast<PlainWindow&>(*window).m_shown);
    window.reset();
    EXPECT_TRUE(deleted);
}

TEST(ZELWindow, signsWithItsOwnName)
{
    bool deleted = false;
    PlainWindow("home", deleted).m_logger.WriteDebug("[%s] here", "test");
    const std::vector<PANFx::Testing::LogLine> lines = LogCapture::instance().lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].identity, "QTPANFx ZELWindow      ");
}

TEST(ZELWindow, hasItsVirtualOperationsInTheirFixedOrder)
{
    const auto word = static_cast<std::intptr_t>(sizeof(void*));
    EXPECT_EQ(slot(&ZELWindow::showSubComponent) - slot(&ZELWindow::createSubComponent), word);
    // a virtual destructor takes two places
    EXPECT_EQ(slot(&ZELWindow::createSubComponent) / word, 2);
}
