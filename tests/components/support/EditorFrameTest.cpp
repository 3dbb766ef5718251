// EditorFrame is not exported: it is tested through the fields that use it.

#include "components/editors/ZELImageEdit.h"
#include "components/text/ZELLineEdit.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

#include <QPainter>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

using namespace PANFx::Testing;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELImageEdit;
using PANFx::Components::ZELLineEdit;

namespace {

// the text areas of the fields, open to a derived class as to an application's
struct OpenEdit : ZELImageEdit
{
    static constexpr auto textArea = &OpenEdit::m_paddingRect;
};

struct OpenLine : ZELLineEdit
{
    static constexpr auto textArea = &OpenLine::m_rcText;
};

class EditorFrameTest : public PanelTest, public ::testing::WithParamInterface<const char*>
{
protected:
    EditorFrameTest()
    {
        writePicture("s.png", 6, 30, Qt::cyan);
        writePicture("m.png", 4, 28, Qt::cyan);
        writePicture("e.png", 8, 26, Qt::cyan);
    }

    static std::string frame(const std::string& element,
                             const std::string& names = "start='s.png' mid='m.png' end='e.png'")
    {
        return "<" + element + " " + names + "/>";
    }

    QWidget* build(const std::string& children, const std::string& attributes = "style='normal'")
    {
        auto* const made = buildComponent<ZELComponent>(GetParam(), "<ok " + attributes + ">" +
                                                                        children + "</ok>");
        EventLoop::deliver();
        return made->getQWidget();
    }

    QWidget* placed(const std::string& children, const std::string& attributes = "style='normal'")
    {
        return build(children + "<position x='5' y='6' width='160' height='32'/>", attributes);
    }

    static QRect textArea(QWidget* widget)
    {
        if (auto* const edit = dynamic_cast<ZELImageEdit*>(widget))
            return edit->*OpenEdit::textArea;
        return dynamic_cast<ZELLineEdit&>(*widget).*OpenLine::textArea;
    }

    static void setPlaceholder(QWidget* widget, const std::string& text)
    {
        if (auto* const edit = dynamic_cast<ZELImageEdit*>(widget))
            edit->setPlaceholderText(text);
        else
            dynamic_cast<ZELLineEdit&>(*widget).setPlaceholderText(QString::fromStdString(text));
    }

    // the frame of a field of that size, without a text
    static QImage drawn(const QSize& size)
    {
        QImage image = Pixels::canvas(size);
        QPainter painter(&image);
        painter.fillRect(QRect(6, 0, size.width() - 14, 28), Qt::cyan);
        painter.fillRect(QRect(0, 0, 6, 30), Qt::cyan);
        painter.fillRect(QRect(size.width() - 8, 0, 8, 26), Qt::cyan);
        return image;
    }

    static int cyan(QWidget* widget) { return Pixels::count(Pixels::grab(widget), Qt::cyan); }
};

// colours of a style and the names of what a placeholder makes of them
using Shades = std::vector<std::pair<std::string, std::string>>;

const Shades shades = {{"000000", "#5a5a5a"}, {"0a5028", "#64aa82"}, {"a50000", "#ff5a5a"},
                       {"00a500", "#5aff5a"}, {"0000a5", "#5a5aff"}, {"a5a500", "#ffff5a"}};
const Shades tooBright = {
    {"a60000", "#000000"}, {"00a600", "#000000"}, {"0000a6", "#000000"}, {"ffffff", "#000000"}};

class PlaceholderTest : public EditorFrameTest
{
protected:
    PlaceholderTest()
    {
        std::string styles;
        for (const Shades& some : {shades, tooBright}) {
            for (const auto& [colour, shade] : some)
                styles +=
                    "<c" + colour + " size='24' family='DejaVu Sans Mono' color='" + colour + "'/>";
        }
        writeStyle("<style><Font>" + styles + "</Font></style>");
    }

    // the colour of a placeholder where its letters cover whole pixels: furthest from the frame's
    std::string placeholderOf(const std::string& colour)
    {
        QWidget* const field = placed(frame("imageup"), "style='c" + colour + "'");
        setPlaceholder(field, "HHHH");
        const auto distance = [](const QColor& c) {
            return c.red() + std::abs(c.green() - 255) + std::abs(c.blue() - 255);
        };
        const QImage image = Pixels::grab(field);
        QColor furthest = Qt::cyan;
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = Pixels::at(image, x, middle);
            if (distance(pixel) > distance(furthest))
                furthest = pixel;
        }
        return furthest.name().toStdString();
    }

