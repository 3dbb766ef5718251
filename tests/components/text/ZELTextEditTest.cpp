#include "components/text/ZELTextEdit.h"

#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/Touch.h"
#include "support/VirtualSlot.h"

#include <QCoreApplication>
#include <QDir>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

using namespace PANFx;
using namespace PANFx::Testing;
using Components::ZELComponent;
using Components::ZELTextEdit;

namespace {

class TextEdit : public ZELTextEdit
{
public:
    using ZELTextEdit::m_logger;
    using ZELTextEdit::ZELTextEdit;
};

class ZELTextEditTest : public PanelTest
{
protected:
    static constexpr const char* sheet = "/app/bin/resource/stylesheet.qss";
    static constexpr const char* noSheet = "[D] [ZELTextEdit] fail to open a style file!\n";

    TextEdit* make(const std::string& xml = "<te><position x='10' y='20' width='200' "
                                            "height='60'/></te>")
    {
        auto* const edit =
            new TextEdit(&panel(), "te", "ZELTextEdit", xml.empty() ? nullptr : element(xml));
        edit->showWindow();
        EventLoop::deliver();
        return edit;
    }

    // the style sheet that a field has with these bytes in the file
    std::string sheetOf(const std::string& bytes)
    {
        writeFile(sheet, bytes);
        return make()->styleSheet().toLatin1().toStdString();
    }

    // whether the field took it
    static bool key(QWidget* edit, QEvent::Type type, int code, const QString& text = {})
    {
        QKeyEvent event(type, code, Qt::NoModifier, text);
        return static_cast<TextEdit*>(edit)->event(&event);
    }

    static void focus(QWidget* edit, QEvent::Type type)
    {
        QFocusEvent event(type, Qt::OtherFocusReason);
        static_cast<TextEdit*>(edit)->event(&event);
    }

    static void fill(TextEdit* edit)
    {
        edit->setPlainText(QStringLiteral("line\n").repeated(100));
        EventLoop::deliver();
    }

    // what reaches the scroll bar
    class Watch : public QObject
    {
    public:
        struct Seen
        {
            int type;
            QPoint position;
            int button;
            int buttons;
            int modifiers;
            bool spontaneous;
        };
        std::vector<Seen> seen;

    protected:
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() != QEvent::MouseButtonRelease)
                return false;
            auto* const mouse = static_cast<QMouseEvent*>(event);
            seen.push_back({mouse->type(), mouse->pos(), int(mouse->button()),
                            int(mouse->buttons()), int(mouse->modifiers()), mouse->spontaneous()});
            return false;
        }
    };
};

} // namespace

TEST_F(ZELTextEditTest, isATextEditWithItsOwnNameAndItsEventInItsPlace)
{
    auto* const built = buildComponent<ZELTextEdit>("textedit", "<te/>");
    EXPECT_EQ(built->m_strType, "ZELTextEdit");
    EXPECT_EQ(built->getQWidget(), static_cast<QWidget*>(built));
    EXPECT_NE(dynamic_cast<QTextEdit*>(built->getQWidget()), nullptr);
    EXPECT_EQ(make()->m_logger.m_strIdentity, "QTPANFx ZELTextEdit    ");
    EXPECT_EQ(slot(&ZELTextEdit::event), slot(&ZELComponent::getQWidget) + slotSize);
    built->hideWindow();
    EXPECT_TRUE(built->isHidden());
    built->showWindow();
    EXPECT_FALSE(built->isHidden());
}

TEST_F(ZELTextEditTest, readsItsPlaceAndHasNoSizeWithout)
{
    EXPECT_EQ(make()->geometry(), QRect(10, 20, 200, 60));
    EXPECT_EQ(make("<te/>")->geometry(), QRect(0, 0, 0, 0));
    EXPECT_EQ(make("<te><position x='3' width='40'/></te>")->geometry(), QRect(3, 0, 40, 0));
    EXPECT_EQ(make("<te style='pressed' title='no'><label><a/></label></te>")->getComponentCount(),
              0);
}

