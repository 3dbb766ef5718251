// What reading and replacing files does when the system refuses a call or another process is at
// work, seen through the configuration files. FilePropertyTest covers the rest.

#include "common/tamfx/FileAccess.h"

#include "common/tamfx/ConfigurationException.h"
#include "common/tamfx/ConfigurationManager.h"
#include "common/tamfx/FileFaults.h"
#include "common/tamfx/FileProperty.h"
#include "common/tamfx/TestFolder.h"
#include "common/tamfx/XmlDocument.h"
#include "support/SystemFaults.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

using PANFx::Testing::FileFaults;
using PANFx::Testing::SystemCall;
using PANFx::Testing::SystemFaults;
using PANFx::Testing::TestFolder;
using TAMFx::Config::ConfigurationException;
using TAMFx::Config::ConfigurationManager;
using TAMFx::Data::Properties::FileProperty;

namespace {

class FileAccessTest : public ::testing::Test
{
protected:
    static FileProperty* openPath(const std::string& path)
    {
        return ConfigurationManager::GetManager()->openProperty(path.c_str(), 6302);
    }

    /** The system's error number for a file, 0 when it opens. */
    int errorOf(const std::string& name) const
    {
        try {
            openPath(m_folder.path(name));
            return 0;
        } catch (ConfigurationException* exception) {
            return exception->GetCode();
        }
    }

    /** "a.cfg" with this in it, and the key "key" set to "new". */
    FileProperty* changed(const std::string& content = "key = old\n") const
    {
        FileProperty* const file = openPath(m_folder.write("a.cfg", content));
        file->setProperty("key", "new");
        return file;
    }

    /** A failed update must leave the old file and no other. */
    void expectFailedUpdate(FileProperty* file) const
    {
        EXPECT_FALSE(file->Update());
        EXPECT_EQ(m_folder.read("a.cfg"), "key = old\n");
        EXPECT_EQ(m_folder.entries(), "a.cfg");
    }

    TestFolder m_folder;
};

/** A wish that has a call fail the first time. */
std::function<int()> onceWith(int error)
{
    return [error]() mutable { return std::exchange(error, 0); };
}

} // namespace

// ---- paths

TEST_F(FileAccessTest, FindsAMissingFileOfTheFolderThatTheProgramIsIn)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(m_folder.path());
    FileProperty* const file = openPath("a.cfg");
    std::filesystem::current_path(before);
    file->setProperty("key", "new");
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n") << "whatever folder it is in by now";
}

TEST_F(FileAccessTest, FindsAMissingFileOfTheTopFolder)
{
    SystemFaults faults;
    FileProperty* const file = openPath("/./no such file.cfg");
    EXPECT_EQ(faults.lastPath(SystemCall::Open), "/no such file.cfg");
    faults.fail(SystemCall::Open, EROFS, ".update");
    EXPECT_FALSE(file->Update());
    EXPECT_EQ(faults.lastPath(SystemCall::Open, "/"), "/");
    EXPECT_EQ(faults.count(SystemCall::Open, "/.no such file.cfg.update"), 1);
}

// ---- reading

TEST_F(FileAccessTest, ReadsOnAfterAnInterruption)
{
    m_folder.write("a.cfg", "key = value\n");
    FileFaults faults;
    faults.onRead = onceWith(EINTR);
    EXPECT_STREQ(openPath(m_folder.path("a.cfg"))->getProperty("key"), "value");
}

TEST_F(FileAccessTest, TellsTheErrorOfAFileWhoseSizeCannotBeHad)
{
    m_folder.write("a.cfg", "key = value\n");
    FileFaults faults;
    faults.onFstat = [] { return EIO; };
    EXPECT_EQ(errorOf("a.cfg"), EIO);
}

TEST_F(FileAccessTest, RefusesAFileThatGrowsTooLargeWhileItIsRead)
{
    const std::uintmax_t largest = std::uintmax_t{256} << 20;
    const std::string path = m_folder.write("page.resource", "<r/>");
    std::filesystem::resize_file(path, largest);
    FileFaults faults;
    faults.onRead = [&] {
        std::filesystem::resize_file(path, largest + 1);
        return 0;
    };
    TAMFx::Common::Xml::XmlDocument document;
    EXPECT_FALSE(document.LoadXMLFile(path.c_str())) << "or it would be no XML, and throw";
}

// ---- replacing

