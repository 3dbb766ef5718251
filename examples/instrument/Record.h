#pragma once

#include <array>
#include <string>
#include <vector>

/// One stored measurement.
struct Record
{
    long long nID = 0;                 ///< in the database
    std::string strTime;               ///< by the instrument's clock, "2026-11-21 10:42"
    std::string strSample;             ///< UTF-8
    std::array<double, 4> values = {}; ///< in the order of the analyser's channels
};

/// Which stored measurements, and in which order.
struct RecordQuery
{
    enum class Order { time, temperature };

    std::vector<std::string> samples; ///< names; none for all measurements
    Order order = Order::time;
    bool bAscending = false;
};

/// What is stored of the samples of one name.
struct SampleSummary
{
    std::string strName;
    int nCount = 0;
    std::string strLast; ///< time of the last measurement, as in Record
    std::array<double, 4> means = {};
};
