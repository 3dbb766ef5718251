#include "resource/ZELLayout.h"

#include "common/tamfx/Exception.h"
#include "common/tamfx/Node.h"
#include "support/LibraryFaults.h"
#include "support/PanelTest.h"
#include "support/SystemFaults.h"

#include <QDir>

#include <cerrno>
#include <regex>
#include <type_traits>

using namespace PANFx::Testing;
using PANFx::Resource::ZELLayout;

namespace {

class ZELLayoutTest : public PanelTest
{
protected:
    static std::string pathOf(const std::string& name)
    {
        return resources + "layout/" + name + ".resource";
    }

    // loads a page's file; the texts are what the layout logged
    bool load(const std::string& name)
    {
        log().startHere();
        return m_layout.loadLayout(pathOf(name));
    }

    bool loadText(const std::string& xml)
    {
        writeLayout("page", xml);
        return load("page");
    }

    void expectCannotLoad(const std::string& name)
    {
        log().expectError("[loadLayout] Cannot load layout file(xml) - " + pathOf(name), 1,
                          "ZELLayout");
    }

    // announces the line just written, once it tells file, line and column
    void expectFaultLine()
    {
        ASSERT_EQ(log().texts("ZELLayout").size(), 2u);
        const std::string text = log().texts("ZELLayout")[1];
        const std::regex form("\\[E\\] \\[loadLayout\\] XmlException: page\\.resource: "
                              "line [0-9]+, column [0-9]+: .+");
        EXPECT_TRUE(std::regex_match(text, form)) << text;
        log().expectError(text.substr(4), 1, "ZELLayout");
    }

    bool isEmpty()
    {
        return !m_layout.getFirstNodebyName("Base") && !m_layout.getFirstNodebyName("Components");
    }

    ZELLayout m_layout;
};

const char* const page = "<layout>"
                         "<Base><background>home.png</background></Base>"
                         "<Components><label><hello/></label><button><ok/></button></Components>"
                         "</layout>";

std::string nested(int depth)
{
    std::string xml;
    for (int i = 0; i < depth; ++i)
        xml += "<a>";
    for (int i = 0; i < depth; ++i)
        xml += "</a>";
    return xml;
}

} // namespace

TEST_F(ZELLayoutTest, findsTheSectionsBelowTheRoot)
{
    ASSERT_TRUE(loadText(page));
    TAMFx::Common::Xml::Node* const components = m_layout.getFirstNodebyName("Components");
    ASSERT_NE(components, nullptr);
    EXPECT_STREQ(components->getName(), "Components");
    EXPECT_EQ(components->getChildNodeSize(), 2);
    EXPECT_NE(m_layout.getFirstNodebyName("Base"), nullptr);
    EXPECT_EQ(m_layout.getFirstNodebyName("layout"), nullptr);
    EXPECT_EQ(m_layout.getFirstNodebyName("background"), nullptr);
    EXPECT_EQ(m_layout.getFirstNodebyName("components"), nullptr);
    EXPECT_EQ(m_layout.getFirstNodebyName(""), nullptr);
}

TEST_F(ZELLayoutTest, readsNoNameOfTheRoot)
{
    for (const char* root : {"page", "Components", "\xED\x99\x94\xEB\xA9\xB4"}) {
        const std::string name = root;
        EXPECT_TRUE(loadText("<" + name + "><Components/></" + name + ">"));
        EXPECT_NE(m_layout.getFirstNodebyName("Components"), nullptr) << root;
    }
}

TEST_F(ZELLayoutTest, givesTheFirstSectionOfAName)
{
    ASSERT_TRUE(loadText("<l><Components><a/></Components><Components><b/></Components></l>"));
    EXPECT_STREQ(m_layout.getFirstNodebyName("Components")->getChildNode(0)->getName(), "a");
}

TEST_F(ZELLayoutTest, namesThePathOfTheInstrumentBeforeLoading)
{
    ASSERT_TRUE(loadText(page));
    EXPECT_EQ(log().texts("ZELLayout"),
              std::vector<std::string>{"[D] [loadLayout] path: /app/bin/resource/layout/"
                                       "page.resource"});
}

