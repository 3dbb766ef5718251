// An application as a user of the installed package would begin it: a frame with one page.

#include <QTPANFx/components/text/ZELLabel.h>
#include <QTPANFx/resource/ZELResourceMgr.h>
#include <QTPANFx/windows/ZELChildWindow.h>
#include <QTPANFx/windows/ZELMainFrame.h>

#include <QApplication>

#include <cstdio>

using PANFx::Windows::ZELChildWindow;
using PANFx::Windows::ZELMainFrame;

namespace {

class Frame : public ZELMainFrame
{
public:
    ZELChildWindow* createChildWindow(std::string strID) override
    {
        return strID == "home" ? new ZELChildWindow(strID, this, "") : nullptr;
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Frame frame;
    frame.show();
    ZELChildWindow* const home = frame.moveTo("home", true, true);
    auto* const hello =
        home ? dynamic_cast<PANFx::Components::ZELLabel*>(home->getSubComponent("hello")) : nullptr;
    std::printf("base path %s\n",
                PANFx::Resource::ZELResourceMgr::getInstance()->getBasePath().c_str());
    std::printf("label %s\n", hello && hello->isVisible() ? "visible" : "missing");
    return hello ? 0 : 1;
}
