#include "components/containers/ZELBubbleDialog.h"

#include "common/tamfx/Node.h"
#include "components/buttons/ButtonTest.h"
#include "components/text/ZELLabel.h"

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELBubbleDialog;
using Components::ZELComponent;
using Components::ZELImageBox;
using Components::ZELLabel;

namespace {

class Bubble : public ZELBubbleDialog
{
public:
    using ZELBubbleDialog::m_logger;
    using ZELBubbleDialog::ZELBubbleDialog;

    // how often the two operations of the components ran, and with what
    void createSubComponent(TAMFx::Common::Xml::Node* node) override
    {
        calls += "create " + std::string(node->getName()) + " ";
        ZELBubbleDialog::createSubComponent(node);
    }
    void showSubComponent() override
    {
        calls += "show ";
        ZELBubbleDialog::showSubComponent();
    }

    std::string calls;
};

class ZELBubbleDialogTest : public ButtonTest
{
protected:
    using Texts = std::vector<std::string>;

    ZELBubbleDialogTest() { writePicture("bubble.png", 120, 60, Qt::cyan); }

    Bubble* bubble()
    {
        return make<Bubble>("<bub file='bubble.png' x='30' y='40' width='120' height='60'/>",
                            "ZELBubbleDialog");
    }

    // the labels that are to be seen, by their ids
    static std::string visible(Bubble* bubble)
    {
        std::string found;
        for (QObject* const child : bubble->children()) {
            const auto* const label = dynamic_cast<ZELLabel*>(child);
            if (label && !label->isHidden())
                found += (found.empty() ? "" : " ") + label->m_strID;
        }
        return found;
    }
};

} // namespace

TEST_F(ZELBubbleDialogTest, isAnImageBoxThatSignsAsALabel)
{
    auto* const built = buildComponent<ZELBubbleDialog>("bubble", "<b file='bubble.png'/>");
    EXPECT_EQ(built->m_strType, "ZELBubbleDialog");
    EXPECT_NE(dynamic_cast<ZELImageBox*>(built), nullptr);
    EXPECT_EQ(built->getComponentCount(), 0);
    EXPECT_EQ(bubble()->geometry(), QRect(30, 40, 120, 60));
    EXPECT_EQ(bubble()->m_logger.m_strIdentity, "QTPANFx ZELLabel       ");
    EXPECT_EQ(Pixels::count(Pixels::grab(bubble()), Qt::cyan), 120 * 60);
}

TEST_F(ZELBubbleDialogTest, readsItsElementTwice)
{
    log().expectError("[setLayout] ok pLayout == NULL", 2, "ZELImageBox");
    make<Bubble>("");
    log().expectError("[setLayout]  no File", 2, "ZELImageBox");
    make<Bubble>("<bub/>");
    log().expectError("[setImage] m_pBGPixmap == NULL", 2, "ZELImageBox");
    make<Bubble>("<bub file='no.png'/>");
}

TEST_F(ZELBubbleDialogTest, buildsNothingFromItsElement)
{
    auto* const made = make<Bubble>("<bub file='bubble.png'><label><a title='x'/></label></bub>");
    EXPECT_EQ(made->getComponentCount(), 0);
    EXPECT_EQ(made->calls, "");
}

TEST_F(ZELBubbleDialogTest, addLableMakesALabelAtItsPlace)
{
    auto* const made = bubble();
    made->addLable("Hint", "pressed", 7, 8, 90, 20);
    EXPECT_EQ(made->calls, "create components show ");
    ASSERT_EQ(made->getComponentCount(), 1);
    ZELComponent* const label = made->getSubComponent("Hint");
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->m_strType, "ZELLabel");
    EXPECT_EQ(label->getQWidget()->parentWidget(), made);
    EXPECT_EQ(label->getQWidget()->geometry(), QRect(7, 8, 90, 20));
    EXPECT_FALSE(label->getQWidget()->isHidden());
    const QImage image = Pixels::grab(made);
    EXPECT_GT(Pixels::count(image, Qt::red, QRect(7, 8, 90, 20)), 0) << "in its style";
    EXPECT_EQ(Pixels::inkOutside(image, QRect(7, 8, 90, 20), Qt::cyan), 0) << "and nowhere else";
}

TEST_F(ZELBubbleDialogTest, takesNumbersOfAnySign)
{
    auto* const made = bubble();
    made->addLable("a", "normal", -5, -6, 20, 10);
    EXPECT_EQ(made->getSubComponent("a")->getQWidget()->geometry(), QRect(-5, -6, 20, 10));
}

TEST_F(ZELBubbleDialogTest, aKeyOfTheStringTableShowsItsEntry)
{
    writeStrings("<t><String key='hello'><kr>n</kr><en>MMMM</en></String></t>");
    auto* const keyed = bubble();
    keyed->addLable("@hello", "normal", 0, 0, 120, 60);
    auto* const plain = bubble();
    plain->addLable("MMMM", "normal", 0, 0, 120, 60);
    EXPECT_GT(Pixels::count(Pixels::grab(plain), Qt::black), 0);
    EXPECT_TRUE(Pixels::same(Pixels::grab(keyed), Pixels::grab(plain)));
    EXPECT_NE(keyed->getSubComponent("@hello"), nullptr) << "the text as given is the id";
}

TEST_F(ZELBubbleDialogTest, anyTextCanBeALabel)
{
    auto* const made = bubble();
    int count = 0;
    for (const std::string text : {"a <b> c", "", "&amp; \"x\"", "two\nlines", "한글", "label"}) {
        made->addLable(text, "normal", 0, 0, 50, 20);
        EXPECT_EQ(made->getComponentCount(), ++count) << text;
        EXPECT_EQ(made->getSubComponent(count - 1)->m_strID, text);
    }
    Pixels::grab(made);
    made->deleteLabel();
    EXPECT_EQ(made->getComponentCount(), 0);
}

