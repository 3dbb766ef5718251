#include "common/tamfx/Sqlite.h"

#include "common/tamfx/DBException.h"
#include "common/tamfx/TestFolder.h"
#include "support/SystemFaults.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <pthread.h>
#include <sqlite3.h>
#include <string>
#include <sys/file.h>
#include <sys/wait.h>
#include <thread>
#include <type_traits>
#include <unistd.h>
#include <vector>

using PANFx::Testing::SystemCall;
using PANFx::Testing::SystemFaults;
using PANFx::Testing::TestFolder;
using TAMFx::Data::Collection::Table;
using TAMFx::DB::DBException;
using TAMFx::DB::Sqlite;

namespace {

constexpr int flags = 7002;
constexpr int busyTimeout = 200000;

/** Code of the exception that a call throws, SQLITE_OK when it throws none. */
template <class Call>
int codeOf(Call call)
{
    try {
        call();
        return SQLITE_OK;
    } catch (const DBException& exception) {
        EXPECT_STRNE(exception.GetMessage(), "");
        return exception.GetCode();
    }
}

class SqliteTest : public ::testing::Test
{
protected:
    void SetUp() override { m_database.Open(path().c_str(), flags); }

    std::string path() const { return m_folder.path("a.db"); }

    int run(const char* sql) { return m_database.Execute(sql, busyTimeout); }

    int codeOfRun(const char* sql)
    {
        return codeOf([&] { run(sql); });
    }

    /** All cells of a query: "a,b;c,d", a database null as "-". */
    std::string ask(const char* sql)
    {
        Table table;
        m_database.getTable(sql, table);
        std::string text;
        for (int row = 0; row < table.getRowCount(); ++row) {
            text += row > 0 ? ";" : "";
            for (int column = 0; column < table.getColumnCount(); ++column) {
                text += column > 0 ? "," : "";
                text += table.isNull(row, column) ? "-" : table.getValue(row, column);
            }
        }
        return text;
    }

