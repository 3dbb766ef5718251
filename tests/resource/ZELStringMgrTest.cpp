#include "resource/ZELStringMgr.h"

#include "common/tamfx/Exception.h"
#include "support/LibraryFaults.h"
#include "support/PanelTest.h"
#include "support/ResourceFaults.h"
#include "support/SystemFaults.h"

#include <QDir>

#include <cerrno>
#include <type_traits>

using namespace PANFx::Testing;
using PANFx::Resource::ZELStringMgr;

namespace {

class ZELStringMgrTest : public PanelTest
{
protected:
    ZELStringMgrTest() { m_manager.setBasePath(resources); }

    bool load(const std::string& strings, const std::string& locale)
    {
        writeStrings("<table>" + strings + "</table>");
        return m_manager.changeLocale(locale);
    }

    std::string text(const std::string& key) { return m_manager.getLocaleString(key); }

    void expectCannotAccess()
    {
        log().expectError("[changeLocale] Cannot access layout file: " + path, 1, "ZELStringMgr");
    }

    const std::string path = resources + "StringTable.Resource";
    ZELStringMgr m_manager;
};

// an entry with so many columns: "key0", "key1" ...
std::string entry(const std::string& key, int columns)
{
    std::string xml = "<String key='" + key + "'>";
    for (int i = 0; i < columns; ++i)
        xml += "<c>" + key + std::to_string(i) + "</c>";
    return xml + "</String>";
}

} // namespace

TEST_F(ZELStringMgrTest, tellsItsDirectoryAndItsFile)
{
    log().startHere();
    m_manager.setBasePath("/app/bin/resource/");
    EXPECT_EQ(m_manager.m_strBasePath, "/app/bin/resource/");
    EXPECT_TRUE(m_manager.changeLocale("kr"));
    EXPECT_EQ(log().texts("ZELStringMgr"),
              (std::vector<std::string>{
                  "[D] [setBasePath] m_strBasePath:/app/bin/resource/",
                  "[D] [changeLocale] strPath = /app/bin/resource/StringTable.Resource"}));
}

TEST_F(ZELStringMgrTest, takesTheColumnOfTheLanguage)
{
    const struct
    {
        const char* locale;
        const char* text;
    } columns[] = {{"kr", "k0"},  {"", "k1"},    {"esp", "k2"}, {"ita", "k3"}, {"fra", "k4"},
                   {"ger", "k5"}, {"rus", "k6"}, {"pol", "k7"}, {"chn", "k8"}, {"por", "k9"}};
    for (const auto& column : columns) {
        ZELStringMgr manager;
        manager.setBasePath(resources);
        writeStrings("<table>" + entry("k", 10) + "</table>");
        EXPECT_TRUE(manager.changeLocale(column.locale));
        EXPECT_EQ(manager.getLocaleString("k"), column.text) << column.locale;
    }
}

TEST_F(ZELStringMgrTest, takesTheDefaultColumnForAnUnknownLanguage)
{
    for (const char* locale : {"eng", "KR", "kr ", "jpn", "\xED\x95\x9C"}) {
        EXPECT_TRUE(load(entry("k", 10), locale));
        EXPECT_EQ(text("k"), "k1") << locale;
    }
}

TEST_F(ZELStringMgrTest, hasNoTextForAnUnknownKey)
{
    EXPECT_EQ(text("k"), "");
    EXPECT_TRUE(load(entry("k", 2), ""));
    EXPECT_EQ(text("K"), "");
    EXPECT_EQ(text(""), "");
    EXPECT_EQ(text("k"), "k1");
}

TEST_F(ZELStringMgrTest, knowsAnEmptyKey)
{
    EXPECT_TRUE(load(entry("", 2), ""));
    EXPECT_EQ(text(""), "1");
}

TEST_F(ZELStringMgrTest, readsNoNamesOfColumns)
{
    EXPECT_TRUE(load("<String key='k'><eng>first</eng><kr>second</kr></String>", ""));
    EXPECT_EQ(text("k"), "second");
    EXPECT_TRUE(load("<String key='k'><String>a</String><key>b</key></String>", "kr"));
    EXPECT_EQ(text("k"), "a");
}

TEST_F(ZELStringMgrTest, findsEntriesAnywhereInTheFile)
{
    EXPECT_TRUE(load("<group><deeper>" + entry("a", 2) + "</deeper></group>" + entry("b", 2), ""));
    EXPECT_EQ(text("a"), "a1");
    EXPECT_EQ(text("b"), "b1");
    writeStrings(entry("root", 2));
    EXPECT_TRUE(m_manager.changeLocale(""));
    EXPECT_EQ(text("root"), "root1");
}

