#include "windows/Dao.h"

#include "common/tamfx/Sqlite.h"
#include "common/tamfx/Table.h"
#include "support/PanelTest.h"
#include "support/SystemFaults.h"

#include <QDir>

#include <cerrno>
#include <chrono>
#include <dirent.h>
#include <fstream>
#include <future>
#include <memory>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace PANFx::Testing;
using PANFx::Windows::Dao;
using TAMFx::Data::Collection::Table;

namespace {

using Strings = std::vector<std::string>;

const std::string database = "/data/db/OSKDB.db";

// Against the real thing, in the instrument's place for it.
class DaoDatabaseTest : public PanelTest
{
protected:
    std::string real() const { return realPath(database); }

    void makeResults() { EXPECT_EQ(dao.execDB("CREATE TABLE results (value TEXT)"), 0); }

    /** The rows of a table "results", read without the class under test. */
    Strings results()
    {
        Strings values;
        sqlite3* connection = nullptr;
        EXPECT_EQ(sqlite3_open_v2(real().c_str(), &connection, SQLITE_OPEN_READONLY, nullptr),
                  SQLITE_OK);
        sqlite3_exec(
            connection, "SELECT value FROM results ORDER BY rowid",
            [](void* found, int, char** texts, char**) {
                static_cast<Strings*>(found)->emplace_back(texts[0] ? texts[0] : "NULL");
                return 0;
            },
            &values, nullptr);
        sqlite3_close(connection);
        return values;
    }

    void expectFailure(const std::string& operation, const std::string& text)
    {
        log().expectError("[" + operation + "] Exception : " + text, 1, "Dao");
    }

    /** Each operation fails with the same text, at its own level and with its own result. */
    void expectAllToFail(const std::string& text, const char* statement = "DELETE FROM results",
                         const char* query = "SELECT * FROM results")
    {
        log().startHere();
        expectFailure("execDB", text);
        EXPECT_EQ(dao.execDB(statement), 0);
        expectFailure("execDBwithLock", text);
        EXPECT_EQ(dao.execDBwithLock(statement), 0);
        Table table;
        EXPECT_FALSE(dao.execDBTable(query, table));
        EXPECT_EQ(log().count("[D] [execDBTable] Exception : " + text, "Dao"), 1);
    }

    /** How many descriptors of this process lead to the database or its lock. */
    int openDescriptors() const
    {
        int found = 0;
        for (int descriptor = 0; descriptor < 1024; ++descriptor) {
            char path[4096];
            const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
            const ssize_t size = readlink(link.c_str(), path, sizeof path);
            if (size > 0 &&
                std::string(path, static_cast<size_t>(size)).find("OSKDB.db") != std::string::npos)
                ++found;
        }
        return found;
    }

    /** Whether somebody waits for the lock file, as the system tells. */
    bool somebodyWaitsForTheLock() const
    {
        struct stat lockFile;
        if (stat((real() + "-lock").c_str(), &lockFile) != 0)
            return false;
        std::ifstream locks("/proc/locks");
        std::string line;
        while (std::getline(locks, line)) {
            if (line.find("-> FLOCK") != std::string::npos &&
                line.find(":" + std::to_string(lockFile.st_ino) + " ") != std::string::npos)
                return true;
        }
        return false;
    }

    bool waitForAWaiter() const
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!somebodyWaitsForTheLock()) {
            if (std::chrono::steady_clock::now() > end)
                return false;
            std::this_thread::yield();
        }
        return true;
    }

    Dao dao;
};

TEST_F(DaoDatabaseTest, writesAndReads)
{
    EXPECT_FALSE(fileExists(database));
    makeResults();
    EXPECT_TRUE(fileExists(database));
    EXPECT_EQ(dao.execDB("INSERT INTO results VALUES ('6.2'), ('\xEA\xB0\x80'), (NULL)"), 3);
    EXPECT_EQ(dao.execDBwithLock("UPDATE results SET value = '7' WHERE value = '6.2'"), 1);
    EXPECT_EQ(results(), (Strings{"7", "\xEA\xB0\x80", "NULL"}));

    Table table;
    EXPECT_TRUE(dao.execDBTable("SELECT rowid AS number, value FROM results", table));
    EXPECT_EQ(table.getRowCount(), 3);
    EXPECT_EQ(table.getColumnCount(), 2);
    EXPECT_STREQ(table.getValue(1, "number"), "2");
    EXPECT_STREQ(table.getValue(1, "value"), "\xEA\xB0\x80");
    EXPECT_TRUE(table.isNull(2, "value"));
    EXPECT_EQ(dao.execDB("DELETE FROM results"), 3);
}

TEST_F(DaoDatabaseTest, holdsNoConnectionAcrossStatements)
{
    makeResults();
    EXPECT_EQ(openDescriptors(), 0);
    dao.execDBwithLock("INSERT INTO results VALUES ('1')");
    Table table;
    dao.execDBTable("SELECT * FROM results", table);
    EXPECT_EQ(openDescriptors(), 0);

    expectFailure("execDBwithLock", "near \"nonsense\": syntax error");
    dao.execDBwithLock("nonsense");
    EXPECT_EQ(openDescriptors(), 0);

    EXPECT_TRUE(dao.getDBConnection());
    EXPECT_GT(openDescriptors(), 0);
    dao.releaseDBConnection();
    EXPECT_EQ(openDescriptors(), 0);
}

