// What a line edit paints. Its text comes through QLineEdit; the rest it draws by itself.

#include "components/text/LineEditTest.h"

#include <QApplication>

using namespace PANFx::Testing;

namespace {

const QString longText = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");

class ZELLineEditPaintTest : public LineEditTest
{
protected:
    static QString elided(const QString& text, Qt::TextElideMode mode, int width)
    {
        return QFontMetrics(*style("normal")->m_pFont).elidedText(text, mode, width);
    }

    /** Whether an empty field with that placeholder shows that text, lighter. */
    ::testing::AssertionResult placeholderShows(const QString& placeholder, const QString& shown)
    {
        OpenLine* const made = line();
        made->setPlaceholderText(placeholder);
        return showsText(made, shown, lightened());
    }

    static ::testing::AssertionResult placeholderOf(OpenLine* made, const QString& text,
                                                    const QColor& pen)
    {
        made->setPlaceholderText(text);
        return showsText(made, text, pen);
    }
};

} // namespace

// ---- the frame

TEST_F(ZELLineEditPaintTest, stretchesTheMiddleBetweenTheTwoEnds)
{
    OpenLine* const made = line();
    EXPECT_TRUE(shows(made, framed()));
    const QImage image = Pixels::grab(made);
    EXPECT_EQ(Pixels::count(image, colour(up), QRect(0, 0, 10, 40)), 400);
    EXPECT_EQ(Pixels::count(image, colour(up).lighter(130), QRect(10, 0, 176, 36)), 176 * 36);
    EXPECT_EQ(Pixels::count(image, colour(up).darker(150), QRect(186, 0, 14, 38)), 14 * 38);
    EXPECT_EQ(Pixels::inkOutside(image, QRect(0, 0, 200, 40)), 0);
}

TEST_F(ZELLineEditPaintTest, theEndsLieOverTheMiddleOfAFieldThatIsTooNarrow)
{
    OpenLine* const made = line();
    made->resize(20, 44); // 4 less than both ends: the middle keeps its own width then
    QImage expected = Pixels::canvas(QSize(20, 44));
    QPainter painter(&expected);
    painter.drawPixmap(10, 0, *picture(piece(up, "mid")));
    painter.drawPixmap(0, 0, *picture(piece(up, "start")));
    painter.drawPixmap(6, 0, *picture(piece(up, "end")));
    painter.end();
    EXPECT_TRUE(shows(made, expected));
}

TEST_F(ZELLineEditPaintTest, paintsNothingWithOnePieceMissing)
{
    OpenLine* const made = line();
    made->setText(QStringLiteral("text"));
    made->setPlaceholderText(QStringLiteral("placeholder"));
    QPixmap* const start = made->m_pUpStart;
    QPixmap* const mid = made->m_pUpMid;
    QPixmap* const end = made->m_pUpEnd;
    QPixmap none;
    const std::vector<std::vector<QPixmap*>> faulty{
        {nullptr, mid, end}, {start, nullptr, end}, {start, mid, nullptr}, {start, &none, end}};
    for (const std::vector<QPixmap*>& pieces : faulty) {
        made->setCurImage(pieces[0], pieces[1], pieces[2]);
        EXPECT_TRUE(Pixels::inkBox(Pixels::grab(made)).isNull());
    }
    made->setCurImage(start, mid, end);
    EXPECT_TRUE(showsText(made, QStringLiteral("text")));
    EXPECT_EQ(log().countLevel('E'), 0) << "and tells nobody";
}

TEST_F(ZELLineEditPaintTest, eachStateHasItsFrame)
{
    OpenLine* const made = line();
    made->setText(QStringLiteral("x"));
    Touch::tap(made);
    EXPECT_TRUE(showsText(made, QStringLiteral("x"), Qt::black, down));
    made->clearFocus();
    EXPECT_TRUE(showsText(made, QStringLiteral("x"), Qt::black, up));
    made->setDimMode(true);
    EXPECT_TRUE(showsText(made, QStringLiteral("x"), Qt::black, dim));
}

TEST_F(ZELLineEditPaintTest, drawsNeitherCaretNorSelection)
{
    const int flashTime = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0); // a caret would be there all the time
    OpenLine* const made = line();
    Touch::tap(made);
    EXPECT_TRUE(made->hasFocus());
    EXPECT_TRUE(shows(made, framed(down)));
    QTest::keyClicks(made, QStringLiteral("abc"));
    EXPECT_TRUE(showsText(made, QStringLiteral("abc"), Qt::black, down));
    made->selectAll();
    EXPECT_TRUE(showsText(made, QStringLiteral("abc"), Qt::black, down));
    QApplication::setCursorFlashTime(flashTime);
}