TEST_F(ZELBubbleDialogTest, theSameTextTwiceMakesTwoLabelsOfOneId)
{
    auto* const made = bubble();
    made->addLable("a", "normal", 0, 0, 20, 20);
    made->addLable("a", "normal", 30, 0, 20, 20);
    EXPECT_EQ(made->getComponentCount(), 2);
    EXPECT_EQ(visible(made), "a a");
    made->deleteLabel();
    EXPECT_EQ(made->getComponentCount(), 0);
    EXPECT_EQ(visible(made), "");
}

TEST_F(ZELBubbleDialogTest, deleteLabelOfAnEmptyBubbleTellsTheCountAlone)
{
    auto* const made = bubble();
    log().startHere();
    made->deleteLabel();
    EXPECT_EQ(log().texts(), Texts{"[D] deletelabel count 0\n"});
    EXPECT_EQ(log().texts("ZELLabel").size(), 1u);
}

TEST_F(ZELBubbleDialogTest, deleteLabelEmptiesTheBubbleAndHidesItsLabels)
{
    auto* const made = bubble();
    for (const char* text : {"a", "b", "c"})
        made->addLable(text, "normal", 0, 0, 20, 20);
    EXPECT_EQ(visible(made), "a b c");
    log().startHere();
    made->deleteLabel();
    EXPECT_EQ(made->getComponentCount(), 0);
    EXPECT_EQ(visible(made), "");
    EXPECT_EQ(made->findChildren<QWidget*>().size(), 3) << "hidden until the bubble dies";
    EXPECT_EQ(log().texts("ZELLabel"),
              (Texts{"[D] deletelabel count 3\n", "[D] deletelabel count ZELLabel\n",
                     "[D] deletelabel count ZELLabel\n", "[D] deletelabel count ZELLabel\n"}));
    EXPECT_EQ(
        log().texts("ZELWindow"),
        (Texts{"[D] deleteSubComponent c", "[D] deleteSubComponent c", "[D] deleteSubComponent c",
               "[D] deleteSubComponent c", "[D] deleteSubComponent c", "[D] deleteSubComponent c"}))
        << "the last one each time, told twice, as the front goes";
}

TEST_F(ZELBubbleDialogTest, afterDeleteLabelANewLabelStandsAlone)
{
    auto* const made = bubble();
    made->addLable("old", "normal", 0, 0, 60, 20);
    made->deleteLabel();
    made->addLable("new", "normal", 0, 30, 60, 20);
    EXPECT_EQ(visible(made), "new");
    EXPECT_EQ(made->getComponentCount(), 1);
    EXPECT_EQ(Pixels::inkOutside(Pixels::grab(made), QRect(0, 30, 60, 20), Qt::cyan), 0);
}

TEST_F(ZELBubbleDialogTest, aLabelThatAnApplicationDeletedIsPassedOver)
{
    auto* const made = bubble();
    for (const char* text : {"a", "b"})
        made->addLable(text, "normal", 0, 0, 20, 20);
    delete made->getSubComponent("b")->getQWidget();
    made->deleteLabel();
    EXPECT_EQ(visible(made), "");
    made->addLable("c", "normal", 0, 0, 20, 20);
    EXPECT_EQ(visible(made), "c");
}

TEST_F(ZELBubbleDialogTest, deleteLabelLeavesWhatIsNoLabel)
{
    auto* const made = bubble();
    for (const char* text : {"a", "b"})
        made->addLable(text, "normal", 0, 0, 20, 20);
    made->createSubComponent(
        element("<x><button><push><image up='up.png' down='down.png'/></push></button></x>"));
    log().startHere();
    made->deleteLabel();
    EXPECT_EQ(log().texts("ZELLabel"),
              (Texts{"[D] deletelabel count 3\n", "[D] deletelabel count ZELImageButton\n",
                     "[D] deletelabel count ZELLabel\n", "[D] deletelabel count ZELLabel\n"}));
    ASSERT_EQ(made->getComponentCount(), 1);
    EXPECT_EQ(made->getSubComponent(0)->m_strID, "push");
    EXPECT_TRUE(made->getSubComponent(0)->getQWidget()->isHidden()) << "hidden with the labels";
}

TEST_F(ZELBubbleDialogTest, aTouchOfALabelIsTheLabels)
{
    auto* const made = bubble();
    made->addLable("a", "normal", 10, 10, 40, 20);
    QWidget* const label = made->getSubComponent("a")->getQWidget();
    EventRecorder onTheWay;
    onTheWay.listenAt(made);
    Touch::tapWindow(label);
    const RecordedEvent event = onTheWay.takeOne();
    EXPECT_EQ(event.type, EVENT_MOUSE_UP);
    EXPECT_EQ(event.id, "a");
    EXPECT_EQ(event.sender, label);
    EXPECT_TRUE(panel().take().empty()) << "and ends at the bubble";
}

TEST_F(ZELBubbleDialogTest, aTouchOfThePictureIsTheBubbles)
{
    auto* const made = bubble();
    made->addLable("a", "normal", 0, 0, 20, 20);
    Touch::tap(made, QPoint(100, 50));
    const RecordedEvent event = panel().takeOne();
    EXPECT_EQ(event.type, EVENT_MOUSE_UP);
    EXPECT_EQ(event.id, "bub");
    EXPECT_EQ(event.sender, made);
}
