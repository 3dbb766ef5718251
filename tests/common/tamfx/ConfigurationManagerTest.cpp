#include "common/tamfx/ConfigurationManager.h"

#include "common/tamfx/ConfigurationException.h"
#include "common/tamfx/FileProperty.h"
#include "common/tamfx/TestFolder.h"
#include "support/SystemFaults.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

using PANFx::Testing::SystemCall;
using PANFx::Testing::SystemFaults;
using PANFx::Testing::TestFolder;
using TAMFx::Config::ConfigurationException;
using TAMFx::Config::ConfigurationManager;
using TAMFx::Data::Properties::FileProperty;

namespace {

class ConfigurationManagerTest : public ::testing::Test
{
protected:
    FileProperty* open(const std::string& name) const
    {
        return m_manager->openProperty(m_folder.path(name).c_str(), 6302);
    }

    /** The system's error number for a file, 0 when it opens. */
    int errorOf(const std::string& name) const
    {
        try {
            EXPECT_NE(open(name), nullptr);
            return 0;
        } catch (ConfigurationException* exception) {
            return exception->GetCode();
        }
    }

    TestFolder m_folder;
    ConfigurationManager* m_manager = ConfigurationManager::GetManager();
};

/** Calls the first virtual operation of the manager by its place, as old applications do. */
__attribute__((no_sanitize("undefined"))) FileProperty* callFirst(ConfigurationManager* manager,
                                                                  const char* path, int mode)
{
    using Operation = FileProperty* (*)(ConfigurationManager*, const char*, int);
    Operation* const operations = *reinterpret_cast<Operation**>(manager);
    return operations[0](manager, path, mode);
}

} // namespace

TEST_F(ConfigurationManagerTest, IsOneForTheProcess)
{
    ASSERT_NE(m_manager, nullptr);
    EXPECT_EQ(ConfigurationManager::GetManager(), m_manager);
}

TEST_F(ConfigurationManagerTest, HasOpenPropertyAsItsFirstVirtualOperation)
{
    const std::string path = m_folder.write("a.cfg", "Language = kr\n");
    FileProperty* const file = callFirst(m_manager, path.c_str(), 6302);
    ASSERT_NE(file, nullptr);
    EXPECT_STREQ(file->getProperty("Language"), "kr");
    EXPECT_EQ(open("a.cfg"), file);
}

TEST_F(ConfigurationManagerTest, OpensAFileOnce)
{
    m_folder.write("a.cfg", "key = 1\n");
    m_folder.write("b.cfg", "key = 2\n");
    FileProperty* const a = open("a.cfg");
    FileProperty* const b = open("b.cfg");
    EXPECT_NE(a, b);
    EXPECT_EQ(open("a.cfg"), a);
    EXPECT_EQ(open("b.cfg"), b);
    EXPECT_STREQ(a->getProperty("key"), "1");
    EXPECT_STREQ(b->getProperty("key"), "2");
}

TEST_F(ConfigurationManagerTest, KnowsAFileByAnyOfItsPaths)
{
    m_folder.write("real.cfg", "key = 1\n");
    std::filesystem::create_symlink("real.cfg", m_folder.path("link.cfg"));
    std::filesystem::create_directory(m_folder.path("sub"));
    FileProperty* const file = open("real.cfg");
    EXPECT_EQ(open("link.cfg"), file);
    EXPECT_EQ(open("sub/../real.cfg"), file);
    EXPECT_EQ(open(".//real.cfg"), file);
}

TEST_F(ConfigurationManagerTest, KnowsAMissingFileByAnyOfItsPaths)
{
    std::filesystem::create_directory(m_folder.path("sub"));
    std::filesystem::create_symlink("later.cfg", m_folder.path("link.cfg"));
    FileProperty* const file = open("sub/../later.cfg");
    EXPECT_EQ(open("later.cfg"), file);
    EXPECT_EQ(open("link.cfg"), file);
}

TEST_F(ConfigurationManagerTest, ReadsAFileAgainThatIsOpenedAgain)
{
    m_folder.write("a.cfg", "key = 1\n");
    FileProperty* const file = open("a.cfg");
    m_folder.write("a.cfg", "key = 2\n");
    EXPECT_STREQ(file->getProperty("key"), "1");
    EXPECT_EQ(open("a.cfg"), file);
    EXPECT_STREQ(file->getProperty("key"), "2");
    std::filesystem::remove(m_folder.path("a.cfg"));
    open("a.cfg");
    EXPECT_STREQ(file->getProperty("key"), "");
}