// ---- the text

TEST_F(ZELLineEditPaintTest, showsWhatTheLineEditHolds)
{
    OpenLine* const made = line();
    QTest::keyClicks(made, QStringLiteral("Hpx"));
    EXPECT_TRUE(showsText(made, QStringLiteral("Hpx")));
    QTest::keyClick(made, Qt::Key_Backspace);
    EXPECT_TRUE(showsText(made, QStringLiteral("Hp")));
    made->clear();
    EXPECT_TRUE(shows(made, framed()));
    made->setText(QStringLiteral("\ud55cx"));
    EXPECT_TRUE(showsText(made, QStringLiteral("\ud55cx")));
}

TEST_F(ZELLineEditPaintTest, drawsTheTextInItsAreaAndAlignment)
{
    OpenLine* const made =
        line("style='pressed' align='right'", "<padding x='30' y='4' width='90' height='20'/>");
    made->setText(QStringLiteral("Hpx"));
    const QRect area(30, 4, 90, 20);
    EXPECT_TRUE(
        shows(made, framedText(QStringLiteral("Hpx"), area, toTheRight, Qt::red, up, "pressed")));
    made->setAlign(centred);
    made->setFont(style("dimmed"));
    EXPECT_TRUE(shows(made, framedText(QStringLiteral("Hpx"), area, centred, QColor(128, 128, 128),
                                       up, "dimmed")));
}

TEST_F(ZELLineEditPaintTest, takesTheTextAsItStands)
{
    OpenLine* const made = line();
    const QString bytes = QString::fromLatin1("\xC3\xA9"); // one letter, were it decoded
    made->setText(bytes);
    EXPECT_TRUE(showsText(made, bytes));
    EXPECT_FALSE(showsText(made, QStringLiteral("\u00e9")));
    const QString cut = QString::fromLatin1("a\xED\x95"); // no whole letter
    made->setText(cut);
    EXPECT_TRUE(showsText(made, cut));
}

TEST_F(ZELLineEditPaintTest, usesTheDimStyleNowhere)
{
    OpenLine* const made = line("style='pressed' dimstyle='dimmed'");
    made->setText(QStringLiteral("Hpx"));
    made->setDimMode(true);
    EXPECT_TRUE(shows(
        made, framedText(QStringLiteral("Hpx"), textArea, toTheLeft, Qt::red, dim, "pressed")));
}

TEST_F(ZELLineEditPaintTest, withoutAStyleDrawsNoTextAndTellsItOnce)
{
    OpenLine* const made = line("");
    made->setText(QStringLiteral("text"));
    EXPECT_TRUE(shows(made, framed()));
    EXPECT_TRUE(shows(made, framed()));
    made->clear();
    made->setPlaceholderText(QStringLiteral("placeholder"));
    EXPECT_TRUE(shows(made, framed()));
    log().expectError("[paintEvent] ok has no font", 1, "ZELLineEdit");
    made->setFont(style("normal"));
    EXPECT_TRUE(showsText(made, QStringLiteral("placeholder"), lightened()));
}

TEST_F(ZELLineEditPaintTest, eachFieldWithAnUnknownStyleTellsIt)
{
    log().expectError("[paintEvent] ok has no font", 2, "ZELLineEdit");
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(shows(line("style='nosuch'"), framed()));
}

// ---- the placeholder

TEST_F(ZELLineEditPaintTest, thePlaceholderIsOpaqueWhateverItsStyleIs)
{
    OpenLine* const made = line();
    PANFx::Resource::Font sheer;
    *sheer.m_pFont = *style("normal")->m_pFont;
    *sheer.m_pColor = QColor(0, 0, 0, 60);
    made->setFont(&sheer);
    EXPECT_TRUE(placeholderOf(made, QStringLiteral("scan"), lightened()));
    made->setFont(style("normal"));
}

TEST_F(ZELLineEditPaintTest, anEmptyFieldShowsItsPlaceholderLighter)
{
    OpenLine* const made = line("style='normal' align='right'");
    made->setPlaceholderText(QStringLiteral("hint"));
    EXPECT_TRUE(shows(made, framedText(QStringLiteral("hint"), textArea, toTheRight, lightened())));
    made->setText(QStringLiteral("x"));
    EXPECT_TRUE(shows(made, framedText(QStringLiteral("x"), textArea, toTheRight)));
}

