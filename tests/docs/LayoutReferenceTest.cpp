// docs/layout-reference.md against the code: each keyword is built from an element that holds all
// that the reference names, while the look-ups by name are noted; then it is touched, and what it
// posts is noted.

#include "catalogue/SampleTest.h"
#include "common/tamfx/Node.h"
#include "components/ComponentFactory.h"
#include "components/ZELComponent.h"
#include "components/gauges/ZELRange.h"
#include "components/lists/ZELListScroll.h"
#include "docs/Reference.h"
#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/LookUps.h"
#include "support/Touch.h"
#include "windows/ZELChildWindow.h"

#include <QWidget>

#include <fstream>
#include <iterator>
#include <regex>

using namespace PANFx::Testing;
using PANFx::Components::ComponentEntry;
using PANFx::Components::ComponentFactory;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELListScroll;
using PANFx::Components::ZELRange;
using PANFx::Resource::ZELResourceMgr;
using TAMFx::Common::Xml::Node;

namespace {

using Sentences = std::vector<std::string>;

const Reference& reference()
{
    static const Reference project = Reference::ofTheProject();
    return project;
}

// An element with all those names. The value is a picture, since some are read behind one only,
// and counts as the number 0.
std::string elementWith(const Names& names)
{
    std::map<std::string, std::string> attributes{{"", ""}};
    for (const auto& [element, attribute] : names)
        attributes[element] += attribute.empty() ? "" : " " + attribute + "=\"back.png\"";
    std::string children;
    for (const auto& [element, text] : attributes)
        children += element.empty() ? "" : "<" + element + text + "/>";
    return "<it" + attributes[""] + ">" + children + "</it>";
}

// the names that were looked up in an element and in its children
Names namesIn(Node* element, const std::vector<LookUp>& lookUps)
{
    std::map<const Node*, std::string> elements{{element, ""}};
    for (int i = 0; i < element->getChildNodeSize(); ++i)
        elements[element->getChildNode(i)] = element->getChildNode(i)->getName();
    Names names;
    for (const LookUp& lookUp : lookUps) {
        const auto found = elements.find(lookUp.element);
        if (found == elements.end())
            continue;
        if (lookUp.attribute)
            names.insert({found->second, lookUp.name});
        else
            names.insert({lookUp.name, ""});
    }
    return names;
}

// the names of a file, wherever they were looked up; attributes without their element
Names namesOf(const std::vector<LookUp>& lookUps)
{
    Names names;
    for (const LookUp& lookUp : lookUps)
        names.insert(lookUp.attribute ? Names::value_type("", lookUp.name)
                                      : Names::value_type(lookUp.name, ""));
    return names;
}

Names withoutPlace(const Names& names)
{
    Names flat;
    for (const auto& [element, attribute] : names)
        flat.insert({attribute.empty() ? element : "", attribute});
    return flat;
}

Events knownEvents()
{
    std::ifstream file(QTPANFX_SOURCE_DIR "/src/events/EventNumbers.h");
    const std::string text(std::istreambuf_iterator<char>(file), {});
    const std::regex definition(R"((EVENT_\w+) = QEvent::Type\((\d+)\))");
    Events events;
    for (std::sregex_iterator at(text.begin(), text.end(), definition), end; at != end; ++at)
        events[std::stoi((*at)[2])] = (*at)[1];
    return events;
}

// a page in the middle, a step in the middle: so that all buttons can be touched
void makeRoom(QWidget* widget)
{
    if (auto* const scroll = dynamic_cast<ZELListScroll*>(widget)) {
        scroll->setListTotalPage(5);
        scroll->setListNowPage(3);
    }
    if (auto* const range = dynamic_cast<ZELRange*>(widget))
        range->setStep(1);
}

void touch(QWidget* widget)
{
    if (!dynamic_cast<ZELComponent*>(widget) || !widget->isEnabled())
        return;
    Touch::press(widget);
    EventLoop::deliver();
    Touch::tickLongHold(widget);
    Touch::release(widget);
    EventLoop::deliver();
    widget->clearFocus();
    EventLoop::deliver();
}

class LayoutReference : public SampleTest, public ::testing::WithParamInterface<ComponentEntry>
{
protected:
    ZELComponent* create(Node* layout)
    {
        return ComponentFactory::getInstance()->createComponent(&panel(), GetParam().keyword, "it",
                                                                layout);
    }