TEST_F(DaoDatabaseTest, keepsOneConnectionObject)
{
    makeResults();
    TAMFx::DB::Sqlite* const connection = dao.m_pConnection;
    ASSERT_NE(connection, nullptr);
    dao.execDB("DELETE FROM results");
    EXPECT_EQ(dao.m_pConnection, connection);
}

TEST_F(DaoDatabaseTest, aBadStatement)
{
    makeResults();
    expectAllToFail("no such table: reagents", "DELETE FROM reagents", "SELECT * FROM reagents");
    expectAllToFail("near \"nonsense\": syntax error", "nonsense", "nonsense");
    EXPECT_EQ(dao.execDB("INSERT INTO results VALUES ('1')"), 1) << "the next one works";
}

TEST_F(DaoDatabaseTest, aBrokenRule)
{
    dao.execDB("CREATE TABLE results (value TEXT UNIQUE)");
    EXPECT_EQ(dao.execDB("INSERT INTO results VALUES ('1')"), 1);
    expectFailure("execDB", "UNIQUE constraint failed: results.value");
    EXPECT_EQ(dao.execDB("INSERT INTO results VALUES ('1')"), 0);
    EXPECT_EQ(results(), Strings{"1"});
}

TEST_F(DaoDatabaseTest, noStatementAndMoreThanOne)
{
    makeResults();
    expectAllToFail("no statement", "", " -- nothing");
    expectAllToFail("no statement", nullptr, nullptr);
    expectAllToFail("more than one statement",
                    "INSERT INTO results VALUES ('1'); INSERT INTO results VALUES ('2')",
                    "SELECT 1; SELECT 2");
    EXPECT_EQ(results(), Strings());
}

TEST_F(DaoDatabaseTest, aMissingDirectory)
{
    QDir(QString::fromStdString(realPath("/data/db"))).removeRecursively();
    expectAllToFail("unable to open database file");
    EXPECT_FALSE(fileExists("/data/db"));
}

TEST_F(DaoDatabaseTest, aDirectoryInTheDatabasesPlace)
{
    QDir().mkpath(QString::fromStdString(real()));
    expectAllToFail("unable to open database file");
}

TEST_F(DaoDatabaseTest, aFileThatIsNoDatabase)
{
    writeFile(database, std::string(4096, 'x'));
    expectAllToFail("file is not a database");
    EXPECT_EQ(readFile(database), std::string(4096, 'x')) << "and stays what it is";
    EXPECT_EQ(openDescriptors(), 0);
}

TEST_F(DaoDatabaseTest, aTornDatabase)
{
    makeResults();
    EXPECT_EQ(dao.execDB("WITH RECURSIVE counter(n) AS (VALUES (1) UNION ALL SELECT n + 1 FROM "
                         "counter WHERE n < 200) INSERT INTO results SELECT hex(randomblob(50)) "
                         "FROM counter"),
              200);
    std::string bytes = readFile(database);
    ASSERT_GT(bytes.size(), 8192u);
    // the head stays whole, the pages behind it are overwritten
    for (size_t i = 4096; i < bytes.size(); ++i)
        bytes[i] = '\x5a';
    writeFile(database, bytes);
    expectAllToFail("database disk image is malformed",
                    "UPDATE results SET value = '' WHERE value = 'x'");
}

TEST_F(DaoDatabaseTest, anEmptyFileIsAnEmptyDatabase)
{
    writeFile(database, "");
    makeResults();
    EXPECT_EQ(results(), Strings());
}

TEST_F(DaoDatabaseTest, aReadOnlyDatabaseIsReadAndNotWritten)
{
    makeResults();
    dao.execDB("INSERT INTO results VALUES ('1')");
    const std::string before = readFile(database);
    SystemFaults system;
    const auto refuseWriting = [&system] {
        // the first attempt is for writing; SQLite makes a second one for reading
        system.fail(SystemCall::Open, EACCES, "OSKDB.db", 0, 1);
    };
    refuseWriting();
    expectFailure("execDB", "attempt to write a readonly database");
    EXPECT_EQ(dao.execDB("DELETE FROM results"), 0);
    refuseWriting();
    expectFailure("execDBwithLock", "attempt to write a readonly database");
    EXPECT_EQ(dao.execDBwithLock("DELETE FROM results"), 0);
    refuseWriting();
    Table table;
    EXPECT_TRUE(dao.execDBTable("SELECT * FROM results", table));
    EXPECT_EQ(table.getRowCount(), 1);
    EXPECT_EQ(readFile(database), before);
}

TEST_F(DaoDatabaseTest, aDatabaseThatMayNotBeOpened)
{
    SystemFaults system;
    system.fail(SystemCall::Open, EACCES, "OSKDB.db");
    expectAllToFail("unable to open database file");
}