TEST_F(ZELLineEditPaintTest, decodesThePlaceholdersBytesAsUtf8)
{
    // the bytes of a letter, one character each, come together
    EXPECT_TRUE(placeholderShows(QString::fromLatin1("n\xC3\xA9"), QStringLiteral("n\u00e9")));
    EXPECT_TRUE(placeholderShows(QString::fromLatin1("\xED\x95\x9C!"), QStringLiteral("\ud55c!")));
    // a letter of Latin-1 is one byte, which is no UTF-8
    EXPECT_TRUE(placeholderShows(QStringLiteral("n\u00e9!"), QStringLiteral("n\ufffd!")));
    // and a letter beyond is lost
    EXPECT_TRUE(placeholderShows(QStringLiteral("\ud55c!"), QStringLiteral("?!")));
}

TEST_F(ZELLineEditPaintTest, thePlaceholderEndsAtItsFirstNul)
{
    EXPECT_TRUE(placeholderShows(QString(QLatin1String("ab\0cd", 5)), QStringLiteral("ab")));
}

TEST_F(ZELLineEditPaintTest, neitherEchoNorElisionConcernsThePlaceholder)
{
    OpenLine* const made = line();
    made->setPlaceholderText(longText);
    made->setEchoMode(1);
    made->setElidedText(1);
    EXPECT_TRUE(showsText(made, longText, lightened()));
}

// ---- echo and elision

TEST_F(ZELLineEditPaintTest, aPasswordShowsAnAsteriskForEachCharacter)
{
    OpenLine* const made = line();
    made->setEchoMode(1);
    made->setText(QStringLiteral("a\ud55cb"));
    EXPECT_TRUE(showsText(made, QStringLiteral("***")));
    EXPECT_EQ(made->text(), QStringLiteral("a\ud55cb"));
    for (const int mode : {0, 2, 3, -1}) {
        made->setEchoMode(mode);
        EXPECT_TRUE(showsText(made, made->text())) << mode;
    }
}

TEST_F(ZELLineEditPaintTest, aPasswordIsNotElided)
{
    OpenLine* const made = line();
    made->setEchoMode(1);
    made->setElidedText(1);
    made->setText(longText);
    EXPECT_TRUE(showsText(made, QString(longText.size(), QLatin1Char('*'))));
}

TEST_F(ZELLineEditPaintTest, cutsALongTextWhereItWasTold)
{
    OpenLine* const made = line();
    made->setText(longText);
    EXPECT_TRUE(showsText(made, longText));
    const auto cut = [](Qt::TextElideMode mode) {
        return elided(longText, mode, textArea.width());
    };
    EXPECT_NE(cut(Qt::ElideLeft), cut(Qt::ElideRight));
    const std::vector<std::pair<int, QString>> cases{
        {0, cut(Qt::ElideLeft)}, {1, cut(Qt::ElideRight)}, {2, cut(Qt::ElideMiddle)},
        {3, longText},           {4, cut(Qt::ElideRight)}, {5, longText}};
    for (const auto& [mode, shown] : cases) {
        made->setElidedText(mode);
        EXPECT_TRUE(showsText(made, shown)) << mode;
    }
    EXPECT_EQ(made->text(), longText);
}

TEST_F(ZELLineEditPaintTest, measuresTheTextAreaFromEdgeToEdge)
{
    OpenLine* const made = line();
    int whole = QFontMetrics(*style("normal")->m_pFont).horizontalAdvance(longText);
    while (elided(longText, Qt::ElideRight, whole) != longText) // Qt wants a little more
        ++whole;
    ASSERT_NE(elided(longText, Qt::ElideRight, whole - 1), longText);
    made->resize(whole + 40, 44);
    made->setText(longText);
    made->setElidedText(1);
    for (const int width : {whole - 1, whole}) {
        made->setPadding(12, 0, width, 44);
        QImage expected = framed(up, made->size());
        drawText(expected, elided(longText, Qt::ElideRight, width), QRect(12, 0, width, 44),
                 toTheLeft);
        EXPECT_TRUE(shows(made, expected)) << width;
    }
}

TEST_F(ZELLineEditPaintTest, leavesItToQtWhereAnElidedTextEnds)
{
    OpenLine* const made = line();
    const QString text = QStringLiteral("ab\u009c") + longText; // a mark between variants
    made->setText(text);
    made->setElidedText(1);
    EXPECT_TRUE(showsText(made, elided(text, Qt::ElideRight, textArea.width())));
}
