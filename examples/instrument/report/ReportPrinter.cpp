#include "report/ReportPrinter.h"

#include "ApplicationEvents.h"

#include "events/ZELResultEvent.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <limits>

namespace {

// of the printout and the serial line, as ImagePrint has them
const int rowsOfLine = 32;
const int rowsOfBand = 24;
const int bytesOfBand = 1161; // with its head, its line feed and the question for the status
const int bytesPerSecond = 11520;

const std::chrono::milliseconds cancelPause(10);

} // namespace

ReportPrinter::ReportPrinter(QObject* pReceiver)
    : m_pReceiver(pReceiver)
{
}

ReportPrinter::~ReportPrinter()
{
    if (!m_thread.joinable())
        return;
    while (!m_bEnded) {
        cancel(); // again and again: a job that is beginning forgets it
        std::this_thread::sleep_for(cancelPause);
    }
    m_thread.join();
}

void ReportPrinter::start(const std::string& strReport)
{
    if (m_thread.joinable())
        return;
    m_thread = std::thread([this, strReport] {
        const Result result = print(strReport);
        QCoreApplication::postEvent(m_pReceiver,
                                    new ZELResultEvent(EVENT_PRINTED, result, nullptr));
        m_bEnded = true;
    });
}

void ReportPrinter::cancel()
{
    m_bCancelled = true;
    m_print.CancelPrint();
}

// 0 may also mean that the job was cancelled before its first band, and -1 that it was cancelled
// later: only who has cancelled can tell.
ReportPrinter::Result ReportPrinter::print(const std::string& strReport)
{
    const int nResult = m_bCancelled ? 0 : m_print.printImageString(strReport.c_str());
    if (m_bCancelled)
        return cancelled;
    return nResult == 0 ? done : failed;
}

int ReportPrinter::expectedTime(const std::string& strReport)
{
    const qint64 nLines = std::count(strReport.begin(), strReport.end(), '\n') + 1;
    const qint64 nBands = nLines * rowsOfLine / rowsOfBand;
    const qint64 nTime = nBands * bytesOfBand * 1000 / bytesPerSecond;
    return static_cast<int>(std::min<qint64>(nTime, std::numeric_limits<int>::max()));
}
