// What a page builds from its file. PageBuilding, which pages and dialogs share, is not exported.

#include "windows/ZELChildWindow.h"

#include "common/tamfx/XmlDocument.h"
#include "common/tamfx/XmlException.h"
#include "components/ZELComponent.h"
#include "support/EventLoop.h"
#include "support/JournalPage.h"
#include "support/LibraryFaults.h"
#include "support/Pixels.h"
#include "support/SystemFaults.h"

#include <QBuffer>
#include <QDir>

#include <cerrno>
#include <new>
#include <stdexcept>

using namespace PANFx;
using namespace PANFx::Testing;
using Windows::ZELChildWindow;

namespace {

using Strings = std::vector<std::string>;

// Pages from files that are wrong in one way or another: the page shows less and doesn't stop.
class ZELChildWindowLayoutTest : public PagesTest
{
protected:
    const std::string path = "/app/bin/resource//layout/page.resource";

    /** Moves to a page of this file, "page.resource"; it must come up whatever is in the file. */
    ZELChildWindow* show(const std::string& bytes)
    {
        writeLayout("page", bytes);
        return show();
    }

    ZELChildWindow* show()
    {
        frame().addPage("page");
        ZELChildWindow* const page = frame().moveTo("page", true, true);
        EventLoop::deliver();
        EXPECT_TRUE(page->isVisible());
        EXPECT_EQ(page, frame().getCurrentWindow());
        EXPECT_FALSE(lockHeld());
        return page;
    }

    void expectFailedLoad()
    {
        log().expectError("[ZELChildWindow] Layout load failed: " + path, 1, "ZELChildWindow");
    }

    void expectUnreadable()
    {
        log().expectError("[loadLayout] Cannot load layout file(xml) - " + path, 1, "ZELLayout");
        expectFailedLoad();
    }

    /** Announces what the foundation says of the file, which must be refused by it. */
    void expectNotWellFormed(const std::string& bytes)
    {
        writeLayout("page", bytes);
        TAMFx::Common::Xml::XmlDocument document;
        try {
            document.LoadXMLFile(realPath(path).c_str());
            ADD_FAILURE() << "the file is taken: " << bytes.substr(0, 80);
        } catch (TAMFx::Common::Xml::XmlException* fault) {
            log().expectError(std::string("[loadLayout] XmlException: ") + fault->GetMessage(), 1,
                              "ZELLayout");
        }
        expectFailedLoad();
    }

    /** The page came up black and without a single component, and said no more. */
    void expectEmpty(ZELChildWindow* page)
    {
        EXPECT_TRUE(page->m_dqSubComponents.empty());
        EXPECT_TRUE(page->children().isEmpty());
        EXPECT_EQ(Pixels::count(frame().grab().toImage(), Qt::black), 800 * 480);
        EXPECT_EQ(log().countLevel('E'), 2) << "neither a background nor a section is missed";
    }

    static Strings ids(const ZELChildWindow* page)
    {
        Strings found;
        for (const Components::ZELComponent* component : page->m_dqSubComponents)
            found.push_back(component->m_strID);
        return found;
    }

    /** A layout with a label "l" and this beside it in its Components section. */
    static std::string withLabel(const std::string& more)
    {
        return "<layout><Components>" + more + "<label><l/></label></Components></layout>";
    }

    /** The bytes of a PNG. */
    static std::string picture(int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                image.setPixel(x, y, qRgb((x * 7919) % 256, (y * 104729) % 256, (x * y) % 256));
        }
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return bytes.toStdString();
    }
};

// ---- files that give nothing

TEST_F(ZELChildWindowLayoutTest, aMissingFile)
{
    expectUnreadable();
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, aDirectoryNamedLikeTheFile)
{
    QDir().mkpath(QString::fromStdString(realPath(path)));
    expectUnreadable();
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, aFileThatMayNotBeRead)
{
    writeLayout("page", withLabel(""));
    SystemFaults system;
    for (const SystemCall call : {SystemCall::Open, SystemCall::Fopen})
        system.fail(call, EACCES, "page.resource");
    expectUnreadable();
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, noFileDescriptorLeft)
{
    writeLayout("page", withLabel(""));
    SystemFaults system;
    for (const SystemCall call : {SystemCall::Open, SystemCall::Fopen})
        system.fail(call, EMFILE, "page.resource");
    expectUnreadable();
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, anEmptyFile)
{
    expectNotWellFormed("");
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, nothingButBlanks)
{
    expectNotWellFormed(" \r\n\t\n");
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, noXmlAtAll)
{
    expectNotWellFormed("\x7f"
                        "ELF\x02\x01\x01 and some more");
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, anElementThatIsNotClosed)
{
    expectNotWellFormed("<layout><Components><label><l></label></Components></layout>");
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, aSecondRoot)
{
    expectNotWellFormed(withLabel("") + withLabel(""));
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, anAttributeGivenTwice)
{
    expectNotWellFormed(withLabel("<label><m title='a' title='b'/></label>"));
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, elementsNestedTooDeeply)
{
    std::string open;
    std::string close;
    for (int i = 0; i < 100000; ++i) {
        open += "<x>";
        close += "</x>";
    }
    expectNotWellFormed("<layout><Components>" + open + close + "</Components></layout>");
    expectEmpty(show());
}