TEST_F(ZELTextEditTest, withoutAnElementTellsItBeforeItLooksForItsStyle)
{
    log().expectError("[setLayout] te pLayout == NULL", 1, "ZELTextEdit");
    log().startHere();
    make("");
    EXPECT_EQ(log().texts("ZELTextEdit"),
              (std::vector<std::string>{"[E] [setLayout] te pLayout == NULL", noSheet}));
}

TEST_F(ZELTextEditTest, withoutAStyleFileKeepsTheDefaultLook)
{
    log().startHere();
    EXPECT_TRUE(make()->styleSheet().isEmpty());
    EXPECT_EQ(log().texts("ZELTextEdit"), std::vector<std::string>{noSheet});
}

TEST_F(ZELTextEditTest, aFolderInPlaceOfTheStyleFileIsNone)
{
    ASSERT_TRUE(QDir().mkpath(QString::fromStdString(realPath(sheet))));
    EXPECT_TRUE(make()->styleSheet().isEmpty());
    EXPECT_EQ(log().count(noSheet, "ZELTextEdit"), 1);
}

TEST_F(ZELTextEditTest, takesTheStyleFileUpToItsFirstZeroByte)
{
    const std::string rule = "QTextEdit { color: #123456; }\n";
    const std::string zero(1, '\0');
    EXPECT_EQ(sheetOf(rule), rule);
    EXPECT_EQ(sheetOf(""), "");
    EXPECT_EQ(sheetOf(rule + zero + "QTextEdit { color: red; }"), rule);
    EXPECT_EQ(sheetOf(zero + rule), "");
    EXPECT_EQ(sheetOf("/* \xe9\xff */"), "/* \xe9\xff */") << "byte for byte";
    EXPECT_EQ(log().count(noSheet, "ZELTextEdit"), 0);
}

TEST_F(ZELTextEditTest, everyNewFieldReadsTheFileAgain)
{
    const std::string first = "QTextEdit { color: #111111; }";
    const std::string second = "QTextEdit { color: #222222; }";
    writeFile(sheet, first);
    auto* const before = make();
    EXPECT_EQ(sheetOf(second), second);
    EXPECT_EQ(before->styleSheet().toStdString(), first);
}

TEST_F(ZELTextEditTest, aStyleFileThatIsNoneOrLargeBreaksNothing)
{
    const std::string broken = "QTextEdit { color: ";
    EXPECT_EQ(sheetOf(broken), broken);
    std::string large(2 << 20, ' ');
    large += "QTextEdit { background: #0000ff; border: none; }";
    EXPECT_EQ(sheetOf(large).size(), large.size());
}

TEST_F(ZELTextEditTest, looksAsTheStyleFileSays)
{
    writeFile(sheet, "QTextEdit { background: #0000ff; border: none; }");
    auto* const edit = make();
    const QImage image = Pixels::grab(edit);
    EXPECT_GT(Pixels::count(image, Qt::blue), 100 * 40);
}

TEST_F(ZELTextEditTest, homeAndEndDoNothingAndOtherKeysWrite)
{
    auto* const edit = make();
    for (const QChar letter : QStringLiteral("abc"))
        EXPECT_TRUE(key(edit, QEvent::KeyPress, letter.toUpper().unicode(), QString(letter)));
    EXPECT_EQ(edit->toPlainText(), QStringLiteral("abc"));
    edit->moveCursor(QTextCursor::Left);
    const int position = edit->textCursor().position();
    EXPECT_EQ(position, 2);
    for (const int code : {int(Qt::Key_Home), int(Qt::Key_End)}) {
        EXPECT_FALSE(key(edit, QEvent::KeyPress, code));
        EXPECT_EQ(edit->textCursor().position(), position);
    }
    EXPECT_TRUE(key(edit, QEvent::KeyPress, Qt::Key_Left));
    EXPECT_EQ(edit->textCursor().position(), 1);
    EXPECT_TRUE(key(edit, QEvent::KeyPress, Qt::Key_Backspace));
    EXPECT_EQ(edit->toPlainText(), QStringLiteral("bc"));
}

