// Also covers PropertyLine, one line of the file, and most of FileAccess, which reads and replaces
// files: what it does when the system refuses a call is in FileAccessTest.

#include "common/tamfx/FileProperty.h"

#include "common/tamfx/ConfigurationManager.h"
#include "common/tamfx/TestFolder.h"
#include "support/SystemFaults.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

using PANFx::Testing::SystemCall;
using PANFx::Testing::SystemFaults;
using PANFx::Testing::TestFolder;
using TAMFx::Config::ConfigurationManager;
using TAMFx::Data::Properties::FileProperty;

namespace {

const std::string written = "# panel\n"
                            "\n"
                            "Language = kr\n"
                            "  ResourcePath=/app/bin/resource/   \n"
                            "no property at all\n"
                            "= neither is this\n"
                            "\tOther key\t=\ta = b # c\t\r\n"
                            "#Language = esp\n"
                            "Name = \xED\x95\x9C\xEA\xB8\x80\n"
                            "Empty =\n"
                            "Quoted = \" two lines:\\n\\\"1\\\" \\\\ 2 \"\n"
                            "last = line";

/** The file with one of its texts replaced. */
std::string writtenWith(const std::string& text, const std::string& replaced)
{
    const auto begin = written.find(replaced);
    return written.substr(0, begin) + text + written.substr(begin + replaced.size());
}

class FilePropertyTest : public ::testing::Test
{
protected:
    FileProperty* open() const
    {
        return ConfigurationManager::GetManager()->openProperty(m_folder.path("a.cfg").c_str(),
                                                                6302);
    }

    FileProperty* open(const std::string& content) const
    {
        m_folder.write("a.cfg", content);
        return open();
    }

    /** Value of the key "k" in a file of this content. */
    std::string valueIn(const std::string& content) const
    {
        return open(content)->getProperty("k");
    }

    /** The file after a change of one key. */
    std::string changed(const std::string& content, const char* key, const char* value) const
    {
        FileProperty* const file = open(content);
        file->setProperty(key, value);
        EXPECT_TRUE(file->Update());
        return m_folder.read("a.cfg");
    }

    mode_t modeOf(const std::string& name) const
    {
        struct stat status;
        return stat(m_folder.path(name).c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
    }

    /** A failed update must leave the old file, no other, and the values in memory. */
    void expectFailedUpdate(FileProperty* file, const std::string& oldContent) const
    {
        file->setProperty("key", "new");
        EXPECT_FALSE(file->Update());
        EXPECT_EQ(m_folder.read("a.cfg"), oldContent);
        EXPECT_EQ(m_folder.entries(), "a.cfg");
        EXPECT_STREQ(file->getProperty("key"), "new");
    }

    TestFolder m_folder;
};

/** Calls a virtual operation of a file by its place, as old applications do. */
__attribute__((no_sanitize("undefined"))) void callFirst(FileProperty* file, const char* key,
                                                         const char* value)
{
    using Operation = void (*)(FileProperty*, const char*, const char*);
    (*reinterpret_cast<Operation**>(file))[0](file, key, value);
}

__attribute__((no_sanitize("undefined"))) const char* callSecond(FileProperty* file,
                                                                 const char* key)
{
    using Operation = const char* (*)(FileProperty*, const char*);
    return (*reinterpret_cast<Operation**>(file))[1](file, key);
}

} // namespace

TEST_F(FilePropertyTest, HasSetPropertyAndGetPropertyAsItsFirstVirtualOperations)
{
    FileProperty* const file = open("key = old\n");
    EXPECT_STREQ(callSecond(file, "key"), "old");
    callFirst(file, "key", "new");
    EXPECT_STREQ(file->getProperty("key"), "new");
    EXPECT_STREQ(callSecond(file, "key"), "new");
}

// ---- reading

TEST_F(FilePropertyTest, ReadsValuesByTheirKeys)
{
    const FileProperty* const file = open(written);
    EXPECT_STREQ(file->getProperty("Language"), "kr");
    EXPECT_STREQ(file->getProperty("ResourcePath"), "/app/bin/resource/");
    EXPECT_STREQ(file->getProperty("Other key"), "a = b # c");
    EXPECT_STREQ(file->getProperty("Name"), "\xED\x95\x9C\xEA\xB8\x80");
    EXPECT_STREQ(file->getProperty("Empty"), "");
    EXPECT_STREQ(file->getProperty("Quoted"), " two lines:\n\"1\" \\ 2 ");
    EXPECT_STREQ(file->getProperty("last"), "line");
}

TEST_F(FilePropertyTest, AnswersAMissingKeyWithAnEmptyText)
{
    const FileProperty* const file = open(written);
    for (const char* key : {"language", "", "#Language", "no property at all", "= neither"})
        EXPECT_STREQ(file->getProperty(key), "") << key;
    EXPECT_STREQ(file->getProperty(nullptr), "");
}

TEST_F(FilePropertyTest, ReadsAnOrdinaryFileAsItLooks)
{
    EXPECT_EQ(valueIn("k=v"), "v");
    EXPECT_EQ(valueIn("k = C:\\new\\res"), "C:\\new\\res");
    EXPECT_EQ(valueIn("k = #ff8000"), "#ff8000");
    EXPECT_EQ(valueIn("k = it's \"so\" said"), "it's \"so\" said");
    EXPECT_EQ(valueIn("k = \"in quotes\""), "in quotes");
    EXPECT_EQ(valueIn("k = v\r\n"), "v");
    EXPECT_EQ(valueIn("\xEF\xBB\xBFk = v\n"), "v");
    EXPECT_EQ(valueIn("k = "), "");
    EXPECT_EQ(valueIn("k"), "");
    EXPECT_EQ(valueIn(""), "");
}

TEST_F(FilePropertyTest, ReadsWhatIsNotQuotedAsAWholeAsItStands)
{
    for (const char* value : {"\"", "\"open", "closed\"", "\"a\" b", "\"a\"b\"", "\"a\\\""})
        EXPECT_EQ(valueIn(std::string("k = ") + value + "\n"), value);
    EXPECT_EQ(valueIn("k = \"\"\n"), "");
    EXPECT_EQ(valueIn("k = \"a\\tb\\\\\"\n"), "a\\tb\\");
}

TEST_F(FilePropertyTest, LetsTheLastOfTwoLinesOfAKeyCount)
{
    FileProperty* const file = open("k = 1\nk = 2\n");
    EXPECT_STREQ(file->getProperty("k"), "2");
    file->setProperty("k", "3");
    EXPECT_STREQ(file->getProperty("k"), "3");
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "k = 1\nk = 3\n");
}