TEST_F(ConfigurationManagerTest, DoesNotReadAFileAgainWhileChangesWait)
{
    m_folder.write("a.cfg", "key = 1\n");
    FileProperty* const file = open("a.cfg");
    file->setProperty("key", "mine");
    m_folder.write("a.cfg", "key = 2\n");
    open("a.cfg");
    EXPECT_STREQ(file->getProperty("key"), "mine");
    EXPECT_TRUE(file->Update());
    m_folder.write("a.cfg", "key = 3\n");
    open("a.cfg");
    EXPECT_STREQ(file->getProperty("key"), "3");
}

TEST_F(ConfigurationManagerTest, TakesTheSameValueSetAgainForNoChange)
{
    m_folder.write("a.cfg", "key = 1\n");
    FileProperty* const file = open("a.cfg");
    file->setProperty("key", "1");
    m_folder.write("a.cfg", "key = 2\n");
    open("a.cfg");
    EXPECT_STREQ(file->getProperty("key"), "2");
}

TEST_F(ConfigurationManagerTest, OpensAMissingFileWithoutKeys)
{
    FileProperty* const file = open("none.cfg");
    ASSERT_NE(file, nullptr);
    EXPECT_STREQ(file->getProperty("Language"), "");
    EXPECT_EQ(m_folder.entries(), "");
}

TEST_F(ConfigurationManagerTest, OpensAFileInAMissingFolderWithoutKeys)
{
    FileProperty* const file = open("none/none.cfg");
    ASSERT_NE(file, nullptr);
    file->setProperty("key", "value");
    EXPECT_FALSE(file->Update());
    EXPECT_STREQ(file->getProperty("key"), "value");
    std::filesystem::create_directory(m_folder.path("none"));
    EXPECT_TRUE(file->Update());
    EXPECT_EQ(m_folder.read("none/none.cfg"), "key = value\n");
}

TEST_F(ConfigurationManagerTest, ThrowsForADirectory)
{
    std::filesystem::create_directory(m_folder.path("folder.cfg"));
    EXPECT_EQ(errorOf("folder.cfg"), EISDIR);
}

TEST_F(ConfigurationManagerTest, ThrowsForAFileThatMayNotBeRead)
{
    m_folder.write("a.cfg", "key = 1\n");
    SystemFaults faults;
    faults.fail(SystemCall::Open, EACCES, "a.cfg");
    EXPECT_EQ(errorOf("a.cfg"), EACCES);
}

TEST_F(ConfigurationManagerTest, ThrowsForAFileBelowAFile)
{
    m_folder.write("a.cfg", "key = 1\n");
    EXPECT_EQ(errorOf("a.cfg/b.cfg"), ENOTDIR);
}

TEST_F(ConfigurationManagerTest, ThrowsForACircleOfLinks)
{
    std::filesystem::create_symlink("b.cfg", m_folder.path("a.cfg"));
    std::filesystem::create_symlink("a.cfg", m_folder.path("b.cfg"));
    EXPECT_EQ(errorOf("a.cfg"), ELOOP);
}

TEST_F(ConfigurationManagerTest, ThrowsForAMissingName)
{
    EXPECT_THROW(m_manager->openProperty(nullptr, 6302), ConfigurationException*);
    EXPECT_THROW(m_manager->openProperty("", 6302), ConfigurationException*);
}

TEST_F(ConfigurationManagerTest, KeepsTheValuesOfAFileThatCannotBeReadAgain)
{
    m_folder.write("a.cfg", "key = 1\n");
    FileProperty* const file = open("a.cfg");
    {
        SystemFaults faults;
        faults.fail(SystemCall::Open, EIO, "a.cfg");
        EXPECT_EQ(errorOf("a.cfg"), EIO);
    }
    EXPECT_STREQ(file->getProperty("key"), "1");
    EXPECT_EQ(open("a.cfg"), file);
}

TEST_F(ConfigurationManagerTest, OpensAFileOnceItCanBeRead)
{
    m_folder.write("a.cfg", "key = 1\n");
    {
        SystemFaults faults;
        faults.fail(SystemCall::Open, EIO, "a.cfg");
        EXPECT_EQ(errorOf("a.cfg"), EIO);
    }
    EXPECT_STREQ(open("a.cfg")->getProperty("key"), "1");
}
