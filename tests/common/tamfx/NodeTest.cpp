#include "common/tamfx/Node.h"

#include "common/tamfx/HeapCount.h"
#include "common/tamfx/String.h"
#include "common/tamfx/TestFolder.h"
#include "common/tamfx/XmlDocument.h"

#include <climits>
#include <gtest/gtest.h>
#include <memory>
#include <string>

using PANFx::Testing::HeapCount;
using PANFx::Testing::TestFolder;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;
using TAMFx::Common::Xml::XmlDocument;

namespace {

void load(XmlDocument& document, const std::string& content)
{
    const TestFolder folder;
    ASSERT_TRUE(document.LoadXMLFile(folder.write("page.resource", content).c_str()));
}

/** Heap pieces in use, once a first load has let the system set up what it keeps. */
std::size_t piecesAfterFirstLoad()
{
    {
        XmlDocument document;
        load(document, "<r/>");
    }
    return HeapCount::pieces();
}

} // namespace

TEST(NodeTest, BuiltInMemoryIsEmptyAndHasACopyOfItsName)
{
    std::string name(300, 'n');
    const Node node(name.c_str());
    name.assign(300, 'x');
    EXPECT_EQ(node.getName(), std::string(300, 'n'));
    EXPECT_STREQ(node.getValue(), "");
    EXPECT_EQ(node.getChildNodeSize(), 0);
    EXPECT_EQ(node.getAttributeSize(), 0);
}

TEST(NodeTest, BuiltInMemoryTakesAnyTextAsItsName)
{
    EXPECT_STREQ(Node("a <b> c").getName(), "a <b> c");
    EXPECT_STREQ(Node("").getName(), "");
    EXPECT_STREQ(Node(nullptr).getName(), "");
    EXPECT_STREQ(Node("\xED\x95\x9C & \"\n").getName(), "\xED\x95\x9C & \"\n");
}

TEST(NodeTest, BuildsTheTreeOfALabelInMemory)
{
    Node root("components");
    Node* const label = new Node("label");
    Node* const text = new Node("a <b> c");
    Node* const position = new Node("position");
    root.addChild(label);
    label->addChild(text);
    text->addChild(position);
    String number;
    for (const char* name : {"x", "y", "width", "height"}) {
        number.Format("%d", 480);
        position->addAttribute(new Attribute(name, number.c_str()));
    }
    ASSERT_EQ(root.getChildNodeSize(), 1);
    Node* const found = root.getChildNode(0)->getNodeByName("a <b> c");
    ASSERT_EQ(found, text);
    ASSERT_EQ(found->getNodeByName("position"), position);
    EXPECT_EQ(position->getAttributeSize(), 4);
    EXPECT_STREQ(position->getAttributeByName("width")->getValue(), "480");
}

TEST(NodeTest, GivesChildrenInTheOrderOfAdding)
{
    Node node("list");
    Node* const first = new Node("row");
    Node* const second = new Node("row");
    Node* const third = new Node("header");
    for (Node* child : {first, second, third})
        node.addChild(child);
    EXPECT_EQ(node.getChildNodeSize(), 3);
    EXPECT_EQ(node.getChildNode(0), first);
    EXPECT_EQ(node.getChildNode(1), second);
    EXPECT_EQ(node.getChildNode(2), third);
    EXPECT_EQ(node.getNodeByName("row"), first);
    EXPECT_EQ(node.getNodeByName("header"), third);
}

TEST(NodeTest, GivesAttributesInTheOrderOfAdding)
{
    Node node("param");
    Attribute* const first = new Attribute("b", "1");
    Attribute* const second = new Attribute("a", "2");
    Attribute* const again = new Attribute("b", "3");
    for (Attribute* attribute : {first, second, again})
        node.addAttribute(attribute);
    EXPECT_EQ(node.getAttributeSize(), 3);
    EXPECT_EQ(node.getAttribute(0), first);
    EXPECT_EQ(node.getAttribute(1), second);
    EXPECT_EQ(node.getAttribute(2), again);
    EXPECT_EQ(node.getAttributeByName("b"), first);
    EXPECT_EQ(node.getAttributeByName("a"), second);
}

TEST(NodeTest, AnswersABadIndexWithNull)
{
    Node built("node");
    built.addChild(new Node("child"));
    built.addAttribute(new Attribute("name", "value"));
    XmlDocument document;
    load(document, "<r a='1'><c/></r>");
    for (const Node* node : {&built, document.getChildNode(0)}) {
        for (const int index : {-1, 1, INT_MIN, INT_MAX}) {
            EXPECT_EQ(node->getChildNode(index), nullptr) << index;
            EXPECT_EQ(node->getAttribute(index), nullptr) << index;
        }
    }
}

TEST(NodeTest, AnswersAMissingOrNullNameWithNull)
{
    Node node("node");
    node.addChild(new Node("child"));
    node.addAttribute(new Attribute("name", "value"));
    EXPECT_EQ(node.getNodeByName("Child"), nullptr);
    EXPECT_EQ(node.getNodeByName(nullptr), nullptr);
    EXPECT_EQ(node.getAttributeByName("Name"), nullptr);
    EXPECT_EQ(node.getAttributeByName(nullptr), nullptr);
}

