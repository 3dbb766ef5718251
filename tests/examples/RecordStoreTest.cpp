// the example's own sources, as they stand
#include "../examples/instrument/RecordStore.cpp"
#include "../examples/instrument/FirstRecords.cpp"
#include "support/PanelTest.h"

#include "common/tamfx/Sqlite.h"

#include <QDir>

#include <optional>

using namespace PANFx::Testing;

namespace {

const std::string database = "/data/db/OSKDB.db";
const std::array<double, 4> readings = {7.25, 410, 8.4, 21.5};

class RecordStoreTest : public PanelTest
{
protected:
    RecordStoreTest() { QDir().mkpath(QString::fromStdString(realPath("/data/db"))); }

    /** Another program that holds the database, so that nobody else can read or write. */
    class Locked
    {
    public:
        explicit Locked(const std::string& path)
        {
            m_connection.Open(path.c_str(), 0);
            m_connection.Execute("BEGIN EXCLUSIVE", 0);
        }
        ~Locked() { m_connection.Execute("ROLLBACK", 0); }

        Locked(const Locked&) = delete;
        Locked& operator=(const Locked&) = delete;

    private:
        TAMFx::DB::Sqlite m_connection;
    };

    void expectRefusal()
    {
        log().expectError("[execDBwithLock] Exception : database is locked", 1, "Dao");
    }

    bool store(RecordStore& store, const std::string& sample = "")
    {
        return store.store(QDateTime(QDate(2030, 1, 2), QTime(3, 4)), sample, readings);
    }
};

TEST_F(RecordStoreTest, theFirstStartFillsTheDatabase)
{
    EXPECT_EQ(RecordStore().count({}), 28 * 9);
}

TEST_F(RecordStoreTest, aSecondStartKeepsWhatIsStored)
{
    RecordStore first;
    EXPECT_TRUE(store(first, "Mine"));
    RecordStore again;
    EXPECT_EQ(again.count({}), 28 * 9 + 1);
    EXPECT_EQ(again.count({"Mine"}), 1);
}

TEST_F(RecordStoreTest, aStartWhileTheDatabaseIsLockedLosesNothing)
{
    RecordStore early;
    EXPECT_TRUE(store(early, "Mine"));
    std::optional<RecordStore> late;
    {
        log().expectError("[RecordStore] cannot look for the measurements", 1, "Dao");
        const Locked locked(realPath(database));
        late.emplace();
    }
    EXPECT_EQ(late->count({"Mine"}), 1);
    EXPECT_EQ(late->count({}), 28 * 9 + 1);
}

TEST_F(RecordStoreTest, onlyTheNewBeginningRemovesEverything)
{
    RecordStore records;
    EXPECT_TRUE(store(records, "Mine"));
    records.startAnew();
    EXPECT_EQ(records.count({}), 28 * 9);
    EXPECT_EQ(records.count({"Mine"}), 0);
}

TEST_F(RecordStoreTest, tellsWhetherAMeasurementIsStored)
{
    RecordStore records;
    {
        expectRefusal();
        const Locked locked(realPath(database));
        EXPECT_FALSE(store(records, "Mine"));
        EXPECT_FALSE(store(records)); // there is not even a number for it
    }
    EXPECT_EQ(records.count({"Mine"}), 0);
    EXPECT_TRUE(store(records, "Mine"));
    EXPECT_EQ(records.count({"Mine"}), 1);
}

TEST_F(RecordStoreTest, tellsWhetherMeasurementsAreRemoved)
{
    RecordStore records;
    const std::vector<Record> newest = records.records({}, 0, 3);
    {
        expectRefusal();
        const Locked locked(realPath(database));
        EXPECT_FALSE(records.remove(newest));
    }
    EXPECT_EQ(records.count({}), 28 * 9);
    EXPECT_TRUE(records.remove(newest));
    EXPECT_EQ(records.count({}), 28 * 9 - 3);
    EXPECT_TRUE(records.remove({}));
    EXPECT_EQ(records.count({}), 28 * 9 - 3);
}

TEST_F(RecordStoreTest, numbersGoOnBehindFourDigits)
{
    RecordStore records;
    for (const char* expected : {"W-0149", "W-0150"}) {
        EXPECT_TRUE(store(records));
        EXPECT_EQ(records.recentSamples(1), std::vector<std::string>{expected});
    }
    EXPECT_TRUE(store(records, "W-9999"));
    for (const char* expected : {"W-10000", "W-10001", "W-10002"}) {
        EXPECT_TRUE(store(records));
        EXPECT_EQ(records.recentSamples(1), std::vector<std::string>{expected});
    }
}

TEST_F(RecordStoreTest, whatSomebodyHasTypedIsNoNumber)
{
    RecordStore records;
    for (const char* name : {"W-9x99", "W-99999 b", "W-999", "W-99999999999999999999"})
        EXPECT_TRUE(store(records, name));
    EXPECT_TRUE(store(records));
    EXPECT_EQ(records.count({"W-0149"}), 1);
}

} // namespace
