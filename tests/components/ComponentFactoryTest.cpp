#include "components/ComponentFactory.h"

#include "components/ComponentTable.h"
#include "components/ZELComponent.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"

#include <QWidget>

#include <stdexcept>

using namespace PANFx::Testing;
using PANFx::Components::ComponentEntry;
using PANFx::Components::ComponentFactory;
using PANFx::Components::ZELComponent;

namespace {

struct Row
{
    const char* keyword;
    const char* type;

    bool operator==(const Row& other) const
    {
        return std::string(keyword) == other.keyword && std::string(type) == other.type;
    }
    friend std::ostream& operator<<(std::ostream& out, const Row& row)
    {
        return out << row.keyword << " -> " << row.type;
    }
};

using Rows = std::vector<Row>;

// the whole vocabulary of layout files, in the order of the look-up
const Rows plainRows = {
    {"label", "ZELLabel"},
    {"imagebox", "ZELImageBox"},
    {"imageEdit", "ZELImageEdit"},
    {"imageIPEdit", "ZELImageIPEdit"},
    {"imageDateEdit", "ZELImageDateEdit"},
    {"imageNumberEdit", "ZELImageNumberEdit"},
    {"imageTimeEdit", "ZELImageTimeEdit"},
    {"chartimagebox", "ZELChartImageBox"},
    {"range", "ZELProgressRange"},
    {"editrange", "ZELEditRange"},
    {"tab", "ZELTab"},
    {"tabpage", "ZELTabPage"},
    {"imageprogress", "ZELImageProgress"},
    {"roundprogress", "ZELRoundProgress"},
    {"pieimagebox", "ZELPieImageBox"},
    {"numpad", "ZELNumPad"},
    {"bubble", "ZELBubbleDialog"},
    {"radiogroup", "ZELRadioGroup"},
    {"textboard", "ZELTextBoard"},
    {"textedit", "ZELTextEdit"},
    {"lineedit", "ZELLineEdit"},
};
const Rows buttonRows = {
    {"button", "ZELImageButton"},        {"radiobutton", "ZELRadioButton"},
    {"checkbutton", "ZELCheckButton"},   {"iconcheckbutton", "ZELIconCheckButton"},
    {"keybutton", "ZELKeyButton"},       {"tabbutton", "ZELTabButton"},
    {"headerbutton", "ZELHeaderButton"},
};
const Rows listRows = {
    {"list", "ZELList"},         {"listscroll", "ZELListScroll"}, {"listheader", "ZELListHeader"},
    {"listitem", "ZELListItem"}, {"listUnit", "ZELUnitList"},     {"listCombo", "ZELComboList"},
};

Rows allRows()
{
    Rows all = plainRows;
    all.insert(all.end(), buttonRows.begin(), buttonRows.end());
    all.insert(all.end(), listRows.begin(), listRows.end());
    return all;
}

Rows rowsOf(const std::vector<ComponentEntry>& table)
{
    Rows rows;
    for (const ComponentEntry& entry : table)
        rows.push_back({entry.keyword, entry.type});
    return rows;
}

// which of the three operations to ask
enum class Ask {
    Any,
    Buttons,
    Lists,
};

class ComponentFactoryTest : public PanelTest
{
protected:
    // the component that a keyword makes from an element without anything in it; what the
    // component has to say about that element is of no interest here
    ZELComponent* make(const std::string& keyword, Ask ask = Ask::Any)
    {
        auto* const element = this->element("<thing/>");
        ComponentFactory* const factory = ComponentFactory::getInstance();
        QWidget* const parent = &panel();
        ZELComponent* made = nullptr;
        switch (ask) {
        case Ask::Any:
            made = factory->createComponent(parent, keyword, "thing", element);
            break;
        case Ask::Buttons:
            made = factory->createComponent_button(parent, keyword, "thing", element);
            break;
        case Ask::Lists:
            made = factory->createComponent_list(parent, keyword, "thing", element);
            break;
        }
        if (made)
            log().reset();
        return made;
    }
};

class ComponentFactoryKeywordTest : public ComponentFactoryTest,
                                    public ::testing::WithParamInterface<Row>
{
};

// stands in for the one instance and tells of its end
class WatchedFactory : public ComponentFactory
{
public:
    ~WatchedFactory() override { ++ended; }

