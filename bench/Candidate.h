#pragma once

#include "PageGenerator.h"

#include <QEvent>
#include <QImage>
#include <QObject>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QWidget;
class QWindow;

namespace bench {

/**
 * One way to bring a page from its file to the screen. Each candidate has a top-level window of
 * its own of 800 by 480 pixels and works on the pages of the same Site.
 */
class Candidate
{
public:
    virtual ~Candidate() = default;

    /** Shows the window with an empty page and paints it. */
    virtual void open() = 0;

    /** Shows the window with that page at once, as a program does that has just been started. */
    virtual void start(const std::string& page) = 0;

    /** Makes the window the active one; not counted. */
    virtual void activate() = 0;

    /** From the page's file to the page shown: opened, parsed, built, laid out, made visible. */
    virtual void load(const std::string& page) = 0;

    /** Deletes the page that load() has shown; not counted. */
    virtual void unload() = 0;

    /** Loads both pages and keeps them; the second is on screen afterwards. */
    virtual void keep(const std::string& first, const std::string& second) = 0;

    /** Shows the page that keep() has left hidden and hides the other one. */
    virtual void switchPage() = 0;

    /** A press on the widget at that place, handed to it as the application object does. */
    virtual void press(const QPoint& place) = 0;
    virtual void release(const QPoint& place) = 0;

    /** Writes other texts into the cells of a list, row by row. */
    virtual void refill(const std::vector<std::string>& texts) = 0;

    /** Brings up what stands on a tab, counted from 0. */
    virtual void showTab(int tab) = 0;

    /** Sets the gauge of the page, 0 to 100. */
    virtual void setPercent(int percent) = 0;

    /** Starts to watch for a paint of the window. */
    void expectPaint() { m_painted = false; }

    /** Whether the window has been painted since. */
    bool wasPainted() const { return m_painted; }

    /** Runs the event loop until the window was painted; false when that does not happen. */
    bool waitPainted();

    /** The pixels that the last flush of the window has sent out, not a new rendering of them. */
    QImage picture();

    /** Called when the click of a button has reached its handler, where a candidate has one. */
    std::function<void()> onClick;

    /** Called when the touch of a cell has reached its handler, with the cell's place. */
    std::function<void(int row, int column)> onCell;

protected:
    virtual QWindow* window() = 0;

    bool m_painted = false;
};

/** Runs the event loop until nothing is left to do there. */
void settle();

/** A candidate whose window is a QWidget. */
class WidgetCandidate : public Candidate
{
public:
    void activate() override;
    void press(const QPoint& place) override;
    void release(const QPoint& place) override;

protected:
    QWindow* window() override;

    /** Shows @p pWindow, which stays the candidate's, and paints it. */
    void openWindow(QWidget* pWindow);

private:
    class PaintWatcher : public QObject
    {
    public:
        explicit PaintWatcher(bool& painted)
            : m_painted(painted)
        {
        }
        bool eventFilter(QObject* pObject, QEvent* pEvent) override;

    private:
        bool& m_painted;
    };

    void touch(QEvent::Type type, const QPoint& place, Qt::MouseButtons buttons);

    QWidget* m_pWindow = nullptr;
    QWidget* m_pPressed = nullptr;
    PaintWatcher m_watcher{m_painted};
};

/** Sends a mouse event of the left button to @p receiver, which may be a widget or a window. */
void sendMouse(QObject* receiver, QEvent::Type type, const QPoint& local, const QPoint& global,
               Qt::MouseButtons buttons);

/** A black top-level window of the panel's size. */
std::unique_ptr<QWidget> makeWindow();

// ---- the candidates; a peer's own file defines each

enum class QmlState { InMemory, DiskCache, Text };

std::unique_ptr<Candidate> makeCode(const Site& site);
/** As makeCode(), with buttons that derive from QAbstractButton. */
std::unique_ptr<Candidate> makeCodeWithQtButtons(const Site& site);
std::unique_ptr<Candidate> makeOurs(const Site& site);
std::unique_ptr<Candidate> makeQUiLoader(const Site& site, bool customClasses);
std::unique_ptr<Candidate> makeQml(const Site& site, QmlState state);

/** A candidate's name in the table and how to make it. */
struct Maker
{
    std::string key; ///< for command lines
    std::string name;
    std::function<std::unique_ptr<Candidate>(const Site&)> make;
};

/** All candidates, the floor first. */
const std::vector<Maker>& makers();

/** The one with that key; throws when there is none. */
const Maker& maker(const std::string& key);

} // namespace bench