TEST_F(ZELChildWindowLayoutTest, theFileCutOffAtEachByte)
{
    writePicture("bg.png", 8, 8, Qt::blue);
    const std::string whole =
        "<?xml version='1.0' encoding='UTF-8'?>\n<layout><!-- home -->\n"
        "<Base><background>bg.png</background></Base>\n"
        "<Components><label><title title='A &amp; B' style='normal'>"
        "<position x='1' y='2' width='30' height='20'/></title></label></Components></layout>";
    for (size_t size = 0; size < whole.size(); ++size) {
        expectNotWellFormed(whole.substr(0, size));
        const ZELChildWindow page("page", &frame(), "");
        EXPECT_TRUE(page.m_dqSubComponents.empty()) << size;
    }
}

TEST_F(ZELChildWindowLayoutTest, aPageThatFailedIsNotTriedAgain)
{
    expectUnreadable();
    ZELChildWindow* const page = show();
    writeLayout("page", withLabel(""));
    EXPECT_EQ(frame().moveTo("page"), page);
    EXPECT_TRUE(page->m_dqSubComponents.empty());
}

// ---- files that give something

TEST_F(ZELChildWindowLayoutTest, noComponentsSection)
{
    writePicture("bg.png", 800, 480, Qt::blue);
    writeLayout("resource", "<layout><Base><background>bg.png</background></Base></layout>");
    frame().addPage("page", "resource");
    expectBackgroundLines();
    // the line names the id, also where the file has another name
    log().expectError(
        "[createSubComponent] There is not <Components> tag in the page.resource file", 1,
        "ZELChildWindow");
    ZELChildWindow* const page = frame().moveTo("page");
    EXPECT_EQ(ids(page), Strings{"background"});
    EXPECT_EQ(Pixels::count(frame().grab().toImage(), Qt::blue), 800 * 480);
}

TEST_F(ZELChildWindowLayoutTest, noComponentsSectionAndNoBackground)
{
    expectNoBackgroundLines();
    log().expectError(
        "[createSubComponent] There is not <Components> tag in the page.resource file", 1,
        "ZELChildWindow");
    EXPECT_TRUE(show("<layout/>")->children().isEmpty());
}

TEST_F(ZELChildWindowLayoutTest, aNullSectionHandedInByTheApplication)
{
    expectNoBackgroundLines();
    ZELChildWindow* const page = show(withLabel(""));
    log().expectError(
        "[createSubComponent] There is not <Components> tag in the page.resource file", 1,
        "ZELChildWindow");
    page->createSubComponent(nullptr);
    EXPECT_EQ(ids(page), Strings{"l"});
}

TEST_F(ZELChildWindowLayoutTest, namesAreCaseSensitive)
{
    expectNoBackgroundLines();
    log().expectError(
        "[createSubComponent] There is not <Components> tag in the page.resource file", 1,
        "ZELChildWindow");
    show("<layout><base><background>bg.png</background></base>"
         "<components><label><l/></label></components></layout>");
}

TEST_F(ZELChildWindowLayoutTest, unknownKeywords)
{
    expectNoBackgroundLines();
    for (const char* id : {"a", "b", "c", "d", "e"})
        log().expectError(std::string("[createSubComponent] Fail to create components ") + id, 1,
                          "ZELChildWindow");
    EXPECT_EQ(ids(show(withLabel("<slider><a/><b/></slider><Label><c/></Label>"
                                 "<listbutton><d/></listbutton><buttonlist><e/></buttonlist>"))),
              Strings{"l"});
}

TEST_F(ZELChildWindowLayoutTest, textAndCommentsBetweenTheElements)
{
    expectNoBackgroundLines();
    EXPECT_EQ(ids(show("<layout>text<Components>more<label>and <!-- more --><l/> more</label>"
                       "</Components></layout>")),
              Strings{"l"});
}

