#include "support/ScreenFaults.h"

#include "support/InFrontOf.h"

#include <QScreen>
#include <QWindow>

#include <cstdlib>
#include <utility>

// Qt's functions as the compiler names them; the number of a window is as wide as a pointer
#define PRIMARY_SCREEN "_ZN15QGuiApplication13primaryScreenEv"
#define PLATFORM_NAME "_ZN15QGuiApplication12platformNameEv"
#if QT_POINTER_SIZE == 8
#define GRAB_WINDOW "_ZN7QScreen10grabWindowEyiiii"
#else
#define GRAB_WINDOW "_ZN7QScreen10grabWindowEjiiii"
#endif

namespace PANFx::Testing {

namespace {

ScreenFaults* active = nullptr;

} // namespace

ScreenFaults::ScreenFaults()
{
    if (std::exchange(active, this))
        std::abort();
}

ScreenFaults::~ScreenFaults()
{
    active = nullptr;
}

QScreen* faults_primaryScreen() IN_FRONT_OF(PRIMARY_SCREEN);
QString faults_platformName() IN_FRONT_OF(PLATFORM_NAME);
QPixmap faults_grabWindow(QScreen* screen, WId window, int x, int y, int width, int height)
    IN_FRONT_OF(GRAB_WINDOW);

QScreen* faults_primaryScreen()
{
    if (active && active->noScreen)
        return nullptr;
    return next<QScreen* (*)()>(PRIMARY_SCREEN)();
}

QString faults_platformName()
{
    if (active && !active->platform.isEmpty())
        return active->platform;
    return next<QString (*)()>(PLATFORM_NAME)();
}

QPixmap faults_grabWindow(QScreen* screen, WId window, int x, int y, int width, int height)
{
    using Grab = QPixmap (*)(QScreen*, WId, int, int, int, int);
    if (!active)
        return next<Grab>(GRAB_WINDOW)(screen, window, x, y, width, height);
    active->grabbed.emplace_back(x, y, width, height);
    return active->shown;
}

} // namespace PANFx::Testing
