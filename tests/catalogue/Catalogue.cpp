// Every keyword of layout files: built from nothing, from an empty and from a full element,
// painted in every state, touched, and destroyed. A new component class needs its line in the
// component table and its sample in layouts/, and nothing here.

#include "catalogue/SampleTest.h"
#include "common/tamfx/XmlDocument.h"
#include "components/ComponentFactory.h"
#include "components/ZELComponent.h"
#include "components/buttons/ZELImageButton.h"
#include "components/editors/ZELImageEdit.h"
#include "components/text/ZELLineEdit.h"
#include "support/EventLoop.h"
#include "support/Pixels.h"
#include "support/Touch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

using namespace PANFx::Testing;
using PANFx::Components::ComponentEntry;
using PANFx::Components::ComponentFactory;
using PANFx::Components::ZELComponent;
using TAMFx::Common::Xml::Node;

namespace {

constexpr const char* emptyId = "it";

// the two progress bars have a type string that is shorter than the class name
std::string classNameFor(const std::string& type)
{
    const bool shortened = type == "ZELImageProgress" || type == "ZELRoundProgress";
    return shortened ? type + "Bar" : type;
}

template <class T>
void setDim(QWidget* widget, bool dim)
{
    if (auto* const dimmable = dynamic_cast<T*>(widget))
        dimmable->setDimMode(dim);
}

void setDimMode(QWidget* widget, bool dim)
{
    setDim<PANFx::Components::ZELImageButton>(widget, dim);
    setDim<PANFx::Components::ZELImageEdit>(widget, dim);
    setDim<PANFx::Components::ZELLineEdit>(widget, dim);
}

void typeInto(QWidget* widget)
{
    for (const int key :
         {int(Qt::Key_1), int(Qt::Key_A), int(Qt::Key_Home), int(Qt::Key_Backspace)}) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, QString(QChar(ushort(key & 0x7f))));
            QCoreApplication::sendEvent(widget, &event);
        }
    }
}

void touchEverywhere(QWidget* widget)
{
    const QPoint corner = widget->rect().bottomRight();
    for (const QPoint& at : {widget->rect().center(), QPoint(0, 0), corner}) {
        Touch::press(widget, at);
        EventLoop::deliver();
        Pixels::grab(widget);
        Touch::tickLongHold(widget);
        Touch::drag(widget, corner);
        Touch::release(widget, at);
        EventLoop::deliver();
        Pixels::grab(widget);
        Touch::doubleClick(widget, at);
        Touch::release(widget, at);
        EventLoop::deliver();
        Pixels::grab(widget);
    }
}

// one component, alone or inside another one
void passThroughStates(QWidget* widget)
{
    touchEverywhere(widget);
    widget->setFocus();
    typeInto(widget);
    EventLoop::deliver();
    widget->clearFocus();
    for (const bool dim : {true, false}) {
        setDimMode(widget, dim);
        EventLoop::deliver();
        Pixels::grab(widget);
        touchEverywhere(widget);
    }
    for (const bool enabled : {false, true}) {
        widget->setEnabled(enabled);
        EventLoop::deliver();
        Pixels::grab(widget);
        touchEverywhere(widget);
    }
}

void passThroughStates(ZELComponent* component)
{
    QWidget* const widget = component->getQWidget();
    component->showWindow();
    Pixels::grab(widget);
    std::vector<QWidget*> all{widget};
    for (QWidget* const inner : widget->findChildren<QWidget*>()) {
        if (dynamic_cast<ZELComponent*>(inner))
            all.push_back(inner);
    }
    for (QWidget* const each : all)
        passThroughStates(each);
    component->hideSubComponent();
    component->hideWindow();
    EventLoop::deliver();
    Pixels::grab(widget);
    component->showWindow();
    component->showSubComponent();
    EventLoop::deliver();
    Pixels::grab(widget);
}

class Catalogue : public SampleTest, public ::testing::WithParamInterface<ComponentEntry>
{
protected:
    Catalogue() { m_read = readSample(GetParam().keyword, m_document, m_sample); }

    ZELComponent* create(const std::string& id, Node* layout)
    {
        ZELComponent* const component = ComponentFactory::getInstance()->createComponent(
            &panel(), GetParam().keyword, id, layout);
        EXPECT_NE(component, nullptr);
        if (component) {
            EXPECT_EQ(component->m_strID, id);
            EXPECT_EQ(component->getQWidget()->parentWidget(), &panel());
        }
        return component;
    }