TEST_F(FilePropertyTest, ReadsAFileCutAtAnyByte)
{
    for (std::size_t size = 0; size <= written.size(); ++size) {
        const std::string cut = written.substr(0, size);
        FileProperty* const file = open(cut);
        const std::string language = file->getProperty("Language");
        EXPECT_EQ(std::string("kr").substr(0, language.size()), language) << size;
        ASSERT_TRUE(file->Update());
        ASSERT_EQ(m_folder.read("a.cfg"), cut) << size;
        file->setProperty("Language", "pol");
        ASSERT_TRUE(file->Update());
        open();
        EXPECT_STREQ(file->getProperty("Language"), "pol") << size;
    }
}

TEST_F(FilePropertyTest, KeepsEveryByteOfAFileThatIsNoText)
{
    std::string content;
    for (int i = 0; i < 1024; ++i)
        content += static_cast<char>(i * 7);
    FileProperty* const file = open(content);
    EXPECT_STREQ(file->getProperty("key"), "");
    EXPECT_EQ(changed(content, "key", "value").substr(0, content.size()), content);
}

// ---- writing

TEST_F(FilePropertyTest, WritesAnUnchangedFileBackByteForByte)
{
    EXPECT_TRUE(open(written)->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), written);
}

TEST_F(FilePropertyTest, ChangesTheValueAndNothingElse)
{
    EXPECT_EQ(changed(written, "Language", "fra"), writtenWith("= fra", "= kr"));
    EXPECT_EQ(changed(written, "ResourcePath", "/data/"),
              writtenWith("/data/", "/app/bin/resource/"));
    EXPECT_EQ(changed(written, "Other key", "x"), writtenWith("x", "a = b # c"));
    EXPECT_EQ(changed("\xEF\xBB\xBFk = v\r\nl = w\r\n", "k", "x"),
              "\xEF\xBB\xBFk = x\r\nl = w\r\n");
}

TEST_F(FilePropertyTest, LeavesALineAloneWhoseValueIsSetToWhatItIs)
{
    EXPECT_EQ(changed("k = \"in quotes\"\n", "k", "in quotes"), "k = \"in quotes\"\n");
}

TEST_F(FilePropertyTest, KeepsAChangeThatIsNotWrittenYetWhenItIsOpenedAgain)
{
    FileProperty* const file = open("a = 1\nb = 2\n");
    file->setProperty("a", "9");
    file->setProperty("b", "2"); // what it is already
    EXPECT_STREQ(open()->getProperty("a"), "9");
}