TEST_F(ZELLayoutTest, logsTheDoubledSlashOfTheDefaultLanguage)
{
    writeLayout("page", page);
    log().startHere();
    EXPECT_TRUE(m_layout.loadLayout("/app/bin/resource//layout/page.resource"));
    EXPECT_EQ(log().texts(), std::vector<std::string>{"[D] [loadLayout] path: /app/bin/resource//"
                                                      "layout/page.resource"});
}

TEST_F(ZELLayoutTest, knowsNothingBeforeTheFirstLoad)
{
    EXPECT_TRUE(isEmpty());
    EXPECT_EQ(m_layout.getBackgroundImageName(), "");
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELLayoutTest, givesTheNameOfTheBackground)
{
    ASSERT_TRUE(loadText(page));
    log().startHere();
    EXPECT_EQ(m_layout.getBackgroundImageName(), "home.png");
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELLayoutTest, givesTheNameOfTheBackgroundAsItIsWritten)
{
    ASSERT_TRUE(loadText("<l><Base><background> a b&amp;c.png</background></Base></l>"));
    EXPECT_EQ(m_layout.getBackgroundImageName(), " a b&c.png");
    ASSERT_TRUE(loadText("<l><Base><background/></Base></l>"));
    EXPECT_EQ(m_layout.getBackgroundImageName(), "");
}

TEST_F(ZELLayoutTest, tellsAnAbsentBackground)
{
    ASSERT_TRUE(loadText("<l><Base/></l>"));
    log().startHere();
    EXPECT_EQ(m_layout.getBackgroundImageName(), "");
    EXPECT_EQ(log().texts(),
              std::vector<std::string>{"[D] [getBackgroundImageName] no background data"});
    EXPECT_EQ(log().lines()[0].className(), "ZELLayout");
}

TEST_F(ZELLayoutTest, isSilentAboutAnAbsentBase)
{
    ASSERT_TRUE(loadText("<l><background>home.png</background><Components/></l>"));
    log().startHere();
    EXPECT_EQ(m_layout.getBackgroundImageName(), "");
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ZELLayoutTest, looksForTheBackgroundDirectlyInsideTheBase)
{
    ASSERT_TRUE(loadText("<l><Base><more><background>home.png</background></more></Base></l>"));
    EXPECT_EQ(m_layout.getBackgroundImageName(), "");
    EXPECT_EQ(log().count("[D] [getBackgroundImageName] no background data"), 1);
}

TEST_F(ZELLayoutTest, keepsOnlyTheSecondOfTwoFiles)
{
    ASSERT_TRUE(loadText(page));
    ASSERT_TRUE(loadText("<l><Components><box/></Components></l>"));
    EXPECT_EQ(m_layout.getFirstNodebyName("Base"), nullptr);
    EXPECT_EQ(m_layout.getFirstNodebyName("Components")->getChildNodeSize(), 1);
}

TEST_F(ZELLayoutTest, losesTheFirstFileWhenTheSecondCannotBeLoaded)
{
    ASSERT_TRUE(loadText(page));
    expectCannotLoad("other");
    EXPECT_FALSE(load("other"));
    EXPECT_TRUE(isEmpty());
    ASSERT_TRUE(loadText(page));
    EXPECT_FALSE(loadText("<broken>"));
    expectFaultLine();
    EXPECT_TRUE(isEmpty());
    EXPECT_TRUE(loadText(page));
    EXPECT_FALSE(isEmpty());
}

TEST_F(ZELLayoutTest, reportsAMissingFile)
{
    expectCannotLoad("page");
    EXPECT_FALSE(load("page"));
    log().expectInOrder({"[D] [loadLayout] path: " + pathOf("page"),
                         "[E] [loadLayout] Cannot load layout file(xml) - " + pathOf("page")});
    EXPECT_EQ(log().lines().size(), 2u);
}

TEST_F(ZELLayoutTest, reportsAFileThatMustNotBeRead)
{
    writeLayout("page", page);
    SystemFaults faults;
    faults.fail(SystemCall::Open, EACCES, "page.resource");
    faults.fail(SystemCall::Fopen, EACCES, "page.resource");
    expectCannotLoad("page");
    EXPECT_FALSE(load("page"));
    EXPECT_TRUE(isEmpty());
}

TEST_F(ZELLayoutTest, reportsADirectoryInThePlaceOfTheFile)
{
    QDir().mkpath(QString::fromStdString(realPath(pathOf("page"))));
    expectCannotLoad("page");
    EXPECT_FALSE(load("page"));
}

