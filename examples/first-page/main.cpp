#include <QTPANFx/events/EventNumbers.h>
#include <QTPANFx/events/ZELEvent.h>
#include <QTPANFx/windows/ZELChildWindow.h>
#include <QTPANFx/windows/ZELMainFrame.h>

#include <QApplication>

using PANFx::Windows::ZELChildWindow;
using PANFx::Windows::ZELMainFrame;

class HelloPage : public ZELChildWindow
{
public:
    explicit HelloPage(QWidget* parent)
        : ZELChildWindow("hello", parent, "")
    {
    }

protected:
    bool event(QEvent* event) override
    {
        ZELEvent* touch = event->type() == EVENT_MOUSE_UP ? ZELEvent::from(event) : nullptr;
        if (touch && touch->m_strID == "bye")
            QApplication::quit();
        return ZELChildWindow::event(event);
    }
};

class HelloFrame : public ZELMainFrame
{
public:
    ZELChildWindow* createChildWindow(std::string strID) override
    {
        return strID == "hello" ? new HelloPage(this) : nullptr;
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    HelloFrame frame;
    frame.moveTo("hello", true, true);
    frame.show();
    return QApplication::exec();
}
