#include "resource/ZELResourceMgr.h"

#include "common/tamfx/ConfigurationException.h"
#include "common/tamfx/Exception.h"
#include "common/tamfx/FileProperty.h"
#include "resource/Font.h"
#include "support/PanelTest.h"
#include "support/ResourceFaults.h"
#include "support/SystemFaults.h"

#include <QColor>
#include <QDir>
#include <QFont>
#include <QPixmap>

#include <cerrno>
#include <type_traits>
#include <utility>
#include <vector>

using namespace PANFx::Testing;
using PANFx::Resource::Font;
using PANFx::Resource::ZELResourceMgr;
using TAMFx::Config::ConfigurationException;
using TAMFx::Data::Properties::FileProperty;

namespace {

class ZELResourceMgrTest : public PanelTest
{
protected:
    static ZELResourceMgr& manager() { return *ZELResourceMgr::getInstance(); }

    static ZELResourceMgr& restarted()
    {
        ZELResourceMgr::destroyInstance();
        return manager();
    }

    static std::string text(const std::string& source) { return manager().getLocaleString(source); }

    // a manager that came up without a configuration
    void expectNothingToBeFound()
    {
        EXPECT_EQ(manager().m_pProperty, nullptr);
        EXPECT_EQ(manager().m_strLocale, "");
        EXPECT_EQ(manager().getBasePath(), "");
        ASSERT_NE(manager().getImage("a.png"), nullptr);
        EXPECT_TRUE(manager().getImage("a.png")->isNull());
        EXPECT_EQ(manager().getFont("normal"), nullptr);
        EXPECT_EQ(text("@k"), "");
        EXPECT_EQ(text("plain"), "plain");
    }

    const std::string config = "/data/config/config_zelapp.cfg";
};

const char* const table = "<table>"
                          "<String key='k'><c>zero</c><c>one</c><c>two</c><c>three</c></String>"
                          "<String key='two lines'><c/><c>a\\nb</c></String>"
                          "<String key='at'><c/><c>@k</c></String>"
                          "</table>";

class OpenManager : public ZELResourceMgr
{
public:
    using ZELResourceMgr::m_logger;
};

} // namespace

// ---- the one instance

TEST_F(ZELResourceMgrTest, isMadeOnFirstUseAndOnce)
{
    ZELResourceMgr* const first = ZELResourceMgr::getInstance();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(ZELResourceMgr::getInstance(), first);
    EXPECT_EQ(log().count("[D] [ZELResourceMgr::ZELResourceMgr] end"), 1);
}

TEST_F(ZELResourceMgrTest, isMadeAnewAfterItsEnd)
{
    manager().changeLocale("kr");
    ZELResourceMgr::destroyInstance();
    ZELResourceMgr::destroyInstance(); // harmless a second time
    EXPECT_EQ(manager().m_strLocale, "");
    EXPECT_EQ(log().count("[D] [ZELResourceMgr::ZELResourceMgr] end"), 2);
    EXPECT_TRUE(std::has_virtual_destructor_v<ZELResourceMgr>);
}

TEST_F(ZELResourceMgrTest, readsTheConfigurationOnceWhenFirstUsed)
{
    const SystemFaults faults;
    EXPECT_EQ(faults.count(SystemCall::Open, "config_zelapp.cfg"), 0);
    manager();
    const int opened = faults.count(SystemCall::Open, "config_zelapp.cfg");
    EXPECT_GT(opened, 0);
    manager().getFont("normal");
    manager().getImage("a.png");
    manager().changeLocale("kr");
    EXPECT_EQ(faults.count(SystemCall::Open, "config_zelapp.cfg"), opened);
}

TEST_F(ZELResourceMgrTest, comesUpInItsFixedOrder)
{
    writeConfig("kr", resources);
    removeFile(resources + "default.style"); // so that the styles speak up too
    log().startHere();
    log().expectError("[changeLocale] Cannot load style file: /app/bin/resource/default.style");
    manager();
    EXPECT_EQ(log().texts(),
              (std::vector<std::string>{
                  "[D] [ZELResourceMgr] : Base Locale: kr, Base Resource Path: /app/bin/resource/",
                  "[D] [setBasePath] m_strBasePath:/app/bin/resource/",
                  "[D] [changeLocale] m_strLocale:kr",
                  "[E] [changeLocale] Cannot load style file: /app/bin/resource/default.style",
                  "[D] [setBasePath] m_strBasePath:/app/bin/resource/",
                  "[D] [changeLocale] strPath = /app/bin/resource/StringTable.Resource",
                  "[D] [ZELResourceMgr::ZELResourceMgr] end"}));
    std::vector<std::string> classes;
    for (const LogLine& line : log().lines())
        classes.push_back(line.className());
    EXPECT_EQ(classes, (std::vector<std::string>{"ZELResourceMgr", "ZELImageMgr", "ZELImageMgr",
                                                 "ZELFontMgr", "ZELStringMgr", "ZELStringMgr",
                                                 "ZELResourceMgr"}));
}