TEST_F(ZELLayoutTest, reportsAPathThatLeadsNowhere)
{
    log().expectError("[loadLayout] Cannot load layout file(xml) - ", 1, "ZELLayout");
    EXPECT_FALSE(m_layout.loadLayout(""));
    const std::string longPath = "/" + std::string(5000, 'x');
    log().expectError(("[loadLayout] Cannot load layout file(xml) - " + longPath).substr(0, 4095));
    EXPECT_FALSE(m_layout.loadLayout(longPath));
}

TEST_F(ZELLayoutTest, reportsWhatIsNotWellFormed)
{
    const std::string whole = page;
    const std::string faults[] = {
        "",
        " \n",
        whole.substr(0, whole.size() / 2),
        whole.substr(0, whole.size() - 1),
        "no markup",
        "<l><a></l></a>",
        "<l><a></l>",
        "<l></l><second/>",
        "<l></l>text",
        "text<l></l>",
        "<l x='1' x='2'/>",
        "<l x=1/>",
        "<l x='1/>",
        "<l><!-- open </l>",
        std::string("<l>\0</l>", 8),
        std::string("\x89PNG\r\n\x1a\n\0\0", 10),
        nested(257),
    };
    for (const std::string& fault : faults) {
        SCOPED_TRACE(fault.substr(0, 60));
        EXPECT_FALSE(loadText(fault));
        expectFaultLine();
        EXPECT_TRUE(isEmpty());
    }
}

TEST_F(ZELLayoutTest, tellsLineAndColumnOfAFault)
{
    EXPECT_FALSE(loadText("<l>\n  <a x='1' x='2'/>\n</l>"));
    EXPECT_NE(log().texts("ZELLayout")[1].find("page.resource: line 2, column "), std::string::npos)
        << log().texts("ZELLayout")[1];
    expectFaultLine();
}

TEST_F(ZELLayoutTest, takesElementsToADepthOf256)
{
    EXPECT_TRUE(loadText(nested(256)));
}

TEST_F(ZELLayoutTest, takesABareAmpersandAndExpandsNoEntity)
{
    ASSERT_TRUE(loadText("<!DOCTYPE l [<!ENTITY long 'very long'>]>"
                         "<l><Base><background>a&b &long; &#65;&lt;</background></Base></l>"));
    EXPECT_EQ(m_layout.getBackgroundImageName(), "a&b &long; A<");
}

TEST_F(ZELLayoutTest, handsOnAnExceptionOfAnotherKind)
{
    writeLayout("page", page);
    TAMFx::Common::Exception other("out of luck");
    LibraryFaults faults;
    faults.onLoad = [&](const std::string&) { throw &other; };
    TAMFx::Common::Exception* caught = nullptr;
    try {
        load("page");
    } catch (TAMFx::Common::Exception* exception) {
        caught = exception;
    }
    EXPECT_EQ(caught, &other);
    EXPECT_EQ(log().texts(), std::vector<std::string>{"[D] [loadLayout] path: " + pathOf("page")});
}

TEST_F(ZELLayoutTest, emptiesItselfBeforeItReads)
{
    ASSERT_TRUE(loadText(page));
    TAMFx::Common::Exception other("out of luck");
    LibraryFaults faults;
    faults.onLoad = [&](const std::string&) { throw &other; };
    EXPECT_THROW(load("page"), TAMFx::Common::Exception*);
    EXPECT_TRUE(isEmpty());
}

TEST_F(ZELLayoutTest, holdsItsNodesForLife)
{
    ASSERT_TRUE(loadText(page));
    TAMFx::Common::Xml::Node* const components = m_layout.getFirstNodebyName("Components");
    removeFile(pathOf("page"));
    ZELLayout other;
    expectCannotLoad("page");
    EXPECT_FALSE(other.loadLayout(pathOf("page")));
    EXPECT_STREQ(components->getChildNode(1)->getChildNode(0)->getName(), "ok");
    EXPECT_EQ(m_layout.getFirstNodebyName("Components"), components);
}

TEST_F(ZELLayoutTest, isDeletedThroughItsBase)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<ZELLayout>);
}

TEST_F(ZELLayoutTest, signsWithItsOwnName)
{
    EXPECT_EQ(m_layout.m_logger.m_strIdentity, "QTPANFx ZELLayout      ");
}