    static constexpr int middle = 16; // the row through the bars of the letters
};

} // namespace

TEST_P(EditorFrameTest, allThreePiecesMustBeNamed)
{
    EXPECT_GT(cyan(placed(frame("imageup"))), 0);
    for (const char* const names :
         {"start='s.png' mid='m.png'", "start='s.png' end='e.png'", "mid='m.png' end='e.png'", ""})
        EXPECT_TRUE(Pixels::inkBox(Pixels::grab(placed(frame("imageup", names)))).isNull())
            << names;
}

TEST_P(EditorFrameTest, allThreePiecesMustExist)
{
    for (const char* const names :
         {"start='none.png' mid='m.png' end='e.png'", "start='s.png' mid='none.png' end='e.png'",
          "start='s.png' mid='m.png' end='none.png'"})
        EXPECT_TRUE(Pixels::inkBox(Pixels::grab(placed(frame("imageup", names)))).isNull())
            << names;
    for (const std::string& text : log().texts("ZELImageMgr")) {
        if (text.compare(0, 4, "[E] ") == 0 && text.find("none.png") != std::string::npos)
            log().expectError(text.substr(4), log().count(text), "ZELImageMgr");
    }
}

TEST_P(EditorFrameTest, theMiddleFillsWhatTheEndsLeave)
{
    QWidget* const field = placed(frame("imageup"));
    setPlaceholder(field, " ");
    const QImage image = Pixels::grab(field);
    const int frameOnly = Pixels::count(drawn(QSize(160, 32)), Qt::cyan);
    EXPECT_EQ(Pixels::inkBox(image), QRect(0, 0, 160, 30));
    // columns of a field may hold separators, which take a few pixels away
    EXPECT_LE(Pixels::count(image, Qt::cyan), frameOnly);
    EXPECT_GT(Pixels::count(image, Qt::cyan), frameOnly - 600);
    EXPECT_EQ(Pixels::inkOutside(image, QRect(0, 0, 160, 28)), 2 * 6);
}

TEST_P(EditorFrameTest, withoutAPositionItIsOnePixel)
{
    EXPECT_EQ(build(frame("imageup"))->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(build("<position/>")->geometry(), QRect(0, 0, 1, 1));
    EXPECT_EQ(build("<position y='9' height='20'/>")->geometry(), QRect(0, 9, 1, 20));
}

TEST_P(EditorFrameTest, numbersOfAnySizeDoNoHarm)
{
    QWidget* const field =
        placed(frame("imageup") + "<padding x='2147483647' y='-2147483648' width='-99999999999' "
                                  "height='99999999999'/>");
    EXPECT_EQ(textArea(field),
              QRect(QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    setPlaceholder(field, "HHHH");
    EXPECT_GT(cyan(field), 0) << "and it is painted all the same";
}

TEST_P(PlaceholderTest, isNinetyLighterInEachColour)
{
    for (const auto& [colour, shade] : shades)
        EXPECT_EQ(placeholderOf(colour), shade) << colour;
}

TEST_P(PlaceholderTest, isBlackWhereItWouldBeTooBright)
{
    for (const auto& [colour, shade] : tooBright)
        EXPECT_EQ(placeholderOf(colour), shade) << colour;
}

// the fields with a frame; an address shows its placeholder in the colour of the style
INSTANTIATE_TEST_SUITE_P(Fields, EditorFrameTest,
                         ::testing::Values("imageEdit", "imageDateEdit", "imageTimeEdit",
                                           "imageIPEdit", "imageNumberEdit", "lineedit"),
                         [](const auto& info) { return std::string(info.param); });
INSTANTIATE_TEST_SUITE_P(Fields, PlaceholderTest,
                         ::testing::Values("imageEdit", "imageDateEdit", "imageTimeEdit",
                                           "imageNumberEdit", "lineedit"),
                         [](const auto& info) { return std::string(info.param); });