// ---- the configuration

TEST_F(ZELResourceMgrTest, acceptsEveryLanguageOfThePanel)
{
    for (const char* locale : {"", "kr", "esp", "fra", "ger", "ita", "rus", "pol", "chn", "por"}) {
        writeConfig(locale, resources);
        const std::string before = readFile(config);
        EXPECT_EQ(restarted().m_strLocale, locale);
        EXPECT_EQ(manager().getBasePath(), "/app/bin/resource/");
        EXPECT_EQ(readFile(config), before) << "nothing was to be written";
    }
}

TEST_F(ZELResourceMgrTest, replacesALanguageThatIsNone)
{
    for (const char* locale : {"eng", "KR", "kr/", "jpn", "\xED\x95\x9C"}) {
        writeFile(config, std::string("# ours\nLanguage = ") + locale +
                              "\nResourcePath = /app/bin/resource/\nOther = 7\n");
        EXPECT_EQ(restarted().m_strLocale, "") << locale;
        EXPECT_EQ(readFile(config),
                  "# ours\nLanguage = \nResourcePath = /app/bin/resource/\nOther = 7\n");
        EXPECT_STREQ(manager().m_pProperty->getProperty("Language"), "");
    }
}

TEST_F(ZELResourceMgrTest, replacesAnEmptyResourcePath)
{
    writeConfig("kr", "");
    writePicture("a.png", 4, 4, Qt::red);
    EXPECT_EQ(manager().getBasePath(), "/app/bin/resource/");
    EXPECT_EQ(readFile(config), "Language = kr\nResourcePath = /app/bin/resource/\n");
    EXPECT_FALSE(manager().getImage("a.png")->isNull());
}

TEST_F(ZELResourceMgrTest, createsAMissingConfiguration)
{
    removeFile(config);
    EXPECT_EQ(manager().m_strLocale, "");
    EXPECT_EQ(manager().getBasePath(), "/app/bin/resource/");
    EXPECT_EQ(readFile(config), "ResourcePath = /app/bin/resource/\n");
    EXPECT_NE(manager().getFont("normal"), nullptr);
}

TEST_F(ZELResourceMgrTest, readsTheResourcesOfAnotherDirectory)
{
    writeFile("/app/own/default.style", "<s><Font><own/></Font></s>");
    writeFile("/app/own/StringTable.Resource",
              "<t><String key='k'><c>0</c><c>own</c></String></t>");
    writeConfig("", "/app/own/");
    EXPECT_EQ(manager().getBasePath(), "/app/own/");
    EXPECT_EQ(manager().m_strBasePath, "/app/own/");
    EXPECT_NE(manager().getFont("own"), nullptr);
    EXPECT_EQ(text("@k"), "own");
    EXPECT_EQ(log().count("[D] [ZELResourceMgr] : Base Locale: , Base Resource Path: /app/own/"),
              1);
}

TEST_F(ZELResourceMgrTest, leavesItToTheConfigurationToEndTheDirectoryWithASlash)
{
    writeConfig("", "/app/own");
    log().expectError("[changeLocale] Cannot load style file: /app/owndefault.style");
    log().expectError("[changeLocale] Cannot access layout file: /app/ownStringTable.Resource");
    EXPECT_EQ(manager().getBasePath(), "/app/own");
}

TEST_F(ZELResourceMgrTest, comesUpWhereTheConfigurationCannotBeWritten)
{
    writeConfig("eng", resources);
    writePicture("a.png", 4, 4, Qt::red);
    const std::string before = readFile(config);
    SystemFaults faults;
    faults.fail(SystemCall::Rename, EROFS, "config_zelapp.cfg");
    log().expectError("[ZELResourceMgr] cannot write /data/config/config_zelapp.cfg", 1,
                      "ZELResourceMgr");
    EXPECT_EQ(manager().m_strLocale, "");
    EXPECT_FALSE(manager().getImage("a.png")->isNull());
    EXPECT_NE(manager().getFont("normal"), nullptr);
    EXPECT_EQ(log().count("[D] [ZELResourceMgr::ZELResourceMgr] end"), 1);
    EXPECT_EQ(readFile(config), before);
}

