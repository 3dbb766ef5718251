#include "support/PanelTest.h"

#include "common/systemPath.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/ComponentFactory.h"
#include "components/text/ZELLabel.h"
#include "events/EventNumbers.h"
#include "resource/Font.h"
#include "resource/ZELResourceMgr.h"
#include "support/FrameForTest.h"
#include "support/Pixels.h"
#include "support/Touch.h"

#include <QDir>
#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPixmap>

#include <gtest/gtest-spi.h>

using namespace PANFx::Testing;
using PANFx::Components::ZELLabel;
using PANFx::Resource::ZELResourceMgr;

namespace {

class PanelTestTest : public PanelTest
{
};

const char* const label = "<hello title='Hello' style='normal'>"
                          "<position x='10' y='20' width='100' height='30'/></hello>";

} // namespace

TEST_F(PanelTestTest, StandsInFrontOfTheFilePathsOfTheLibrary)
{
    EXPECT_EQ(PANFx::Common::systemPath("/data/db/OSKDB.db"), realPath("/data/db/OSKDB.db"));
    EXPECT_NE(realPath("/data"), "/data");
}

TEST_F(PanelTestTest, HasAFileSystemOfItsOwnThatGoesWithIt)
{
    writeFile("/data/new/file", std::string("a\0b", 3));
    EXPECT_EQ(readFile("/data/new/file"), std::string("a\0b", 3));
    EXPECT_TRUE(fileExists("/data/new/file"));
    removeFile("/data/new/file");
    EXPECT_FALSE(fileExists("/data/new/file"));

    class Other : public PanelTest
    {
    public:
        std::string root() { return realPath(""); }
        void TestBody() override {}
    };
    std::string gone;
    {
        Other other;
        gone = other.root();
        EXPECT_NE(gone, realPath(""));
        EXPECT_TRUE(QDir(QString::fromStdString(gone)).exists());
    }
    EXPECT_FALSE(QDir(QString::fromStdString(gone)).exists());
}

TEST_F(PanelTestTest, StartsTheManagersWithoutAnErrorLine)
{
    ZELResourceMgr* const manager = ZELResourceMgr::getInstance();
    EXPECT_EQ(manager->getBasePath(), resources);
    EXPECT_EQ(manager->m_strLocale, "");
    for (const char* style : {"normal", "pressed", "dimmed"})
        EXPECT_NE(manager->getFont(style), nullptr) << style;
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(PanelTestTest, WritesWhatTheManagersRead)
{
    writeConfig("kr", "/opt/panel/");
    EXPECT_EQ(ZELResourceMgr::getInstance()->m_strLocale, "kr");
    EXPECT_EQ(ZELResourceMgr::getInstance()->getBasePath(), "/opt/panel/");
    log().expectError("[changeLocale] Cannot load style file: /opt/panel/default.style");
    log().expectError("[changeLocale] Cannot access layout file: /opt/panel/StringTable.Resource");
}

TEST_F(PanelTestTest, WritesPicturesStylesAndTexts)
{
    writePicture("red.png", 3, 4, Qt::red);
    writeStyle("<s><Font><big size='40' color='0000ff'/></Font></s>");
    writeStrings("<t><String key='hi'><kr>annyeong</kr><en>hello</en></String></t>");
    ZELResourceMgr* const manager = ZELResourceMgr::getInstance();
    const QImage red = manager->getImage("red.png")->toImage();
    EXPECT_EQ(red.size(), QSize(3, 4));
    EXPECT_EQ(red.pixelColor(2, 3), QColor(Qt::red));
    ASSERT_NE(manager->getFont("big"), nullptr);
    EXPECT_EQ(manager->getFont("big")->m_pFont->pointSize(), 40);
    EXPECT_EQ(manager->getFont("normal"), nullptr);
    EXPECT_EQ(manager->getLocaleString("@hi"), "hello");
}

TEST_F(PanelTestTest, MakesElementsFromText)
{
    TAMFx::Common::Xml::Node* const node = element("<ok title='a'><position x='1'/></ok>");
    EXPECT_STREQ(node->getName(), "ok");
    EXPECT_STREQ(node->getAttributeByName("title")->getValue(), "a");
    ASSERT_NE(node->getNodeByName("position"), nullptr);
    EXPECT_STREQ(element("<short/>")->getName(), "short");
    EXPECT_STREQ(element("<ok/>")->getName(), "ok"); // the earlier one stays
    EXPECT_STREQ(node->getName(), "ok");
}

TEST_F(PanelTestTest, BuildsOneComponentOnThePanel)
{
    ZELLabel* const hello = buildComponent<ZELLabel>("label", label);
    ASSERT_NE(hello, nullptr);
    EXPECT_EQ(hello->m_strID, "hello");
    EXPECT_EQ(hello->parentWidget(), &panel());
    EXPECT_TRUE(hello->isVisible());
    EXPECT_EQ(hello->geometry(), QRect(10, 20, 100, 30));
    EXPECT_GT(Pixels::inkInside(Pixels::grab(hello), hello->rect()), 20);
    Touch::tap(hello);
    const RecordedEvent click = panel().takeOne();
    EXPECT_EQ(click.type, EVENT_MOUSE_UP);
    EXPECT_EQ(click.sender, hello);
    EXPECT_EQ(click.id, "hello");
}

TEST_F(PanelTestTest, ActivatesTheWindowSoThatFocusCanGoThere)
{
    EXPECT_TRUE(panel().isActiveWindow());
    ZELLabel* const hello = buildComponent<ZELLabel>("label", label);
    hello->setFocus();
    EXPECT_TRUE(hello->hasFocus());
    EXPECT_TRUE(frame().isActiveWindow());
}

TEST_F(PanelTestTest, BuildsOneComponentThroughAPage)
{
    ZELLabel* const hello = buildOnPage<ZELLabel>("label", label);
    ASSERT_NE(hello, nullptr);
    EXPECT_TRUE(hello->isVisible());
    EXPECT_EQ(frame().history().size(), 1u);
    EXPECT_EQ(frame().recorder().takeTypes(), std::vector<int>{EVENT_WINDOW_ACTIVATE});
    Touch::tapWindow(hello);
    EXPECT_EQ(frame().recorder().takeOne().sender, hello);
}

TEST_F(PanelTestTest, FailsTheTestForAWrongKeyword)
{
    EXPECT_NONFATAL_FAILURE(buildComponent<ZELLabel>("lable", "<a/>"),
                            "no component for the keyword lable");
    EXPECT_NONFATAL_FAILURE(buildComponent<EventRecorder>("label", "<a/>"), "makes another class");
}

TEST_F(PanelTestTest, ResourcesBeginAnewInEachTest)
{
    EXPECT_EQ(ZELResourceMgr::getInstance()->getLocaleString("@hi"), "");
    EXPECT_TRUE(ZELResourceMgr::getInstance()->getImage("red.png")->isNull());
}

TEST_F(PanelTestTest, HasAFixedWidthFontWhereOnePointIsOnePixel)
{
    QFont font(QStringLiteral("Droid Sans Mono"));
    font.setPointSize(24);
    EXPECT_EQ(QFontInfo(font).pixelSize(), 24);
    const QFontMetrics metrics(font);
    EXPECT_EQ(metrics.horizontalAdvance(QStringLiteral("iiiiiiiiii")),
              metrics.horizontalAdvance(QStringLiteral("MMMMMMMMMM")));
}