TEST(NodeTest, FindsItsDirectChildrenOnly)
{
    XmlDocument document;
    load(document, "<r><list><button><image up='u'/></button></list></r>");
    const Node* const list = document.getNodeByName("list");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->getNodeByName("image"), nullptr);
    EXPECT_NE(list->getNodeByName("button")->getNodeByName("image"), nullptr);
}

TEST(NodeTest, FreesAllThatWasAdded)
{
    const auto before = HeapCount::pieces();
    {
        Node root("root");
        for (int i = 0; i < 10; ++i) {
            Node* const child = new Node("child");
            child->addAttribute(new Attribute("a", "b"));
            child->addChild(new Node("grandchild"));
            root.addChild(child);
            root.addAttribute(new Attribute("c", "d"));
        }
    }
    EXPECT_EQ(HeapCount::pieces(), before);
}

TEST(NodeTest, FreesADeepTreeWithoutDeepRecursion)
{
    const auto before = HeapCount::pieces();
    {
        Node root("root");
        Node* last = &root;
        for (int i = 0; i < 1000000; ++i) {
            Node* const next = new Node("n");
            if (i % 1000 == 0)
                next->addAttribute(new Attribute("a", "b"));
            last->addChild(next);
            last = next;
        }
    }
    EXPECT_EQ(HeapCount::pieces(), before);
}

TEST(NodeTest, RefusesNullItselfAndWhatHasAnOwner)
{
    Node first("first");
    Node second("second");
    Node* const child = new Node("child");
    first.addChild(nullptr);
    first.addChild(&first);
    first.addAttribute(nullptr);
    EXPECT_EQ(first.getChildNodeSize(), 0);
    EXPECT_EQ(first.getAttributeSize(), 0);
    first.addChild(child);
    first.addChild(child);
    second.addChild(child);
    EXPECT_EQ(first.getChildNodeSize(), 1);
    EXPECT_EQ(second.getChildNodeSize(), 0);

    XmlDocument document;
    load(document, "<r><c/></r>");
    second.addChild(document.getNodeByName("c"));
    EXPECT_EQ(second.getChildNodeSize(), 0);
}

TEST(NodeTest, FromAFileTakesMoreChildrenAndAttributes)
{
    const auto before = piecesAfterFirstLoad();
    {
        XmlDocument document;
        load(document, "<r><c a='1'>text</c><d/></r>");
        Node* const c = document.getNodeByName("c");
        Attribute* const a = c->getAttribute(0);
        Node* const d = document.getNodeByName("d");
        Node* const added = new Node("e");
        added->addChild(new Node("f"));
        c->addChild(added);
        c->addAttribute(new Attribute("b", "2"));
        document.getChildNode(0)->addChild(new Node("g"));

        EXPECT_EQ(document.getChildNode(0)->getChildNodeSize(), 3);
        EXPECT_EQ(document.getNodeByName("c"), c);
        EXPECT_EQ(document.getNodeByName("d"), d);
        EXPECT_NE(document.getNodeByName("g"), nullptr);
        EXPECT_EQ(c->getNodeByName("e"), added);
        EXPECT_EQ(c->getAttributeSize(), 2);
        EXPECT_EQ(c->getAttribute(0), a);
        EXPECT_STREQ(a->getValue(), "1");
        EXPECT_STREQ(c->getAttributeByName("b")->getValue(), "2");
        EXPECT_STREQ(c->getValue(), "text");
    }
    EXPECT_EQ(HeapCount::pieces(), before);
}

TEST(NodeTest, DropsItsContentButNotItsName)
{
    const auto before = piecesAfterFirstLoad();
    {
        Node built("built");
        built.addChild(new Node("child"));
        built.addAttribute(new Attribute("a", "b"));
        built.removeAll();
        EXPECT_STREQ(built.getName(), "built");
        EXPECT_EQ(built.getChildNodeSize(), 0);
        EXPECT_EQ(built.getAttributeSize(), 0);
        built.addChild(new Node("again"));
        EXPECT_EQ(built.getChildNodeSize(), 1);

        XmlDocument document;
        load(document, "<r><c a='1'>text<d/></c></r>");
        Node* const c = document.getNodeByName("c");
        c->getNodeByName("d")->addChild(new Node("below what goes"));
        c->removeAll();
        EXPECT_STREQ(c->getName(), "c");
        EXPECT_STREQ(c->getValue(), "");
        EXPECT_EQ(c->getChildNodeSize(), 0);
        EXPECT_EQ(c->getAttributeSize(), 0);
        c->addChild(new Node("again"));
        c->addAttribute(new Attribute("a", "2"));
        EXPECT_EQ(c->getChildNodeSize(), 1);
        EXPECT_STREQ(c->getAttributeByName("a")->getValue(), "2");
    }
    EXPECT_EQ(HeapCount::pieces(), before);
}