TEST_F(ZELResourceMgrTest, writesTheLanguageBeforeTheDirectory)
{
    writeConfig("eng", "");
    SystemFaults faults;
    faults.fail(SystemCall::Rename, EROFS, "config_zelapp.cfg", 1); // the second one only
    log().expectError("[ZELResourceMgr] cannot write /data/config/config_zelapp.cfg", 1,
                      "ZELResourceMgr");
    EXPECT_EQ(manager().getBasePath(), "/app/bin/resource/");
    EXPECT_EQ(readFile(config), "Language = \nResourcePath = \n");
}

TEST_F(ZELResourceMgrTest, livesWithoutAConfigurationThatIsADirectory)
{
    removeFile(config);
    QDir().mkpath(QString::fromStdString(realPath(config)));
    log().startHere();
    manager();
    ASSERT_EQ(log().texts().size(), 1u);
    EXPECT_EQ(log().texts()[0].rfind("[D] [ZELResourceMgr] cannot read ", 0), 0u)
        << log().texts()[0];
    expectNothingToBeFound();
}

TEST_F(ZELResourceMgrTest, livesWithoutAConfigurationThatMustNotBeRead)
{
    SystemFaults faults;
    faults.fail(SystemCall::Open, EACCES, "config_zelapp.cfg");
    log().startHere();
    manager();
    ASSERT_EQ(log().texts().size(), 1u);
    EXPECT_EQ(log().texts()[0].rfind("[D] [ZELResourceMgr] cannot read ", 0), 0u)
        << log().texts()[0];
    expectNothingToBeFound();
}

TEST_F(ZELResourceMgrTest, tellsTheMessageOfAConfigurationThatFails)
{
    ConfigurationException exception("out of luck");
    ResourceFaults faults;
    faults.onOpenProperty = [&](const std::string&, int) -> FileProperty* { throw &exception; };
    log().startHere();
    manager();
    EXPECT_EQ(log().texts(), std::vector<std::string>{"[D] [ZELResourceMgr] out of luck"});
    expectNothingToBeFound();
}

TEST_F(ZELResourceMgrTest, isSilentAboutAFailureThatSaysNothing)
{
    ResourceFaults faults;
    faults.onOpenProperty = [](const std::string&, int) -> FileProperty* {
        throw static_cast<ConfigurationException*>(nullptr);
    };
    log().startHere();
    manager();
    EXPECT_TRUE(log().lines().empty());
    expectNothingToBeFound();
}

TEST_F(ZELResourceMgrTest, livesWithoutAConfigurationThatIsNotGiven)
{
    ResourceFaults faults;
    faults.onOpenProperty = [](const std::string&, int) -> FileProperty* { return nullptr; };
    log().expectError("[ZELResourceMgr] no configuration: /data/config/config_zelapp.cfg", 1,
                      "ZELResourceMgr");
    expectNothingToBeFound();
}

TEST_F(ZELResourceMgrTest, asksOnceForItsConfigurationWithItsMode)
{
    std::vector<std::pair<std::string, int>> asked;
    ResourceFaults faults;
    faults.onOpenProperty = [&](const std::string& path, int mode) -> FileProperty* {
        asked.emplace_back(path, mode);
        return nullptr;
    };
    log().expectError("[ZELResourceMgr] no configuration: /data/config/config_zelapp.cfg", 1,
                      "ZELResourceMgr");
    manager();
    manager();
    EXPECT_EQ(asked, (std::vector<std::pair<std::string, int>>{{realPath(config), 6302}}));
}

TEST_F(ZELResourceMgrTest, letsAnExceptionOfAnotherKindPassAndIsMadeAtTheNextUse)
{
    TAMFx::Common::Exception exception("of the foundation");
    {
        ResourceFaults faults;
        faults.onOpenProperty = [&](const std::string&, int) -> FileProperty* { throw &exception; };
        log().startHere();
        EXPECT_THROW(ZELResourceMgr::getInstance(), TAMFx::Common::Exception*);
        EXPECT_TRUE(log().lines().empty());
    }
    EXPECT_NE(manager().getFont("normal"), nullptr);
    EXPECT_EQ(log().count("[D] [ZELResourceMgr::ZELResourceMgr] end"), 1);
}