TEST_F(FileAccessTest, ReplacesNoFileByWhatIsNoFile)
{
    FileProperty* const file = changed();
    const std::string pipe = m_folder.path(".a.cfg.update");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    expectFailedUpdate(file);
    char byte = 0;
    EXPECT_EQ(read(reader, &byte, 1), 0) << "nothing was written into it";
    struct stat status;
    ASSERT_EQ(fstat(reader, &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600u) << "nor was it made like the file";
    close(reader);
    EXPECT_TRUE(file->Update()) << "and the next time there is nothing in the way";
}

TEST_F(FileAccessTest, WritesNothingIntoWhatItCannotLookAt)
{
    FileProperty* const file = changed();
    SystemFaults calls;
    FileFaults faults;
    // the first time it is asked whether the file is still there, and the second what it is
    faults.onFstat = [asked = 0]() mutable { return ++asked == 2 ? EIO : 0; };
    expectFailedUpdate(file);
    EXPECT_EQ(calls.count(SystemCall::Write, ".update"), 0);
}

TEST_F(FileAccessTest, ReplacesNoFileWhenWhatAPowerCutLeftBehindCannotBeEmptied)
{
    FileProperty* const file = changed();
    m_folder.write(".a.cfg.update", std::string(100, 'x'));
    SystemFaults calls;
    FileFaults faults;
    faults.onFtruncate = [] { return EIO; };
    expectFailedUpdate(file);
    EXPECT_EQ(calls.count(SystemCall::Write, ".update"), 0);
}

TEST_F(FileAccessTest, KeepsTheGroupWhereItMayNotGiveTheFileAway)
{
    FileProperty* const file = changed();
    struct stat old;
    ASSERT_EQ(stat(m_folder.path("a.cfg").c_str(), &old), 0);
    std::vector<std::pair<uid_t, gid_t>> asked;
    FileFaults faults;
    faults.onFchown = [&](uid_t owner, gid_t group) {
        asked.emplace_back(owner, group);
        return owner == static_cast<uid_t>(-1) ? 0 : EPERM;
    };
    EXPECT_TRUE(file->Update());
    const std::vector<std::pair<uid_t, gid_t>> both = {{old.st_uid, old.st_gid},
                                                       {static_cast<uid_t>(-1), old.st_gid}};
    EXPECT_EQ(asked, both);
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
}

TEST_F(FileAccessTest, ReplacesAFileWhoseOwnerAndGroupItMayNotKeep)
{
    FileProperty* const file = changed();
    const std::string path = m_folder.path("a.cfg");
    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    FileFaults faults;
    faults.onFchown = [](uid_t, gid_t) { return EPERM; };
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
    struct stat status;
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u) << "its permissions are kept all the same";
}

// ---- the lock

TEST_F(FileAccessTest, WaitsOnForTheLockAfterAnInterruption)
{
    FileProperty* const file = changed();
    FileFaults faults;
    faults.onFlock = onceWith(EINTR);
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
}

TEST_F(FileAccessTest, ReplacesNoFileWithoutTheLock)
{
    FileProperty* const file = changed();
    SystemFaults calls;
    FileFaults faults;
    int tries = 0;
    faults.onFlock = [&tries] { return ++tries == 1 ? ENOLCK : 0; };
    EXPECT_FALSE(file->Update());
    EXPECT_EQ(tries, 1) << "it is not tried again";
    EXPECT_EQ(calls.count(SystemCall::Write, ".update"), 0);
    EXPECT_EQ(calls.count(SystemCall::Rename), 0);
    EXPECT_EQ(m_folder.read("a.cfg"), "key = old\n");
}

TEST_F(FileAccessTest, OpensTheFileAnewWhenAnotherTookItsPlaceMeanwhile)
{
    FileProperty* const file = changed();
    m_folder.write("other", "of another process");
    FileFaults faults;
    faults.onFlock = [this, left = 1]() mutable {
        if (left-- > 0)
            std::filesystem::rename(m_folder.path("other"), m_folder.path(".a.cfg.update"));
        return 0;
    };
    SystemFaults calls;
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(calls.count(SystemCall::Open, ".update"), 2);
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
    EXPECT_EQ(m_folder.entries(), "a.cfg");
}

TEST_F(FileAccessTest, TellsFilesOfOneNumberOnTwoDevicesApart)
{
    FileProperty* const file = changed();
    FileFaults faults;
    faults.onAnotherDevice = [left = 1](const std::string& path) mutable {
        return path.find(".update") != std::string::npos && left-- > 0;
    };
    SystemFaults calls;
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(calls.count(SystemCall::Open, ".update"), 2);
}

TEST_F(FileAccessTest, OpensTheFileAnewWhenItCannotBeLookedAt)
{
    FileProperty* const file = changed();
    FileFaults faults;
    faults.onFstat = onceWith(EIO);
    SystemFaults calls;
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(calls.count(SystemCall::Open, ".update"), 2);
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
}

// ---- other processes

TEST_F(FileAccessTest, WaitsForAnotherProcessThatUpdatesTheSameFile)
{
    FileProperty* const file = changed();
    // the other process: has its temporary file locked, and goes without removing it
    const std::string temporary = m_folder.write(".a.cfg.update", "the other's");
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t other = fork();
    if (other == 0) {
        const int descriptor = ::open(temporary.c_str(), O_RDWR);
        const bool locked = flock(descriptor, LOCK_EX) == 0;
        const bool told = write(ready[1], locked ? "1" : "0", 1) == 1;
        usleep(200000);
        const bool renamed = rename(temporary.c_str(), m_folder.path("a.cfg").c_str()) == 0;
        _exit(told && renamed ? 0 : 1);
    }
    char locked = '0';
    ASSERT_EQ(read(ready[0], &locked, 1), 1);
    ASSERT_EQ(locked, '1');
    EXPECT_TRUE(file->Update());
    int status = -1;
    EXPECT_EQ(waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
    EXPECT_EQ(m_folder.entries(), "a.cfg");
    close(ready[0]);
    close(ready[1]);
}

TEST_F(FileAccessTest, ShowsEveryReaderAWholeFileWhileItIsUpdated)
{
    FileProperty* const file = changed("key = 0\n");
    const std::string filler(20000, 'x');
    const pid_t reader = fork();
    if (reader == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL); // whatever becomes of the test
        for (;;) {
            const std::string content = m_folder.read("a.cfg");
            if (content.rfind("key = ", 0) != 0 || content.back() != '\n')
                _exit(1);
        }
    }
    for (int i = 0; i < 100; ++i) {
        file->setProperty("key", (std::to_string(i) + filler).c_str());
        ASSERT_TRUE(file->Update());
    }
    EXPECT_EQ(kill(reader, SIGTERM), 0);
    int status = -1;
    EXPECT_EQ(waitpid(reader, &status, 0), reader);
    EXPECT_TRUE(WIFSIGNALED(status)) << "the reader saw a torn file";
}