TEST_F(FilePropertyTest, SetsAndClearsAValue)
{
    EXPECT_EQ(changed("k = v\n", "k", ""), "k = \n");
    EXPECT_EQ(changed("k =\n", "k", "v"), "k = v\n");
    EXPECT_EQ(changed("k=\n", "k", "v"), "k=v\n");
    EXPECT_EQ(changed("k = v\n", "k", nullptr), "k = \n");
    EXPECT_STREQ(open()->getProperty("k"), "");
}

TEST_F(FilePropertyTest, AppendsANewKey)
{
    EXPECT_EQ(changed("k = v\n", "new", "value"), "k = v\nnew = value\n");
    EXPECT_EQ(changed("k = v", "new", "value"), "k = v\nnew = value\n");
    EXPECT_EQ(changed("k = v\r\nl = w", "new", "value"), "k = v\r\nl = w\r\nnew = value\r\n");
    EXPECT_EQ(changed("", "new", ""), "new =\n");
}

TEST_F(FilePropertyTest, IgnoresAKeyThatNoLineCanHold)
{
    FileProperty* const file = open("k = v\n");
    for (const char* key : {"", " k", "k ", "a=b", "#k", "a\nb", "a\rb", "\tk", "\xEF\xBB\xBFk"}) {
        file->setProperty(key, "lost");
        EXPECT_STREQ(file->getProperty(key), "") << key;
    }
    file->setProperty(nullptr, "lost");
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "k = v\n");
}

TEST_F(FilePropertyTest, BringsEveryValueBackFromTheFile)
{
    for (const char* value : {"",
                              " ",
                              "  both ends  ",
                              "\ttab\t",
                              "# no comment",
                              "a # b",
                              "two\nlines",
                              "\n",
                              "\r",
                              "a\r\nb",
                              "\\",
                              "\\n",
                              "a\\nb",
                              "C:\\",
                              "\"",
                              "\"\"",
                              "\"quoted\"",
                              "a\"b",
                              "\"\\\"",
                              " \\n ",
                              "=",
                              "a = b",
                              "\xED\x95\x9C",
                              "ends in \\ ",
                              "\xEF\xBB\xBF",
                              "'",
                              "\x01\x7F"}) {
        FileProperty* file = open("before = 1\nk = old\nafter = 2\n");
        file->setProperty("k", value);
        file->setProperty("new", value);
        EXPECT_STREQ(file->getProperty("k"), value);
        ASSERT_TRUE(file->Update());
        file = open();
        EXPECT_STREQ(file->getProperty("k"), value) << m_folder.read("a.cfg");
        EXPECT_STREQ(file->getProperty("new"), value) << m_folder.read("a.cfg");
        EXPECT_STREQ(file->getProperty("after"), "2") << value;
    }
}

TEST_F(FilePropertyTest, QuotesNoOrdinaryValue)
{
    for (const char* value : {"kr", "/app/bin/resource/", "a b", "#x", "a\\b", "it's", "a\"b\""})
        EXPECT_EQ(changed("", "k", value), std::string("k = ") + value + "\n");
}

// ---- replacing the file

TEST_F(FilePropertyTest, CreatesAMissingFile)
{
    FileProperty* const file = open();
    file->setProperty("Language", "");
    file->setProperty("ResourcePath", "/app/bin/resource/");
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "Language =\nResourcePath = /app/bin/resource/\n");
    EXPECT_EQ(m_folder.entries(), "a.cfg");
}

TEST_F(FilePropertyTest, CreatesAMissingFileWithoutKeysToo)
{
    EXPECT_TRUE(open()->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "");
}

TEST_F(FilePropertyTest, ReplacesTheFileInsteadOfWritingIntoIt)
{
    FileProperty* const file = open("key = old\n");
    std::filesystem::create_hard_link(m_folder.path("a.cfg"), m_folder.path("old file"));
    file->setProperty("key", "new");
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("old file"), "key = old\n");
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
}

