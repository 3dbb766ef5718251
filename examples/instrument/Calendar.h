#pragma once

#include <QDate>

#include <string>

/// Dates in one of three orders: "mdy", "dmy" or "ymd".

/// The number of an order: 0, 1 and 2.
unsigned int orderNumber(const std::string& strOrder);

/// 12/31/2026, 31/12/2026 or 2026-12-31.
std::string dateText(const QDate& date, const std::string& strOrder);

/// A stored time, "2026-12-31 10:42", without its year and in that order: "31/12 10:42".
std::string shortTimeText(const std::string& strTime, const std::string& strOrder);

/// What a date field holds, such as "12/31/2026"; an invalid date when parts are missing.
QDate typedDate(const std::string& strText, const std::string& strOrder);
