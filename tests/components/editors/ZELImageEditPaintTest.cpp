#include "components/editors/FieldTest.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELImageEdit;

namespace {

using Edit = OpenField<ZELImageEdit>;

const QString longText = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");

class ZELImageEditPaintTest : public FieldTest
{
protected:
    Edit* edit(const std::string& attributes = "style='normal'", const std::string& children = "")
    {
        return make<Edit>(field(attributes, children));
    }

    static ::testing::AssertionResult shows(Edit* edit, const QImage& expected)
    {
        return Pixels::same(Pixels::grab(edit), expected);
    }

    static ::testing::AssertionResult showsText(Edit* edit, const QString& text,
                                                const QColor& pen = Qt::black)
    {
        return shows(edit, framedText(text, textArea, toTheLeft, pen));
    }

    static QString elided(Qt::TextElideMode mode, int width = textArea.width())
    {
        return QFontMetrics(*style("normal")->m_pFont).elidedText(longText, mode, width);
    }
};

} // namespace

// ---- the frame

TEST_F(ZELImageEditPaintTest, stretchesTheMiddleBetweenTheTwoEnds)
{
    auto* const field = edit();
    EXPECT_TRUE(shows(field, framed()));
    const QImage image = Pixels::grab(field);
    EXPECT_EQ(Pixels::count(image, colour(up), QRect(0, 0, 10, 40)), 400);
    EXPECT_EQ(Pixels::count(image, colour(up).lighter(130), QRect(10, 0, 176, 36)), 176 * 36);
    EXPECT_EQ(Pixels::count(image, colour(up).darker(150), QRect(186, 0, 14, 38)), 14 * 38);
    EXPECT_EQ(Pixels::inkOutside(image, QRect(0, 0, 200, 40)), 0);
}

TEST_F(ZELImageEditPaintTest, scalesTheWholeMiddlePicture)
{
    QImage halves(2, 36, QImage::Format_RGB32);
    halves.fill(Qt::black);
    for (int y = 0; y < 36; ++y)
        halves.setPixelColor(1, y, Qt::white);
    writePicture(piece(up, "mid"), halves);
    const QImage image = Pixels::grab(edit());
    EXPECT_EQ(Pixels::count(image, Qt::black, QRect(10, 0, 88, 36)), 88 * 36);
    EXPECT_EQ(Pixels::count(image, Qt::white, QRect(98, 0, 88, 36)), 88 * 36);
}

TEST_F(ZELImageEditPaintTest, theEndsLieOverTheMiddleOfAFieldThatIsTooNarrow)
{
    writePicture(piece(up, "mid"), 4, 44, Qt::yellow); // shows below the end piece
    auto* const field = edit();
    field->resize(20, 44); // 4 less than both ends: the middle keeps its own width then
    QImage expected = Pixels::canvas(QSize(20, 44));
    QPainter painter(&expected);
    painter.drawPixmap(10, 0, *picture(piece(up, "mid")));
    painter.drawPixmap(0, 0, *picture(piece(up, "start")));
    painter.drawPixmap(6, 0, *picture(piece(up, "end")));
    painter.end();
    ASSERT_EQ(Pixels::count(expected, Qt::yellow), 4 * 6);
    EXPECT_TRUE(shows(field, expected));
}

TEST_F(ZELImageEditPaintTest, paintsNothingWithOnePieceMissing)
{
    auto* const field = edit();
    field->setText("text");
    QPixmap* const start = field->m_pUpStart;
    QPixmap* const mid = field->m_pUpMid;
    QPixmap* const end = field->m_pUpEnd;
    QPixmap none;
    for (const auto& [a, b, c] :
         std::vector<std::tuple<QPixmap*, QPixmap*, QPixmap*>>{{nullptr, mid, end},
                                                               {start, nullptr, end},
                                                               {start, mid, nullptr},
                                                               {start, &none, end}}) {
        field->setCurImage(a, b, c);
        EXPECT_TRUE(Pixels::inkBox(Pixels::grab(field)).isNull());
    }
    field->setCurImage(start, mid, end);
    EXPECT_TRUE(showsText(field, QStringLiteral("text")));
}

