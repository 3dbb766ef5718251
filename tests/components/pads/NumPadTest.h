#pragma once

#include "components/buttons/ZELImageButton.h"
#include "components/editors/ZELImageTimeEdit.h"
#include "components/pads/ZELNumPad.h"
#include "events/EventNumbers.h"
#include "events/ZELRangeEvent.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/Touch.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace PANFx::Testing {

/** A pad whose inside is open, as it is to an application's derived class. */
class OpenPad : public Components::ZELNumPad
{
public:
    using ZELNumPad::ZELNumPad;

    using ZELNumPad::event;
    using ZELNumPad::m_bPopupMode;
    using ZELNumPad::m_fOpacity;
    using ZELNumPad::m_nBaseHeight;
    using ZELNumPad::m_nBaseWidth;
    using ZELNumPad::m_nBaseX;
    using ZELNumPad::m_nBaseY;
    using ZELNumPad::m_nType;
    using ZELNumPad::m_pAmpmBtn;
    using ZELNumPad::m_pBackspaceBtn;
    using ZELNumPad::m_pBasePixmap;
    using ZELNumPad::m_pCloseBtn;
    using ZELNumPad::m_pCommaBtn;
    using ZELNumPad::m_pDotBtn;
    using ZELNumPad::m_pEdit;
    using ZELNumPad::m_pEmptyBtn;
    using ZELNumPad::m_pNum00Btn;
    using ZELNumPad::m_pNumBtn;
    using ZELNumPad::m_strUserDefine;

    /** The key with that id, or null. */
    Components::ZELImageButton* key(const std::string& id)
    {
        return static_cast<Components::ZELImageButton*>(getSubComponent(id));
    }

    /** Called with the number of each event that Qt gets behind the pad. */
    std::function<void(int)> wentOn = [](int) {};

protected:
    void customEvent(QEvent* event) override { wentOn(event->type()); }
};

/** A time edit that notes how it was called; a key "ampm" reaches it too. */
class SpyEdit : public Components::ZELImageTimeEdit
{
public:
    using ZELImageTimeEdit::ZELImageTimeEdit;

    void setText(const char* text) override { note("setText literal", text); }
    void setText(std::string text) override { note("setText string", text); }
    void addText(const char* text) override { note("addText literal", text); }
    void addText(std::string text) override { note("addText string", text); }
    void backspace() override { calls.emplace_back("backspace"); }

    /** What was called since the last look, and the mark where it changed. */
    std::vector<std::string> take()
    {
        if (isAM() != m_morning)
            calls.emplace_back("changeAMPM");
        m_morning = isAM();
        return std::exchange(calls, {});
    }

    std::vector<std::string> calls;

private:
    void note(const std::string& operation, const std::string& text)
    {
        calls.push_back(operation + " '" + text + "'");
    }

    bool m_morning = true;
};

/** The fixture of the pad: keys of 40 by 30 in rows of five, in a red picture of their own. */
class NumPadTest : public PanelTest
{
protected:
    using Calls = std::vector<std::string>;
    using Types = std::vector<int>;

    NumPadTest()
    {
        writePicture("key.png", 40, 30, Qt::red);
        writePicture("base.png", 50, 20, Qt::blue);
    }

    static const std::vector<std::string>& allKeys()
    {
        static const std::vector<std::string> all = {
            "num0", "num1",  "num2", "num3",      "num4",  "num5", "num6",  "num7", "num8",
            "num9", "num00", "dot",  "backspace", "comma", "ampm", "empty", "close"};
        return all;
    }

    static std::vector<std::string> keysWithout(const std::string& id)
    {
        std::vector<std::string> keys = allKeys();
        keys.erase(std::remove(keys.begin(), keys.end(), id), keys.end());
        return keys;
    }

    /** The group of buttons with these ids. */
    static std::string buttons(const std::vector<std::string>& ids)
    {
        std::string xml = "<button>";
        int place = 0;
        for (const std::string& id : ids) {
            xml += "<" + id + " title='" + (id == "empty" ? "own" : "") +
                   "' style='normal' longpress='" + (id == "backspace" ? "true" : "false") +
                   "'><image up='key.png' down='key.png' dim='key.png'/><position x='" +
                   std::to_string(45 * (place % 5)) + "' y='" + std::to_string(35 * (place / 5)) +
                   "' width='40' height='30'/></" + id + ">";
            ++place;
        }
        return xml + "</button>";
    }

    static std::string components(const std::vector<std::string>& ids)
    {
        return "<Components>" + buttons(ids) + "</Components>";
    }

    /** An element "pad" of 240 by 160 at 300, 200 with its keys and a background. */
    static std::string pad(const std::vector<std::string>& ids = allKeys(),
                           const std::string& background = "<backimage file='base.png'/>")
    {
        return padWith(background + components(ids));
    }

    static std::string padWith(const std::string& children)
    {
        return "<pad><position x='300' y='200' width='240' height='160'/>" + children + "</pad>";
    }

    /** A pad on the panel, shown; an empty text for a null element. */
    OpenPad* make(const std::string& xml = pad())
    {
        auto* const made =
            new OpenPad(&panel(), "pad", "ZELNumPad", xml.empty() ? nullptr : element(xml));
        made->showWindow();
        EventLoop::deliver();
        return made;
    }

    /** An edit that notes its calls, attached to the pad; it has a place but no frame. */
    SpyEdit* attachSpy(OpenPad* to, const std::string& type = "ZELImageTimeEdit")
    {
        auto* const spy = new SpyEdit(
            &panel(), "edit", type,
            element("<edit style='normal'><position x='10' y='10' width='200' height='40'/>"
                    "</edit>"));
        spy->showWindow();
        to->setEdit(spy);
        return spy;
    }

    /** What a pad without an own picture writes: it asks for one without a name. */
    void expectNoPictureName(int times = 1)
    {
        log().expectError("[getImage] No FileName Error", times, "ZELImageMgr");
    }

    void expectNoKey(const std::string& id)
    {
        log().expectError("[ZELNumPad] pad has no key " + id, 1, "ZELNumPad");
    }

    /** A report of a key, sent as if it were delivered now. */
    static bool send(OpenPad* to, QEvent::Type type, QObject* sender, const std::string& id)
    {
        ZELEvent event(type, sender, id);
        return QCoreApplication::sendEvent(to, &event);
    }

    /** The values that the panel got from the pad, all as they must be otherwise. */
    std::vector<int> reports(OpenPad* from)
    {
        std::vector<int> values;
        for (const RecordedEvent& event : panel().take()) {
            EXPECT_EQ(event.type, EVENT_MOUSE_UP);
            EXPECT_EQ(event.classType, "ZELRangeEvent");
            EXPECT_EQ(event.sender, static_cast<QWidget*>(from));
            EXPECT_EQ(event.id, "pad");
            values.push_back(event.value);
        }
        return values;
    }
};

} // namespace PANFx::Testing