TEST_F(DaoDatabaseTest, aLockFileThatCannotBeMade)
{
    makeResults();
    SystemFaults system;
    system.fail(SystemCall::Open, EROFS, "OSKDB.db-lock");
    expectFailure("execDBwithLock", "cannot lock OSKDB.db-lock: Read-only file system");
    EXPECT_EQ(dao.execDBwithLock("INSERT INTO results VALUES ('1')"), 0);
    EXPECT_EQ(results(), Strings()) << "nothing runs without the lock";
    EXPECT_EQ(dao.execDB("INSERT INTO results VALUES ('2')"), 1);
}

// ---- others at the same file

TEST_F(DaoDatabaseTest, aDatabaseThatAnotherHoldsIsWaitedForAndThenGivenUp)
{
    makeResults();
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(real().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);

    const auto start = std::chrono::steady_clock::now();
    expectFailure("execDB", "database is locked");
    EXPECT_EQ(dao.execDB("INSERT INTO results VALUES ('1')"), 0);
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_GE(waited, std::chrono::milliseconds(150)) << "200000 microseconds";
    EXPECT_LT(waited, std::chrono::seconds(10));

    expectFailure("execDBwithLock", "database is locked");
    EXPECT_EQ(dao.execDBwithLock("INSERT INTO results VALUES ('1')"), 0);
    Table table;
    EXPECT_FALSE(dao.execDBTable("SELECT * FROM results", table));
    EXPECT_EQ(log().count("[D] [execDBTable] Exception : database is locked", "Dao"), 1);

    ASSERT_EQ(sqlite3_exec(other, "COMMIT", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(other);
    EXPECT_EQ(dao.execDB("INSERT INTO results VALUES ('2')"), 1);
    EXPECT_EQ(results(), Strings{"2"});
}

TEST_F(DaoDatabaseTest, statementsWithLockExcludeEachOtherBetweenThreads)
{
    makeResults();
    TAMFx::DB::Sqlite holder;
    holder.Open(real().c_str(), 7002);
    holder.Lock();
    auto waiting = std::async(std::launch::async, [] {
        return Dao().execDBwithLock("INSERT INTO results VALUES ('second')");
    });
    EXPECT_TRUE(waitForAWaiter());
    EXPECT_EQ(dao.execDB("INSERT INTO results VALUES ('first')"), 1)
        << "the form without the lock does not ask for it";
    holder.UnLock();
    EXPECT_EQ(waiting.get(), 1);
    EXPECT_EQ(results(), (Strings{"first", "second"}));
}

TEST_F(DaoDatabaseTest, statementsWithLockExcludeEachOtherBetweenProcesses)
{
    makeResults();
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        // holds the lock until somebody waits for it, and writes before it lets go
        TAMFx::DB::Sqlite holder;
        holder.Open(real().c_str(), 7002);
        holder.Lock();
        const bool told = write(ready[1], "x", 1) == 1;
        const bool waited = told && waitForAWaiter();
        const int written = holder.Execute("INSERT INTO results VALUES ('child')", 200000);
        holder.UnLock();
        _exit(waited && written == 1 ? 0 : 1);
    }
    ASSERT_GT(child, 0);
    char byte = 0;
    EXPECT_EQ(read(ready[0], &byte, 1), 1);
    EXPECT_EQ(dao.execDBwithLock("INSERT INTO results VALUES ('parent')"), 1);
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << "nobody waited";
    EXPECT_EQ(results(), (Strings{"child", "parent"}));
    close(ready[0]);
    close(ready[1]);
}

TEST_F(DaoDatabaseTest, aProcessThatDiesGivesTheLockBack)
{
    makeResults();
    const pid_t child = fork();
    if (child == 0) {
        auto* const holder = new TAMFx::DB::Sqlite;
        holder->Open(real().c_str(), 7002);
        holder->Lock();
        _exit(0);
    }
    ASSERT_GT(child, 0);
    waitpid(child, nullptr, 0);
    EXPECT_EQ(dao.execDBwithLock("INSERT INTO results VALUES ('1')"), 1);
}

TEST_F(DaoDatabaseTest, aFailedStatementWithLockLeavesNoLockBehind)
{
    makeResults();
    expectFailure("execDBwithLock", "near \"nonsense\": syntax error");
    dao.execDBwithLock("nonsense");
    EXPECT_EQ(Dao().execDBwithLock("INSERT INTO results VALUES ('1')"), 1);
}

TEST_F(DaoDatabaseTest, aHundredStatementsLeaveNothingOpen)
{
    makeResults();
    const auto descriptors = [] {
        int found = 0;
        DIR* const folder = opendir("/proc/self/fd");
        while (readdir(folder))
            ++found;
        closedir(folder);
        return found;
    };
    const int before = descriptors();
    for (int i = 0; i < 50; ++i) {
        Dao another;
        EXPECT_EQ(another.execDBwithLock("INSERT INTO results VALUES ('1')"), 1);
        Table table;
        EXPECT_TRUE(another.execDBTable("SELECT * FROM results", table));
        EXPECT_EQ(table.getRowCount(), i + 1);
    }
    EXPECT_EQ(descriptors(), before);
}

} // namespace
