#include "resource/ZELFontMgr.h"

#include "common/tamfx/Exception.h"
#include "resource/Font.h"
#include "support/DecimalComma.h"
#include "support/LibraryFaults.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/ResourceFaults.h"
#include "support/SystemFaults.h"

#include <QColor>
#include <QDir>
#include <QFont>
#include <QPainter>

#include <cerrno>
#include <memory>
#include <type_traits>

using namespace PANFx::Testing;
using PANFx::Resource::Font;
using PANFx::Resource::ZELFontMgr;

namespace {

class ZELFontMgrTest : public PanelTest
{
protected:
    ZELFontMgrTest() { m_manager.setBasePath(resources); }

    static std::string fileOf(const std::string& styles)
    {
        return "<style><Font>" + styles + "</Font></style>";
    }

    // the one style that the attributes make; its font and colour
    const Font& style(const std::string& attributes)
    {
        writeStyle(fileOf("<s " + attributes + "/>"));
        m_manager.changeLocale("");
        Font* const font = m_manager.getFont("s");
        EXPECT_NE(font, nullptr);
        static Font* const none = new Font; // stays reachable, as the styles do
        return font ? *font : *none;
    }

    const QFont& font(const std::string& attributes) { return *style(attributes).m_pFont; }

    QColor colour(const std::string& attributes) { return *style(attributes).m_pColor; }

    // the size of a style tells which file it came from
    int sizeOf(const std::string& name)
    {
        Font* const found = m_manager.getFont(name);
        return found ? found->m_pFont->pointSize() : -1;
    }

    void writeSizes(int size, const std::string& locale = "")
    {
        writeStyle(fileOf("<s size='" + std::to_string(size) + "'/>"), locale);
    }

    void expectCannotLoad()
    {
        log().expectError("[changeLocale] Cannot load style file: " + path, 1, "ZELFontMgr");
    }

    const std::string path = resources + "default.style";
    ZELFontMgr m_manager;
};

} // namespace

TEST_F(ZELFontMgrTest, isSilentWhenAllIsWell)
{
    log().startHere();
    m_manager.setBasePath(resources);
    m_manager.changeLocale("");
    m_manager.changeLocale("kr");
    EXPECT_NE(m_manager.getFont("normal"), nullptr);
    EXPECT_EQ(m_manager.getFont("unknown"), nullptr);
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELFontMgrTest, knowsStylesByTheirElementNames)
{
    writeStyle(fileOf("<title size='20'/><Title size='21'/><\xEC\xA0\x9C size='22'/>"));
    m_manager.changeLocale("");
    EXPECT_EQ(sizeOf("title"), 20);
    EXPECT_EQ(sizeOf("Title"), 21);
    EXPECT_EQ(sizeOf("\xEC\xA0\x9C"), 22);
    EXPECT_EQ(m_manager.getFont("TITLE"), nullptr);
    EXPECT_EQ(m_manager.getFont(""), nullptr);
    EXPECT_EQ(m_manager.m_tableFonts.getCount(), 3);
}

TEST_F(ZELFontMgrTest, knowsNoStyleBeforeTheFirstLanguage)
{
    EXPECT_EQ(m_manager.getFont("normal"), nullptr);
}

TEST_F(ZELFontMgrTest, givesQtsFontInBlackWhereNothingIsSaid)
{
    QFont plain;
    plain.setStyle(QFont::StyleNormal);
    EXPECT_EQ(font(""), plain);
    EXPECT_EQ(colour(""), QColor(0, 0, 0, 255));
}

TEST_F(ZELFontMgrTest, readsAllAttributes)
{
    const Font& all = style("size='17' family='DejaVu Sans Mono' weight='75' italic='yes' "
                            "underline='yes' space='1.5' color='ff8000'");
    EXPECT_EQ(all.m_pFont->pointSize(), 17);
    EXPECT_EQ(all.m_pFont->family(), QStringLiteral("DejaVu Sans Mono"));
    EXPECT_EQ(all.m_pFont->weight(), QFont::Bold);
    EXPECT_EQ(all.m_pFont->style(), QFont::StyleItalic);
    EXPECT_TRUE(all.m_pFont->underline());
    EXPECT_EQ(all.m_pFont->letterSpacing(), 1.5);
    EXPECT_EQ(all.m_pFont->letterSpacingType(), QFont::AbsoluteSpacing);
    EXPECT_EQ(*all.m_pColor, QColor(255, 128, 0));
}