    // builds, goes through all states, destroys; then the lines must be those of the sample
    void liveAndDie(const std::string& id, Node* layout, const std::vector<SampleLine>& lines)
    {
        if (ZELComponent* const component = create(id, layout)) {
            passThroughStates(component);
            delete component->getQWidget();
        }
        EventLoop::deliverAndDelete();
        for (const SampleLine& line : lines) {
            const int written = log().count("[E] " + line.text, line.className);
            const bool some = line.times == SampleLine::some;
            log().expectError(line.text, some ? std::max(written, 1) : line.times, line.className);
        }
    }

    // where a component does not go through its whole life: the lines may come, and no others
    void allow(const std::vector<SampleLine>& lines)
    {
        for (const SampleLine& line : lines)
            log().expectError(line.text, log().count("[E] " + line.text, line.className),
                              line.className);
    }

    bool m_read = false;
};

class Vocabulary : public PanelTest
{
};

} // namespace

TEST_P(Catalogue, HasTheTypeAndTheClassOfTheTable)
{
    ASSERT_TRUE(m_read);
    ZELComponent* const component = create("full", m_sample.layout);
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->m_strType, GetParam().type);
    EXPECT_EQ(classNameOf(*component), classNameFor(GetParam().type));
    allow(m_sample.full);
}

TEST_P(Catalogue, ShowsItsFullLayout)
{
    ASSERT_TRUE(m_read);
    ZELComponent* const component = create("full", m_sample.layout);
    ASSERT_NE(component, nullptr);
    component->showWindow();
    EventLoop::deliver();
    EXPECT_EQ(!Pixels::inkBox(Pixels::grab(component->getQWidget())).isNull(), m_sample.paints);
    allow(m_sample.full);
}

TEST_P(Catalogue, ReportsATouchToItsParent)
{
    ASSERT_TRUE(m_read);
    ZELComponent* const component = create("full", m_sample.layout);
    ASSERT_NE(component, nullptr);
    component->showWindow();
    EventLoop::deliver();
    panel().take();
    const QWidget* const widget = component->getQWidget();
    const QPoint at = m_sample.x < 0 ? widget->rect().center() : QPoint(m_sample.x, m_sample.y);
    Touch::tapWindow(widget, widget->mapTo(widget->window(), at));
    EXPECT_EQ(panel().takeTypes(), m_sample.tap);
    allow(m_sample.full);
}

TEST_P(Catalogue, LivesThroughEverythingWithItsFullLayout)
{
    ASSERT_TRUE(m_read);
    liveAndDie("full", m_sample.layout, m_sample.full);
}

TEST_P(Catalogue, LivesThroughEverythingWithAnEmptyElement)
{
    ASSERT_TRUE(m_read);
    liveAndDie(emptyId, element("<it/>"), m_sample.empty);
}

TEST_P(Catalogue, LivesThroughEverythingWithoutAnElement)
{
    ASSERT_TRUE(m_read);
    liveAndDie(emptyId, nullptr, m_sample.null);
}

TEST_P(Catalogue, DiesWhileItIsTouched)
{
    ASSERT_TRUE(m_read);
    ZELComponent* const component = create("full", m_sample.layout);
    ASSERT_NE(component, nullptr);
    component->showWindow();
    EventLoop::deliver();
    const QWidget* const widget = component->getQWidget();
    Touch::pressWindow(widget, Touch::middleInWindow(widget));
    const QPoint at = Touch::middleInWindow(widget);
    delete component->getQWidget();
    Touch::releaseWindow(&panel(), at);
    EventLoop::deliverAndDelete();
    allow(m_sample.full);
}

INSTANTIATE_TEST_SUITE_P(All, Catalogue, ::testing::ValuesIn(allEntries()), keywordOf);

TEST_F(Vocabulary, HasNoKeywordWithoutAClass)
{
    EXPECT_EQ(allEntries().size(), 34u);
    for (const ComponentEntry& entry : allEntries()) {
        EXPECT_NE(entry.create, nullptr) << entry.keyword;
        EXPECT_NE(ComponentFactory::getInstance()->createComponent(&panel(), entry.keyword, "it",
                                                                   element("<it/>")),
                  nullptr)
            << entry.keyword;
    }
    log().reset(); // what each has to say about an empty element is told by its sample
}

TEST_F(Vocabulary, HasNoKeywordTwice)
{
    std::vector<std::string> keywords;
    for (const ComponentEntry& entry : allEntries())
        keywords.push_back(entry.keyword);
    std::sort(keywords.begin(), keywords.end());
    EXPECT_EQ(std::unique(keywords.begin(), keywords.end()), keywords.end());
}
