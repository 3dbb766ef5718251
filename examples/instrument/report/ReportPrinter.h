#pragma once

#include "print/ImagePrint.h"

#include <atomic>
#include <string>
#include <thread>

class QObject;

/// Prints a report while the panel goes on: the library prints on its caller's thread, so the job
/// has a thread of its own, which the application starts here and ends here.
class ReportPrinter
{
public:
    enum Result { failed, cancelled, done };

    /// The receiver gets EVENT_PRINTED. It must live as long as this object.
    explicit ReportPrinter(QObject* pReceiver);

    /// Cancels what is running and waits for its end: until the band that goes out is through, or
    /// the printer has not answered for 1.2 seconds.
    ~ReportPrinter();

    ReportPrinter(const ReportPrinter&) = delete;
    ReportPrinter& operator=(const ReportPrinter&) = delete;

    /// Prints one report, lines with the markup of ImagePrint; once in the life of the object.
    void start(const std::string& strReport);

    /// Stops the job before its next band. A job that is just beginning may not hear it: call it
    /// again and again, until EVENT_PRINTED has come. That says "cancelled" then, also when the
    /// last band was going out already and the report is whole.
    void cancel();

    /// Milliseconds that the serial line needs for a report. The library does not tell how far a
    /// job is, so this is what a progress can be reckoned from.
    static int expectedTime(const std::string& strReport);

private:
    Result print(const std::string& strReport);

    QObject* m_pReceiver;
    ImagePrint m_print;
    std::atomic<bool> m_bCancelled{false};
    std::atomic<bool> m_bEnded{false}; ///< the thread has nothing left to do
    std::thread m_thread;
};
