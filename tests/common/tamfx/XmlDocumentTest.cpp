// Also covers what only a document uses: XmlTreeBuilder, XmlParser, XmlWalk and XmlColumn.
// XmlSource, which tells where a fault stands, is covered by XmlExceptionTest.

#include "common/tamfx/XmlDocument.h"

#include "common/tamfx/FileFaults.h"
#include "common/tamfx/HeapCount.h"
#include "common/tamfx/NodeList.h"
#include "common/tamfx/TestFolder.h"
#include "common/tamfx/XmlException.h"
#include "support/SystemFaults.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

using PANFx::Testing::FileFaults;
using PANFx::Testing::HeapCount;
using PANFx::Testing::SystemCall;
using PANFx::Testing::SystemFaults;
using PANFx::Testing::TestFolder;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;
using TAMFx::Common::Xml::NodeList;
using TAMFx::Common::Xml::XmlDocument;
using TAMFx::Common::Xml::XmlException;

namespace {

class XmlDocumentTest : public ::testing::Test
{
protected:
    void load(const std::string& content)
    {
        const std::string path = m_folder.write("page.resource", content);
        ASSERT_TRUE(m_document.LoadXMLFile(path.c_str()));
    }

    /** Text of the root element of a file. */
    std::string textOf(const std::string& content)
    {
        load(content);
        return m_document.getChildNode(0)->getValue();
    }

    /** Value of the attribute "a" of the root element of a file. */
    std::string attributeOf(const std::string& content)
    {
        load(content);
        return m_document.getChildNode(0)->getAttributeByName("a")->getValue();
    }

    std::unique_ptr<NodeList> listOf(const char* name) const
    {
        return std::unique_ptr<NodeList>(m_document.getNodeListByName(name));
    }

    /** The attributes "n" of all elements of a name, in the order of the list. */
    std::string numbersOf(const char* name) const
    {
        const std::unique_ptr<NodeList> list = listOf(name);
        std::string numbers;
        for (int i = 0; i < list->getNodeCount(); ++i)
            numbers += list->getNode(i)->getAttributeByName("n")->getValue();
        return numbers;
    }

    /** An element with all that is in it: name, attributes, text in marks, children. */
    static std::string dump(const Node& node)
    {
        std::string text = std::string("<") + node.getName();
        for (int i = 0; i < node.getAttributeSize(); ++i)
            text += std::string(" ") + node.getAttribute(i)->getName() + "=" +
                    node.getAttribute(i)->getValue();
        text += std::string("|") + node.getValue() + "|";
        for (int i = 0; i < node.getChildNodeSize(); ++i)
            text += dump(*node.getChildNode(i));
        return text + ">";
    }

    /** What a file holds, or what is wrong with it. */
    std::string outcome(const std::string& content)
    {
        try {
            load(content);
        } catch (XmlException* exception) {
            return exception->GetMessage();
        }
        return dump(m_document);
    }

    void expectEmpty() const
    {
        EXPECT_EQ(m_document.getChildNodeSize(), 0);
        EXPECT_EQ(m_document.getNodeByName("Base"), nullptr);
        EXPECT_EQ(m_document.getNodeListByName("Base"), nullptr);
    }

    TestFolder m_folder;
    XmlDocument m_document;
};

const char* const page = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<!-- a page -->\n"
                         "<layout>\n"
                         "  <Base><background>bg.png</background></Base>\n"
                         "  <Components>\n"
                         "    <button>\n"
                         "      <ok title=\"@ok\" style=\"normal\">\n"
                         "        <position x=\"10\" y=\"20\" width=\"80\" height=\"48\"/>\n"
                         "      </ok>\n"
                         "    </button>\n"
                         "    <label><name/></label>\n"
                         "    <button/>\n"
                         "  </Components>\n"
                         "</layout>\n";

/** A page with 60 components, about 7 KB. */
std::string bigPage()
{
    std::string content = "<layout>\n  <Components>\n    <button>\n";
    for (int i = 0; i < 60; ++i) {
        const std::string number = std::to_string(i);
        content += "      <b" + number + " title=\"@t" + number + "\" style=\"normal\">\n" +
                   "        <position x=\"" + number + "\" y=\"8\" width=\"80\" height=\"48\"/>\n" +
                   "      </b" + number + ">\n";
    }
    return content + "    </button>\n  </Components>\n</layout>\n";
}

} // namespace

