#include "windows/Dao.h"

#include "common/tamfx/DBException.h"
#include "common/tamfx/Sqlite.h"
#include "common/tamfx/Table.h"
#include "support/PanelTest.h"

#include <functional>
#include <stdexcept>
#include <syslog.h>
#include <type_traits>

using namespace PANFx::Testing;
using PANFx::Windows::Dao;
using TAMFx::Data::Collection::Table;
using TAMFx::DB::DBException;

namespace {

using Strings = std::vector<std::string>;

/** Writes down what a data access object asks of its connection, and fails where told to. */
class FakeSqlite : public TAMFx::DB::Sqlite
{
public:
    explicit FakeSqlite(Strings& calls)
        : m_calls(calls)
    {
    }
    ~FakeSqlite() override { m_calls.emplace_back("deleted"); }

    bool Open(const char* path, int flags) override
    {
        note("Open " + std::string(path) + " " + std::to_string(flags));
        return m_opened;
    }
    int Execute(const char* sql, int timeout) override
    {
        note("Execute " + std::string(sql) + " " + std::to_string(timeout));
        return m_changed;
    }
    void getTable(const char* sql, Table& table) override
    {
        m_table = &table;
        table.addColumn("half");
        note("getTable " + std::string(sql));
    }
    void Lock() override { note("Lock"); }
    void UnLock() override { note("UnLock"); }
    void Close() override { note("Close"); }

    bool m_opened = true;
    int m_changed = 0;
    const Table* m_table = nullptr;

    std::string m_failAt;          ///< the first call that begins like this, once
    std::function<void()> m_raise; ///< does it

private:
    void note(const std::string& call)
    {
        m_calls.push_back(call);
        if (!m_failAt.empty() && call.compare(0, m_failAt.size(), m_failAt) == 0) {
            m_failAt.clear();
            m_raise();
        }
    }

    Strings& m_calls;
};

class DaoTest : public PanelTest
{
private:
    Strings m_calls; // before dao, whose end is noted in it

protected:
    DaoTest()
    {
        fake = new FakeSqlite(m_calls);
        fake->m_raise = [] { throw DBException("no such table: reagents", 1); };
        dao.m_pConnection = fake;
        open = "Open " + realPath("/data/db/OSKDB.db") + " 7002";
    }

    Strings calls() { return std::exchange(m_calls, {}); }

