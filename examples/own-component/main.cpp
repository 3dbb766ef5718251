#include "TankPage.h"

#include <QTPANFx/windows/ZELMainFrame.h>

#include <QApplication>

namespace {

class TankFrame : public PANFx::Windows::ZELMainFrame
{
public:
    PANFx::Windows::ZELChildWindow* createChildWindow(std::string strID) override
    {
        return strID == "tank" ? new TankPage(this) : nullptr;
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    TankFrame frame;
    frame.moveTo("tank", true, true);
    frame.show();
    return QApplication::exec();
}
