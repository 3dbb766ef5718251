#include "RecordStore.h"

#include "FirstRecords.h"

#include "common/tamfx/Table.h"

#include <QString>

using TAMFx::Data::Collection::Table;

namespace {

const char columns[] = "time, sample, ph, cond, oxygen, temp";
const char means[] = "avg(ph), avg(cond), avg(oxygen), avg(temp)";

/// A text as it stands in a statement.
std::string quoted(const std::string& strText)
{
    std::string strResult = "'";
    for (const char c : strText)
        strResult += c == '\'' ? std::string("''") : std::string(1, c);
    return strResult + "'";
}

template <class Values, class Text>
std::string joined(const Values& values, const Text& text)
{
    std::string strResult;
    for (const auto& value : values)
        strResult += (strResult.empty() ? "" : ", ") + text(value);
    return strResult;
}

// Numbers go in and out by Qt, for which a point is a point in every language.
std::string numberText(double dValue)
{
    return QString::number(dValue, 'g', 10).toStdString();
}

std::string where(const std::vector<std::string>& samples)
{
    return samples.empty() ? "" : " WHERE sample IN (" + joined(samples, quoted) + ")";
}

std::string orderBy(const RecordQuery& query)
{
    const std::string strDirection = query.bAscending ? " ASC" : " DESC";
    const std::string strTime = "time" + strDirection + ", id" + strDirection;
    return " ORDER BY " +
           (query.order == RecordQuery::Order::time ? "" : "temp" + strDirection + ", ") + strTime;
}

/// Four values from that column on.
std::array<double, 4> valuesOf(const Table& table, int nRow, int nColumn)
{
    std::array<double, 4> values = {};
    for (double& dValue : values)
        dValue = QString::fromUtf8(table.getValue(nRow, nColumn++)).toDouble();
    return values;
}

int intOf(const Table& table, int nRow, int nColumn)
{
    return QString::fromUtf8(table.getValue(nRow, nColumn)).toInt();
}

} // namespace

// A question without an answer says nothing about the table: then all stays as it is.
RecordStore::RecordStore()
{
    Table table;
    if (!execDBTable("SELECT name FROM sqlite_master WHERE name = 'measurement'", table)) {
        m_logger.WriteError("[%s] cannot look for the measurements", "RecordStore");
        return;
    }
    if (table.getRowCount() == 0) {
        makeTable();
        insert(firstRecords(QDate::currentDate()));
    }
}

void RecordStore::makeTable()
{
    execDB("CREATE TABLE IF NOT EXISTS measurement (id INTEGER PRIMARY KEY, time TEXT, "
           "sample TEXT, ph REAL, cond REAL, oxygen REAL, temp REAL)");
}

void RecordStore::startAnew()
{
    makeTable();
    execDB("DELETE FROM measurement");
    insert(firstRecords(QDate::currentDate()));
}

// One statement is one opening of the database and one transaction, whatever it stores.
bool RecordStore::insert(const std::vector<Record>& records)
{
    const auto row = [](const Record& record) {
        return "(" + quoted(record.strTime) + ", " + quoted(record.strSample) + ", " +
               joined(record.values, numberText) + ")";
    };
    const std::string strStatement =
        std::string("INSERT INTO measurement (") + columns + ") VALUES " + joined(records, row);
    return execDBwithLock(strStatement.c_str()) > 0;
}

bool RecordStore::store(const QDateTime& time, std::string strSample,
                        const std::array<double, 4>& values)
{
    Record record;
    record.strTime = time.toString(QStringLiteral("yyyy-MM-dd HH:mm")).toStdString();
    record.strSample = strSample.empty() ? nextNumber() : std::move(strSample);
    record.values = values;
    return !record.strSample.empty() && insert({record});
}

// Numbers have four digits and, behind 9999, more. What is longer than any count has been typed.
std::string RecordStore::nextNumber()
{
    Table table;
    if (!execDBTable("SELECT max(CAST(substr(sample, 3) AS INTEGER)) FROM measurement "
                     "WHERE sample GLOB 'W-[0-9][0-9][0-9][0-9]*' "
                     "AND substr(sample, 3) NOT GLOB '*[^0-9]*' AND length(sample) <= 12",
                     table))
        return "";
    const long long nLast = QString::fromUtf8(table.getValue(0, 0)).toLongLong();
    return QString::asprintf("W-%04lld", nLast + 1).toStdString();
}

int RecordStore::count(const std::vector<std::string>& samples)
{
    Table table;
    execDBTable(("SELECT count(*) FROM measurement" + where(samples)).c_str(), table);
    return intOf(table, 0, 0);
}

std::vector<Record> RecordStore::records(const RecordQuery& query, int nFirst, int nCount)
{
    const std::string strStatement = std::string("SELECT id, ") + columns + " FROM measurement" +
                                     where(query.samples) + orderBy(query) + " LIMIT " +
                                     std::to_string(nCount) + " OFFSET " + std::to_string(nFirst);
    Table table;
    execDBTable(strStatement.c_str(), table);
    std::vector<Record> records(static_cast<std::size_t>(table.getRowCount()));
    for (int n = 0; n < table.getRowCount(); ++n) {
        Record& record = records[static_cast<std::size_t>(n)];
        record.nID = QString::fromUtf8(table.getValue(n, 0)).toLongLong();
        record.strTime = table.getValue(n, 1);
        record.strSample = table.getValue(n, 2);
        record.values = valuesOf(table, n, 3);
    }
    return records;
}

std::array<double, 4> RecordStore::means(const std::vector<std::string>& samples)
{
    Table table;
    execDBTable((std::string("SELECT ") + ::means + " FROM measurement" + where(samples)).c_str(),
                table);
    return valuesOf(table, 0, 0);
}

std::vector<SampleSummary> RecordStore::samples()
{
    Table table;
    execDBTable((std::string("SELECT sample, count(*), max(time), ") + ::means +
                 " FROM measurement GROUP BY sample ORDER BY sample")
                    .c_str(),
                table);
    std::vector<SampleSummary> samples(static_cast<std::size_t>(table.getRowCount()));
    for (int n = 0; n < table.getRowCount(); ++n)
        samples[static_cast<std::size_t>(n)] = {table.getValue(n, 0), intOf(table, n, 1),
                                                table.getValue(n, 2), valuesOf(table, n, 3)};
    return samples;
}

std::vector<std::string> RecordStore::recentSamples(int nCount)
{
    Table table;
    execDBTable(("SELECT sample FROM measurement GROUP BY sample "
                 "ORDER BY max(time) DESC, max(id) DESC LIMIT " +
                 std::to_string(nCount))
                    .c_str(),
                table);
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(table.getRowCount()));
    for (int n = 0; n < table.getRowCount(); ++n)
        names.emplace_back(table.getValue(n, 0));
    return names;
}

bool RecordStore::remove(const std::vector<Record>& records)
{
    if (records.empty())
        return true;
    const auto id = [](const Record& record) { return std::to_string(record.nID); };
    const std::string strStatement =
        "DELETE FROM measurement WHERE id IN (" + joined(records, id) + ")";
    return execDBwithLock(strStatement.c_str()) > 0;
}
