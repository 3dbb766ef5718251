// Typing on the panel: pages of fields and keys from their files to the screen, and a key until
// what it types is on the screen.

#include "Candidate.h"
#include "Harness.h"
#include "groups/Groups.h"
#include "groups/Lineup.h"
#include "peers/PanelFrame.h"

#include "components/editors/ZELImageEdit.h"
#include "components/pads/ZELKeyButton.h"
#include "components/pads/ZELNumPad.h"
#include "components/text/ZELLineEdit.h"
#include "resource/QwertyPadFactory.h"

#include <QApplication>

#include <stdexcept>
#include <string>

namespace bench {

namespace {

using PANFx::Components::ZELImageEdit;
using PANFx::Components::ZELKeyButton;
using PANFx::Components::ZELLineEdit;
using PANFx::Components::ZELNumPad;
using PANFx::Resource::QwertyPadFactory;

constexpr const char* editorsPage = "editors20";
constexpr const char* padPage = "numpad12";
constexpr const char* keyboardPage = "keyboard50";
constexpr int editors = 20;
constexpr int keys = 50;
constexpr int longestText = 8;
const QPoint firstKey(40, 124); // in the middle of the first key of either page

std::string position(int x, int y, int width, int height)
{
    return "<position x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\" width=\"" +
           std::to_string(width) + "\" height=\"" + std::to_string(height) + "\"/>";
}

std::string field(const std::string& id, int x, int y)
{
    std::string text = "<" + id + " style=\"body\">";
    for (const char* state : {"imageup", "imagedown", "imagedim"})
        text += std::string("<") + state +
                " start=\"p26x24_0.png\" mid=\"p80x48_1.png\" end=\"p26x24_2.png\"/>";
    return text + position(x, y, 180, 48) + "</" + id + ">\n";
}

std::string key(const std::string& id, const std::string& attributes, int index)
{
    return "<" + id + " title=\"a\" style=\"body\" " + attributes + ">" +
           position(index % 10 * 80, 100 + index / 10 * 48, 80, 48) +
           "<image up=\"p80x48_3.png\" down=\"p80x48_4.png\" dim=\"p80x48_5.png\"/>" +
           "<lang2 title=\"b\" code=\"3131\" index=\"0\"/></" + id + ">\n";
}

std::string editorsLayout()
{
    const char* const kinds[] = {"imageEdit", "imageDateEdit", "imageTimeEdit", "imageIPEdit",
                                 "imageNumberEdit"};
    std::string text;
    for (int i = 0; i < editors; ++i) {
        const std::string kind = kinds[i % 5];
        text += "<" + kind + ">" + field("edit" + std::to_string(i), i % 4 * 200, i / 4 * 90) +
                "</" + kind + ">";
    }
    return text;
}

std::string padLayout()
{
    std::string buttons;
    for (int i = 0; i < 10; ++i)
        buttons += key("num" + std::to_string((i + 1) % 10), "", i);
    buttons += key("num00", "", 10) + key("close", "", 11);
    return "<imageEdit>" + field("edit", 300, 20) + "</imageEdit><numpad><pad>" +
           position(0, 0, 800, 480) + "<Components><button>" + buttons +
           "</button></Components></pad></numpad>";
}

std::string keyboardLayout()
{
    std::string buttons;
    for (int i = 0; i < keys; ++i)
        buttons += key("key" + std::to_string(i), "code=\"61\" code2=\"41\"", i);
    return "<lineedit>" + field("name", 300, 20) + "</lineedit><keybutton>" + buttons +
           "</keybutton>";
}

/** Notes when a widget has been painted. */
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    void waitAfter(const std::function<void()>& touch)
    {
        m_painted = false;
        touch();
        while (!m_painted)
            QCoreApplication::processEvents();
    }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Paint)
            m_painted = true;
        return false;
    }

private:
    bool m_painted = false;
};

/** A touch of the first key until the field shows what it typed. */
double typed(Candidate& panel, QWidget& target, const std::function<void()>& clear, int turns)
{
    PaintWatch painted(target);
    Samples samples;
    for (int i = 0; i < turns; ++i) {
        clear();
        settle();
        Watch watch;
        watch.start();
        painted.waitAfter([&panel] {
            panel.press(firstKey);
            panel.release(firstKey);
        });
        watch.lap();
        samples.add(watch.laps()[0]);
        settle();
    }
    return samples.median();
}

double typedOnPad(Candidate& panel, int turns)
{
    panel.load(padPage);
    settle();
    auto& edit = currentFrame().component<ZELImageEdit>("edit");
    currentFrame().component<ZELNumPad>("pad").setEdit(&edit);
    const double time = typed(
        panel, edit, [&edit] { edit.clear(); }, turns);
    if (edit.text() != "1")
        throw std::runtime_error("the pad typed " + edit.text());
    panel.unload();
    return time;
}

double typedOnKeyboard(Candidate& panel, int turns)
{
    panel.load(keyboardPage);
    settle();
    auto& name = currentFrame().component<ZELLineEdit>("name");
    auto& first = currentFrame().component<ZELKeyButton>("key0");
    QwertyPadFactory composer;
    composer.setMaxLength(longestText);
    composer.changeLang("en");
    panel.onClick = [&] {
        const QString text =
            composer.getCompleteText(first.getKeyCode(1, false), first.getKeyIndex(false));
        name.setText(QString::fromUtf8(text.toLatin1()));
    };
    const double time = typed(
        panel, name,
        [&] {
            composer.clearText();
            name.clear();
        },
        turns);
    if (name.text() != QLatin1String("a"))
        throw std::runtime_error("the keyboard typed " + name.text().toStdString());
    panel.onClick = [] {};
    panel.unload();
    return time;
}

void measureTypingLoad(Run& run, Candidate& panel, const std::string& page,
                       const std::string& title)
{
    std::vector<Course> courses = {loadCourse("QTPANFx", panel, page)};
    alternate(courses, run.bQuick ? Plan{4} : Plan{51});
    run.table.group(title);
    const double live = courses[0].laps[0].median();
    const double painted = courses[0].laps[1].median();
    run.table.value("QTPANFx, live", milliseconds(live), live);
    run.table.value("QTPANFx, painted", milliseconds(painted), painted);
}

} // namespace

void measureTyping(Run& run)
{
    run.site.writeComponents(editorsPage, editorsLayout());
    run.site.writeComponents(padPage, padLayout());
    run.site.writeComponents(keyboardPage, keyboardLayout());
    const std::unique_ptr<Candidate> panel = maker("ours").make(run.site);
    panel->open();
    measureTypingLoad(run, *panel, editorsPage, "Page load, 20 fields of five kinds");
    measureTypingLoad(run, *panel, keyboardPage, "Page load, keyboard of 50 keys and a line edit");

    const int turns = run.bQuick ? 20 : 400;
    run.table.group("Key until the field shows what it typed");
    const double pad = typedOnPad(*panel, turns);
    run.table.value("numeric pad, image edit", microseconds(pad), pad);
    const double keyboard = typedOnKeyboard(*panel, turns);
    run.table.value("keyboard, composer, line edit", microseconds(keyboard), keyboard);
}

} // namespace bench