    // the numbers that reach the page while all of it is touched twice
    std::set<int> postedByTouches(QWidget* widget)
    {
        std::vector<QWidget*> all{widget};
        for (QWidget* const inner : widget->findChildren<QWidget*>())
            all.push_back(inner);
        panel().take();
        for (int round = 0; round < 2; ++round) {
            for (QWidget* const each : all) {
                makeRoom(each);
                widget->show(); // a pad and a drop-down hide themselves
                touch(each);
            }
        }
        const std::vector<int> types = panel().takeTypes();
        return {types.begin(), types.end()};
    }
};

class ReferenceOfFiles : public PanelTest
{
};

} // namespace

TEST_P(LayoutReference, NamesTheClass)
{
    ZELComponent* const component = create(element("<it/>"));
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(reference().section(GetParam().keyword).className, classNameOf(*component));
    log().reset(); // what an empty element lacks is the catalogue's matter
}

TEST_P(LayoutReference, NamesWhatIsReadAndNothingElse)
{
    const Names documented = reference().reads(GetParam().keyword);
    Node* const layout = element(elementWith(documented));
    ASSERT_NE(layout, nullptr);
    const LookUps lookUps;
    ASSERT_NE(create(layout), nullptr);
    EXPECT_EQ(differences(documented, namesIn(layout, lookUps.all)), Sentences());
    log().reset(); // a picture's name is no sensible value for all of it
}

TEST_P(LayoutReference, NamesTheEventsThatArePostedAndNoOthers)
{
    ASSERT_TRUE(readSample(GetParam().keyword, m_document, m_sample));
    ZELComponent* const component = create(m_sample.layout);
    ASSERT_NE(component, nullptr);
    component->showWindow();
    const std::set<int> posted = postedByTouches(component->getQWidget());
    EXPECT_EQ(differences(reference().posts(GetParam().keyword), knownEvents(), posted),
              Sentences());
    log().reset(); // the lines of a sample are the catalogue's matter
}

INSTANTIATE_TEST_SUITE_P(All, LayoutReference, ::testing::ValuesIn(allEntries()), keywordOf);

TEST_F(ReferenceOfFiles, HasAllKeywordsAndNoOthers)
{
    std::vector<std::string> keywords;
    for (const ComponentEntry& entry : allEntries())
        keywords.emplace_back(entry.keyword);
    std::vector<std::string> documented = reference().keywords();
    std::sort(keywords.begin(), keywords.end());
    std::sort(documented.begin(), documented.end());
    EXPECT_EQ(documented, keywords);
}

TEST_F(ReferenceOfFiles, HasAllEventsWithTheirNumbers)
{
    const Events known = knownEvents();
    EXPECT_FALSE(known.empty());
    EXPECT_EQ(reference().section("Events").posts, known);
}

TEST_F(ReferenceOfFiles, NamesWhatIsReadOfAPage)
{
    ZELResourceMgr::getInstance();
    writeLayout("page", "<Page><Base/><Components/></Page>");
    const LookUps lookUps;
    const PANFx::Windows::ZELChildWindow page("page", &panel(), "");
    EXPECT_EQ(differences(reference().reads("The page"), namesOf(lookUps.all)), Sentences());
    expectNoBackgroundLines();
}

TEST_F(ReferenceOfFiles, NamesWhatIsReadOfStylesAndTexts)
{
    Names documented = reference().reads("The style file");
    const Names texts = reference().reads("The string table");
    documented.insert(texts.begin(), texts.end());
    const LookUps lookUps;
    ZELResourceMgr::getInstance();
    EXPECT_EQ(differences(withoutPlace(documented), namesOf(lookUps.all)), Sentences());
}