TEST_F(FilePropertyTest, WritesSyncsRenamesAndSyncsTheFolder)
{
    FileProperty* const file = open("key = old\n");
    file->setProperty("key", "new");
    SystemFaults faults;
    ASSERT_TRUE(file->Update());
    EXPECT_GE(faults.count(SystemCall::Write, "/.a.cfg.update"), 1);
    EXPECT_EQ(faults.count(SystemCall::Fsync, "/.a.cfg.update"), 1);
    EXPECT_EQ(faults.count(SystemCall::Rename, "/a.cfg"), 1);
    EXPECT_EQ(faults.lastPath(SystemCall::Rename), m_folder.path(".a.cfg.update"));
    EXPECT_EQ(faults.count(SystemCall::Fsync, m_folder.path()), 1);
    EXPECT_EQ(faults.count(SystemCall::Fsync), 2);
    EXPECT_EQ(faults.count(SystemCall::Write, "/a.cfg"), 0);
}

TEST_F(FilePropertyTest, SyncsOnlyWhatIsWrittenWhole)
{
    FileProperty* const file = open("key = old\n");
    SystemFaults faults;
    faults.fail(SystemCall::Write, ENOSPC, ".update");
    expectFailedUpdate(file, "key = old\n");
    EXPECT_EQ(faults.count(SystemCall::Fsync), 0);
    EXPECT_EQ(faults.count(SystemCall::Rename), 0);
}

TEST_F(FilePropertyTest, KeepsTheOldFileWhenTheDiskFillsUpInTheMiddle)
{
    FileProperty* const file = open("key = old\n");
    SystemFaults faults;
    faults.shortenWrites(3, ".update");
    faults.fail(SystemCall::Write, ENOSPC, ".update", 2);
    expectFailedUpdate(file, "key = old\n");
    EXPECT_EQ(faults.count(SystemCall::Rename), 0);
}

TEST_F(FilePropertyTest, RenamesOnlyWhatReachedTheDisk)
{
    FileProperty* const file = open("key = old\n");
    SystemFaults faults;
    faults.fail(SystemCall::Fsync, EIO, ".update");
    expectFailedUpdate(file, "key = old\n");
    EXPECT_EQ(faults.count(SystemCall::Fsync), 1);
    EXPECT_EQ(faults.count(SystemCall::Rename), 0);
}

TEST_F(FilePropertyTest, SyncsTheFolderOnlyAfterTheRename)
{
    FileProperty* const file = open("key = old\n");
    SystemFaults faults;
    faults.fail(SystemCall::Rename, EACCES, "a.cfg");
    expectFailedUpdate(file, "key = old\n");
    EXPECT_EQ(faults.count(SystemCall::Fsync), 1);
}

TEST_F(FilePropertyTest, AnswersAFolderThatCannotBeSyncedWithFalse)
{
    FileProperty* const file = open("key = old\n");
    file->setProperty("key", "new");
    SystemFaults faults;
    faults.fail(SystemCall::Fsync, EIO, m_folder.path());
    EXPECT_FALSE(file->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
    EXPECT_EQ(m_folder.entries(), "a.cfg");
}

TEST_F(FilePropertyTest, AnswersAReadOnlyFolderWithFalse)
{
    FileProperty* const file = open("key = old\n");
    SystemFaults faults;
    faults.fail(SystemCall::Open, EROFS, ".update");
    expectFailedUpdate(file, "key = old\n");
}

TEST_F(FilePropertyTest, AnswersAFolderThatCannotBeOpenedWithFalse)
{
    FileProperty* const file = open();
    file->setProperty("key", "new");
    {
        SystemFaults faults;
        faults.fail(SystemCall::Open, EACCES, m_folder.path());
        EXPECT_FALSE(file->Update());
        EXPECT_EQ(faults.count(SystemCall::Rename), 0);
    }
    EXPECT_EQ(m_folder.entries(), "");
}

TEST_F(FilePropertyTest, AnswersADirectoryInThePlaceOfTheFileWithFalse)
{
    FileProperty* const file = open();
    file->setProperty("key", "new");
    std::filesystem::create_directory(m_folder.path("a.cfg"));
    EXPECT_FALSE(file->Update());
    EXPECT_EQ(m_folder.entries(), "a.cfg");
}

TEST_F(FilePropertyTest, MayBeUpdatedAgainAfterAFailure)
{
    FileProperty* const file = open("key = old\n");
    file->setProperty("key", "new");
    {
        SystemFaults faults;
        faults.fail(SystemCall::Fsync, EIO);
        EXPECT_FALSE(file->Update());
    }
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
}

TEST_F(FilePropertyTest, GoesOnAfterShortAndInterruptedWrites)
{
    FileProperty* const file = open("key = old\n");
    file->setProperty("key", "new");
    SystemFaults faults;
    faults.shortenWrites(1, ".update");
    faults.fail(SystemCall::Write, EINTR, ".update", 3, 2);
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
    EXPECT_EQ(faults.count(SystemCall::Write, ".update"), 12);
}

TEST_F(FilePropertyTest, UsesUpWhatAPowerCutLeftBehind)
{
    FileProperty* const file = open("key = old\n");
    m_folder.write(".a.cfg.update", std::string(1000, 'x'));
    file->setProperty("key", "new");
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("a.cfg"), "key = new\n");
    EXPECT_EQ(m_folder.entries(), "a.cfg");
}