// ---- reading

TEST_F(XmlDocumentTest, StartsEmpty)
{
    expectEmpty();
}

TEST_F(XmlDocumentTest, LoadsAFile)
{
    load(page);
    Node* const components = m_document.getNodeByName("Components");
    ASSERT_NE(components, nullptr);
    EXPECT_STREQ(components->getName(), "Components");
    ASSERT_EQ(components->getChildNodeSize(), 3);
    EXPECT_STREQ(components->getChildNode(0)->getName(), "button");
    EXPECT_STREQ(components->getChildNode(1)->getName(), "label");
    EXPECT_STREQ(components->getChildNode(2)->getName(), "button");
    Node* const ok = components->getChildNode(0)->getChildNode(0);
    EXPECT_STREQ(ok->getName(), "ok");
    EXPECT_STREQ(ok->getAttributeByName("title")->getValue(), "@ok");
    EXPECT_EQ(ok->getAttributeByName("dimstyle"), nullptr);
    EXPECT_STREQ(ok->getNodeByName("position")->getAttributeByName("height")->getValue(), "48");
    EXPECT_STREQ(m_document.getNodeByName("Base")->getNodeByName("background")->getValue(),
                 "bg.png");
}

TEST_F(XmlDocumentTest, GivesAttributesInDocumentOrder)
{
    load("<r z=\"1\" a='2' m=\"\"/>");
    const Node* const root = m_document.getChildNode(0);
    ASSERT_EQ(root->getAttributeSize(), 3);
    EXPECT_STREQ(root->getAttribute(0)->getName(), "z");
    EXPECT_STREQ(root->getAttribute(1)->getName(), "a");
    EXPECT_STREQ(root->getAttribute(1)->getValue(), "2");
    EXPECT_STREQ(root->getAttribute(2)->getName(), "m");
    EXPECT_STREQ(root->getAttribute(2)->getValue(), "");
}

TEST_F(XmlDocumentTest, HasTheRootElementAsItsOnlyChild)
{
    load(page);
    ASSERT_EQ(m_document.getChildNodeSize(), 1);
    EXPECT_STREQ(m_document.getChildNode(0)->getName(), "layout");
    EXPECT_EQ(m_document.getChildNode(1), nullptr);
    EXPECT_STREQ(m_document.getName(), "");
    EXPECT_STREQ(m_document.getValue(), "");
    EXPECT_EQ(m_document.getAttributeSize(), 0);
}

TEST_F(XmlDocumentTest, FindsTheChildrenOfItsRootByNameAndNothingElse)
{
    load(page);
    EXPECT_NE(m_document.getNodeByName("Base"), nullptr);
    EXPECT_EQ(m_document.getNodeByName("layout"), nullptr);
    EXPECT_EQ(m_document.getNodeByName("background"), nullptr);
    EXPECT_EQ(m_document.getNodeByName("base"), nullptr);
    EXPECT_EQ(m_document.getNodeByName(nullptr), nullptr);
    const Node& element = m_document;
    EXPECT_EQ(element.getNodeByName("Base"), m_document.getNodeByName("Base"));
}

TEST_F(XmlDocumentTest, FindsTheFirstOfSeveralSections)
{
    load("<r><Font n='1'/><Font n='2'/></r>");
    EXPECT_STREQ(m_document.getNodeByName("Font")->getAttributeByName("n")->getValue(), "1");
}

TEST_F(XmlDocumentTest, ListsAllElementsOfANameInDocumentOrder)
{
    load("<a n='1'><a n='2'><b n='x'><a n='3'/></b></a><b n='y'/><c><c><a n='4'/></c></c>"
         "<a n='5'/></a>");
    EXPECT_EQ(numbersOf("a"), "12345");
    EXPECT_EQ(numbersOf("b"), "xy");
}

TEST_F(XmlDocumentTest, ListsNothingForANameThatNoElementHas)
{
    load(page);
    const std::unique_ptr<NodeList> list = listOf("String");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->getNodeCount(), 0);
    const std::unique_ptr<NodeList> nameless = listOf(nullptr);
    ASSERT_NE(nameless, nullptr);
    EXPECT_EQ(nameless->getNodeCount(), 0);
}