TEST_F(ZELStringMgrTest, takesElementsOfThatVeryNameOnly)
{
    EXPECT_TRUE(load("<string key='a'><c>x</c></string><Text key='b'><c>x</c></Text>", "kr"));
    EXPECT_EQ(m_manager.m_tableStrings.getCount(), 0);
}

TEST_F(ZELStringMgrTest, skipsAnEntryWithoutAKey)
{
    EXPECT_TRUE(
        load("<String><c>x</c></String><String Key='a'><c>x</c></String>" + entry("k", 1), "kr"));
    EXPECT_EQ(m_manager.m_tableStrings.getCount(), 1);
    EXPECT_EQ(text("k"), "k0");
}

TEST_F(ZELStringMgrTest, letsTheLaterOfTwoEntriesWin)
{
    EXPECT_TRUE(load("<String key='k'><c>first</c></String>" + entry("other", 1) +
                         "<String key='k'><c>second</c></String>",
                     "kr"));
    EXPECT_EQ(text("k"), "second");
    EXPECT_EQ(m_manager.m_tableStrings.getCount(), 2);
}

TEST_F(ZELStringMgrTest, letsALaterEntryRemoveAnEarlierOne)
{
    EXPECT_TRUE(load("<String key='k'><c>first</c></String><String key='k'><c/></String>", "kr"));
    EXPECT_EQ(text("k"), "");
    EXPECT_EQ(m_manager.m_tableStrings.getCount(), 0);
}

TEST_F(ZELStringMgrTest, keepsTheOldTextWhereTheColumnIsMissing)
{
    EXPECT_TRUE(load(entry("k", 3), ""));
    EXPECT_EQ(text("k"), "k1");
    EXPECT_TRUE(load(entry("k", 3), "ita"));
    EXPECT_EQ(text("k"), "k1");
    EXPECT_TRUE(load("<String key='k'/>", ""));
    EXPECT_EQ(text("k"), "k1");
}

TEST_F(ZELStringMgrTest, hasNoEntryWhereTheColumnWasAlwaysMissing)
{
    EXPECT_TRUE(load(entry("k", 3), "ita"));
    EXPECT_EQ(text("k"), "");
    EXPECT_EQ(m_manager.m_tableStrings.getCount(), 0);
}

TEST_F(ZELStringMgrTest, removesAnEntryWhoseColumnIsEmpty)
{
    EXPECT_TRUE(load(entry("k", 3), ""));
    EXPECT_TRUE(load("<String key='k'><c>a</c><c/><c>b</c></String>", ""));
    EXPECT_EQ(text("k"), "");
    EXPECT_EQ(m_manager.m_tableStrings.getCount(), 0);
    EXPECT_TRUE(load("<String key='k'><c>a</c><c></c></String>", "kr"));
    EXPECT_EQ(text("k"), "a");
    EXPECT_TRUE(load("<String key='k'><c><!-- nothing --></c></String>", "kr"));
    EXPECT_EQ(text("k"), "");
}

TEST_F(ZELStringMgrTest, keepsEntriesThatTheFileNoLongerHas)
{
    EXPECT_TRUE(load(entry("a", 3) + entry("b", 3), ""));
    EXPECT_TRUE(load(entry("b", 3), "kr"));
    EXPECT_EQ(text("a"), "a1");
    EXPECT_EQ(text("b"), "b0");
    EXPECT_TRUE(load("", "kr"));
    EXPECT_EQ(text("a"), "a1");
    EXPECT_EQ(text("b"), "b0");
}

TEST_F(ZELStringMgrTest, keepsEveryBlankAndByteOfAText)
{
    EXPECT_TRUE(load("<String key='k'><c>  \xEC\xB8\xA1 \n\xC3\xA9 </c></String>"
                     "<String key='blank'><c> </c></String>"
                     "<String key='signs'><c>&lt;&amp;&gt; 100%d\\n</c></String>",
                     "kr"));
    EXPECT_EQ(text("k"), "  \xEC\xB8\xA1 \n\xC3\xA9 ");
    EXPECT_EQ(text("blank"), " ");
    EXPECT_EQ(text("signs"), "<&> 100%d\\n");
}

TEST_F(ZELStringMgrTest, knowsKeysInAnyLanguage)
{
    EXPECT_TRUE(load("<String key='\xEC\xB8\xA1 1'><c>x</c></String>", "kr"));
    EXPECT_EQ(text("\xEC\xB8\xA1 1"), "x");
}

TEST_F(ZELStringMgrTest, reportsAMissingTableAndKeepsTheOldOne)
{
    EXPECT_TRUE(load(entry("k", 3), ""));
    removeFile(path);
    log().startHere();
    expectCannotAccess();
    EXPECT_FALSE(m_manager.changeLocale("kr"));
    EXPECT_EQ(text("k"), "k1");
    log().expectInOrder({"[D] [changeLocale] strPath = " + path,
                         "[E] [changeLocale] Cannot access layout file: " + path});
}