TEST_F(ZELImageEditPaintTest, withoutAFrameForItsStatePaintsNothingInIt)
{
    auto* const field = make<Edit>("<ok style='normal'>" + frameOf(up, "imageup") +
                                   "<position width='200' height='44'/></ok>");
    EXPECT_TRUE(shows(field, framed()));
    field->setDimMode(true);
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(field)).isNull());
    field->setDimMode(false);
    field->setFocus();
    EXPECT_TRUE(Pixels::inkBox(Pixels::grab(field)).isNull());
}

TEST_F(ZELImageEditPaintTest, eachStateHasItsFrame)
{
    auto* const field = edit();
    field->setFocus();
    EXPECT_TRUE(shows(field, framed(down)));
    field->clearFocus();
    EXPECT_TRUE(shows(field, framed(up)));
    field->setDimMode(true);
    EXPECT_TRUE(shows(field, framed(dim)));
}

// ---- the text

TEST_F(ZELImageEditPaintTest, drawsTheTextInItsAreaAndAlignment)
{
    auto* const field =
        edit("style='pressed' align='right'", "<padding x='30' y='4' width='90' height='20'/>");
    field->setText("Hpx");
    EXPECT_TRUE(shows(field, framedText(QStringLiteral("Hpx"), QRect(30, 4, 90, 20), toTheRight,
                                        Qt::red, up, "pressed")));
    field->setAlign(centred);
    EXPECT_TRUE(shows(field, framedText(QStringLiteral("Hpx"), QRect(30, 4, 90, 20), centred,
                                        Qt::red, up, "pressed")));
}

TEST_F(ZELImageEditPaintTest, decodesTheTextAsUtf8)
{
    auto* const field = edit();
    const QString text = QStringLiteral("\u00e9\ud55cx");
    field->setText(text.toStdString());
    EXPECT_TRUE(showsText(field, text));
}

TEST_F(ZELImageEditPaintTest, aLetterCutInTwoShowsWhatIsLeftOfIt)
{
    auto* const field = edit();
    field->setText("a\xED\x95");
    EXPECT_TRUE(showsText(field, QString::fromUtf8("a\xED\x95")));
}

TEST_F(ZELImageEditPaintTest, showsWhatADerivedClassGivesAsItsText)
{
    class Derived : public Edit
    {
    public:
        using Edit::Edit;
        std::string text() override { return "derived"; }
    };
    EXPECT_TRUE(showsText(make<Derived>(field()), QStringLiteral("derived")));
}

TEST_F(ZELImageEditPaintTest, usesTheDimStyleNowhere)
{
    auto* const field = edit("style='pressed' dimstyle='dimmed'");
    field->setText("Hpx");
    field->setDimMode(true);
    EXPECT_TRUE(shows(
        field, framedText(QStringLiteral("Hpx"), textArea, toTheLeft, Qt::red, dim, "pressed")));
}

TEST_F(ZELImageEditPaintTest, withoutAStyleDrawsNoTextAndTellsItOnce)
{
    auto* const field = edit("");
    field->setText("text");
    EXPECT_TRUE(shows(field, framed()));
    EXPECT_TRUE(shows(field, framed()));
    field->clear();
    field->setPlaceholderText("placeholder");
    EXPECT_TRUE(shows(field, framed()));
    log().expectError("[paintEvent] ok has no font", 1, "ZELImageEdit");
    field->setFont(style("normal"));
    EXPECT_TRUE(showsText(field, QStringLiteral("placeholder"), lightened()));
}

// ---- the placeholder