TEST_F(XmlDocumentTest, ListsAddedElementsToo)
{
    load("<r><String n='1'/><e/><String n='4'/></r>");
    Node* const added = new Node("String");
    added->addAttribute(new Attribute("n", "2"));
    Node* const below = new Node("String");
    below->addAttribute(new Attribute("n", "3"));
    added->addChild(below);
    m_document.getNodeByName("e")->addChild(added);
    EXPECT_EQ(numbersOf("String"), "1234");
}

TEST_F(XmlDocumentTest, MayBeBuiltInMemory)
{
    Node* const root = new Node("root");
    root->addChild(new Node("Base"));
    m_document.addChild(root);
    EXPECT_NE(m_document.getNodeByName("Base"), nullptr);
    EXPECT_EQ(listOf("Base")->getNodeCount(), 1);
    m_document.removeAll();
    expectEmpty();
}

TEST_F(XmlDocumentTest, KeepsOnlyTheSecondFile)
{
    load("<r><Base><old/></Base></r>");
    load("<r><Base/><New/></r>");
    EXPECT_EQ(m_document.getNodeByName("Base")->getChildNodeSize(), 0);
    EXPECT_NE(m_document.getNodeByName("New"), nullptr);
    EXPECT_EQ(m_document.getChildNodeSize(), 1);
}

TEST_F(XmlDocumentTest, IsEmptyAfterRemoveAllAndLoadsAgain)
{
    load(page);
    Node& element = m_document;
    element.removeAll();
    expectEmpty();
    load(page);
    EXPECT_NE(m_document.getNodeByName("Base"), nullptr);
}

// ---- text

TEST_F(XmlDocumentTest, KeepsTheBlanksOfAText)
{
    EXPECT_EQ(textOf("<a>  two \n lines\t</a>"), "  two \n lines\t");
}

TEST_F(XmlDocumentTest, KeepsATextOfNothingButBlanks)
{
    EXPECT_EQ(textOf("<a> </a>"), " ");
    EXPECT_EQ(textOf("<a>\n\t </a>"), "\n\t ");
}

TEST_F(XmlDocumentTest, HasAnEmptyTextWhereThereIsNone)
{
    EXPECT_EQ(textOf("<a/>"), "");
    EXPECT_EQ(textOf("<a></a>"), "");
    EXPECT_EQ(textOf("<a><!-- only this --></a>"), "");
}

TEST_F(XmlDocumentTest, TakesWhiteSpaceBesideChildElementsForNoText)
{
    EXPECT_EQ(textOf("<a>\n  <b/>\n  <c/>\n</a>"), "");
    EXPECT_EQ(textOf("<a> <![CDATA[ ]]> <b/></a>"), "");
}

TEST_F(XmlDocumentTest, KeepsTheWholeTextBesideChildElements)
{
    EXPECT_EQ(textOf("<a> one <b>not mine</b> two</a>"), " one  two");
}

TEST_F(XmlDocumentTest, JoinsATextThatCommentsAndMarkedSectionsSplit)
{
    EXPECT_EQ(textOf("<a>one<!-- c --> two<![CDATA[ <3> & ]]>four<?p i?>five</a>"),
              "one two <3> & fourfive");
    EXPECT_EQ(textOf("<a> <!-- between two blanks --> </a>"), "  ");
}

// Comments keep the parser from its short way, on which it forgets the blanks between elements.
TEST_F(XmlDocumentTest, HoldsTheSameWithAndWithoutACommentBehindTheRoot)
{
    for (const std::string content :
         {"<a/>", "<a> </a>", "<a>\r\n</a>", "<a>x</a>", "<a> x </a>", "<a> <b/> </a>",
          "<a>x<b/></a>", "<a>x <b/> </a>", "<a> <b/> x</a>", "<a><b/> x <c/> </a>", "<a>&#32;</a>",
          "<a>&#32;<b/></a>", "<a><b/>&#32;</a>", "<a><b> </b> <b>\n</b></a>",
          "<a><b>x</b> <b/>\n<c d='1'>y</c></a>", "<a>x<b> </b></a>", "<a b='<' c='&gt;'>&lt;</a>",
          " <a/> ", "\xEF\xBB\xBF<a> <b/></a>", "<?xml version='1.0'?>\n<a>\n <b/>\n</a>\n",
          "<a x='1' y='2'><b y='3' x=''/><xy yx='4'/></a>", "<a x='1' xy='2' xz='3'/>",
          // and what is refused
          "<a x='1' y='2' x='3'/>", "<a><b/> <c y='1' y='2'/></a>", "<a/>&#32;", "<a/> x", "x <a/>",
          "<a/><b/>", "<a> <b></a>", "<a b=1/>"}) {
        const std::string expected = outcome(content + "<!-- -->");
        EXPECT_EQ(outcome(content), expected) << content;
    }
}