TEST_F(ZELStringMgrTest, reportsATableThatMustNotBeReadAndKeepsTheOldOne)
{
    EXPECT_TRUE(load(entry("k", 3), ""));
    SystemFaults faults;
    faults.fail(SystemCall::Open, EACCES, "StringTable.Resource");
    faults.fail(SystemCall::Fopen, EACCES, "StringTable.Resource");
    expectCannotAccess();
    EXPECT_FALSE(m_manager.changeLocale("kr"));
    EXPECT_EQ(text("k"), "k1");
}

TEST_F(ZELStringMgrTest, reportsADirectoryInThePlaceOfTheTable)
{
    removeFile(path);
    QDir().mkpath(QString::fromStdString(realPath(path)));
    expectCannotAccess();
    EXPECT_FALSE(m_manager.changeLocale(""));
}

TEST_F(ZELStringMgrTest, reportsATableThatIsNotWellFormedAndKeepsTheOldOne)
{
    EXPECT_TRUE(load(entry("k", 3), ""));
    const std::string whole = "<table>" + entry("k", 3) + "</table>";
    std::string deep = "<table>";
    for (int i = 0; i < 300; ++i)
        deep += "<a>";
    for (const std::string& fault :
         {std::string(), whole.substr(0, whole.size() / 2), whole + "<table/>", deep,
          std::string("no markup"), std::string("<table><String key='k' key='l'/></table>")}) {
        writeStrings(fault);
        log().startHere();
        EXPECT_FALSE(m_manager.changeLocale("kr"));
        ASSERT_EQ(log().texts("ZELStringMgr").size(), 2u);
        const std::string line = log().texts("ZELStringMgr")[1];
        EXPECT_EQ(line.rfind("[E] [changeLocale] LoadXMLFile exception msg("
                             "StringTable.Resource: line ",
                             0),
                  0u)
            << line;
        EXPECT_EQ(line.back(), ')') << line;
        log().expectError(line.substr(4), 1, "ZELStringMgr");
        EXPECT_EQ(text("k"), "k1");
    }
}

TEST_F(ZELStringMgrTest, reportsAnyExceptionOfTheReader)
{
    TAMFx::Common::Exception other("out of luck");
    LibraryFaults faults;
    faults.onLoad = [&](const std::string&) { throw &other; };
    log().expectError("[changeLocale] LoadXMLFile exception msg(out of luck)", 1, "ZELStringMgr");
    EXPECT_FALSE(m_manager.changeLocale("kr"));
}

TEST_F(ZELStringMgrTest, reportsASearchThatFails)
{
    EXPECT_TRUE(load(entry("k", 3), ""));
    ResourceFaults faults;
    faults.noElementList = true;
    log().expectError("[changeLocale] m_xmlDoc.getNodeListByName(\"String\") == NULL", 1,
                      "ZELStringMgr");
    EXPECT_FALSE(m_manager.changeLocale("kr"));
    EXPECT_EQ(text("k"), "k1");
}

TEST_F(ZELStringMgrTest, skipsAnEmptyPlaceInTheListOfEntries)
{
    ResourceFaults faults;
    faults.emptyPlaceInList = 1;
    EXPECT_TRUE(load(entry("a", 1) + entry("b", 1) + entry("c", 1), "kr"));
    EXPECT_EQ(text("a"), "a0");
    EXPECT_EQ(text("b"), "");
    EXPECT_EQ(text("c"), "c0");
}

TEST_F(ZELStringMgrTest, isContentWithATableWithoutEntries)
{
    EXPECT_TRUE(load("<other/>", ""));
    EXPECT_EQ(m_manager.m_tableStrings.getCount(), 0);
}

TEST_F(ZELStringMgrTest, holdsManyEntries)
{
    std::string all;
    for (int i = 0; i < 2000; ++i)
        all += entry("k" + std::to_string(i) + "_", 10);
    EXPECT_TRUE(load(all, "por"));
    EXPECT_TRUE(load(all, "chn"));
    EXPECT_EQ(m_manager.m_tableStrings.getCount(), 2000);
    EXPECT_EQ(text("k1999_"), "k1999_8");
}

TEST_F(ZELStringMgrTest, isDeletedThroughItsBase)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<ZELStringMgr>);
}

TEST_F(ZELStringMgrTest, signsWithItsOwnName)
{
    EXPECT_EQ(m_manager.m_logger.m_strIdentity, "QTPANFx ZELStringMgr   ");
}
