#pragma once

#include "support/FrameForTest.h"
#include "support/PanelTest.h"
#include "windows/ZELChildWindow.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace PANFx::Testing {

/** What the pages of a test went through, oldest first: "activating home", "show home". */
class Journal
{
public:
    void note(const std::string& step);

    /** All steps so far, and forgets them. */
    std::vector<std::string> take();

    /** Called with each step at the moment it happens. */
    std::function<void(const std::string& step)> onStep;

private:
    std::vector<std::string> m_steps;
};

/**
 * An application's page that notes what happens to it. The steps are, each with the page's id
 * behind it: create, activating, activated, show, hide, enable, disable, delete, "event N" for an
 * event with a number of the library's range, and createSubComponent, showSubComponent when the
 * overrides of this class are reached.
 */
class JournalPage : public Windows::ZELChildWindow
{
public:
    JournalPage(const std::string& id, QWidget* parent, const std::string& resource,
                std::shared_ptr<Journal> journal);
    ~JournalPage() override;

    void createSubComponent(TAMFx::Common::Xml::Node* node) override;
    void showSubComponent() override;
    void activating() override;
    void activated() override;

    // what an application's page reaches, shown to tests
    using ZELChildWindow::m_layout;
    using ZELChildWindow::m_logger;

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void note(const std::string& step);

    std::shared_ptr<Journal> m_journal; // outlives the fixture that made the page
};

/** The fixture of tests that move between pages. */
class PagesTest : public PanelTest
{
protected:
    PagesTest();
    ~PagesTest() override;

    /**
     * Makes the frame know pages with these ids. They are empty, and the line that a page without
     * a background writes is announced whenever one is made.
     */
    void addPages(const std::vector<std::string>& ids);
    void addPages(FrameForTest& frame, const std::vector<std::string>& ids);

    /** The steps of all pages so far, without delivering what is queued, and forgets them. */
    std::vector<std::string> steps() { return m_journal->take(); }

    /** Has something done at a step, each time it comes. One such wish at a time. */
    void at(const std::string& step, std::function<void()> action);

    Journal& journal() { return *m_journal; }
    const std::shared_ptr<Journal>& sharedJournal() const { return m_journal; }

    /** Whether somebody is inside the frame's navigation lock. */
    static bool lockHeld(FrameForTest& frame);
    bool lockHeld() { return lockHeld(frame()); }

private:
    std::shared_ptr<Journal> m_journal = std::make_shared<Journal>();
};

} // namespace PANFx::Testing