TEST_F(XmlDocumentTest, ReadsAllLineEndsAsALineFeed)
{
    EXPECT_EQ(textOf("<a>1\r\n2\r3\n4</a>"), "1\n2\n3\n4");
}

TEST_F(XmlDocumentTest, ReadsTheBuiltInEntitiesAndCharacterReferences)
{
    EXPECT_EQ(textOf("<a>&lt;&gt;&amp;&quot;&apos;&#65;&#x42;&#xAC00;</a>"),
              "<>&\"'AB\xEA\xB0\x80");
    EXPECT_EQ(attributeOf("<r a='&lt;&#10;&quot;'/>"), "<\n\"");
}

TEST_F(XmlDocumentTest, TakesABareAmpersandAsItStands)
{
    EXPECT_EQ(textOf("<a>R & D &</a>"), "R & D &");
    EXPECT_EQ(attributeOf("<r a='R & D &'/>"), "R & D &");
}

TEST_F(XmlDocumentTest, ExpandsNoEntityOfTheFileItself)
{
    const std::string secret = m_folder.write("secret", "secret");
    EXPECT_EQ(textOf("<!DOCTYPE a [<!ENTITY b 'bbb'><!ENTITY c SYSTEM '" + secret +
                     "'>]>"
                     "<a>&b;&c;&lt;</a>"),
              "&b;&c;<");
    EXPECT_EQ(attributeOf("<!DOCTYPE r [<!ENTITY b 'bbb'>]><r a='&b;'/>"), "&b;");
}

TEST_F(XmlDocumentTest, ReadsLineBreaksInAttributesAsBlanks)
{
    EXPECT_EQ(attributeOf("<r a='1\n2\t3'/>"), "1 2 3");
    EXPECT_EQ(attributeOf("<r a=' \\n '/>"), " \\n ");
}

// ---- one column of a table

TEST_F(XmlDocumentTest, KeepsOneColumnOfATable)
{
    m_document.setColumn("String", "key", 1);
    EXPECT_EQ(outcome("<t><String key='a'><kr>1</kr><en>2</en></String></t>"),
              "<||<||<String key=a||<|2|>>>>");
    EXPECT_EQ(
        outcome("<t> <String key='a'><kr>1</kr> <en>2</en><esp>3</esp></String>\n"
                "<String id='9' key='b' more='8'>no<x/><y z='7'> 5<v>no</v></y></String></t>"),
        "<||<||<String key=a||<|2|>><String key=b||<| 5|>>>>");
}

TEST_F(XmlDocumentTest, KeepsRowsWithoutTheColumnAndForgetsThoseWithoutTheKey)
{
    m_document.setColumn("row", "key", 2);
    EXPECT_EQ(outcome("<t><row key='a'><c/><c/></row><row><c/><c/><c>1</c></row>"
                      "<row key=''><c/><c/><c/></row><Row key='b'><c/><c/><c>2</c></Row></t>"),
              "<||<||<row key=a||><row key=||<||>>>>");
    EXPECT_EQ(outcome("<t/>"), "<||<||>>");
}

TEST_F(XmlDocumentTest, FindsRowsAtAnyDepthInDocumentOrder)
{
    m_document.setColumn("row", "key", 1);
    EXPECT_EQ(outcome("<row key='a'><x><row key='b'><c/><c>2</c></row></x>"
                      "<row key='c'><c/><c>3</c></row><row key='d'/></row>"),
              "<||<||<row key=a||<||>><row key=b||<|2|>><row key=c||<|3|>><row key=d||>>>");
    EXPECT_EQ(listOf("row")->getNodeCount(), 4);
}

