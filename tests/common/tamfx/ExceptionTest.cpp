#include "common/tamfx/Exception.h"

#include "common/tamfx/ConfigurationException.h"
#include "common/tamfx/ConfigurationManager.h"
#include "common/tamfx/DBException.h"
#include "common/tamfx/Sqlite.h"
#include "common/tamfx/TestFolder.h"
#include "common/tamfx/XmlDocument.h"
#include "common/tamfx/XmlException.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <string>
#include <thread>

using PANFx::Testing::TestFolder;
using TAMFx::Common::Exception;
using TAMFx::Common::Xml::XmlDocument;
using TAMFx::Common::Xml::XmlException;
using TAMFx::Config::ConfigurationException;
using TAMFx::Config::ConfigurationManager;
using TAMFx::DB::DBException;
using TAMFx::DB::Sqlite;

TEST(ExceptionTest, HoldsATextAndANumber)
{
    const std::string text = "no such thing";
    const Exception exception(text.c_str(), 7);
    EXPECT_STREQ(exception.GetMessage(), "no such thing");
    EXPECT_EQ(exception.GetCode(), 7);
}

TEST(ExceptionTest, HasNeverANullText)
{
    EXPECT_STREQ(Exception().GetMessage(), "");
    EXPECT_STREQ(Exception(nullptr).GetMessage(), "");
    EXPECT_EQ(Exception().GetCode(), 0);
}

TEST(ExceptionTest, KeepsItsTextWhenCopied)
{
    DBException copy;
    {
        const DBException original("a text that is too long for a small buffer of any kind", 5);
        copy = original;
    }
    EXPECT_STREQ(copy.GetMessage(), "a text that is too long for a small buffer of any kind");
    EXPECT_EQ(copy.GetCode(), 5);
}

TEST(ExceptionTest, OfXmlIsCaughtAsAPointerOfItsClassOrItsBase)
{
    const TestFolder folder;
    const std::string path = folder.write("bad.resource", "<a>");
    XmlDocument document;
    EXPECT_THROW(document.LoadXMLFile(path.c_str()), XmlException*);
    EXPECT_THROW(document.LoadXMLFile(path.c_str()), Exception*);
}

TEST(ExceptionTest, OfTheConfigurationIsCaughtAsAPointerOfItsClassOrItsBase)
{
    const TestFolder folder;
    const std::string path = folder.path();
    ConfigurationManager* const manager = ConfigurationManager::GetManager();
    EXPECT_THROW(manager->openProperty(path.c_str(), 6302), ConfigurationException*);
    EXPECT_THROW(manager->openProperty(path.c_str(), 6302), Exception*);
}

TEST(ExceptionTest, OfTheDatabaseIsCaughtByValueOfItsClassOrItsBase)
{
    Sqlite database;
    EXPECT_THROW(database.Open("/no/such/folder/a.db", 7002), DBException);
    EXPECT_THROW(database.Open("/no/such/folder/a.db", 7002), Exception);
}

TEST(ExceptionTest, ThrownAsAPointerStaysReadableAfterTheHandler)
{
    const TestFolder folder;
    const std::string path = folder.write("bad.resource", "<a>\n</b>");
    const Exception* kept = nullptr;
    try {
        XmlDocument().LoadXMLFile(path.c_str());
    } catch (XmlException* exception) {
        kept = exception;
    }
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(kept->GetCode(), 2);
    EXPECT_EQ(std::string(kept->GetMessage()).find("bad.resource: line 2, "), 0u);
}

TEST(ExceptionTest, ThrownAsAPointerBelongsToItsThread)
{
    const TestFolder folder;
    const std::string first = folder.write("first.resource", "<a>");
    const std::string second = folder.write("second.resource", "<a>");
    const auto faultOf = [](const std::string& path) -> const Exception* {
        try {
            XmlDocument().LoadXMLFile(path.c_str());
        } catch (XmlException* exception) {
            return exception;
        }
        return nullptr;
    };
    const Exception* const mine = faultOf(first);
    const Exception* other = nullptr;
    std::thread([&] { other = faultOf(second); }).join();
    ASSERT_NE(mine, nullptr);
    EXPECT_NE(mine, other);
    EXPECT_EQ(std::string(mine->GetMessage()).find("first.resource: "), 0u);
}

TEST(ExceptionTest, OfTheConfigurationNamesTheFileAndTheSystemsReason)
{
    const TestFolder folder;
    const std::string path = folder.path();
    try {
        ConfigurationManager::GetManager()->openProperty(path.c_str(), 6302);
        FAIL() << "nothing thrown";
    } catch (ConfigurationException* exception) {
        EXPECT_EQ(exception->GetMessage(),
                  "cannot read " + path.substr(path.rfind('/') + 1) + ": Is a directory");
        EXPECT_EQ(exception->GetCode(), EISDIR);
    }
}

TEST(ExceptionTest, OfTheDatabaseHoldsWhatSqliteSays)
{
    const TestFolder folder;
    Sqlite database;
    database.Open(folder.path("a.db").c_str(), 7002);
    try {
        database.Execute("SELECT * FROM nowhere", 200000);
        FAIL() << "nothing thrown";
    } catch (const DBException& exception) {
        EXPECT_STREQ(exception.GetMessage(), "no such table: nowhere");
        EXPECT_EQ(exception.GetCode(), SQLITE_ERROR);
    }
}