    static void install() { m_pInstance = new WatchedFactory; }
    static bool exists() { return m_pInstance != nullptr; }
    static std::string identity() { return WatchedFactory().m_logger.m_strIdentity; }

    static int ended;

private:
    WatchedFactory() = default;
};

int WatchedFactory::ended = 0;

} // namespace

TEST_F(ComponentFactoryTest, hasTheWholeVocabularyInItsOrder)
{
    EXPECT_EQ(rowsOf(PANFx::Components::componentTable()), plainRows);
    EXPECT_EQ(rowsOf(PANFx::Components::buttonTable()), buttonRows);
    EXPECT_EQ(rowsOf(PANFx::Components::listTable()), listRows);
    EXPECT_EQ(allRows().size(), 34u);
}

TEST_P(ComponentFactoryKeywordTest, makesItsClassAsAChildOfTheParent)
{
    ZELComponent* const component = make(GetParam().keyword);
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->m_strType, GetParam().type);
    EXPECT_EQ(component->m_strID, "thing");
    EXPECT_EQ(component->getQWidget()->parentWidget(), &panel());
}

TEST_P(ComponentFactoryKeywordTest, makesAClassWhoseFirstBaseIsTheComponent)
{
    ZELComponent* const component = make(GetParam().keyword);
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(static_cast<void*>(component), dynamic_cast<void*>(component));
    EXPECT_NE(static_cast<void*>(component->getQWidget()), static_cast<void*>(component));
}

TEST_P(ComponentFactoryKeywordTest, isLookedUpInItsOwnTableOnly)
{
    const std::string keyword = GetParam().keyword;
    const bool ofButtons = keyword.find("button") != std::string::npos;
    const bool ofLists = !ofButtons && keyword.find("list") != std::string::npos;
    EXPECT_EQ(make(keyword, Ask::Buttons) != nullptr, ofButtons);
    EXPECT_EQ(make(keyword, Ask::Lists) != nullptr, ofLists);
}

INSTANTIATE_TEST_SUITE_P(Keywords, ComponentFactoryKeywordTest, ::testing::ValuesIn(allRows()),
                         [](const auto& info) { return std::string(info.param.keyword); });

TEST_F(ComponentFactoryTest, everyKeywordLiesWhereTheRulesLeadTo)
{
    for (const Row& row : plainRows) {
        const std::string keyword = row.keyword;
        EXPECT_EQ(keyword.find("button"), std::string::npos) << keyword;
        EXPECT_EQ(keyword.find("list"), std::string::npos) << keyword;
    }
    for (const Row& row : buttonRows)
        EXPECT_NE(std::string(row.keyword).find("button"), std::string::npos) << row.keyword;
    for (const Row& row : listRows) {
        const std::string keyword = row.keyword;
        EXPECT_EQ(keyword.find("button"), std::string::npos) << keyword;
        EXPECT_NE(keyword.find("list"), std::string::npos) << keyword;
    }
}

TEST_F(ComponentFactoryTest, unknownKeywordsGiveNullAndTheFactoryLogsNothing)
{
    panel();
    log().startHere();
    for (const char* keyword : {"", "nosuch", "ZELLabel", "position", "Components", "image"})
        EXPECT_EQ(make(keyword), nullptr) << keyword;
    EXPECT_TRUE(log().lines().empty());
}

TEST_F(ComponentFactoryTest, nearMissesGiveNull)
{
    for (const char* keyword :
         {"labe",      "labels",      " label",  "label ",  "imagebox2", "image",
          "imageedit", "imageipedit", "tabs",    "tabpag",  "progress",  "lineEdit",
          "buttons",   "imagebutton", "abutton", "button ", "listUnits", "unitlist",
          "combolist", "comboList",   "lists",   "alist",   "playlist"})
        EXPECT_EQ(make(keyword), nullptr) << keyword;
}

TEST_F(ComponentFactoryTest, capitalsMatter)
{
    for (const char* keyword : {"Label", "LABEL", "ImageBox", "imageBox", "ImageEdit", "imageedit",
                                "Button", "BUTTON", "checkButton", "List", "LIST", "ListItem",
                                "listItem", "listunit", "listcombo", "ListUnit"})
        EXPECT_EQ(make(keyword), nullptr) << keyword;
}

