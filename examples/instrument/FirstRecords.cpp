#include "FirstRecords.h"

#include <QDateTime>
#include <QString>

#include <cmath>
#include <iterator>

namespace {

const int days = 28;
const int perDay = 9;
const int firstMinute = 8 * 60 + 10;
const int minutesBetween = 67;
const int firstNumber = 140;

struct Place
{
    const char* pszName;
    std::array<double, 4> values; ///< pH, conductivity, oxygen, temperature
};

const Place places[] = {
    {"Well 1", {7.21, 418, 8.36, 11.3}},      {"Well 2", {7.34, 402, 8.58, 10.9}},
    {"Well 3", {6.98, 655, 7.12, 12.0}},      {"Lake north", {8.11, 287, 9.02, 18.6}},
    {"Lake south", {8.06, 291, 8.97, 18.4}},  {"River above", {7.72, 348, 9.61, 14.2}},
    {"River below", {7.58, 472, 8.05, 15.9}}, {"Spring", {7.02, 541, 9.25, 9.4}},
    {"Tap lab", {7.27, 410, 8.44, 21.1}},     {"Tap yard", {7.25, 412, 8.31, 16.7}},
    {"Pool", {7.41, 836, 7.88, 26.8}},        {"Rain tank", {6.12, 64, 8.74, 13.5}},
    {"Inlet", {7.49, 913, 3.26, 19.8}},       {"Outlet", {7.33, 742, 6.41, 20.4}},
};

/// Wanders between -1 and 1, for each channel at a pace of its own.
double wave(int nRecord, std::size_t nChannel)
{
    const double dAngle = nRecord * (1.31 + 0.47 * static_cast<double>(nChannel));
    return 0.7 * std::sin(dAngle) + 0.3 * std::sin(2.7 * dAngle + 1);
}

const std::array<double, 4> swings = {0.14, 21, 0.42, 1.3};
const std::array<double, 4> units = {100, 1, 100, 10}; ///< steps of the last place in 1

Record record(int nDay, int nOfDay, const QDate& date)
{
    const int nRecord = nDay * perDay + nOfDay;
    const bool bNumbered = nDay == days - 1;
    const Place& place =
        places[static_cast<std::size_t>(nRecord * 5 + nRecord / 14) % std::size(places)];
    const int nMinute = firstMinute + nOfDay * minutesBetween + nRecord * 7 % 23;
    const QDateTime time(date, QTime(nMinute / 60, nMinute % 60));

    Record result;
    result.strTime = time.toString(QStringLiteral("yyyy-MM-dd HH:mm")).toStdString();
    result.strSample =
        bNumbered ? QString::asprintf("W-%04d", firstNumber + nOfDay).toStdString() : place.pszName;
    for (std::size_t n = 0; n < result.values.size(); ++n) {
        const double dValue = place.values[n] + swings[n] * wave(nRecord, n);
        result.values[n] = std::round(dValue * units[n]) / units[n];
    }
    return result;
}

} // namespace

std::vector<Record> firstRecords(const QDate& today)
{
    std::vector<Record> records;
    records.reserve(std::size_t{days} * perDay);
    for (int nDay = 0; nDay < days; ++nDay)
        for (int nOfDay = 0; nOfDay < perDay; ++nOfDay)
            records.push_back(record(nDay, nOfDay, today.addDays(nDay - days)));
    return records;
}
