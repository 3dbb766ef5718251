#pragma once

#include "resource/SoundFactory.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/SoundProbe.h"
#include "windows/ZELPopupWindow.h"

#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace PANFx::Testing {

using Strings = std::vector<std::string>;

/** An application's dialog that notes what happens to it. */
class Dialog : public Windows::ZELPopupWindow
{
public:
    using ZELPopupWindow::m_bLoopMode;
    using ZELPopupWindow::m_eventLoop;
    using ZELPopupWindow::m_layout;
    using ZELPopupWindow::m_logger;
    using ZELPopupWindow::m_strPopupTag;
    using ZELPopupWindow::ZELPopupWindow;

    void activating() override
    {
        note("activating");
        if (m_atActivating)
            m_atActivating();
    }
    void createSubComponent(TAMFx::Common::Xml::Node* pComponents) override
    {
        note("createSubComponent");
        ZELPopupWindow::createSubComponent(pComponents);
    }

    void note(const std::string& step) { m_steps->push_back(step); }

    std::shared_ptr<Strings> m_steps = std::make_shared<Strings>();
    std::function<void()> m_atActivating;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() >= 1550)
            note("event " + std::to_string(event->type()));
        return ZELPopupWindow::event(event);
    }
    void showEvent(QShowEvent* event) override
    {
        note("show");
        ZELPopupWindow::showEvent(event);
    }
    void hideEvent(QHideEvent* event) override
    {
        note("hide");
        ZELPopupWindow::hideEvent(event);
    }
};

/** The fixture of dialogs: a sound back end that listens, and the dialog "ask". */
class PopupTest : public PanelTest
{
protected:
    PopupTest() { registerSound(m_sounds); }

    /** A dialog without a background, with this in its Components section. */
    std::unique_ptr<Dialog> dialog(const std::string& components = "", QWidget* parent = nullptr)
    {
        writeLayout("ask", "<layout><Components>" + components + "</Components></layout>");
        expectNoBackgroundLines();
        return std::make_unique<Dialog>("ask", parent);
    }

    static std::string button(const std::string& id)
    {
        return "<button><" + id +
               "><image up='up.png' down='up.png'/>"
               "<position x='100' y='50' width='80' height='40'/></" +
               id + "></button>";
    }

    /** Does this once, from inside the next event loop. */
    static void inTheLoop(std::function<void()> action)
    {
        QTimer::singleShot(0, std::move(action));
    }

    /** Has sounds noted in this list from now on. */
    static void registerSound(std::shared_ptr<Strings> sounds)
    {
        auto* const factory = Resource::SoundFactory::getInstance();
        const std::unique_ptr<Resource::SoundBase> former(factory->getSoundObject());
        factory->registerSound(new SoundProbe(std::move(sounds)));
    }

    int popups() const
    {
        return static_cast<int>(std::count(m_sounds->begin(), m_sounds->end(), "popup"));
    }

    std::shared_ptr<SoundProbe::Sounds> m_sounds = std::make_shared<SoundProbe::Sounds>();
};

} // namespace PANFx::Testing
