#include "print/Capture.h"

#include "common/systemPath.h"

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

QString fileNameFor(const char* fileName)
{
    if (fileName && *fileName)
        return QString::fromLatin1(fileName);
    return QLatin1String("/tmp/screen_") +
           QDateTime::currentDateTime().toString(QStringLiteral("yyMMdd_hhmmss.jpg"));
}

// A window hides what is beneath it also where it paints nothing.
void paintWindow(QPainter& painter, QWidget& window)
{
    painter.fillRect(window.geometry(), Qt::black);
    painter.drawPixmap(window.geometry().topLeft(), window.grab());
}

// Windows come in the order in which they were made, and what is modal lies on top.
QPixmap paintedWindows(const QSize& size)
{
    QPixmap picture(size);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    QWidget* const modal = QApplication::activeModalWidget();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (const QWindow* window : windows) {
        QWidget* const widget = window->handle() ? QWidget::find(window->winId()) : nullptr;
        if (widget && widget->isVisible() && widget != modal)
            paintWindow(painter, *widget);
    }
    if (modal && modal->isVisible())
        paintWindow(painter, *modal);
    return picture;
}

// Offscreen there is no screen: Qt 5 gives nothing for it, and Qt 6 gives hidden windows and pixels
// that nobody has written.
QPixmap grabbedScreen(QScreen& screen)
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        return QPixmap();
    return screen.grabWindow(0, 0, 0, screen.size().width(), screen.size().height());
}

QPixmap screenPicture()
{
    QScreen* const screen = QGuiApplication::primaryScreen();
    if (!screen)
        return QPixmap();
    const QPixmap grabbed = grabbedScreen(*screen);
    return grabbed.isNull() ? paintedWindows(screen->size()) : grabbed;
}

} // namespace

Capture::Capture() = default;

Capture::~Capture() = default;

void Capture::viewCapture(int quality, const char* fileName)
{
    const QString name = fileNameFor(fileName);
    const std::string path = PANFx::Common::systemPath(QFile::encodeName(name).toStdString());
    screenPicture().save(QFile::decodeName(path.c_str()), "JPEG", quality);
}
