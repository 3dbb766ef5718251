#pragma once

#include "Record.h"

#include <QDate>

/// Four weeks of plausible measurements up to the day before that one, oldest first: samples with
/// a name, and on the last day some with a number in its place.
std::vector<Record> firstRecords(const QDate& today);