TEST_F(XmlDocumentTest, RefusesTheSameFilesWithAColumn)
{
    const std::string twice = "<t>\n<row key='a'/><other k='' k=''/></t>";
    const std::string fault = outcome(twice);
    m_document.setColumn("row", "key", 0);
    EXPECT_EQ(outcome(twice), fault);
    expectEmpty();
    EXPECT_FALSE(m_document.LoadXMLFile(m_folder.path("none.resource").c_str()));
}

// ---- encodings

TEST_F(XmlDocumentTest, ReadsUtf8WithAndWithoutAByteOrderMark)
{
    EXPECT_EQ(textOf("<a>\xED\x95\x9C</a>"), "\xED\x95\x9C");
    EXPECT_EQ(textOf("\xEF\xBB\xBF<a>\xED\x95\x9C</a>"), "\xED\x95\x9C");
}

TEST_F(XmlDocumentTest, ReadsUtf16OfEitherByteOrder)
{
    EXPECT_EQ(textOf(std::string("\xFF\xFE<\0a\0>\0\x5C\xD5<\0/\0a\0>\0", 18)), "\xED\x95\x9C");
    EXPECT_EQ(textOf(std::string("\xFE\xFF\0<\0a\0>\xD5\x5C\0<\0/\0a\0>", 18)), "\xED\x95\x9C");
}

TEST_F(XmlDocumentTest, ReadsLatin1ThatSaysSo)
{
    EXPECT_EQ(textOf("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\xE4</a>"), "\xC3\xA4");
}

// ---- memory

TEST_F(XmlDocumentTest, KeepsAPageInOnePieceOfBoundedSize)
{
    const std::string content = bigPage();
    const std::string path = m_folder.write("big.resource", content);
    m_document.LoadXMLFile(m_folder.write("small.resource", "<r/>").c_str());
    m_document.removeAll();
    const auto pieces = HeapCount::pieces();
    const auto bytes = HeapCount::bytes();
    ASSERT_TRUE(m_document.LoadXMLFile(path.c_str()));
    EXPECT_EQ(HeapCount::pieces(), pieces + 1);
    const std::size_t nodes = 3 + 2 * std::size_t{60};
    const std::size_t attributes = 6 * std::size_t{60};
    EXPECT_EQ(m_document.getNodeByName("Components")->getChildNode(0)->getChildNodeSize(), 60);
    EXPECT_LE(HeapCount::bytes() - bytes, content.size() * 13 / 10 + nodes * 48 + attributes * 16);
    EXPECT_LE(sizeof(Node), 48u);
    EXPECT_LE(sizeof(Attribute), 16u);
    m_document.removeAll();
    EXPECT_EQ(HeapCount::pieces(), pieces);
}

TEST_F(XmlDocumentTest, GivesItsMemoryBackWhenItDies)
{
    const std::string path = m_folder.write("page.resource", page);
    const auto pieces = HeapCount::pieces();
    {
        XmlDocument document;
        document.LoadXMLFile(path.c_str());
        document.LoadXMLFile(path.c_str());
        document.getNodeByName("Base")->addChild(new Node("added"));
        EXPECT_GT(HeapCount::pieces(), pieces);
    }
    EXPECT_EQ(HeapCount::pieces(), pieces);
}

TEST_F(XmlDocumentTest, GivesTheMemoryOfAddedAttributesBackToo)
{
    const std::string path = m_folder.write("page.resource", page);
    const auto pieces = HeapCount::pieces();
    {
        XmlDocument document;
        document.LoadXMLFile(path.c_str());
        Node* const base = document.getNodeByName("Base"); // without children added to it
        base->addAttribute(new Attribute("a", "b"));
        EXPECT_STREQ(base->getAttributeByName("a")->getValue(), "b");
    }
    EXPECT_EQ(HeapCount::pieces(), pieces);
}

TEST_F(XmlDocumentTest, IsFreedThroughItsBase)
{
    const std::string path = m_folder.write("page.resource", page);
    const auto pieces = HeapCount::pieces();
    {
        auto document = std::make_unique<XmlDocument>();
        document->LoadXMLFile(path.c_str());
        const std::unique_ptr<Node> node = std::move(document);
    }
    EXPECT_EQ(HeapCount::pieces(), pieces);
}

