// A line edit in barcode mode: keys of a scanner go into the field unseen, and the field shows the
// last text that was taken over.

#include "components/text/LineEditTest.h"

using namespace PANFx::Testing;

namespace {

// counts the keys that a widget gets
class KeysOf : public QObject
{
public:
    explicit KeysOf(QWidget* widget) { widget->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::KeyPress ? 1 : 0;
        return false;
    }
};

class ZELLineEditBarcodeTest : public LineEditTest
{
protected:
    /** A field in barcode mode that shows a placeholder as long as there is no code. */
    OpenLine* scanner()
    {
        OpenLine* const made = line();
        made->setPlaceholderText(hint);
        made->setBarcodeMode(true);
        return made;
    }

    /** A scan as a whole: keys, and the owner who wants them shown. */
    static void scan(OpenLine* line, const QString& code)
    {
        QTest::keyClicks(line, code);
        line->setShowMode(true);
        Pixels::grab(line);
    }

    static ::testing::AssertionResult showsHint(OpenLine* line)
    {
        return showsText(line, hint, lightened());
    }

    static const QString hint;
};

const QString ZELLineEditBarcodeTest::hint = QStringLiteral("scan");

} // namespace

TEST_F(ZELLineEditBarcodeTest, tellsTheLogOfTheMode)
{
    OpenLine* const made = line();
    log().startHere();
    made->setBarcodeMode(true);
    made->setBarcodeMode(false);
    EXPECT_EQ(log().texts("ZELLineEdit"),
              (std::vector<std::string>{"[D] [setBarcodeMode] m_bBarcodeMode:ON",
                                        "[D] [setBarcodeMode] m_bBarcodeMode:OFF"}));
}

TEST_F(ZELLineEditBarcodeTest, enterGoesOnToTheParentAndALetterDoesNot)
{
    for (const bool barcode : {false, true}) {
        OpenLine* const made = line();
        made->setBarcodeMode(barcode);
        made->setFocus();
        KeysOf keys(&panel());
        QTest::keyClick(made, Qt::Key_A);
        EXPECT_EQ(keys.count, 0) << barcode;
        QTest::keyClick(made, Qt::Key_Return);
        EXPECT_EQ(keys.count, 1) << barcode;
    }
}

TEST_F(ZELLineEditBarcodeTest, beforeTheFirstCodeThePlaceholderShowsWhileKeysArrive)
{
    OpenLine* const made = scanner();
    EXPECT_TRUE(showsHint(made));
    QTest::keyClicks(made, QStringLiteral("12"));
    EXPECT_EQ(made->text(), QStringLiteral("12"));
    EXPECT_TRUE(showsHint(made));
}

TEST_F(ZELLineEditBarcodeTest, theNextPaintTakesTheTextOver)
{
    OpenLine* const made = scanner();
    QTest::keyClicks(made, QStringLiteral("12"));
    EXPECT_FALSE(made->m_bClearOnKey);
    made->setShowMode(true);
    EXPECT_TRUE(made->m_bShowMode);
    EXPECT_TRUE(showsText(made, QStringLiteral("12")));
    EXPECT_FALSE(made->m_bShowMode);
    EXPECT_TRUE(made->m_bClearOnKey);
    EXPECT_EQ(made->m_strBarcode, QStringLiteral("12"));
    EXPECT_EQ(made->text(), QStringLiteral("12"));
}

TEST_F(ZELLineEditBarcodeTest, onlyOnePaintTakesTheTextOver)
{
    OpenLine* const made = scanner();
    scan(made, QStringLiteral("12"));
    made->setText(QStringLiteral("34"));
    EXPECT_TRUE(showsText(made, QStringLiteral("12")));
    EXPECT_EQ(made->text(), QStringLiteral("34"));
}

