#include "tour/PrintItinerary.h"

#include "ComponentAccess.h"
#include "InstrumentFrame.h"
#include "pages/ResultsPage.h"
#include "report/Report.h"
#include "tour/Screen.h"

#include "common/systemPath.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using PrinterEmulator::Behaviour;
using PrinterEmulator::Paper;

namespace {

const int reportLimit = 20000; // milliseconds for a whole report, on a busy machine too
const int bandTime = 100;      // of a band on the serial line
const int lineRows = 32;
const int bandRows = 24;
const int endRows = 96; // what a job feeds at its end

bool hasInk(const Paper& paper, int nFrom, int nTo)
{
    for (int y = nFrom; y < std::min(nTo, paper.rows()); ++y)
        for (int x = 0; x < PrinterEmulator::paperWidth; ++x)
            if (paper.hasDot(x, y))
                return true;
    return false;
}

/// How far apart two pictures are on average, of 255; the first one may be larger.
double difference(const QImage& left, const QImage& right)
{
    double dSum = 0;
    for (int y = 0; y < right.height(); ++y)
        for (int x = 0; x < right.width(); ++x)
            dSum += std::abs(qGray(left.pixel(x, y)) - qGray(right.pixel(x, y)));
    return dSum / (right.width() * static_cast<double>(right.height()));
}

} // namespace

PrintItinerary::PrintItinerary(InstrumentFrame& frame, Screen& screen, const QString& strDir)
    : StepList(screen)
    , m_frame(frame)
    , m_strDir(strDir)
{
}

StepList::Action PrintItinerary::plugIn(const Behaviour& behaviour)
{
    return {[this, behaviour] { m_printer.plugIn(behaviour); }, 0};
}

StepList::Actions PrintItinerary::tearOff(const std::string& strPaper)
{
    const QString strFile = m_strDir + QLatin1Char('/') + QString::fromStdString(strPaper);
    const auto keep = [this, strFile] {
        m_printer.unplug();
        m_bKept = m_printer.paper().picture().save(strFile, "PNG");
        if (!m_bKept)
            std::fprintf(stderr, "cannot write %s\n", qPrintable(strFile));
    };
    return {{keep, 0}, tap("cancel")};
}

void PrintItinerary::claimTag(TourStep& step, const std::string& strClaim,
                              const std::string& strTag)
{
    step.strDialog = "print";
    step.nLimit = reportLimit;
    claim(step, strClaim, [this, strTag] { return m_screen.dialogTag() == strTag; });
}

void PrintItinerary::failures()
{
    claimTag(add("print-unplugged", "results",
                 {goHome(), tap("results"), {[this] { m_printer.unplug(); }, 0}, tap("print")}),
             "the panel tells that nothing is printed", "failed");
    Behaviour noPaper;
    noPaper.status = 0x7E;
    TourStep& step =
        add("print-no-paper", "results", {tap("cancel"), plugIn(noPaper), tap("print")});
    claimTag(step, "there is a printer, and the panel tells that nothing is printed", "failed");
    step.isTrue = [this, isFailed = step.isTrue] { return m_printer.isWorking() && isFailed(); };
}

void PrintItinerary::cancelled()
{
    claimTag(add("printing", "results",
                 {tap("cancel"), plugIn(Behaviour()), tap("print"), {[] {}, 8 * bandTime}}),
             "it goes on", "running");
    claimTag(add("print-cancelled", "results", {tap("cancel")}), "the panel tells it", "cancelled");
    claim(add("paper-cancelled", "results", tearOff("paper-cancelled.png")),
          "the paper has the first lines alone", [this] {
              return m_bKept && m_printer.wasWellSpoken() &&
                     hasInk(m_printer.paper(), 0, 3 * lineRows) &&
                     m_printer.paper().rows() < reportRows();
          });
}

void PrintItinerary::printed(const std::string& strPrefix, const std::string& strPaper)
{
    claimTag(add(strPrefix + "printed", "results", {plugIn(Behaviour()), tap("print")}),
             "the panel tells it", "done");
    claim(add(strPrefix + "paper", "results", tearOff(strPaper)),
          "the whole report is on " + strPaper, [this] { return isWholeReport(); });
}

