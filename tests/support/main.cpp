#include "support/LogCapture.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using PANFx::Testing::LogCapture;

// A point is a pixel, as on the instrument, unless a test is about just that. Then it is the text
// alone that gets larger: Qt would scale windows instead.
void setResolution()
{
    const bool isGiven = qEnvironmentVariableIsSet("QTPANFX_TEST_DPI");
    qputenv("QT_FONT_DPI", isGiven ? qgetenv("QTPANFX_TEST_DPI") : "72");
    if (isGiven)
        qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
}

// what a developer's own desktop may set and what would change sizes and looks
void makeTheSameEverywhere()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0"); // a wish to repaint is met at once
    for (const char* name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
                             "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_ENABLE_HIGHDPI_SCALING",
                             "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME", "QTPANFX_SYSROOT"})
        qunsetenv(name);
    setResolution();
}

class JudgeOfErrorLines : public ::testing::EmptyTestEventListener
{
    void OnTestStart(const ::testing::TestInfo& /*test*/) override
    {
        LogCapture::instance().reset();
    }

    void OnTestEnd(const ::testing::TestInfo& /*test*/) override
    {
        LogCapture::instance().verify();
    }
};

} // namespace

int main(int argc, char** argv)
{
    makeTheSameEverywhere();
    ::testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();
    const QTemporaryDir runtime; // Qt wants one, and a bare machine has none
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    QApplication application(argc, argv);
    // else the first test that closes the last window ends the loops of all that come after it
    QApplication::setQuitOnLastWindowClosed(false);
    // the instrument's font, which a development machine need not have
    QFont::insertSubstitution(QStringLiteral("Droid Sans Mono"),
                              QStringLiteral("DejaVu Sans Mono"));
    ::testing::UnitTest::GetInstance()->listeners().Append(new JudgeOfErrorLines);
    return RUN_ALL_TESTS();
}