TEST_F(ZELImageEditPaintTest, anEmptyFieldShowsItsPlaceholderLighter)
{
    auto* const field = edit("style='normal' align='right'");
    field->setPlaceholderText("n\xC3\xA9");
    EXPECT_TRUE(
        shows(field, framedText(QStringLiteral("n\u00e9"), textArea, toTheRight, lightened())));
    field->setText("x");
    EXPECT_TRUE(shows(field, framedText(QStringLiteral("x"), textArea, toTheRight)));
}

TEST_F(ZELImageEditPaintTest, anEmptyFieldWithoutAPlaceholderShowsItsFrame)
{
    auto* const field = edit();
    field->setText("x");
    field->clear();
    EXPECT_TRUE(shows(field, framed()));
}

TEST_F(ZELImageEditPaintTest, aValueThatShowsNothingIsNotEmpty)
{
    auto* const field = edit();
    field->setPlaceholderText("placeholder");
    field->setText(std::string("\0x", 2));
    EXPECT_TRUE(shows(field, framed()));
}

TEST_F(ZELImageEditPaintTest, neitherEchoNorElisionConcernsThePlaceholder)
{
    auto* const field = edit();
    field->setPlaceholderText(longText.toStdString());
    field->setEchoMode(1);
    field->setElidedText(1);
    EXPECT_TRUE(showsText(field, longText, lightened()));
}

// ---- echo and elision

TEST_F(ZELImageEditPaintTest, aPasswordShowsAnAsteriskForEachCharacter)
{
    auto* const field = edit();
    field->setEchoMode(1);
    field->setText("\xED\x95\x9C");
    EXPECT_TRUE(showsText(field, QStringLiteral("*")));
    field->setText("a\xED\x95\x9C"
                   "b");
    EXPECT_TRUE(showsText(field, QStringLiteral("***")));
    field->setText("\xED\x95"); // two broken bytes
    EXPECT_TRUE(showsText(field, QString(QString::fromUtf8("\xED\x95").size(), QLatin1Char('*'))));
}

TEST_F(ZELImageEditPaintTest, onlyEchoModeOneHides)
{
    auto* const field = edit();
    field->setText("abc");
    for (const int mode : {0, 2, -1}) {
        field->setEchoMode(mode);
        EXPECT_TRUE(showsText(field, QStringLiteral("abc"))) << mode;
    }
}

TEST_F(ZELImageEditPaintTest, aPasswordIsNotElided)
{
    auto* const field = edit();
    field->setEchoMode(1);
    field->setElidedText(1);
    field->setText(longText.toStdString());
    EXPECT_TRUE(showsText(field, QString(longText.size(), QLatin1Char('*'))));
}

TEST_F(ZELImageEditPaintTest, cutsALongTextWhereItWasTold)
{
    auto* const field = edit();
    field->setText(longText.toStdString());
    EXPECT_TRUE(showsText(field, longText));
    for (const int mode : {0, 1, 2}) {
        field->setElidedText(mode);
        EXPECT_TRUE(showsText(field, elided(Qt::TextElideMode(mode)))) << mode;
    }
    field->setElidedText(4);
    EXPECT_TRUE(showsText(field, elided(Qt::ElideRight)));
    field->setElidedText(3);
    EXPECT_TRUE(showsText(field, longText));
}

TEST_F(ZELImageEditPaintTest, measuresTheTextAreaFromEdgeToEdge)
{
    auto* const field = edit();
    int whole = QFontMetrics(*style("normal")->m_pFont).horizontalAdvance(longText);
    while (elided(Qt::ElideRight, whole) != longText) // Qt wants a little more than the text
        ++whole;
    field->resize(whole + 40, 44);
    field->setText(longText.toStdString());
    field->setElidedText(1);
    for (const int width : {whole - 1, whole}) {
        field->setPadding(12, 0, width, 44);
        QImage expected = framed(up, field->size());
        drawText(expected, elided(Qt::ElideRight, width), QRect(12, 0, width, 44), toTheLeft);
        EXPECT_TRUE(shows(field, expected)) << width;
    }
    EXPECT_NE(elided(Qt::ElideRight, whole - 1), longText);
}
