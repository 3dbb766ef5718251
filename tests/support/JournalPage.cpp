#include "support/JournalPage.h"

#include <QEvent>

#include <sys/ipc.h>
#include <sys/sem.h>
#include <utility>

namespace PANFx::Testing {

namespace {

constexpr int firstNumber = 1550;

} // namespace

void Journal::note(const std::string& step)
{
    m_steps.push_back(step);
    // a copy, since what is done may lead to further steps or to another wish
    if (const auto action = onStep)
        action(step);
}

std::vector<std::string> Journal::take()
{
    return std::exchange(m_steps, {});
}

JournalPage::JournalPage(const std::string& id, QWidget* parent, const std::string& resource,
                         std::shared_ptr<Journal> journal)
    : ZELChildWindow(id, parent, resource)
    , m_journal(std::move(journal))
{
    note("create");
}

JournalPage::~JournalPage()
{
    note("delete");
}

void JournalPage::createSubComponent(TAMFx::Common::Xml::Node* node)
{
    note("createSubComponent");
    ZELChildWindow::createSubComponent(node);
}

void JournalPage::showSubComponent()
{
    note("showSubComponent");
    ZELChildWindow::showSubComponent();
}

void JournalPage::activating()
{
    note("activating");
}

void JournalPage::activated()
{
    note("activated");
}

bool JournalPage::event(QEvent* event)
{
    const bool result = ZELChildWindow::event(event);
    if (event->type() >= firstNumber)
        note("event " + std::to_string(event->type()));
    return result;
}

void JournalPage::showEvent(QShowEvent*)
{
    note("show");
}

void JournalPage::hideEvent(QHideEvent*)
{
    note("hide");
}

void JournalPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        note(isEnabled() ? "enable" : "disable");
}

void JournalPage::note(const std::string& step)
{
    m_journal->note(step + " " + m_strID);
}

PagesTest::PagesTest()
{
    writeLayout("empty", "<layout><Components/></layout>");
}

PagesTest::~PagesTest()
{
    m_journal->onStep = nullptr; // the pages die after the test's own variables
}

void PagesTest::addPages(const std::vector<std::string>& ids)
{
    addPages(frame(), ids);
}

void PagesTest::addPages(FrameForTest& frame, const std::vector<std::string>& ids)
{
    for (const std::string& id : ids) {
        frame.addPage(id, [this, &frame](const std::string& asked) {
            expectNoBackgroundLines();
            return new JournalPage(asked, &frame, "empty", m_journal);
        });
    }
}

void PagesTest::at(const std::string& step, std::function<void()> action)
{
    m_journal->onStep = [step, action = std::move(action)](const std::string& happened) {
        if (happened == step)
            action();
    };
}

bool PagesTest::lockHeld(FrameForTest& frame)
{
    const int value = semctl(frame.m_csNavigation.m_nSemID, 0, GETVAL);
    EXPECT_GE(value, 0) << "no semaphore";
    return value > 0;
}

} // namespace PANFx::Testing