void PrintItinerary::picture()
{
    TourStep& step = add("picture", "measure", {goHome(), tap("measure"), tap("camera")});
    step.strDialog = "picture";
    claim(step, "the file that the panel tells of has the picture of the page",
          [this] { return isPictureOfScreen(); });
    TourStep& other = add("picture-settings", "settings",
                          {tap("close"), goHome(), tap("settings"), tap("camera")});
    other.strDialog = "picture";
    claim(other, "another page has a camera too", [this] { return isPictureOfScreen(); });
    add("picture-closed", "results", {tap("close"), goHome(), tap("results")});
}

bool PrintItinerary::fitsAll()
{
    const char* const ends[] = {"@printing", "@printed", "@print.cancelled", "@print.failed"};
    for (const std::string strEnd : ends) {
        for (const std::string& strNote : {strEnd + ".note", std::string("@stopping")}) {
            m_screen.write("title", localText(strEnd));
            m_screen.write("note", localText(strNote));
            if (!m_screen.cutText().empty())
                return false;
        }
    }
    m_screen.write("note", localText("@print.failed.note"));
    return true;
}

void PrintItinerary::removePicture()
{
    QFile::remove(QFile::decodeName(PANFx::Common::systemPath(m_screen.dialogTag()).c_str()));
}

std::size_t PrintItinerary::selected()
{
    const auto* pPage = dynamic_cast<ResultsPage*>(m_frame.getCurrentWindow());
    return pPage != nullptr ? pPage->selectedRecords().size() : 0;
}

int PrintItinerary::reportRows()
{
    const auto* pPage = dynamic_cast<ResultsPage*>(m_frame.getCurrentWindow());
    if (pPage == nullptr)
        return 0;
    const std::string strReport =
        reportText({}, m_frame.analyser().channels(), pPage->recordsToPrint());
    const auto nParts = std::count(strReport.begin(), strReport.end(), '\n') + 1;
    return static_cast<int>(nParts) * lineRows;
}

bool PrintItinerary::isWholeReport()
{
    const int nRows = reportRows();
    const Paper& paper = m_printer.paper();
    return m_bKept && m_printer.wasWellSpoken() &&
           paper.rows() == nRows / bandRows * bandRows + endRows &&
           hasInk(paper, lineRows, 2 * lineRows) &&
           hasInk(paper, nRows - 2 * lineRows, nRows - lineRows);
}

bool PrintItinerary::isPictureOfScreen()
{
    const QString strFile =
        QFile::decodeName(PANFx::Common::systemPath(m_screen.dialogTag()).c_str());
    const QImage screen(strFile);
    const QImage page = m_frame.grab().toImage();
    const QRect place = m_frame.geometry();
    if (!screen.rect().contains(place) || difference(screen.copy(place), page) > 4)
        return false;
    const QString strCopy = m_strDir + QStringLiteral("/screen.jpg");
    QFile::remove(strCopy);
    return QFile::rename(strFile, strCopy); // across file systems too
}

std::vector<TourStep> PrintItinerary::steps()
{
    failures();
    cancelled();
    const Actions selection = {tap("records/row0/pick"), tap("records/row1/pick"),
                               tap("records/row4/pick")};
    claim(add("print-selection", "results", selection), "three are selected",
          [this] { return selected() == 3; });
    printed("", "paper.png");
    claim(add("print-unselected", "results", selection), "none is selected",
          [this] { return selected() == 0; });
    picture();
    return takeSteps();
}

std::vector<TourStep> PrintItinerary::looksIn(const std::string& strName,
                                              const std::string& strLocale)
{
    m_strLocale = strLocale;
    add(strName + "-picture", "measure", {tap("camera")}).strDialog = "picture";
    TourStep& step = add(
        strName + "-print-unplugged", "results",
        {{[this] { removePicture(); }, 0}, tap("close"), goHome(), tap("results"), tap("print")});
    claimTag(step, "the panel tells that nothing is printed, and has room for all else", "failed");
    step.isTrue = [this, isFailed = step.isTrue] { return isFailed() && fitsAll(); };
    add(strName + "-print-closed", "measure", {tap("cancel"), goHome(), tap("measure")});
    return takeSteps();
}

std::vector<TourStep> PrintItinerary::inLanguage(const std::string& strName,
                                                 const std::string& strLocale)
{
    m_strLocale = strLocale;
    add(strName + "-to-print", "results", {goHome(), goHome(), tap("results")});
    printed(strName + "-", "paper-" + strLocale + ".png");
    return takeSteps();
}