TEST_F(ZELFontMgrTest, comparesAttributeNamesExactly)
{
    QFont plain;
    plain.setStyle(QFont::StyleNormal);
    EXPECT_EQ(font("Size='17' Family='x' WEIGHT='75' Underline='yes' spacing='3'"), plain);
    EXPECT_EQ(colour("colour='ff0000' Color='ff0000'"), QColor(0, 0, 0));
}

TEST_F(ZELFontMgrTest, readsASizeInWholePoints)
{
    EXPECT_EQ(font("size='17'").pointSize(), 17);
    EXPECT_EQ(font("size='17.9'").pointSize(), 17);
    EXPECT_EQ(font("size=' 17pt'").pointSize(), 17);
}

TEST_F(ZELFontMgrTest, keepsQtsSizeForOneThatIsNone)
{
    for (const char* size : {"0", "-5", "", "large", "-99999999999"})
        EXPECT_EQ(font(std::string("size='") + size + "'").pointSize(), QFont().pointSize())
            << size;
}

TEST_F(ZELFontMgrTest, readsAFamilyInAnyLanguage)
{
    EXPECT_EQ(font("family='\xEB\x82\x98\xEB\x88\x94'").family(),
              QString::fromUtf8("\xEB\x82\x98\xEB\x88\x94"));
}

TEST_F(ZELFontMgrTest, readsWeightsFromZeroToNinetyNineWhateverTheVersionOfQt)
{
    EXPECT_EQ(font("weight='0'").weight(), QFont::Thin);
    EXPECT_EQ(font("weight='12'").weight(), QFont::ExtraLight);
    EXPECT_EQ(font("weight='25'").weight(), QFont::Light);
    EXPECT_EQ(font("weight='50'").weight(), QFont::Normal);
    EXPECT_EQ(font("weight='57'").weight(), QFont::Medium);
    EXPECT_EQ(font("weight='63'").weight(), QFont::DemiBold);
    EXPECT_EQ(font("weight='75'").weight(), QFont::Bold);
    EXPECT_EQ(font("weight='81'").weight(), QFont::ExtraBold);
    EXPECT_EQ(font("weight='87'").weight(), QFont::Black);
    EXPECT_GE(font("weight='99'").weight(), QFont::Black);
    EXPECT_FALSE(font("weight='50'").bold());
    EXPECT_TRUE(font("weight='75'").bold());
}

TEST_F(ZELFontMgrTest, holdsOtherWeightsAtTheEndsOfTheScale)
{
    EXPECT_GE(font("weight='100'").weight(), QFont::Black);
    EXPECT_GE(font("weight='400'").weight(), QFont::Black);
    EXPECT_GE(font("weight='99999999999'").weight(), QFont::Black);
    EXPECT_EQ(font("weight='-5'").weight(), QFont::Thin);
    EXPECT_EQ(font("weight='bold'").weight(), QFont::Thin); // no number is 0
}

TEST_F(ZELFontMgrTest, isItalicForYesAlone)
{
    EXPECT_EQ(font("italic='yes'").style(), QFont::StyleItalic);
    for (const char* other : {"no", "", "Yes", "YES", "true", "1", "yes ", "oblique"})
        EXPECT_EQ(font(std::string("italic='") + other + "'").style(), QFont::StyleNormal) << other;
    EXPECT_EQ(font("size='9'").style(), QFont::StyleNormal);
}