TEST_F(ZELLineEditBarcodeTest, theFirstKeyOfTheNextCodeEmptiesTheField)
{
    OpenLine* const made = scanner();
    scan(made, QStringLiteral("12"));
    QTest::keyClicks(made, QStringLiteral("3"));
    EXPECT_EQ(made->text(), QStringLiteral("3"));
    EXPECT_FALSE(made->m_bClearOnKey);
    QTest::keyClicks(made, QStringLiteral("45"));
    EXPECT_EQ(made->text(), QStringLiteral("345")) << "further keys add to it";
    EXPECT_TRUE(showsText(made, QStringLiteral("12"))) << "unseen";
    made->setShowMode(true);
    EXPECT_TRUE(showsText(made, QStringLiteral("345")));
}

TEST_F(ZELLineEditBarcodeTest, aNewFieldIsArmed)
{
    OpenLine* const made = scanner();
    made->setText(QStringLiteral("old"));
    QTest::keyClicks(made, QStringLiteral("1"));
    EXPECT_EQ(made->text(), QStringLiteral("1"));
}

TEST_F(ZELLineEditBarcodeTest, scrollLockDoesNotEmptyTheField)
{
    OpenLine* const made = scanner();
    scan(made, QStringLiteral("12"));
    QTest::keyClick(made, Qt::Key_ScrollLock);
    EXPECT_EQ(made->text(), QStringLiteral("12"));
    EXPECT_TRUE(made->m_bClearOnKey);
    QTest::keyClicks(made, QStringLiteral("3"));
    EXPECT_EQ(made->text(), QStringLiteral("3"));
}

TEST_F(ZELLineEditBarcodeTest, everyOtherKeyEmptiesTheField)
{
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Left, Qt::Key_CapsLock, Qt::Key_NumLock,
                              Qt::Key_Return, Qt::Key_Backspace, Qt::Key_F1}) {
        OpenLine* const made = scanner();
        scan(made, QStringLiteral("12"));
        QTest::keyPress(made, key);
        EXPECT_EQ(made->text(), QString()) << key;
        EXPECT_FALSE(made->m_bClearOnKey) << key;
        EXPECT_TRUE(showsText(made, QStringLiteral("12"))) << key;
        QTest::keyRelease(made, key);
    }
}

TEST_F(ZELLineEditBarcodeTest, onlyThePressOfAKeyCounts)
{
    OpenLine* const made = scanner();
    scan(made, QStringLiteral("12"));
    QTest::keyRelease(made, Qt::Key_A);
    Touch::tap(made);
    EXPECT_EQ(made->text(), QStringLiteral("12"));
    EXPECT_TRUE(made->m_bClearOnKey);
}

TEST_F(ZELLineEditBarcodeTest, aFieldThatIsNotPaintedNeverTakesOver)
{
    OpenLine* const made = scanner();
    QTest::keyClicks(made, QStringLiteral("12"));
    made->hideWindow();
    made->setShowMode(true);
    EventLoop::deliver();
    EXPECT_TRUE(made->m_bShowMode);
    QTest::keyClicks(made, QStringLiteral("3"));
    EXPECT_EQ(made->text(), QStringLiteral("123")) << "so nothing arms the emptying";
    made->showWindow();
    EventLoop::deliver();
    EXPECT_FALSE(made->m_bShowMode);
    EXPECT_EQ(made->m_strBarcode, QStringLiteral("123"));
}

TEST_F(ZELLineEditBarcodeTest, aFieldWithoutAFrameNeverTakesOver)
{
    OpenLine* const made = scanner();
    QTest::keyClicks(made, QStringLiteral("12"));
    made->setCurImage(nullptr, made->m_pUpMid, made->m_pUpEnd);
    made->setShowMode(true);
    Pixels::grab(made);
    EXPECT_TRUE(made->m_bShowMode);
    EXPECT_FALSE(made->m_bClearOnKey);
    EXPECT_TRUE(made->m_strBarcode.isNull());
}

TEST_F(ZELLineEditBarcodeTest, paintingLeavesTheTextAlone)
{
    OpenLine* const made = scanner();
    QTest::keyClicks(made, QStringLiteral("12"));
    for (int i = 0; i < 3; ++i)
        Pixels::grab(made);
    EXPECT_EQ(made->text(), QStringLiteral("12"));
    EXPECT_FALSE(made->m_bClearOnKey);
    EXPECT_TRUE(made->m_strBarcode.isNull());
}

