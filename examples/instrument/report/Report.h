#pragma once

#include "Analyser.h"
#include "Record.h"

#include <QDateTime>

#include <string>
#include <vector>

/// What stands above the results on a report.
struct ReportHead
{
    QDateTime time;           ///< of printing
    std::string strDateOrder; ///< of this date and all others, as in Calendar
    std::string strOperator;
};

/// A report of these results in the language of the day, with the line markup of the printer: to
/// be handed to ReportPrinter.
std::string reportText(const ReportHead& head, const std::vector<Analyser::Channel>& channels,
                       const std::vector<Record>& records);
