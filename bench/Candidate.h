#pragma once

#include "PageGenerator.h"

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

    /** Starts to watch for a paint of the window. */
    void expectPaint() { m_painted = false; }

    /** Runs the event loop until the window was painted; false when that does not happen. */
    bool waitPainted();

    /** The pixels that the last flush of the window has sent out, not a new rendering of them. */
    QImage picture();

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

    QWidget* m_pWindow = nullptr;
    PaintWatcher m_watcher{m_painted};
};

/** A black top-level window of the panel's size. */
std::unique_ptr<QWidget> makeWindow();

// ---- the candidates; a peer's own file defines each

enum class QmlState { InMemory, DiskCache, Text };

std::unique_ptr<Candidate> makeCode(const Site& site);
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