TEST_F(ZELLineEditBarcodeTest, whatTheOwnerWritesIsShownWhenHeSaysSo)
{
    OpenLine* const made = scanner();
    made->setText(QStringLiteral("picked"));
    EXPECT_TRUE(showsHint(made));
    made->setText(QStringLiteral("other"));
    made->setShowMode(true);
    EventLoop::deliver(); // the new text is painted by itself
    EXPECT_EQ(made->m_strBarcode, QStringLiteral("other"));
}

TEST_F(ZELLineEditBarcodeTest, anEmptyTextIsTakenOverToo)
{
    OpenLine* const made = scanner();
    scan(made, QStringLiteral("12"));
    made->clear();
    EXPECT_TRUE(showsText(made, QStringLiteral("12")));
    made->setShowMode(true);
    EXPECT_TRUE(showsHint(made));
}

TEST_F(ZELLineEditBarcodeTest, echoAndElisionConcernTheCode)
{
    OpenLine* const made = scanner();
    scan(made, QStringLiteral("12"));
    QTest::keyClicks(made, QStringLiteral("34567"));
    made->setEchoMode(1);
    EXPECT_TRUE(showsText(made, QStringLiteral("**")));
    made->setEchoMode(0);
    const QString code(60, QLatin1Char('8'));
    made->setText(code);
    made->setShowMode(true);
    made->setElidedText(1);
    EXPECT_TRUE(showsText(made, QFontMetrics(*style("normal")->m_pFont)
                                    .elidedText(code, Qt::ElideRight, textArea.width())));
}

TEST_F(ZELLineEditBarcodeTest, switchedOffTheNormalTextShowsAgain)
{
    OpenLine* const made = scanner();
    scan(made, QStringLiteral("12"));
    made->setBarcodeMode(false);
    EXPECT_EQ(made->m_strBarcode, QStringLiteral("12"));
    EXPECT_TRUE(made->m_bClearOnKey);
    QTest::keyClicks(made, QStringLiteral("3"));
    EXPECT_TRUE(showsText(made, QStringLiteral("123"))) << "and no key empties it";
    EXPECT_TRUE(made->m_bClearOnKey);
    made->setBarcodeMode(true);
    EXPECT_TRUE(showsText(made, QStringLiteral("12"))) << "the last code is still there";
    QTest::keyClicks(made, QStringLiteral("4"));
    EXPECT_EQ(made->text(), QStringLiteral("4")) << "and the emptying still armed";
    made->setBarcodeMode(false);
    EXPECT_FALSE(made->m_bClearOnKey);
}

TEST_F(ZELLineEditBarcodeTest, switchingOnForgetsThatATextWasToBeShown)
{
    OpenLine* const made = scanner();
    QTest::keyClicks(made, QStringLiteral("12"));
    made->setShowMode(true);
    made->setBarcodeMode(true);
    EXPECT_FALSE(made->m_bShowMode);
    EXPECT_TRUE(showsHint(made));
    made->setShowMode(true);
    made->setBarcodeMode(false);
    EXPECT_TRUE(made->m_bShowMode) << "switching off does not";
}

TEST_F(ZELLineEditBarcodeTest, outsideBarcodeModePaintingDoesNotTakeOver)
{
    OpenLine* const made = line();
    made->setText(QStringLiteral("12"));
    made->m_bClearOnKey = false;
    made->setShowMode(true);
    EXPECT_TRUE(showsText(made, QStringLiteral("12")));
    EXPECT_TRUE(made->m_bShowMode);
    EXPECT_FALSE(made->m_bClearOnKey);
    EXPECT_TRUE(made->m_strBarcode.isNull());
}

TEST_F(ZELLineEditBarcodeTest, theTextThatIsWantedCanBeCalledBack)
{
    OpenLine* const made = scanner();
    QTest::keyClicks(made, QStringLiteral("12"));
    made->setShowMode(true);
    made->setShowMode(false);
    EXPECT_TRUE(showsHint(made));
}