    Dao dao;
    FakeSqlite* fake; ///< the connection of dao, which owns it
    std::string open;
};

// ---- what is asked of the connection

TEST_F(DaoTest, opensRunsAndClosesForOneStatement)
{
    fake->m_changed = 7;
    EXPECT_EQ(dao.execDB("DELETE FROM results"), 7);
    EXPECT_EQ(calls(), (Strings{open, "Execute DELETE FROM results 200000", "Close"}));
    EXPECT_EQ(dao.execDB("DELETE FROM results"), 7);
    EXPECT_EQ(calls(), (Strings{open, "Execute DELETE FROM results 200000", "Close"}))
        << "no connection is held across statements";
}

TEST_F(DaoTest, handsTheResultOnWhateverItIs)
{
    for (const int result : {0, 1, -1, 2147483647}) {
        fake->m_changed = result;
        EXPECT_EQ(dao.execDB("x"), result);
        EXPECT_EQ(dao.execDBwithLock("x"), result);
    }
}

TEST_F(DaoTest, takesTheLockAroundAStatementWithLock)
{
    fake->m_changed = 3;
    EXPECT_EQ(dao.execDBwithLock("UPDATE users SET name = ''"), 3);
    EXPECT_EQ(calls(), (Strings{open, "Lock", "Execute UPDATE users SET name = '' 200000", "UnLock",
                                "Close"}));
}

TEST_F(DaoTest, readsATableIntoTheCallers)
{
    Table table;
    EXPECT_TRUE(dao.execDBTable("SELECT * FROM users", table));
    EXPECT_EQ(calls(), (Strings{open, "getTable SELECT * FROM users", "Close"}));
    EXPECT_EQ(fake->m_table, &table);
}

TEST_F(DaoTest, getDBConnectionOpensAndHandsTheResultOn)
{
    EXPECT_TRUE(dao.getDBConnection());
    EXPECT_EQ(calls(), Strings{open});
    fake->m_opened = false;
    EXPECT_FALSE(dao.getDBConnection());
    EXPECT_EQ(dao.m_pConnection, fake);
}

TEST_F(DaoTest, getDBConnectionDoesNotCatch)
{
    fake->m_failAt = "Open";
    EXPECT_THROW(dao.getDBConnection(), DBException);
    EXPECT_EQ(calls(), Strings{open});
}

TEST_F(DaoTest, releaseDBConnectionCloses)
{
    dao.releaseDBConnection();
    dao.releaseDBConnection();
    EXPECT_EQ(calls(), (Strings{"Close", "Close"}));
    EXPECT_EQ(dao.m_pConnection, fake) << "the object stays";
}

TEST_F(DaoTest, ownsItsConnectionForLife)
{
    Strings calls;
    {
        Dao shortLived;
        shortLived.m_pConnection = new FakeSqlite(calls);
        shortLived.execDB("x");
        EXPECT_EQ(calls.back(), "Close");
    }
    EXPECT_EQ(calls.back(), "deleted");
}

TEST_F(DaoTest, runsItsWholeSequenceWhateverOpenAnswers)
{
    fake->m_opened = false;
    fake->m_changed = 7;
    EXPECT_EQ(dao.execDB("x"), 7);
    EXPECT_EQ(calls(), (Strings{open, "Execute x 200000", "Close"}));
    EXPECT_EQ(dao.execDBwithLock("x"), 7);
    EXPECT_EQ(calls(), (Strings{open, "Lock", "Execute x 200000", "UnLock", "Close"}));
    Table table;
    EXPECT_TRUE(dao.execDBTable("x", table));
    EXPECT_EQ(calls(), (Strings{open, "getTable x", "Close"}));
}

// ---- failures

TEST_F(DaoTest, execDBLogsAFailureClosesAndReturnsZero)
{
    fake->m_changed = 7;
    for (const char* call : {"Open", "Execute"}) {
        fake->m_failAt = call;
        log().expectError("[execDB] Exception : no such table: reagents", 1, "Dao");
        EXPECT_EQ(dao.execDB("x"), 0) << call;
        Strings expected = {open, "Execute x 200000", "Close"};
        if (std::string(call) == "Open")
            expected = {open, "Close"};
        EXPECT_EQ(calls(), expected) << call;
    }
    EXPECT_EQ(dao.execDB("x"), 7) << "the next statement is none the worse";
}

TEST_F(DaoTest, execDBwithLockLogsAFailureUnlocksClosesAndReturnsZero)
{
    fake->m_changed = 7;
    const std::vector<std::pair<std::string, Strings>> cases = {
        {"Open", {open, "UnLock", "Close"}}, // unlocked though it was never locked
        {"Lock", {open, "Lock", "UnLock", "Close"}},
        {"Execute", {open, "Lock", "Execute x 200000", "UnLock", "Close"}},
    };
    for (const auto& [call, expected] : cases) {
        fake->m_failAt = call;
        log().expectError("[execDBwithLock] Exception : no such table: reagents", 1, "Dao");
        EXPECT_EQ(dao.execDBwithLock("x"), 0) << call;
        EXPECT_EQ(calls(), expected) << call;
    }
    EXPECT_EQ(dao.execDBwithLock("x"), 7);
}

TEST_F(DaoTest, execDBTableLogsAFailureAtDebugLevelOnlyClosesAndReturnsFalse)
{
    for (const char* call : {"Open", "getTable"}) {
        Table table;
        log().startHere();
        fake->m_failAt = call;
        EXPECT_FALSE(dao.execDBTable("x", table)) << call;
        EXPECT_EQ(log().texts("Dao"),
                  Strings{"[D] [execDBTable] Exception : no such table: reagents"});
        EXPECT_EQ(calls().back(), "Close") << call;
        EXPECT_EQ(table.getColumnCount(), std::string(call) == "Open" ? 0 : 1)
            << "the table is left as the failure left it";
    }
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(DaoTest, aFailureAtTheEndCountsAsOneToo)
{
    fake->m_changed = 7;
    fake->m_failAt = "Close";
    log().expectError("[execDB] Exception : no such table: reagents", 1, "Dao");
    EXPECT_EQ(dao.execDB("x"), 0);
    EXPECT_EQ(calls(), (Strings{open, "Execute x 200000", "Close", "Close"}));

    fake->m_failAt = "UnLock";
    log().expectError("[execDBwithLock] Exception : no such table: reagents", 1, "Dao");
    EXPECT_EQ(dao.execDBwithLock("x"), 0);
    EXPECT_EQ(calls(), (Strings{open, "Lock", "Execute x 200000", "UnLock", "UnLock", "Close"}));
}

TEST_F(DaoTest, aFailureAtTheEndOfATableCountsAsOneToo)
{
    Table table;
    fake->m_failAt = "Close";
    log().startHere();
    EXPECT_FALSE(dao.execDBTable("x", table));
    EXPECT_EQ(log().texts(), Strings{"[D] [execDBTable] Exception : no such table: reagents"});
    EXPECT_EQ(calls(), (Strings{open, "getTable x", "Close", "Close"}));
}

TEST_F(DaoTest, theLinesCarryTheClassAndTheTextAsItStands)
{
    fake->m_failAt = "Execute";
    fake->m_raise = [] { throw DBException("100%d of 5%n", 1); };
    log().expectError("[execDB] Exception : 100%d of 5%n", 1, "Dao");
    log().startHere();
    dao.execDB("x");
    const std::vector<LogLine> lines = log().lines();
    ASSERT_EQ(lines.size(), 1u) << "and nothing else is said";
    EXPECT_EQ(lines[0].identity, "QTPANFx Dao            ");
    EXPECT_EQ(lines[0].priority, LOG_ERR);
}

TEST_F(DaoTest, saysNothingWhenAllGoesWell)
{
    Table table;
    log().startHere();
    dao.execDB("x");
    dao.execDBwithLock("x");
    dao.execDBTable("x", table);
    dao.releaseDBConnection();
    EXPECT_EQ(log().texts(), Strings());
}

TEST_F(DaoTest, exceptionsThatDeriveFromDBExceptionAreCaught)
{
    class Corrupt : public DBException
    {
    public:
        using DBException::DBException;
    };
    fake->m_raise = [] { throw Corrupt("torn page", 11); };
    fake->m_failAt = "Execute";
    log().expectError("[execDB] Exception : torn page", 1, "Dao");
    EXPECT_EQ(dao.execDB("x"), 0);
}

TEST_F(DaoTest, exceptionsOfAnotherKindPassAndTheConnectionStaysOpen)
{
    static DBException asPointer("thrown as a pointer");
    const std::vector<std::function<void()>> kinds = {
        [] { throw std::runtime_error("a fault"); },
        [] { throw TAMFx::Common::Exception("of the foundation"); },
        [] { throw &asPointer; }, // only what is thrown by value is a database failure
        [] { throw 5; },
    };
    Table table;
    for (const auto& raise : kinds) {
        fake->m_raise = raise;
        fake->m_failAt = "Execute";
        EXPECT_ANY_THROW(dao.execDB("x"));
        EXPECT_EQ(calls(), (Strings{open, "Execute x 200000"}));

        fake->m_failAt = "Execute";
        EXPECT_ANY_THROW(dao.execDBwithLock("x"));
        EXPECT_EQ(calls(), (Strings{open, "Lock", "Execute x 200000"}));

        fake->m_failAt = "getTable";
        EXPECT_ANY_THROW(dao.execDBTable("x", table));
        EXPECT_EQ(calls(), (Strings{open, "getTable x"}));
    }
}

// ---- the object itself

TEST(DaoItself, isATableOfTheApplication)
{
    EXPECT_TRUE((std::is_base_of_v<TAMFx::Data::Collection::HashTable, Dao>));
    EXPECT_TRUE(std::has_virtual_destructor_v<Dao>);
    Dao dao;
    EXPECT_EQ(dao.getCount(), 0);
    dao.AddObj("insert", "INSERT INTO results VALUES (1)");
    EXPECT_STREQ(dao.getStringValue("insert"), "INSERT INTO results VALUES (1)");
}

TEST(DaoItself, hasNoConnectionBeforeItsFirstStatement)
{
    Dao dao;
    EXPECT_EQ(dao.m_pConnection, nullptr);
    LogCapture::instance().expectError("[releaseDBConnection] no connection", 1, "Dao");
    dao.releaseDBConnection();
    EXPECT_EQ(dao.m_pConnection, nullptr);
}

TEST(DaoItself, diesThroughItsBase)
{
    Strings calls;
    Dao* const dao = new Dao;
    dao->m_pConnection = new FakeSqlite(calls);
    delete static_cast<TAMFx::Data::Collection::ArrayList*>(dao);
    EXPECT_EQ(calls, Strings{"deleted"});
}

} // namespace