TEST_F(ZELChildWindowLayoutTest, deepButNotTooDeep)
{
    std::string open;
    std::string close;
    for (int i = 0; i < 252; ++i) { // with root, section, group and component 256 levels
        open += "<x>";
        close += "</x>";
    }
    expectNoBackgroundLines();
    EXPECT_EQ(ids(show("<layout><Components><label><l>" + open + close +
                       "</l></label></Components></layout>")),
              Strings{"l"});
}

TEST_F(ZELChildWindowLayoutTest, entitiesAreNotExpanded)
{
    std::string file = "<?xml version='1.0'?><!DOCTYPE layout [<!ENTITY a 'aaaaaaaaaa'>";
    for (char entity = 'b'; entity <= 'k'; ++entity) {
        const std::string before = std::string("&") + static_cast<char>(entity - 1) + ";";
        file += std::string("<!ENTITY ") + entity + " '";
        for (int i = 0; i < 10; ++i)
            file += before;
        file += "'>";
    }
    file += "]><layout><Base><background>&k;</background></Base><Components><label><l/></label>"
            "</Components></layout>";
    log().expectError("[createBackgroundSubComponent] cannot load image: &k;", 1, "ZELChildWindow");
    EXPECT_EQ(ids(show(file)), Strings{"l"});
}

TEST_F(ZELChildWindowLayoutTest, aByteOrderMarkAndOtherEncodings)
{
    expectNoBackgroundLines(2);
    EXPECT_EQ(ids(show("\xEF\xBB\xBF" + withLabel(""))), Strings{"l"});

    const QString text = QString::fromStdString("<?xml version='1.0'?>" + withLabel(""));
    std::string wide = "\xFF\xFE";
    for (const QChar letter : text) {
        wide += static_cast<char>(letter.unicode() & 0xFF);
        wide += static_cast<char>(letter.unicode() >> 8);
    }
    writeLayout("wide", wide);
    const ZELChildWindow page("wide", nullptr, "");
    EXPECT_EQ(ids(&page), Strings{"l"});
}

TEST_F(ZELChildWindowLayoutTest, thousandsOfComponents)
{
    std::string labels;
    for (int i = 0; i < 2000; ++i)
        labels += "<n" + std::to_string(i) + "/>";
    expectNoBackgroundLines();
    ZELChildWindow* const page =
        show("<layout><Components><label>" + labels + "</label></Components></layout>");
    EXPECT_EQ(page->m_dqSubComponents.size(), 2000u);
    EXPECT_EQ(page->getSubComponent("n1999"), page->m_dqSubComponents.back());
}

TEST_F(ZELChildWindowLayoutTest, percentSignsAreText)
{
    expectNoBackgroundLines();
    writeLayout("100%s%n", "<layout/>");
    frame().addPage("100%s%n");
    log().expectError(
        "[createSubComponent] There is not <Components> tag in the 100%s%n.resource file", 1,
        "ZELChildWindow");
    ZELChildWindow* const page = frame().moveTo("100%s%n");
    log().expectError("[getSubComponent] There is not a SubComponent of the name %d", 1,
                      "ZELChildWindow");
    EXPECT_EQ(page->getSubComponent("%d"), nullptr);
}

// ---- background pictures that are none

class BadBackground : public ZELChildWindowLayoutTest,
                      public ::testing::WithParamInterface<const char*>
{
};

TEST_P(BadBackground, isNamedAndTheRestOfThePageIsThere)
{
    const std::string kind = GetParam();
    const std::string file = resources + "img/bg.png";
    const std::string good = picture(40, 40);
    if (kind == "empty")
        writeFile(file, "");
    else if (kind == "text")
        writeFile(file, "this is no picture");
    else if (kind == "truncated")
        writeFile(file, good.substr(0, 60)); // nothing of the pixels
    else if (kind == "half")
        writeFile(file, good.substr(0, good.size() / 2));
    else if (kind == "directory")
        QDir().mkpath(QString::fromStdString(realPath(file)));
    log().expectError("[createBackgroundSubComponent] cannot load image: bg.png", 1,
                      "ZELChildWindow");
    ZELChildWindow* const page =
        show("<layout><Base><background>bg.png</background></Base><Components>"
             "<label><l/></label></Components></layout>");
    EXPECT_EQ(ids(page), Strings{"l"});
    EXPECT_EQ(Pixels::count(frame().grab().toImage(), Qt::black), 800 * 480);
}

INSTANTIATE_TEST_SUITE_P(Files, BadBackground,
                         ::testing::Values("missing", "empty", "text", "truncated", "half",
                                           "directory"),
                         [](const auto& kind) { return std::string(kind.param); });

// ---- exceptions while the layout is loaded or the components are made

