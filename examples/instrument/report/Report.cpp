#include "report/Report.h"

#include "Calendar.h"
#include "ComponentAccess.h"

#include <algorithm>

namespace {

using Channels = std::vector<Analyser::Channel>;
using Records = std::vector<Record>;

const std::string ruler(31, '-');                             // as wide as the paper
const std::vector<std::string> symbols{"pH", "κ", "O₂", "T"}; // names would not fit their column

const QString recordTime = QStringLiteral("yyyy-MM-dd HH:mm");

/// A text that somebody has typed or scanned: "|" would begin a column, a control character a line.
std::string plain(std::string strText)
{
    std::replace(strText.begin(), strText.end(), '|', '/');
    const auto isControl = [](unsigned char c) { return c < ' '; };
    std::replace_if(strText.begin(), strText.end(), isControl, ' ');
    return strText;
}

/// Date and time in the order that the user has chosen.
std::string timeText(const QDateTime& time, const std::string& strDateOrder)
{
    return dateText(time.date(), strDateOrder) + "  " +
           time.toString(QStringLiteral("HH:mm")).toStdString();
}

/// Values are compared as they are shown elsewhere: in the channel's own unit.
std::string markAbove(const Analyser::Channel& channel, double dValue)
{
    return dValue > channel.dLimit ? "*" : "";
}

// The first two lines are centred by their place.
void addHead(std::vector<std::string>& lines, const ReportHead& head)
{
    lines.insert(lines.end(), {"AQUA-4", localText("@kind"), ""});
    lines.push_back("#" + localText("@results"));
    lines.push_back("@" + timeText(head.time, head.strDateOrder));
    lines.push_back("@" + captioned("@operator", plain(head.strOperator)));
    lines.push_back(ruler);
}

// Four columns have no room for time and name: these have a line of their own, a heading, since
// that becomes narrower when the name is long.
void addTable(std::vector<std::string>& lines, const ReportHead& head, const Channels& channels,
              const Records& records)
{
    std::string strUnits;
    for (const Analyser::Channel& channel : channels)
        strUnits += (strUnits.empty() ? "" : "|") + channel.strUnit;
    lines.insert(lines.end(), {strUnits, ruler});
    for (const Record& record : records) {
        std::string strValues;
        for (std::size_t n = 0; n < channels.size(); ++n)
            strValues += (n == 0 ? "" : "|") + Analyser::text(channels[n], record.values[n]) +
                         markAbove(channels[n], record.values[n]);
        const QDateTime time =
            QDateTime::fromString(QString::fromStdString(record.strTime), recordTime);
        lines.push_back("#" + timeText(time, head.strDateOrder) + "  " + plain(record.strSample));
        lines.push_back(strValues);
    }
    lines.push_back(ruler);
}

/// A mark, the channel, its mean, its lowest and highest value, and the unit.
std::string summaryRow(const Analyser::Channel& channel, const std::string& strSymbol,
                       std::vector<double> values)
{
    double dSum = 0;
    for (const double dValue : values)
        dSum += dValue;
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    return markAbove(channel, *highest) + "|" + strSymbol + "|" +
           Analyser::text(channel, dSum / static_cast<double>(values.size())) + "|" +
           Analyser::text(channel, *lowest) + " - " + Analyser::text(channel, *highest) + "|" +
           channel.strUnit;
}

void addSummary(std::vector<std::string>& lines, const Channels& channels, const Records& records)
{
    lines.push_back("#" + localText("@mean"));
    for (std::size_t n = 0; n < channels.size(); ++n) {
        std::vector<double> values;
        for (const Record& record : records)
            values.push_back(record.values[n]);
        lines.push_back(summaryRow(channels[n], symbols.at(n), std::move(values)));
    }
    lines.push_back(ruler);
}

} // namespace

std::string reportText(const ReportHead& head, const std::vector<Analyser::Channel>& channels,
                       const std::vector<Record>& records)
{
    // The paper comes in bands of 24 rows, and what fills no band is left out: the last line is
    // empty.
    std::vector<std::string> lines;
    addHead(lines, head);
    addTable(lines, head, channels, records);
    if (!records.empty())
        addSummary(lines, channels, records);
    lines.push_back("@* " + localText("@above"));
    lines.push_back("@" + captioned("@count", std::to_string(records.size())));
    lines.insert(lines.end(), {"", "@" + localText("@report.end"), ""});
    std::string strText;
    for (const std::string& strLine : lines)
        strText += strLine + "\n"; // also behind the last line, or it would not be printed
    return strText;
}