TEST_F(ComponentFactoryTest, aKeywordWithBothWordsIsJudgedAmongTheButtonsAlone)
{
    for (const char* keyword : {"listbutton", "buttonlist", "listheaderbutton", "listbuttonlist"}) {
        EXPECT_EQ(make(keyword), nullptr) << keyword;
        EXPECT_EQ(make(keyword, Ask::Buttons), nullptr) << keyword;
        EXPECT_EQ(make(keyword, Ask::Lists), nullptr) << keyword;
    }
}

TEST_F(ComponentFactoryTest, theConstructorReadsTheLayoutAndTheFactoryDoesNotReadItAgain)
{
    auto* const box = element("<box/>");
    log().expectError("[setLayout]  no File", 1, "ZELImageBox");
    ComponentFactory::getInstance()->createComponent(&panel(), "imagebox", "box", box);
}

TEST_F(ComponentFactoryTest, theComponentIsNotShownUnderAVisibleParent)
{
    ZELComponent* const label = make("label");
    ASSERT_NE(label, nullptr);
    ASSERT_TRUE(panel().isVisible());
    EXPECT_TRUE(label->getQWidget()->isHidden());
    EventLoop::deliver();
    EXPECT_TRUE(label->getQWidget()->isHidden());
}

TEST_F(ComponentFactoryTest, theElementGoesToTheConstructorAsItIs)
{
    ComponentFactory* const factory = ComponentFactory::getInstance();
    expectNullLayoutLines("bare");
    ZELComponent* const bare = factory->createComponent(&panel(), "label", "bare", nullptr);
    ASSERT_NE(bare, nullptr);
    ZELComponent* const placed = factory->createComponent(
        &panel(), "label", "other", element("<x><position x='1' y='2' width='3' height='4'/></x>"));
    ASSERT_NE(placed, nullptr);
    EXPECT_EQ(placed->m_strID, "other");
    EXPECT_EQ(placed->getQWidget()->geometry(), QRect(1, 2, 3, 4));
}

TEST_F(ComponentFactoryTest, withoutAParentTheComponentIsATopLevelWidget)
{
    std::unique_ptr<ZELComponent> label(
        ComponentFactory::getInstance()->createComponent(nullptr, "label", "x", element("<x/>")));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->getQWidget()->parentWidget(), nullptr);
}

TEST_F(ComponentFactoryTest, whatAConstructorThrowsPassesThrough)
{
    auto* const odd = element("<t><tabbutton><a/></tabbutton><tabpage><b/></tabpage>"
                              "<tabbutton><c/></tabbutton></t>");
    EXPECT_THROW(ComponentFactory::getInstance()->createComponent(&panel(), "tab", "t", odd),
                 std::out_of_range);
    log().reset(); // what the tab's parts have to say is of no interest here
}

TEST_F(ComponentFactoryTest, thereIsOneInstance)
{
    ComponentFactory* const first = ComponentFactory::getInstance();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(ComponentFactory::getInstance(), first);
}

TEST_F(ComponentFactoryTest, destroyingTheInstanceDeletesItOnceAndTheNextUseMakesANewOne)
{
    ComponentFactory::destroyInstance();
    WatchedFactory::ended = 0;
    WatchedFactory::install();
    ComponentFactory::destroyInstance();
    EXPECT_EQ(WatchedFactory::ended, 1);
    EXPECT_FALSE(WatchedFactory::exists());
    ComponentFactory::destroyInstance();
    EXPECT_EQ(WatchedFactory::ended, 1);
    EXPECT_FALSE(WatchedFactory::exists());
    ASSERT_NE(ComponentFactory::getInstance(), nullptr);
    EXPECT_TRUE(WatchedFactory::exists());
    EXPECT_EQ(dynamic_cast<WatchedFactory*>(ComponentFactory::getInstance()), nullptr);
    EXPECT_NE(make("label"), nullptr);
}

TEST_F(ComponentFactoryTest, signsWithItsOwnName)
{
    EXPECT_EQ(WatchedFactory::identity(), "QTPANFx ComponentFactory"); // longer than the field
}