class ZELChildWindowFaultTest : public ZELChildWindowLayoutTest
{
protected:
    void SetUp() override
    {
        addPages({"a"});
        frame().moveTo("a");
        frame().addPage("page");
        log().startHere();
    }

    /** Nothing of the page stays, and the frame works on. */
    void expectNoTrace()
    {
        EXPECT_FALSE(lockHeld());
        EXPECT_EQ(frame().getCurrentWindow()->m_strID, "a");
        EXPECT_EQ(frame().m_dqChildWindows.size(), 1u);
        EXPECT_EQ(frame().history(), Strings{"a"});
        EXPECT_EQ(frame().children().count(frame().getCurrentWindow()), 1);
        int pages = 0;
        for (QObject* child : frame().children())
            pages += child->isWidgetType() ? 1 : 0;
        EXPECT_EQ(pages, 1);
    }

    LibraryFaults library;
};

template <typename Thrown>
void throwOnLoad(LibraryFaults& library)
{
    static Thrown thrown("a fault");
    library.onLoad = [](const std::string& path) {
        if (path.find("page.resource") != std::string::npos)
            throw &thrown;
    };
}

TEST_F(ZELChildWindowFaultTest, anXmlExceptionIsTheLayoutsToCatch)
{
    throwOnLoad<TAMFx::Common::Xml::XmlException>(library);
    log().expectError("[loadLayout] XmlException: a fault", 1, "ZELLayout");
    expectFailedLoad();
    expectEmpty(show(withLabel("")));
}

TEST_F(ZELChildWindowFaultTest, anyOtherExceptionOfTheFoundationIsThePagesToCatch)
{
    throwOnLoad<TAMFx::Common::Exception>(library);
    log().expectError("[ZELChildWindow] Layout load failed: " + path + ", a fault", 1,
                      "ZELChildWindow");
    ZELChildWindow* const page = show(withLabel(""));
    EXPECT_TRUE(page->children().isEmpty());
    EXPECT_EQ(log().countLevel('E'), 1);
}

TEST_F(ZELChildWindowFaultTest, exceptionsOfNoSuchKindLeaveTheConstructor)
{
    writeLayout("page", withLabel(""));
    const std::vector<std::function<void()>> kinds = {
        [] { throw std::bad_alloc(); },
        [] { throw std::runtime_error("a fault"); },
        [] { throw TAMFx::Common::Exception("by value"); },
        [] { throw 5; },
    };
    for (const auto& raise : kinds) {
        library.onLoad = [&raise](const std::string&) { raise(); };
        EXPECT_ANY_THROW(frame().moveTo("page", true, true));
        expectNoTrace();
    }
    EXPECT_EQ(log().countLevel('E'), 0);
}

TEST_F(ZELChildWindowFaultTest, whatAComponentsConstructorThrowsLeavesThePageAndTheMove)
{
    static TAMFx::Common::Exception thrown("a fault");
    writeLayout("page", "<layout><Components><label><l/><bad/><after/></label></Components>"
                        "</layout>");
    const std::vector<std::function<void()>> kinds = {
        [] { throw std::out_of_range("deque::_M_range_check"); },
        [] { throw std::bad_alloc(); },
        [] { throw &thrown; }, // only the load is guarded
        [] { throw 5; },
    };
    for (const auto& raise : kinds) {
        Strings made;
        library.onCreate = [&](const std::string& keyword, const std::string& id) {
            made.push_back(keyword + " " + id);
            if (id == "bad")
                raise();
        };
        expectNoBackgroundLines();
        EXPECT_ANY_THROW(frame().moveTo("page", true, true));
        EXPECT_EQ(made, (Strings{"label l", "label bad"}));
        expectNoTrace();
    }
    library.onCreate = nullptr;
    expectNoBackgroundLines();
    EXPECT_EQ(ids(frame().moveTo("page")), (Strings{"l", "bad", "after"}));
}

TEST_F(ZELChildWindowFaultTest, anExceptionOnTheWayBackReleasesTheLockToo)
{
    writeLayout("page", withLabel(""));
    frame().moveTo("a");
    expectNoBackgroundLines(2);
    frame().moveTo("page");
    frame().moveTo("a");
    delete frame().findChild("page");
    frame().m_dqChildWindows.pop_back();
    library.onCreate = [](const std::string&, const std::string&) {
        throw std::out_of_range("deque::_M_range_check");
    };
    EXPECT_THROW(frame().moveBack(true), std::out_of_range);
    EXPECT_FALSE(lockHeld());
    EXPECT_EQ(frame().history(), (Strings{"a", "a", "page"}));
    EXPECT_EQ(frame().getCurrentWindow()->m_strID, "a");
}

} // namespace