TEST_F(ZELFontMgrTest, isUnderlinedForYesAlone)
{
    EXPECT_TRUE(font("underline='yes'").underline());
    for (const char* other : {"no", "", "Yes", "true"})
        EXPECT_FALSE(font(std::string("underline='") + other + "'").underline()) << other;
    EXPECT_EQ(font("size='9'").underline(), QFont().underline());
}

TEST_F(ZELFontMgrTest, spacesLettersByPixels)
{
    EXPECT_EQ(font("space='-0.5'").letterSpacing(), -0.5);
    EXPECT_EQ(font("space='2'").letterSpacing(), 2.0);
    EXPECT_EQ(font("space='wide'").letterSpacing(), 0.0);
    EXPECT_EQ(font("space='wide'").letterSpacingType(), QFont::AbsoluteSpacing);
    EXPECT_EQ(font("").letterSpacingType(), QFont().letterSpacingType());
}

TEST_F(ZELFontMgrTest, readsSpacesWithADecimalPointInEveryLocale)
{
    const DecimalComma comma;
    if (!comma.active())
        GTEST_SKIP() << "this system has no localedef";
    EXPECT_EQ(font("space='1.5'").letterSpacing(), 1.5);
    EXPECT_EQ(font("space='1,5'").letterSpacing(), 1.0);
}

TEST_F(ZELFontMgrTest, takesTheColourAsTheFontReadsIt)
{
    EXPECT_EQ(colour("color='FF8000'"), QColor(255, 128, 0));
    EXPECT_EQ(colour("color='ff80'"), QColor(0, 0, 0));
    EXPECT_EQ(colour("color=''"), QColor(0, 0, 0));
    EXPECT_EQ(colour("color='#ff8000'"), QColor(0, 248, 0));
}

TEST_F(ZELFontMgrTest, letsTheLaterOfTwoStylesWinAndKeepsBoth)
{
    writeStyle(fileOf("<s size='10'/><s size='11'/>"));
    m_manager.changeLocale("");
    EXPECT_EQ(sizeOf("s"), 11);
    EXPECT_EQ(m_manager.m_tableFonts.getCount(), 1);
}

TEST_F(ZELFontMgrTest, readsTheFirstSectionOfStylesBelowTheRoot)
{
    writeStyle("<style><other><Font><a/></Font></other><Font><b/></Font><Font><c/></Font></style>");
    m_manager.changeLocale("");
    EXPECT_EQ(m_manager.getFont("a"), nullptr);
    EXPECT_NE(m_manager.getFont("b"), nullptr);
    EXPECT_EQ(m_manager.getFont("c"), nullptr);
}

TEST_F(ZELFontMgrTest, hasNoStylesWithoutTheirSection)
{
    for (const char* xml : {"<style/>", "<Font><s/></Font>", "<style><font><s/></font></style>",
                            "<style><Font/></style>", "<style><Font>text</Font></style>"}) {
        log().startHere();
        writeStyle(xml);
        m_manager.changeLocale("");
        EXPECT_EQ(m_manager.m_tableFonts.getCount(), 0) << xml;
        EXPECT_TRUE(log().lines().empty()) << xml;
    }
}

TEST_F(ZELFontMgrTest, prefersTheLanguagesOwnFile)
{
    writeSizes(10);
    writeSizes(20, "kr");
    m_manager.changeLocale("kr");
    EXPECT_EQ(sizeOf("s"), 20);
    EXPECT_EQ(m_manager.m_strLocale, "kr");
    EXPECT_EQ(m_manager.m_strStylePath, "/app/bin/resource/kr/default.style");
    m_manager.changeLocale("");
    EXPECT_EQ(sizeOf("s"), 10);
    EXPECT_EQ(m_manager.m_strLocale, "");
    EXPECT_EQ(m_manager.m_strStylePath, "/app/bin/resource/default.style");
}

