#include "tour/Tour.h"

#include "resource/ZELResourceMgr.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>

using PANFx::Resource::ZELResourceMgr;

namespace {

const int actionTime = 20; // milliseconds
const int pushTime = 200;  // a button that is pressed or let go moves for 150
const int postings = 6;    // that a touch goes through at most until its page has it
const int settleLimit = 2000;
const int settleCheck = 50;

bool isPlain(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
    return true;
}

} // namespace

Tour::Tour(InstrumentFrame& frame, const QString& strDir)
    : m_screen(frame)
    , m_strDir(strDir)
    , m_itinerary(frame, m_screen, strDir)
    , m_steps(m_itinerary.steps())
{
    QDir().mkpath(m_strDir);
}

bool Tour::run()
{
    goOn(0);
    QApplication::exec();
    return m_nFailed == 0 && m_nStep == m_steps.size();
}

void Tour::goOn(int nMilliseconds)
{
    QTimer::singleShot(nMilliseconds, Qt::PreciseTimer, &m_life, [this] { passOn(postings); });
}

// On a machine with much to do the time may be over before the touch has arrived. It is posted
// from hop to hop, so the tour queues up behind it as often as that.
void Tour::passOn(int nPostings)
{
    if (nPostings == 0)
        proceed();
    else
        QMetaObject::invokeMethod(
            &m_life, [this, nPostings] { passOn(nPostings - 1); }, Qt::QueuedConnection);
}

void Tour::proceed()
{
    const std::vector<TourStep::Action>& actions = m_steps[m_nStep].actions;
    if (m_nAction == actions.size()) {
        finishStep();
        return;
    }
    const TourStep::Action& action = actions[m_nAction];
    if (!m_bWaits)
        m_clock.start();
    const bool bLast = m_nAction + 1 == actions.size();
    action.run();
    // on a busy machine a page comes late; what is missing has not been touched
    m_bWaits = !m_screen.missing().empty() && m_clock.elapsed() < settleLimit;
    if (m_bWaits) {
        m_screen.forgetMissing();
        goOn(settleCheck);
        return;
    }
    ++m_nAction;
    // from here, so that what the action has posted comes first however long the action took
    goOn(std::max(action.nTime, bLast ? pushTime : actionTime));
}

void Tour::finishStep()
{
    const QImage image = m_screen.picture();
    std::string strFault = fault(image);
    const int nLimit = std::max(m_steps[m_nStep].nLimit, settleLimit);
    const bool bMayCome = m_screen.missing().empty() && m_clock.elapsed() < nLimit;
    if (!strFault.empty() && bMayCome) {
        goOn(settleCheck);
        return;
    }
    if (strFault.empty())
        strFault = keep(image);
    report(strFault);
    m_nAction = 0;
    m_screen.forgetMissing();
    m_screen.activate();
    if (++m_nStep < m_steps.size())
        goOn(0);
    else
        QApplication::exit(); // leaves the loop of an open dialog too
}

std::string Tour::fault(const QImage& image)
{
    const TourStep& step = m_steps[m_nStep];
    const std::string strPage = m_screen.page();
    const std::string strDialog = m_screen.dialog();
    const std::string strLocale = ZELResourceMgr::getInstance()->m_strLocale;
    if (!m_screen.missing().empty())
        return "there is no component " + m_screen.missing() + " on page " + strPage;
    if (strPage != step.strPage)
        return "page " + strPage + " is on screen, not " + step.strPage;
    if (strDialog != step.strDialog)
        return "the dialog over it is \"" + strDialog + "\", not \"" + step.strDialog + "\"";
    if (strLocale != step.strLocale)
        return "the locale is \"" + strLocale + "\", not \"" + step.strLocale + "\"";
    if (step.isTrue && !step.isTrue())
        return "it is not true that " + step.strClaim;
    const std::string strCut = m_screen.cutText();
    if (!strCut.empty())
        return "there is no room for the text \"" + strCut + "\"";
    if (isPlain(image))
        return "nothing is to be seen on page " + strPage;
    return "";
}

std::string Tour::keep(const QImage& image)
{
    const QString strFile = m_strDir + QString::asprintf("/%02zu-%s.png", m_nStep + 1,
                                                         m_steps[m_nStep].strName.c_str());
    return image.save(strFile) ? "" : "cannot write " + strFile.toStdString();
}

void Tour::report(const std::string& strFault)
{
    const TourStep& step = m_steps[m_nStep];
    const std::size_t nNumber = m_nStep + 1;
    if (!strFault.empty()) {
        std::fprintf(stderr, "%02zu %s: FAILED, %s\n", nNumber, step.strName.c_str(),
                     strFault.c_str());
        ++m_nFailed;
        return;
    }
    std::printf("%02zu %s: page %s", nNumber, step.strName.c_str(), step.strPage.c_str());
    if (!step.strDialog.empty())
        std::printf(", dialog %s", step.strDialog.c_str());
    if (!step.strClaim.empty())
        std::printf(", %s", step.strClaim.c_str());
    std::printf(" -> %s/%02zu-%s.png\n", qPrintable(m_strDir), nNumber, step.strName.c_str());
    std::fflush(stdout);
}