    TestFolder m_folder;
    Sqlite m_database;
};

/** Waits for a moment that comes soon, or never. */
template <class Condition>
bool comesTrue(Condition condition)
{
    for (int i = 0; i < 500; ++i) {
        if (condition())
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

/** True if somebody waits for or holds the lock of a file. */
bool isLocked(const std::string& path)
{
    FILE* const file = fopen(path.c_str(), "rb");
    if (!file)
        return false;
    const bool locked = flock(fileno(file), LOCK_EX | LOCK_NB) != 0;
    fclose(file);
    return locked;
}

/** A child process that holds the lock of a database until it is told to go. */
class LockingProcess
{
public:
    explicit LockingProcess(const std::string& path)
    {
        if (pipe(m_ready) != 0 || pipe(m_go) != 0)
            throw std::runtime_error("no pipe");
        m_process = fork();
        if (m_process == 0)
            runChild(path);
        char locked = 0;
        if (read(m_ready[0], &locked, 1) != 1 || locked != '1')
            throw std::runtime_error("the child process got no lock");
    }

    ~LockingProcess()
    {
        for (const int end : {m_ready[0], m_ready[1], m_go[0], m_go[1]})
            close(end);
        waitpid(m_process, nullptr, 0);
    }

    void release()
    {
        if (write(m_go[1], "1", 1) != 1)
            throw std::runtime_error("the child process is gone");
    }

private:
    [[noreturn]] void runChild(const std::string& path)
    {
        close(m_go[1]);
        Sqlite database;
        database.Open(path.c_str(), flags);
        database.Lock();
        char go = 0;
        if (write(m_ready[1], "1", 1) != 1 || read(m_go[0], &go, 1) != 1)
            _exit(1); // dies with the lock
        database.UnLock();
        _exit(0);
    }

    int m_ready[2];
    int m_go[2];
    pid_t m_process = -1;
};

} // namespace

// ---- Open

TEST_F(SqliteTest, CreatesAMissingFile)
{
    Sqlite database;
    EXPECT_TRUE(database.Open(m_folder.path("new.db").c_str(), flags));
    database.Execute("CREATE TABLE t(x)", busyTimeout);
    database.Close();
    EXPECT_EQ(m_folder.read("new.db").rfind("SQLite format 3", 0), 0u);
}

TEST_F(SqliteTest, OpensAnExistingFileWithItsContent)
{
    run("CREATE TABLE t(x)");
    run("INSERT INTO t VALUES('kept')");
    m_database.Close();
    EXPECT_TRUE(m_database.Open(path().c_str(), flags));
    EXPECT_EQ(ask("SELECT x FROM t"), "kept");
}

TEST_F(SqliteTest, ThrowsForAFileInAMissingFolder)
{
    Sqlite database;
    EXPECT_EQ(codeOf([&] { database.Open(m_folder.path("none/a.db").c_str(), flags); }),
              SQLITE_CANTOPEN);
}

TEST_F(SqliteTest, ThrowsForADirectory)
{
    Sqlite database;
    EXPECT_EQ(codeOf([&] { database.Open(m_folder.path().c_str(), flags); }), SQLITE_CANTOPEN);
}

TEST_F(SqliteTest, ThrowsForAMissingName)
{
    Sqlite database;
    EXPECT_EQ(codeOf([&] { database.Open(nullptr, flags); }), SQLITE_CANTOPEN);
    EXPECT_EQ(codeOf([&] { database.Open("", flags); }), SQLITE_CANTOPEN);
}

TEST_F(SqliteTest, ThrowsForAFileThatMayNotBeOpened)
{
    m_database.Close();
    SystemFaults faults;
    faults.fail(SystemCall::Open, EACCES, "a.db");
    EXPECT_EQ(codeOf([&] { m_database.Open(path().c_str(), flags); }), SQLITE_CANTOPEN);
    EXPECT_GT(faults.count(SystemCall::Open, "a.db"), 0);
}

TEST_F(SqliteTest, IsClosedAfterAFailedOpen)
{
    run("CREATE TABLE t(x)");
    EXPECT_NE(codeOf([&] { m_database.Open(m_folder.path("none/a.db").c_str(), flags); }),
              SQLITE_OK);
    EXPECT_EQ(codeOfRun("INSERT INTO t VALUES(1)"), SQLITE_MISUSE);
    EXPECT_EQ(codeOf([&] { m_database.Lock(); }), SQLITE_MISUSE);
    m_database.UnLock();
    m_database.Close();
}

TEST_F(SqliteTest, LeavesOneFileForAnotherWhenItIsOpenedAgain)
{
    run("CREATE TABLE t(x)");
    run("BEGIN");
    run("INSERT INTO t VALUES(1)");
    m_database.Open(m_folder.path("b.db").c_str(), flags);
    EXPECT_EQ(codeOfRun("SELECT * FROM t"), SQLITE_ERROR);
    Sqlite other;
    other.Open(path().c_str(), flags);
    EXPECT_EQ(other.Execute("INSERT INTO t VALUES(2)", 0), 1);
}

// ---- Execute

TEST_F(SqliteTest, GivesTheNumberOfRowsThatAStatementChanged)
{
    run("CREATE TABLE t(x)");
    EXPECT_EQ(run("INSERT INTO t VALUES(1),(2),(3)"), 3);
    EXPECT_EQ(run("UPDATE t SET x = 9 WHERE x > 1"), 2);
    EXPECT_EQ(run("UPDATE t SET x = 9 WHERE x > 100"), 0);
    EXPECT_EQ(run("DELETE FROM t"), 3);
    EXPECT_EQ(run("DELETE FROM t"), 0);
}

TEST_F(SqliteTest, GivesNoRowsForStatementsThatChangeNone)
{
    run("CREATE TABLE t(x)");
    EXPECT_EQ(run("INSERT INTO t VALUES(1),(2)"), 2);
    for (const char* sql :
         {"SELECT * FROM t", "CREATE TABLE u(x)", "CREATE TABLE v AS SELECT * FROM t",
          "CREATE INDEX i ON t(x)", "ALTER TABLE t RENAME COLUMN x TO y", "DROP TABLE u", "BEGIN",
          "COMMIT", "PRAGMA user_version = 3", "VACUUM"})
        EXPECT_EQ(run(sql), 0) << sql;
    EXPECT_EQ(ask("SELECT y FROM t"), "1;2");
}

TEST_F(SqliteTest, DoesNotCountWhatTriggersChange)
{
    run("CREATE TABLE t(x)");
    run("CREATE TABLE log(x)");
    run("CREATE TRIGGER tr AFTER INSERT ON t BEGIN INSERT INTO log VALUES(1); "
        "INSERT INTO log VALUES(2); END");
    EXPECT_EQ(run("INSERT INTO t VALUES(1)"), 1);
    EXPECT_EQ(ask("SELECT count(*) FROM log"), "2");
}

TEST_F(SqliteTest, RunsAStatementToItsEnd)
{
    run("CREATE TABLE t(x)");
    EXPECT_EQ(run("INSERT INTO t VALUES(1),(2),(3) RETURNING x"), 3);
    EXPECT_EQ(ask("SELECT count(*) FROM t"), "3");
    EXPECT_EQ(codeOfRun("SELECT abs(-9223372036854775808) FROM t"), SQLITE_ERROR);
}

TEST_F(SqliteTest, TakesBlanksAndCommentsAroundAStatement)
{
    run("CREATE TABLE t(x)");
    EXPECT_EQ(run(" -- first\n /* then */ INSERT INTO t VALUES(1) ; ; \n-- and last"), 1);
    EXPECT_EQ(run("INSERT INTO t VALUES(2);\t\n"), 1);
    EXPECT_EQ(ask("SELECT x FROM t;"), "1;2");
}

TEST_F(SqliteTest, ThrowsForMoreThanOneStatementBeforeAnyRuns)
{
    run("CREATE TABLE t(x)");
    for (const char* sql :
         {"INSERT INTO t VALUES(1); INSERT INTO t VALUES(2)", "INSERT INTO t VALUES(1); SELECT 1",
          "INSERT INTO t VALUES(1);; -- x\n DELETE FROM t;", "INSERT INTO t VALUES(1); nonsense",
          "CREATE TABLE u(x); INSERT INTO u VALUES(1)"})
        EXPECT_EQ(codeOfRun(sql), SQLITE_MISUSE) << sql;
    EXPECT_EQ(ask("SELECT count(*) FROM t"), "0");
    EXPECT_EQ(ask("SELECT count(*) FROM sqlite_master"), "1");
}

TEST_F(SqliteTest, ThrowsForNoStatement)
{
    for (const char* sql : {"", "  ", ";", "-- nothing", static_cast<const char*>(nullptr)})
        EXPECT_EQ(codeOfRun(sql), SQLITE_MISUSE);
}

TEST_F(SqliteTest, ThrowsSqlitesMessageAndCode)
{
    try {
        run("INSRT INTO t VALUES(1)");
        FAIL() << "nothing thrown";
    } catch (const DBException& exception) {
        EXPECT_STREQ(exception.GetMessage(), "near \"INSRT\": syntax error");
        EXPECT_EQ(exception.GetCode(), SQLITE_ERROR);
    }
    run("CREATE TABLE t(x UNIQUE)");
    run("INSERT INTO t VALUES(1)");
    try {
        run("INSERT INTO t VALUES(1)");
        FAIL() << "nothing thrown";
    } catch (const DBException& exception) {
        EXPECT_STREQ(exception.GetMessage(), "UNIQUE constraint failed: t.x");
        EXPECT_EQ(exception.GetCode(), SQLITE_CONSTRAINT);
    }
}

TEST_F(SqliteTest, ThrowsWithoutAnOpenDatabase)
{
    Sqlite database;
    Table table;
    EXPECT_EQ(codeOf([&] { database.Execute("SELECT 1", busyTimeout); }), SQLITE_MISUSE);
    EXPECT_EQ(codeOf([&] { database.getTable("SELECT 1", table); }), SQLITE_MISUSE);
    m_database.Close();
    try {
        run("SELECT 1");
        FAIL() << "nothing thrown";
    } catch (const DBException& exception) {
        EXPECT_STREQ(exception.GetMessage(), "no database is open");
        EXPECT_EQ(exception.GetCode(), SQLITE_MISUSE);
    }
}

TEST_F(SqliteTest, WorksOnAfterAFailedStatement)
{
    run("CREATE TABLE t(x)");
    EXPECT_EQ(codeOfRun("INSERT INTO nowhere VALUES(1)"), SQLITE_ERROR);
    EXPECT_EQ(run("INSERT INTO t VALUES(1)"), 1);
}

// ---- getTable

TEST_F(SqliteTest, FillsATableWithNamesAndTexts)
{
    run("CREATE TABLE t(id INTEGER, name TEXT, ratio REAL)");
    run("INSERT INTO t VALUES(1, '\xED\x95\x9C', 0.5), (2, '', NULL)");
    Table table;
    m_database.getTable("SELECT id, name, ratio AS r FROM t ORDER BY id", table);
    ASSERT_EQ(table.getColumnCount(), 3);
    EXPECT_STREQ(table.getColumnName(0), "id");
    EXPECT_STREQ(table.getColumnName(1), "name");
    EXPECT_STREQ(table.getColumnName(2), "r");
    ASSERT_EQ(table.getRowCount(), 2);
    EXPECT_STREQ(table.getValue(0, "id"), "1");
    EXPECT_STREQ(table.getValue(0, "name"), "\xED\x95\x9C");
    EXPECT_STREQ(table.getValue(0, "r"), "0.5");
    EXPECT_FALSE(table.isNull(1, "name"));
    EXPECT_TRUE(table.isNull(1, "r"));
}

TEST_F(SqliteTest, FillsColumnNamesOfAQueryWithoutRows)
{
    run("CREATE TABLE t(id)");
    Table table;
    m_database.getTable("SELECT id FROM t", table);
    EXPECT_EQ(table.getRowCount(), 0);
    ASSERT_EQ(table.getColumnCount(), 1);
    EXPECT_STREQ(table.getColumnName(0), "id");
}

TEST_F(SqliteTest, EmptiesTheTableFirst)
{
    Table table;
    m_database.getTable("SELECT 1 AS a, 2 AS b UNION ALL SELECT 3, 4", table);
    m_database.getTable("SELECT 5 AS c", table);
    EXPECT_EQ(table.getColumnCount(), 1);
    EXPECT_EQ(table.getRowCount(), 1);
    EXPECT_STREQ(table.getValue(0, "c"), "5");
    EXPECT_EQ(codeOf([&] { m_database.getTable("nonsense", table); }), SQLITE_ERROR);
    EXPECT_EQ(table.getColumnCount(), 0);
    EXPECT_EQ(table.getRowCount(), 0);
}

TEST_F(SqliteTest, LeavesTheTableAsTheFailureLeftIt)
{
    run("CREATE TABLE t(x)");
    run("INSERT INTO t VALUES(7), (-9223372036854775807 - 1), (8)");
    Table table;
    EXPECT_EQ(codeOf([&] { m_database.getTable("SELECT abs(x) AS a FROM t", table); }),
              SQLITE_ERROR);
    EXPECT_EQ(table.getColumnIndex("a"), 0);
    ASSERT_EQ(table.getRowCount(), 1);
    EXPECT_STREQ(table.getValue(0, 0), "7");
}

TEST_F(SqliteTest, TakesOneQueryOnlyIntoATable)
{
    Table table;
    EXPECT_EQ(codeOf([&] { m_database.getTable("SELECT 1; SELECT 2", table); }), SQLITE_MISUSE);
    EXPECT_EQ(codeOf([&] { m_database.getTable("", table); }), SQLITE_MISUSE);
    m_database.getTable("SELECT 1; -- that was all", table);
    EXPECT_EQ(table.getRowCount(), 1);
}

// ---- a database that others use, or that is damaged

TEST_F(SqliteTest, WaitsAsLongAsItIsToldForALockedDatabase)
{
    run("CREATE TABLE t(x)");
    Sqlite other;
    other.Open(path().c_str(), flags);
    other.Execute("BEGIN EXCLUSIVE", busyTimeout);

    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(codeOfRun("INSERT INTO t VALUES(1)"), SQLITE_BUSY);
    const auto waited = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(waited, std::chrono::milliseconds(150));
    EXPECT_LT(waited, std::chrono::seconds(10));

    Table table; // waits as long as the last statement
    const auto tableBegin = std::chrono::steady_clock::now();
    EXPECT_EQ(codeOf([&] { m_database.getTable("SELECT * FROM t", table); }), SQLITE_BUSY);
    EXPECT_GE(std::chrono::steady_clock::now() - tableBegin, std::chrono::milliseconds(150));
}

TEST_F(SqliteTest, DoesNotWaitWithoutATimeout)
{
    run("CREATE TABLE t(x)");
    Sqlite other;
    other.Open(path().c_str(), flags);
    other.Execute("BEGIN EXCLUSIVE", busyTimeout);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(codeOf([&] { m_database.Execute("INSERT INTO t VALUES(1)", 0); }), SQLITE_BUSY);
    EXPECT_EQ(codeOf([&] { m_database.Execute("INSERT INTO t VALUES(1)", -1); }), SQLITE_BUSY);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(150));
}

TEST_F(SqliteTest, GoesOnWhenALockedDatabaseBecomesFree)
{
    run("CREATE TABLE t(x)");
    Sqlite other;
    other.Open(path().c_str(), flags);
    other.Execute("BEGIN EXCLUSIVE", busyTimeout);
    std::thread freeing([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        other.Close();
    });
    EXPECT_EQ(m_database.Execute("INSERT INTO t VALUES(1)", 30000000), 1);
    freeing.join();
}

TEST_F(SqliteTest, ThrowsForAFileThatIsNoDatabase)
{
    m_database.Close();
    m_folder.write("a.db", std::string(4096, 'x'));
    EXPECT_TRUE(m_database.Open(path().c_str(), flags));
    EXPECT_EQ(codeOfRun("CREATE TABLE t(x)"), SQLITE_NOTADB);
    EXPECT_EQ(codeOf([&] { ask("SELECT 1 FROM t"); }), SQLITE_NOTADB);
}

TEST_F(SqliteTest, ThrowsForADatabaseCutShort)
{
    run("CREATE TABLE t(x)");
    run("INSERT INTO t VALUES(hex(randomblob(20000)))");
    m_database.Close();
    std::filesystem::resize_file(path(), std::filesystem::file_size(path()) / 2);
    EXPECT_TRUE(m_database.Open(path().c_str(), flags));
    EXPECT_EQ(codeOf([&] { ask("SELECT x FROM t"); }), SQLITE_CORRUPT);
}

TEST_F(SqliteTest, ReadsButDoesNotWriteAReadOnlyDatabase)
{
    run("CREATE TABLE t(x)");
    run("INSERT INTO t VALUES('kept')");
    m_database.Close();
    SystemFaults faults; // refuses the attempt to open for writing; SQLite tries reading then
    faults.fail(SystemCall::Open, EACCES, "a.db", 0, 1);
    EXPECT_TRUE(m_database.Open(path().c_str(), flags));
    EXPECT_EQ(ask("SELECT x FROM t"), "kept");
    EXPECT_EQ(codeOfRun("INSERT INTO t VALUES(1)"), SQLITE_READONLY);
}

// ---- Close and UnLock

TEST_F(SqliteTest, TakesCloseTwiceAndCloseWithoutOpen)
{
    m_database.Close();
    m_database.Close();
    Sqlite never;
    never.Close();
    never.Close();
    EXPECT_TRUE(never.Open(path().c_str(), flags));
}

TEST_F(SqliteTest, TakesUnLockWithoutLockAndTwice)
{
    m_database.UnLock();
    m_database.Lock();
    m_database.UnLock();
    m_database.UnLock();
    EXPECT_FALSE(isLocked(path() + "-lock"));
    Sqlite never;
    never.UnLock();
    EXPECT_EQ(run("CREATE TABLE t(x)"), 0);
}

TEST_F(SqliteTest, TakesBackAnOpenTransactionOnClose)
{
    run("CREATE TABLE t(x)");
    run("BEGIN");
    run("INSERT INTO t VALUES(1)");
    m_database.Close();
    m_database.Open(path().c_str(), flags);
    EXPECT_EQ(ask("SELECT count(*) FROM t"), "0");
}

TEST_F(SqliteTest, GivesEverythingBackWhenItDies)
{
    const auto openFiles = [] {
        const std::filesystem::directory_iterator files("/proc/self/fd");
        return std::distance(begin(files), end(files));
    };
    const auto before = openFiles();
    {
        auto database = std::make_unique<Sqlite>();
        database->Open(path().c_str(), flags);
        database->Execute("CREATE TABLE t(x)", busyTimeout);
        database->Lock();
        EXPECT_TRUE(isLocked(path() + "-lock"));
    }
    EXPECT_EQ(openFiles(), before);
    EXPECT_FALSE(isLocked(path() + "-lock"));
}

// ---- Lock

TEST_F(SqliteTest, LocksBesideTheDatabaseAndTouchesItNot)
{
    run("CREATE TABLE t(x)");
    SystemFaults faults;
    m_database.Lock();
    EXPECT_EQ(faults.count(SystemCall::Open, "a.db"), 0);
    EXPECT_EQ(faults.count(SystemCall::Open, "a.db-lock"), 1);
    EXPECT_TRUE(isLocked(path() + "-lock"));
    EXPECT_EQ(run("INSERT INTO t VALUES(1)"), 1);
    m_database.UnLock();
    EXPECT_FALSE(isLocked(path() + "-lock"));
}

TEST_F(SqliteTest, IsNotBlockedByItsOwnLock)
{
    m_database.Lock();
    m_database.Lock();
    m_database.UnLock();
    EXPECT_FALSE(isLocked(path() + "-lock"));
}

TEST_F(SqliteTest, KeepsItsLockOverClose)
{
    m_database.Lock();
    m_database.Close();
    EXPECT_TRUE(isLocked(path() + "-lock"));
    m_database.UnLock();
    EXPECT_FALSE(isLocked(path() + "-lock"));
}

TEST_F(SqliteTest, MayUseTheDatabaseWhileAnotherHoldsTheLockOnly)
{
    run("CREATE TABLE t(x)");
    Sqlite other;
    other.Open(path().c_str(), flags);
    other.Lock();
    EXPECT_EQ(run("INSERT INTO t VALUES(1)"), 1);
}

TEST_F(SqliteTest, ExcludesAnotherThreadByItsLock)
{
    std::atomic<bool> locked{false};
    m_database.Lock();
    std::thread thread([&] {
        Sqlite other;
        other.Open(path().c_str(), flags);
        other.Lock();
        locked = true;
        other.UnLock();
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_FALSE(locked);
    m_database.UnLock();
    thread.join();
    EXPECT_TRUE(locked);
}

TEST_F(SqliteTest, LetsNoTwoThreadsInAtATime)
{
    std::atomic<int> inside{0};
    std::atomic<int> meetings{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            Sqlite database;
            database.Open(path().c_str(), flags);
            for (int round = 0; round < 50; ++round) {
                database.Lock();
                meetings += ++inside > 1 ? 1 : 0;
                std::this_thread::yield();
                --inside;
                database.UnLock();
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(meetings, 0);
}

TEST_F(SqliteTest, ExcludesAnotherProcessByItsLock)
{
    LockingProcess other(path());
    std::atomic<bool> locked{false};
    std::thread thread([&] {
        m_database.Lock();
        locked = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_FALSE(locked);
    other.release();
    thread.join();
    EXPECT_TRUE(locked);
}

TEST_F(SqliteTest, GetsTheLockOfAProcessThatDied)
{
    {
        const LockingProcess other(path()); // gets no word and dies without UnLock
    }
    m_database.Lock();
    EXPECT_TRUE(isLocked(path() + "-lock"));
}

TEST_F(SqliteTest, LocksTheSameFileByAnyOfItsPaths)
{
    std::filesystem::create_symlink("a.db", m_folder.path("link.db"));
    Sqlite other;
    other.Open(m_folder.path("link.db").c_str(), flags);
    other.Lock();
    EXPECT_TRUE(isLocked(path() + "-lock"));
    EXPECT_FALSE(std::filesystem::exists(m_folder.path("link.db-lock")));
}

TEST_F(SqliteTest, LocksNoOtherDatabase)
{
    Sqlite other;
    other.Open(m_folder.path("b.db").c_str(), flags);
    other.Lock();
    m_database.Lock();
    EXPECT_TRUE(isLocked(m_folder.path("a.db-lock")));
    EXPECT_TRUE(isLocked(m_folder.path("b.db-lock")));
}

TEST_F(SqliteTest, GoesOnWaitingForTheLockAfterASignal)
{
    struct sigaction action = {};
    struct sigaction before = {};
    static std::atomic<int> signals{0};
    action.sa_handler = [](int) { ++signals; };
    ASSERT_EQ(sigaction(SIGUSR1, &action, &before), 0); // without SA_RESTART
    Sqlite other;
    other.Open(path().c_str(), flags);
    other.Lock();
    std::atomic<bool> locked{false};
    std::atomic<bool> failed{false};
    std::thread thread([&] {
        failed = codeOf([&] { m_database.Lock(); }) != SQLITE_OK;
        locked = true;
    });
    for (int i = 1; i <= 5; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        pthread_kill(thread.native_handle(), SIGUSR1);
        EXPECT_TRUE(comesTrue([&] { return signals == i; }));
    }
    EXPECT_FALSE(locked);
    other.UnLock();
    thread.join();
    EXPECT_TRUE(locked);
    EXPECT_FALSE(failed);
    sigaction(SIGUSR1, &before, nullptr);
}

TEST_F(SqliteTest, LocksTheFileThatIsThereWhenItsTurnComes)
{
    Sqlite first;
    first.Open(path().c_str(), flags);
    first.Lock();
    std::thread thread([&] { m_database.Lock(); });
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    std::filesystem::remove(path() + "-lock");
    first.UnLock();
    thread.join();
    EXPECT_TRUE(isLocked(path() + "-lock"));
}

TEST_F(SqliteTest, ThrowsWhenTheLockFileCannotBeOpened)
{
    SystemFaults faults;
    faults.fail(SystemCall::Open, EACCES, "a.db-lock", 0, 1);
    try {
        m_database.Lock();
        FAIL() << "nothing thrown";
    } catch (const DBException& exception) {
        EXPECT_EQ(exception.GetMessage(), std::string("cannot lock a.db-lock: Permission denied"));
        EXPECT_EQ(exception.GetCode(), SQLITE_CANTOPEN);
    }
    m_database.UnLock();
    m_database.Lock();
    EXPECT_TRUE(isLocked(path() + "-lock"));
}

TEST_F(SqliteTest, ThrowsForALockWithoutADatabase)
{
    Sqlite never;
    EXPECT_EQ(codeOf([&] { never.Lock(); }), SQLITE_MISUSE);
}

// ---- a stand-in for it

TEST_F(SqliteTest, MayBeReplacedByAStandIn)
{
    class StandIn : public Sqlite
    {
    public:
        explicit StandIn(std::string& calls)
            : m_calls(calls)
        {
        }
        ~StandIn() override { m_calls += "d"; }
        bool Open(const char*, int) override { return note('O') == 'O'; }
        int Execute(const char*, int) override { return note('E'); }
        void getTable(const char*, Table&) override { note('T'); }
        void Lock() override { note('L'); }
        void UnLock() override { note('U'); }
        void Close() override { note('C'); }

    private:
        char note(char call)
        {
            m_calls += call;
            return call;
        }

        std::string& m_calls;
    };
    std::string calls;
    {
        const std::unique_ptr<Sqlite> database = std::make_unique<StandIn>(calls);
        Table table;
        EXPECT_TRUE(database->Open("nowhere", flags));
        EXPECT_EQ(database->Execute("nothing", 0), 'E');
        database->getTable("nothing", table);
        database->Lock();
        database->UnLock();
        database->Close();
    }
    EXPECT_EQ(calls, "OETLUCd");
    EXPECT_TRUE(std::has_virtual_destructor_v<Sqlite>);
    EXPECT_FALSE(std::is_copy_constructible_v<Sqlite>);
}