TEST_F(ZELTextEditTest, releasesOfHomeAndEndAreNotFiltered)
{
    auto* const edit = make();
    for (const int code : {int(Qt::Key_Home), int(Qt::Key_End), int(Qt::Key_A)}) {
        QTextEdit plain;
        QKeyEvent mine(QEvent::KeyRelease, code, Qt::NoModifier);
        QKeyEvent qts(QEvent::KeyRelease, code, Qt::NoModifier);
        EXPECT_EQ(edit->event(&mine), static_cast<QObject&>(plain).event(&qts)) << code;
        EXPECT_EQ(mine.isAccepted(), qts.isAccepted()) << code;
    }
}

TEST_F(ZELTextEditTest, aChangeOfFocusReleasesTheScrollBar)
{
    auto* const edit = make();
    fill(edit);
    Watch watch;
    edit->verticalScrollBar()->installEventFilter(&watch);
    for (const QEvent::Type type : {QEvent::FocusIn, QEvent::FocusOut}) {
        watch.seen.clear();
        focus(edit, type);
        ASSERT_EQ(watch.seen.size(), 1u) << "at once";
        EXPECT_EQ(watch.seen[0].position, QPoint(0, 0));
        EXPECT_EQ(watch.seen[0].button, int(Qt::NoButton));
        EXPECT_EQ(watch.seen[0].buttons, int(Qt::NoButton));
        EXPECT_EQ(watch.seen[0].modifiers, int(Qt::NoModifier));
        EXPECT_FALSE(watch.seen[0].spontaneous);
    }
}

TEST_F(ZELTextEditTest, aChangeOfFocusStillReachesTheFieldsOwnHandlers)
{
    class Handlers : public TextEdit
    {
    public:
        using TextEdit::TextEdit;
        std::string seen;

    protected:
        void focusInEvent(QFocusEvent* event) override
        {
            seen += "in ";
            TextEdit::focusInEvent(event);
        }
        void focusOutEvent(QFocusEvent* event) override
        {
            seen += "out ";
            TextEdit::focusOutEvent(event);
        }
    };
    Handlers edit(&panel(), "te", "ZELTextEdit", element("<te/>"));
    edit.seen.clear();
    focus(&edit, QEvent::FocusIn);
    EXPECT_EQ(edit.seen, "in ");
    focus(&edit, QEvent::FocusOut);
    EXPECT_EQ(edit.seen, "in out ");
}

TEST_F(ZELTextEditTest, aPressThatTheScrollBarStillBelievesInEnds)
{
    auto* const edit = make();
    fill(edit);
    QScrollBar* const bar = edit->verticalScrollBar();
    ASSERT_TRUE(bar->isVisible());
    QStyleOptionSlider option;
    option.initFrom(bar);
    option.orientation = bar->orientation();
    option.minimum = bar->minimum();
    option.maximum = bar->maximum();
    option.pageStep = bar->pageStep();
    option.sliderPosition = bar->value();
    const QPoint handle =
        bar->style()
            ->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, bar)
            .center();
    for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
        Touch::press(bar, handle);
        ASSERT_TRUE(bar->isSliderDown());
        focus(edit, type);
        EXPECT_FALSE(bar->isSliderDown());
    }
}

TEST_F(ZELTextEditTest, postsNothing)
{
    auto* const edit = make();
    edit->setFocus();
    Touch::tapWindow(edit);
    key(edit, QEvent::KeyPress, Qt::Key_A, QStringLiteral("a"));
    key(edit, QEvent::KeyPress, Qt::Key_Home);
    edit->clearFocus();
    EXPECT_TRUE(panel().takeTypes().empty());
}
