#pragma once

#include "Record.h"

#include "windows/Dao.h"

#include <QDateTime>

/// The stored measurements, in the instrument's database. On its first start an instrument has
/// those of the last weeks, so that there is something to look at. What the database refuses is
/// told in the log; a question then has an empty answer.
class RecordStore : private PANFx::Windows::Dao
{
public:
    /// Makes and fills the table if there is none. When the database doesn't tell, nothing is
    /// touched.
    RecordStore();

    /// Stores a measurement; one without a name gets the next number in its place. False if the
    /// database refuses.
    bool store(const QDateTime& time, std::string strSample, const std::array<double, 4>& values);

    int count(const std::vector<std::string>& samples);

    /// So many measurements from that one on, which is counted from 0; none for all of them.
    std::vector<Record> records(const RecordQuery& query, int nFirst = 0, int nCount = -1);

    /// The mean values; all are 0 where nothing is stored.
    std::array<double, 4> means(const std::vector<std::string>& samples);

    /// All names, in the order of the alphabet.
    std::vector<SampleSummary> samples();

    /// The names that were used last, the last one first.
    std::vector<std::string> recentSamples(int nCount);

    /// Removes measurements. False if the database refuses, or has none of them.
    bool remove(const std::vector<Record>& records);

    /// Removes everything and stores what an instrument has on its first start.
    void startAnew();

private:
    void makeTable();
    bool insert(const std::vector<Record>& records);

    /// The number of the next sample without a name, "W-0149", or "" if the database refuses.
    std::string nextNumber();
};