TEST_F(FilePropertyTest, RemovesWhatAPowerCutLeftBehindOnAFailureToo)
{
    FileProperty* const file = open("key = old\n");
    m_folder.write(".a.cfg.update", "half of a fi");
    SystemFaults faults;
    faults.fail(SystemCall::Fsync, EIO, ".update");
    expectFailedUpdate(file, "key = old\n");
}

TEST_F(FilePropertyTest, WritesThroughNoLinkThatStandsInThePlaceOfItsTemporaryFile)
{
    FileProperty* const file = open("key = old\n");
    m_folder.write("victim", "untouched");
    std::filesystem::create_symlink("victim", m_folder.path(".a.cfg.update"));
    file->setProperty("key", "new");
    EXPECT_FALSE(file->Update());
    EXPECT_EQ(m_folder.read("victim"), "untouched");
    EXPECT_EQ(m_folder.read("a.cfg"), "key = old\n");
}

TEST_F(FilePropertyTest, KeepsThePermissionsOfTheFile)
{
    FileProperty* const file = open("key = old\n");
    for (const mode_t mode : {0600u, 0664u, 0444u}) {
        ASSERT_EQ(chmod(m_folder.path("a.cfg").c_str(), mode), 0);
        file->setProperty("key", std::to_string(mode).c_str());
        EXPECT_TRUE(file->Update());
        EXPECT_EQ(modeOf("a.cfg"), mode);
    }
}

TEST_F(FilePropertyTest, KeepsTheOwnerOfTheFileWhereItMay)
{
    FileProperty* const file = open("key = old\n");
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may give a file away";
    ASSERT_EQ(chown(m_folder.path("a.cfg").c_str(), 1234, 5678), 0);
    EXPECT_TRUE(file->Update());
    struct stat status;
    ASSERT_EQ(stat(m_folder.path("a.cfg").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 1234u);
    EXPECT_EQ(status.st_gid, 5678u);
}

TEST_F(FilePropertyTest, LetsEverybodyReadAFileThatItCreates)
{
    const mode_t mask = umask(022);
    EXPECT_TRUE(open()->Update());
    umask(mask);
    EXPECT_EQ(modeOf("a.cfg"), 0644u);
}

TEST_F(FilePropertyTest, ReplacesTheFileBehindALinkAndKeepsTheLink)
{
    std::filesystem::create_directory(m_folder.path("data"));
    m_folder.write("data/real.cfg", "key = old\n");
    std::filesystem::create_symlink("data/real.cfg", m_folder.path("a.cfg"));
    FileProperty* const file = open();
    file->setProperty("key", "new");
    EXPECT_TRUE(file->Update());
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.path("a.cfg")));
    EXPECT_EQ(m_folder.read("data/real.cfg"), "key = new\n");
    EXPECT_EQ(m_folder.entries(), "a.cfg data");
}

TEST_F(FilePropertyTest, KeepsALinkThatWasMadeAfterTheFileWasOpened)
{
    FileProperty* const file = open("key = old\n");
    std::filesystem::rename(m_folder.path("a.cfg"), m_folder.path("moved.cfg"));
    std::filesystem::create_symlink("moved.cfg", m_folder.path("a.cfg"));
    file->setProperty("key", "new");
    EXPECT_TRUE(file->Update());
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.path("a.cfg")));
    EXPECT_EQ(m_folder.read("moved.cfg"), "key = new\n");
}

TEST_F(FilePropertyTest, CreatesTheFileBehindALinkThatLeadsNowhereYet)
{
    std::filesystem::create_directory(m_folder.path("data"));
    std::filesystem::create_symlink("step.cfg", m_folder.path("a.cfg"));
    std::filesystem::create_symlink(m_folder.path("data/real.cfg"), m_folder.path("step.cfg"));
    FileProperty* const file = open();
    file->setProperty("key", "new");
    EXPECT_TRUE(file->Update());
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.path("a.cfg")));
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder.path("step.cfg")));
    EXPECT_EQ(m_folder.read("data/real.cfg"), "key = new\n");
}