TEST_F(ZELResourceMgrTest, finishesWithoutResources)
{
    removeFile(resources + "default.style");
    removeFile(resources + "StringTable.Resource");
    log().expectError("[changeLocale] Cannot load style file: /app/bin/resource/default.style");
    log().expectError("[changeLocale] Cannot access layout file: "
                      "/app/bin/resource/StringTable.Resource");
    EXPECT_EQ(manager().getFont("normal"), nullptr);
    EXPECT_EQ(text("@k"), "");
    EXPECT_EQ(log().count("[D] [ZELResourceMgr::ZELResourceMgr] end"), 1);
}

// ---- pictures and styles

TEST_F(ZELResourceMgrTest, handsOutPicturesAndStyles)
{
    writePicture("a.png", 4, 4, Qt::red);
    QPixmap* const picture = manager().getImage("a.png");
    EXPECT_EQ(picture->size(), QSize(4, 4));
    EXPECT_EQ(manager().getImage("a.png"), picture);
    Font* const style = manager().getFont("pressed");
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(*style->m_pColor, QColor(255, 0, 0));
    EXPECT_EQ(manager().getFont("pressed"), style);
    EXPECT_EQ(manager().getFont("unknown"), nullptr);
    EXPECT_EQ(manager().getFont(""), nullptr);
    log().expectError("[getImage] No FileName Error", 1, "ZELImageMgr");
    EXPECT_EQ(manager().getImage(""), nullptr);
}

// ---- texts

TEST_F(ZELResourceMgrTest, givesATextAsItIs)
{
    writeStrings(table);
    EXPECT_EQ(text(""), "");
    EXPECT_EQ(text("Start"), "Start");
    EXPECT_EQ(text("k"), "k");
    EXPECT_EQ(text(" @k"), " @k");
    EXPECT_EQ(text("k@k"), "k@k");
    EXPECT_EQ(text("100%d"), "100%d");
}

TEST_F(ZELResourceMgrTest, looksUpATextBehindAnAtSign)
{
    writeStrings(table);
    EXPECT_EQ(text("@k"), "one");
    EXPECT_EQ(text("@unknown"), "");
    EXPECT_EQ(text("@@k"), "");
    EXPECT_EQ(text("@ k"), "");
    EXPECT_EQ(text("@K"), "");
}

TEST_F(ZELResourceMgrTest, looksUpOnce)
{
    writeStrings(table);
    EXPECT_EQ(text("@at"), "@k");
}

TEST_F(ZELResourceMgrTest, takesASingleAtSignForTheEmptyKey)
{
    EXPECT_EQ(text("@"), "");
    writeStrings("<table><String key=''><c/><c>nothing</c></String></table>");
    manager().changeLocale("");
    EXPECT_EQ(text("@"), "nothing");
}

TEST_F(ZELResourceMgrTest, makesLineFeedsOfBackslashAndN)
{
    writeStrings(table);
    EXPECT_EQ(text("@two lines"), "a\nb");
    EXPECT_EQ(text("a\\nb\\n"), "a\nb\n");
    EXPECT_EQ(text("\\n"), "\n");
    EXPECT_EQ(text("\\n\\n"), "\n\n");
    EXPECT_EQ(text("\\\\n"), "\\\n");
}

TEST_F(ZELResourceMgrTest, leavesOtherBackslashesAlone)
{
    EXPECT_EQ(text("a\\Nb"), "a\\Nb");
    EXPECT_EQ(text("a\\tb\\"), "a\\tb\\");
    EXPECT_EQ(text("a\nb"), "a\nb");
}

TEST_F(ZELResourceMgrTest, keepsEveryByteOfAText)
{
    const std::string hangul = "\xEC\xB8\xA1\xEC\xA0\x95";
    writeStrings("<table><String key='" + hangul + "'><c/><c>" + hangul +
                 "\\n\xC3\xA9</c>"
                 "</String></table>");
    EXPECT_EQ(text(hangul), hangul);
    EXPECT_EQ(text("@" + hangul), hangul + "\n\xC3\xA9");
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(text(all), all);
}

TEST_F(ZELResourceMgrTest, endsATextAtItsFirstNul)
{
    writeStrings(table);
    EXPECT_EQ(text(std::string("ab\0cd", 5)), "ab");
    EXPECT_EQ(text(std::string("@k\0x", 4)), "one");
    EXPECT_EQ(text(std::string("\0ab", 3)), "");
}