TEST_F(ZELFontMgrTest, fallsBackToTheDefaultFileWithoutALine)
{
    writeSizes(10);
    log().startHere();
    m_manager.changeLocale("kr");
    EXPECT_EQ(sizeOf("s"), 10);
    EXPECT_EQ(m_manager.m_strLocale, "kr");
    EXPECT_EQ(m_manager.m_strStylePath, "/app/bin/resource/default.style");
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELFontMgrTest, fallsBackFromAFileThatMustNotBeRead)
{
    writeSizes(10);
    writeSizes(20, "kr");
    SystemFaults faults;
    faults.fail(SystemCall::Fopen, EACCES, "kr/default.style");
    m_manager.changeLocale("kr");
    EXPECT_EQ(sizeOf("s"), 10);
}

TEST_F(ZELFontMgrTest, testsOnlyTheFirstPath)
{
    const SystemFaults faults;
    m_manager.changeLocale("kr");
    EXPECT_EQ(faults.count(SystemCall::Fopen, "default.style"), 1);
    EXPECT_EQ(faults.lastPath(SystemCall::Fopen), realPath("/app/bin/resource/kr/default.style"));
}

TEST_F(ZELFontMgrTest, letsADirectoryOfTheNameStopTheFallBack)
{
    writeSizes(10);
    QDir().mkpath(QString::fromStdString(realPath("/app/bin/resource/kr/default.style")));
    log().expectError("[changeLocale] Cannot load style file: /app/bin/resource/kr/default.style",
                      1, "ZELFontMgr");
    m_manager.changeLocale("kr");
    EXPECT_EQ(m_manager.m_tableFonts.getCount(), 0);
}

