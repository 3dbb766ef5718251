#include "support/SystemFaults.h"

#include "common/CCriticalSection.h"

#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/ipc.h>
#include <sys/sem.h>
#include <unistd.h>

using PANFx::Testing::SystemCall;
using PANFx::Testing::SystemFaults;

namespace {

class SystemFaultsTest : public ::testing::Test
{
protected:
    std::string path(const std::string& name) const { return m_folder.path().toStdString() + name; }

    int create(const std::string& name) const
    {
        return open(path(name).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(SystemFaultsTest, LetsEverythingThroughAndCounts)
{
    SystemFaults faults;
    const int file = create("/a");
    ASSERT_GE(file, 0);
    EXPECT_EQ(write(file, "abc", 3), 3);
    EXPECT_EQ(fsync(file), 0);
    close(file);
    EXPECT_EQ(rename(path("/a").c_str(), path("/b").c_str()), 0);
    FILE* const stream = fopen(path("/b").c_str(), "rb");
    ASSERT_NE(stream, nullptr);
    fclose(stream);
    EXPECT_EQ(faults.count(SystemCall::Open, "/a"), 1);
    EXPECT_EQ(faults.count(SystemCall::Write, "/a"), 1);
    EXPECT_EQ(faults.count(SystemCall::Fsync, "/a"), 1);
    EXPECT_EQ(faults.count(SystemCall::Rename, "/a"), 1);
    EXPECT_EQ(faults.count(SystemCall::Rename, "/b"), 1);
    EXPECT_EQ(faults.count(SystemCall::Fopen, "/b"), 1);
    EXPECT_EQ(faults.count(SystemCall::Fopen, "/a"), 0);
    EXPECT_EQ(faults.lastPath(SystemCall::Fopen), path("/b"));
}

TEST_F(SystemFaultsTest, MakesAFileKeepTheModeItWasCreatedWith)
{
    SystemFaults faults;
    const int file = open(path("/mode").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    close(file);
    EXPECT_EQ(QFile(QString::fromStdString(path("/mode"))).permissions() &
                  (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
}

TEST_F(SystemFaultsTest, FailsTheChosenPathOnly)
{
    SystemFaults faults;
    faults.fail(SystemCall::Open, EACCES, "/locked");
    errno = 0;
    EXPECT_EQ(create("/locked"), -1);
    EXPECT_EQ(errno, EACCES);
    EXPECT_FALSE(QFile::exists(QString::fromStdString(path("/locked"))));
    const int other = create("/free");
    EXPECT_GE(other, 0);
    close(other);
}

TEST_F(SystemFaultsTest, FailsDescriptorsByTheirPath)
{
    const int file = create("/config.tmp");
    const int folder = open(m_folder.path().toStdString().c_str(), O_RDONLY | O_DIRECTORY);
    SystemFaults faults;
    faults.fail(SystemCall::Fsync, EIO, "/config.tmp");
    faults.fail(SystemCall::Write, ENOSPC, "/config.tmp");
    EXPECT_EQ(fsync(file), -1);
    EXPECT_EQ(errno, EIO);
    EXPECT_EQ(write(file, "a", 1), -1);
    EXPECT_EQ(errno, ENOSPC);
    EXPECT_EQ(fsync(folder), 0);
    EXPECT_EQ(faults.count(SystemCall::Fsync, m_folder.path().toStdString()), 1);
    close(folder);
    close(file);
}

TEST_F(SystemFaultsTest, SkipsAndCountsDown)
{
    SystemFaults faults;
    faults.fail(SystemCall::Fopen, EMFILE, "", 1, 2);
    std::string outcome;
    for (int i = 0; i < 5; ++i) {
        FILE* const stream = fopen("/dev/null", "rb");
        outcome += stream ? '+' : '-';
        if (stream)
            fclose(stream);
    }
    EXPECT_EQ(outcome, "+--++");
}

TEST_F(SystemFaultsTest, ShortensWrites)
{
    const int file = create("/short");
    SystemFaults faults;
    faults.shortenWrites(2, "/short");
    EXPECT_EQ(write(file, "abcde", 5), 2);
    EXPECT_EQ(write(file, "c", 1), 1);
    close(file);
}

TEST_F(SystemFaultsTest, EndsWithTheObject)
{
    {
        SystemFaults faults;
        faults.fail(SystemCall::Fopen, EMFILE);
        EXPECT_EQ(fopen("/dev/null", "rb"), nullptr);
    }
    FILE* const stream = fopen("/dev/null", "rb");
    ASSERT_NE(stream, nullptr);
    fclose(stream);
}

TEST_F(SystemFaultsTest, ReachesTheSharedLibraries)
{
    SystemFaults faults;
    faults.fail(SystemCall::Semget, ENOSPC);
    TAMFx::Util::System::CCriticalSection refused;
    EXPECT_LT(refused.m_nSemID, 0);
    EXPECT_EQ(faults.count(SystemCall::Semget), 1);
    faults.fail(SystemCall::Fopen, EACCES, "/library");
    std::ofstream stream(path("/library")); // the C++ library's own call
    EXPECT_FALSE(stream.is_open());
    faults.fail(SystemCall::Open, EACCES, "/library");
    QFile file(QString::fromStdString(path("/library")));
    EXPECT_FALSE(file.open(QIODevice::WriteOnly));
}

TEST_F(SystemFaultsTest, HandsSemaphoresOnWithTheirArguments)
{
    SystemFaults faults;
    const int id = semget(IPC_PRIVATE, 1, 0600 | IPC_CREAT);
    ASSERT_GE(id, 0);
    union {
        int val;
        void* buffer;
    } value{};
    value.val = 7;
    EXPECT_EQ(semctl(id, 0, SETVAL, value), 0);
    EXPECT_EQ(semctl(id, 0, GETVAL), 7);
    sembuf take{0, -1, 0};
    EXPECT_EQ(semop(id, &take, 1), 0);
    EXPECT_EQ(semctl(id, 0, GETVAL), 6);
    faults.fail(SystemCall::Semop, EIDRM);
    EXPECT_EQ(semop(id, &take, 1), -1);
    EXPECT_EQ(semctl(id, 0, IPC_RMID), 0);
    EXPECT_EQ(faults.count(SystemCall::Semctl), 4);
}