// ---- a change of language

TEST_F(ZELResourceMgrTest, switchesPicturesStylesAndTextsInThatOrder)
{
    writePicture("a.png", 4, 4, Qt::red);
    writePicture("a.png", 8, 8, Qt::blue, "kr");
    writeStyle("<s><Font><normal size='30'/></Font></s>", "kr");
    writeStrings(table);
    EXPECT_EQ(manager().getImage("a.png")->width(), 4);
    EXPECT_EQ(manager().getFont("normal")->m_pFont->pointSize(), 14);
    EXPECT_EQ(text("@k"), "one");
    removeFile(resources + "default.style");
    writeStyle("<broken", "kr"); // so that the styles speak up
    log().startHere();
    manager().changeLocale("kr");
    ASSERT_EQ(log().texts().size(), 3u);
    EXPECT_EQ(log().texts()[0], "[D] [changeLocale] m_strLocale:kr");
    EXPECT_EQ(log().lines()[1].className(), "ZELFontMgr");
    EXPECT_EQ(log().texts()[2],
              "[D] [changeLocale] strPath = /app/bin/resource/StringTable.Resource");
    writeStyle("<s><Font><normal size='30'/></Font></s>", "kr");
    manager().changeLocale("kr");
    EXPECT_EQ(manager().m_strLocale, "kr");
    EXPECT_EQ(manager().getImage("a.png")->width(), 8);
    EXPECT_EQ(manager().getFont("normal")->m_pFont->pointSize(), 30);
    EXPECT_EQ(text("@k"), "zero");
}

TEST_F(ZELResourceMgrTest, leavesTheConfigurationAloneInAChangeOfLanguage)
{
    const std::string before = readFile(config);
    manager();
    const SystemFaults faults;
    manager().changeLocale("kr");
    EXPECT_EQ(readFile(config), before);
    EXPECT_EQ(faults.count(SystemCall::Rename), 0);
    EXPECT_STREQ(manager().m_pProperty->getProperty("Language"), "");
    EXPECT_EQ(restarted().m_strLocale, "");
}

TEST_F(ZELResourceMgrTest, takesAnyLanguageInAChange)
{
    writePicture("a.png", 4, 4, Qt::red);
    writePicture("a.png", 8, 8, Qt::blue, "jpn");
    writeStrings(table);
    manager().changeLocale("jpn");
    EXPECT_EQ(manager().m_strLocale, "jpn");
    EXPECT_EQ(manager().getImage("a.png")->width(), 8);
    EXPECT_NE(manager().getFont("normal"), nullptr);
    EXPECT_EQ(text("@k"), "one");
    manager().changeLocale("../img");
    EXPECT_EQ(manager().getImage("a.png")->width(), 4);
}

TEST_F(ZELResourceMgrTest, columnsAndLanguagesHaveTheirOwnOrders)
{
    writeStrings("<table><String key='k'><c>0</c><c>1</c><c>2</c><c>3</c><c>4</c><c>5</c></String>"
                 "</table>");
    manager().changeLocale("ita");
    EXPECT_EQ(text("@k"), "3");
    manager().changeLocale("fra");
    EXPECT_EQ(text("@k"), "4");
}

TEST_F(ZELResourceMgrTest, leavesWhatWasHandedOutReadableOverAChangeOfLanguage)
{
    writePicture("a.png", 4, 4, Qt::red);
    QPixmap* const picture = manager().getImage("a.png");
    Font* const style = manager().getFont("pressed");
    manager().changeLocale("kr");
    EXPECT_TRUE(picture->isNull());
    EXPECT_EQ(*style->m_pColor, QColor(255, 0, 0));
    EXPECT_EQ(style->m_pFont->pointSize(), 14);
    manager().changeLocale("");
    EXPECT_EQ(manager().getImage("a.png"), picture);
    EXPECT_EQ(picture->size(), QSize(4, 4));
    EXPECT_NE(manager().getFont("pressed"), style);
    ZELResourceMgr::destroyInstance();
    EXPECT_EQ(*style->m_pColor, QColor(255, 0, 0));
    EXPECT_TRUE(picture->isNull()) << "a window that outlives the manager paints without it";
}

TEST_F(ZELResourceMgrTest, signsWithItsOwnName)
{
    EXPECT_EQ(OpenManager().m_logger.m_strIdentity, "QTPANFx ZELResourceMgr ");
}
