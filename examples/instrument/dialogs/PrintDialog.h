#pragma once

#include "dialogs/InstrumentDialog.h"
#include "report/ReportPrinter.h"

#include <QElapsedTimer>

#include <string>

namespace PANFx::Components {
class Timer;
}

/// Prints a report, lets the user cancel, and tells what has become of it; run it with exec(). Its
/// popup tag says how it stands: "running", "stopping", "done", "cancelled" or "failed".
class PrintDialog : public InstrumentDialog
{
public:
    PrintDialog(InstrumentFrame* pFrame, const std::string& strReport);

    /// Begins to print.
    void activating() override;

protected:
    bool event(QEvent* pEvent) override;

private:
    void proceed();
    void touched();
    void showResult(int nResult);
    void show(const std::string& strTag, const std::string& strTitle, const std::string& strNote);
    void setRing(int nPercent);

    std::string m_strReport;
    int m_nExpected; ///< milliseconds
    QElapsedTimer m_clock;
    PANFx::Components::Timer* m_pTimer; ///< deleted with the dialog
    ReportPrinter m_printer;
};