TEST_F(ZELFontMgrTest, letsABrokenFileStopTheFallBack)
{
    writeSizes(10);
    writeStyle("<style>", "kr");
    m_manager.changeLocale("kr");
    EXPECT_EQ(m_manager.m_tableFonts.getCount(), 0);
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(ZELFontMgrTest, reportsAMissingFileAndHasNoStyles)
{
    writeSizes(10);
    m_manager.changeLocale("");
    removeFile(path);
    for (const char* locale : {"", "kr"}) {
        log().startHere();
        expectCannotLoad();
        m_manager.changeLocale(locale);
        EXPECT_EQ(log().lines().size(), 1u);
        EXPECT_EQ(m_manager.getFont("s"), nullptr);
        EXPECT_EQ(m_manager.m_strStylePath, path);
    }
}

TEST_F(ZELFontMgrTest, reportsAFileThatMustNotBeRead)
{
    SystemFaults faults;
    faults.fail(SystemCall::Fopen, EACCES, "default.style");
    faults.fail(SystemCall::Open, EACCES, "default.style");
    expectCannotLoad();
    m_manager.changeLocale("");
    EXPECT_EQ(m_manager.m_tableFonts.getCount(), 0);
}

TEST_F(ZELFontMgrTest, reportsADirectoryInThePlaceOfTheFile)
{
    removeFile(path);
    QDir().mkpath(QString::fromStdString(realPath(path)));
    expectCannotLoad();
    m_manager.changeLocale("");
}

TEST_F(ZELFontMgrTest, tellsAFileThatIsNotWellFormedAtDebugLevel)
{
    const std::string whole = fileOf("<s size='10'/>");
    std::string deep = "<style>";
    for (int i = 0; i < 300; ++i)
        deep += "<a>";
    for (const std::string& fault :
         {std::string(), whole.substr(0, whole.size() / 2), whole + "<style/>", deep,
          std::string("no markup"), fileOf("<s size='1' size='2'/>")}) {
        writeSizes(10);
        m_manager.changeLocale("");
        EXPECT_EQ(sizeOf("s"), 10);
        writeStyle(fault);
        log().startHere();
        m_manager.changeLocale("");
        EXPECT_EQ(m_manager.m_tableFonts.getCount(), 0);
        ASSERT_EQ(log().texts("ZELFontMgr").size(), 1u);
        const std::string line = log().texts("ZELFontMgr")[0];
        EXPECT_EQ(line.rfind("[D] [changeLocale] exception msg(default.style: line ", 0), 0u)
            << line;
        EXPECT_EQ(line.substr(line.size() - 2), ")\n") << line;
    }
}

TEST_F(ZELFontMgrTest, tellsAnyExceptionOfTheReader)
{
    TAMFx::Common::Exception other("out of luck");
    LibraryFaults faults;
    faults.onLoad = [&](const std::string&) { throw &other; };
    m_manager.changeLocale("");
    EXPECT_EQ(log().texts("ZELFontMgr"),
              std::vector<std::string>{"[D] [changeLocale] exception msg(out of luck)\n"});
    EXPECT_EQ(m_manager.m_tableFonts.getCount(), 0);
}

TEST_F(ZELFontMgrTest, skipsAStyleThatIsNotThere)
{
    writeStyle(fileOf("<a size='10'/><b size='11'/><c size='12'/>"));
    ResourceFaults faults;
    faults.emptyPlaceInStyles = 1;
    log().expectError("[changeLocale] pFont is NULL \n", 1, "ZELFontMgr");
    m_manager.changeLocale("");
    EXPECT_EQ(sizeOf("a"), 10);
    EXPECT_EQ(sizeOf("b"), -1);
    EXPECT_EQ(sizeOf("c"), 12);
}

TEST_F(ZELFontMgrTest, skipsAStyleThatThereIsNoRoomFor)
{
    writeStyle(fileOf("<a size='10'/><b size='11'/>"));
    ResourceFaults faults;
    faults.failingAllocations = 1;
    log().expectError("[changeLocale] font is NULL \n", 1, "ZELFontMgr");
    m_manager.changeLocale("");
    EXPECT_EQ(sizeOf("a"), -1);
    EXPECT_EQ(sizeOf("b"), 11);
}

// ---- a change of language

TEST_F(ZELFontMgrTest, makesNewStylesAndKeepsTheOldOnesReadable)
{
    const auto paintWith = [](const Font* style) {
        QImage canvas = Pixels::canvas(QSize(40, 40));
        QPainter painter(&canvas);
        painter.setFont(*style->m_pFont);
        painter.setPen(*style->m_pColor);
        painter.drawText(QRect(0, 0, 40, 40), Qt::AlignCenter, QStringLiteral("M"));
        painter.end();
        return Pixels::inkInside(canvas, canvas.rect());
    };
    m_manager.changeLocale("");
    Font* const first = m_manager.getFont("normal");
    for (const char* locale : {"kr", "kr", ""}) { // to the same language too
        Font* const before = m_manager.getFont("normal");
        m_manager.changeLocale(locale);
        EXPECT_NE(m_manager.getFont("normal"), before) << locale;
        EXPECT_GT(paintWith(before), 0);
    }
    EXPECT_GT(paintWith(first), 0);
    EXPECT_EQ(m_manager.m_tableFonts.getCount(), 3);
}

TEST_F(ZELFontMgrTest, losesTheStylesThatTheNewFileDoesNotHave)
{
    writeStyle(fileOf("<a/><b/>"));
    writeStyle(fileOf("<b/>"), "kr");
    m_manager.changeLocale("");
    EXPECT_NE(m_manager.getFont("a"), nullptr);
    m_manager.changeLocale("kr");
    EXPECT_EQ(m_manager.getFont("a"), nullptr);
    EXPECT_NE(m_manager.getFont("b"), nullptr);
}

TEST_F(ZELFontMgrTest, leavesItsStylesBehind)
{
    auto manager = std::make_unique<ZELFontMgr>();
    manager->setBasePath(resources);
    manager->changeLocale("");
    Font* const font = manager->getFont("pressed");
    manager.reset();
    EXPECT_EQ(*font->m_pColor, QColor(255, 0, 0));
    EXPECT_EQ(font->m_pFont->pointSize(), 14);
}

TEST_F(ZELFontMgrTest, isDeletedThroughItsBase)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<ZELFontMgr>);
}

TEST_F(ZELFontMgrTest, signsWithItsOwnName)
{
    EXPECT_EQ(m_manager.m_logger.m_strIdentity, "QTPANFx ZELFontMgr     ");
}