TEST_F(XmlDocumentTest, ReadsElementsAndAttributesInAnyNumberInReasonableTime)
{
    std::string content = "<r";
    for (int i = 0; i < 50000; ++i)
        content += " a" + std::to_string(i) + "=''";
    content += ">";
    for (int i = 0; i < 200000; ++i)
        content += "<c/>";
    const auto begin = std::chrono::steady_clock::now();
    load(content + "</r>");
    const Node* const root = m_document.getChildNode(0);
    EXPECT_EQ(root->getAttributeSize(), 50000);
    ASSERT_EQ(root->getChildNodeSize(), 200000);
    for (int i = 0; i < root->getChildNodeSize(); ++i)
        ASSERT_STREQ(root->getChildNode(i)->getName(), "c");
    EXPECT_EQ(listOf("c")->getNodeCount(), 200000);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
}

// ---- what cannot be read

TEST_F(XmlDocumentTest, AnswersAMissingFileWithFalseAndIsEmpty)
{
    load(page);
    EXPECT_FALSE(m_document.LoadXMLFile(m_folder.path("none.resource").c_str()));
    expectEmpty();
    EXPECT_FALSE(m_document.LoadXMLFile(m_folder.path("none/none.resource").c_str()));
}

TEST_F(XmlDocumentTest, AnswersAMissingNameWithFalse)
{
    load(page);
    EXPECT_FALSE(m_document.LoadXMLFile(nullptr));
    expectEmpty();
    EXPECT_FALSE(m_document.LoadXMLFile(""));
}

TEST_F(XmlDocumentTest, AnswersADirectoryWithFalse)
{
    load(page);
    EXPECT_FALSE(m_document.LoadXMLFile(m_folder.path().c_str()));
    expectEmpty();
}

TEST_F(XmlDocumentTest, AnswersAFileThatMayNotBeReadWithFalse)
{
    load(page);
    SystemFaults faults;
    faults.fail(SystemCall::Open, EACCES, "page.resource");
    EXPECT_FALSE(m_document.LoadXMLFile(m_folder.path("page.resource").c_str()));
    EXPECT_EQ(faults.count(SystemCall::Open, "page.resource"), 1);
    expectEmpty();
}

TEST_F(XmlDocumentTest, AnswersAReadingErrorWithFalse)
{
    // opens like any file, but nothing lies at its begin: read gives EIO
    load(page);
    EXPECT_FALSE(m_document.LoadXMLFile("/proc/self/mem"));
    expectEmpty();
}

TEST_F(XmlDocumentTest, AnswersAPipeWithFalseAndDoesNotWaitForIt)
{
    const std::string path = m_folder.path("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_FALSE(m_document.LoadXMLFile(path.c_str()));
}

TEST_F(XmlDocumentTest, AnswersAFileOfMoreThan256MegabytesWithFalse)
{
    const std::string path = m_folder.write("huge.resource", "<r/>");
    std::filesystem::resize_file(path, (std::uintmax_t(256) << 20) + 1);
    EXPECT_FALSE(m_document.LoadXMLFile(path.c_str()));
    std::filesystem::resize_file(path, 4);
    EXPECT_TRUE(m_document.LoadXMLFile(path.c_str()));
}

TEST_F(XmlDocumentTest, AnswersAFileThatTheMemoryCannotHoldWithFalse)
{
    load(page);
    {
        FileFaults faults;
        faults.onRead = []() -> int { throw std::bad_alloc(); };
        EXPECT_FALSE(m_document.LoadXMLFile(m_folder.path("page.resource").c_str()));
    }
    expectEmpty();
    load(page);
    EXPECT_NE(m_document.getNodeByName("Base"), nullptr) << "a smaller one can be read";
}

TEST_F(XmlDocumentTest, ReadsAFileWhoseSizeTheSystemDoesNotTell)
{
    // such files say that they are empty and have content nevertheless
    EXPECT_THROW(m_document.LoadXMLFile("/proc/self/status"), XmlException*);
}

TEST_F(XmlDocumentTest, LeavesNoFileOpen)
{
    const auto openFiles = [] {
        const std::filesystem::directory_iterator files("/proc/self/fd");
        return std::distance(begin(files), end(files));
    };
    const auto before = openFiles();
    load(page);
    EXPECT_FALSE(m_document.LoadXMLFile(m_folder.path().c_str()));
    EXPECT_THROW(m_document.LoadXMLFile(m_folder.write("bad", "<").c_str()), XmlException*);
    EXPECT_EQ(openFiles(), before);
}
