#include "print/PrinterForTest.h"
#include "support/PanelTest.h"
#include "support/SerialPort.h"

#include <QProcess>

#include <csignal>
#include <sys/types.h>

using namespace PANFx::Testing;

namespace {

class PrinterEmulatorProgramTest : public PanelTest
{
protected:
    void start(const QStringList& arguments)
    {
        m_program.start(QStringLiteral(PRINTER_EMULATOR), arguments);
        ASSERT_TRUE(m_program.waitForStarted()) << m_program.errorString().toStdString();
    }

    int run(const QStringList& arguments)
    {
        start(arguments);
        return result();
    }

    int result()
    {
        EXPECT_TRUE(m_program.waitForFinished(20000));
        EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
        return m_program.exitCode();
    }

    // over the real line, without the pauses behind each byte
    static void print(const char* text, int expected)
    {
        SerialPort port(SerialPort::Line::Real);
        ImagePrint printer;
        EXPECT_EQ(printer.printImageString(text), expected);
    }

    std::string output() { return m_program.readAllStandardOutput().toStdString(); }
    std::string errors() { return m_program.readAllStandardError().toStdString(); }

    QString real(const char* path) const { return QString::fromStdString(realPath(path)); }

    QProcess m_program;
};

} // namespace

TEST_F(PrinterEmulatorProgramTest, DecodesAFileOfBytes)
{
    writeFile("/job.bin", jobStart + whiteBand + jobEnd);
    EXPECT_EQ(run({QStringLiteral("--decode=") + real("/job.bin"), QStringLiteral("--format=json"),
                   QStringLiteral("--paper=") + real("/paper.png")}),
              0);
    EXPECT_EQ(errors(), "");
    EXPECT_NE(output().find("{\"offset\": 5, \"length\": 1157, \"name\": \"image band\", "
                            "\"columns\": 384, \"dots\": 0"),
              std::string::npos);
    const QImage paper(real("/paper.png"));
    EXPECT_EQ(paper.size(), QSize(384, 24 + 96));
}

TEST_F(PrinterEmulatorProgramTest, ListsIntoAFile)
{
    writeFile("/job.bin", jobEnd);
    EXPECT_EQ(run({QStringLiteral("--decode=") + real("/job.bin"),
                   QStringLiteral("--list=") + real("/list.txt")}),
              0);
    EXPECT_EQ(output(), "");
    EXPECT_EQ(readFile("/list.txt"),
              "    offset       hex  bytes  command\n"
              "         0         0      1  line feed                                 0A\n"
              "         1         1      1  line feed                                 0A\n"
              "         2         2      1  line feed                                 0A\n"
              "         3         3      1  line feed                                 0A\n"
              "         4         4      1  carriage return                           0D\n");
}

TEST_F(PrinterEmulatorProgramTest, TellsFileAndByteOfAFault)
{
    writeFile("/job.bin", jobStart + "A" + jobEnd);
    EXPECT_EQ(run({QStringLiteral("--decode=") + real("/job.bin")}), 1);
    EXPECT_EQ(errors(),
              realPath("/job.bin") + ": byte 5 (0x5): the byte 41 belongs to no command\n");
    EXPECT_EQ(output(), "");
}

TEST_F(PrinterEmulatorProgramTest, TellsWhatItCannotReadOrWrite)
{
    EXPECT_EQ(run({QStringLiteral("--decode=") + real("/none.bin")}), 2);
    EXPECT_EQ(errors(),
              "printer-emulator: " + realPath("/none.bin") + ": No such file or directory\n");
    writeFile("/job.bin", jobStart);
    EXPECT_EQ(run({QStringLiteral("--decode=") + real("/job.bin"),
                   QStringLiteral("--paper=") + real("/none/paper.png")}),
              2);
    EXPECT_EQ(errors(), "printer-emulator: " + realPath("/none/paper.png") +
                            ": the picture could not be written\n");
    EXPECT_EQ(run({QStringLiteral("--decode=") + real("/job.bin"),
                   QStringLiteral("--list=") + real("/none/list.txt")}),
              2);
    EXPECT_EQ(errors(),
              "printer-emulator: " + realPath("/none/list.txt") + ": No such file or directory\n");
    EXPECT_EQ(run({QStringLiteral("--decode=") + real("/tmp")}), 2);
    EXPECT_EQ(errors(), "printer-emulator: " + realPath("/tmp") + ": Is a directory\n");
}

TEST_F(PrinterEmulatorProgramTest, TellsWhatIsWrongInItsArguments)
{
    EXPECT_EQ(run({QStringLiteral("--hello")}), 2);
    EXPECT_EQ(errors(), "printer-emulator: unknown argument \"--hello\" (--help tells more)\n");
    EXPECT_EQ(run({QStringLiteral("--help")}), 0);
    EXPECT_EQ(output().substr(0, 6), "Usage:");
}

TEST_F(PrinterEmulatorProgramTest, TakesAJobAndEnds)
{
    start({QStringLiteral("--jobs=1"), QStringLiteral("--quiet=100"), QStringLiteral("--baud=0"),
           QStringLiteral("--paper=") + real("/paper.png"),
           QStringLiteral("--capture=") + real("/job.bin")});
    ASSERT_TRUE(m_program.waitForReadyRead(20000));
    EXPECT_EQ(output(), "ready " + realPath("/dev/ttyS1") + "\n");
    print("a\n", 0);
    EXPECT_EQ(result(), 0);
    EXPECT_EQ(errors(), "");
    EXPECT_EQ(QImage(real("/paper.png")).size(), QSize(384, 48 + 96));
    EXPECT_EQ(readFile("/job.bin").size(), 5 + 2 * (3 + 1158) + 5U);
    EXPECT_FALSE(fileExists("/dev/ttyS1"));
    // and what it captured decodes into the same picture
    const QImage printed(real("/paper.png"));
    EXPECT_EQ(run({QStringLiteral("--decode=") + real("/job.bin"),
                   QStringLiteral("--paper=") + real("/again.png")}),
              0);
    EXPECT_EQ(QImage(real("/again.png")), printed);
}

// a job that is stopped ends in a carriage return as well, and the printer is cleared behind it
TEST_F(PrinterEmulatorProgramTest, TakesAJobThatEndsForWantOfPaper)
{
    start({QStringLiteral("--jobs=1"), QStringLiteral("--fault=no-paper"),
           QStringLiteral("--capture=") + real("/job.bin")});
    ASSERT_TRUE(m_program.waitForReadyRead(20000));
    print("a\n", -1);
    EXPECT_EQ(result(), 0);
    EXPECT_EQ(errors(), "");
    EXPECT_EQ(readFile("/job.bin"), jobStart + statusRequest + jobEnd + resetAndClear);
}

TEST_F(PrinterEmulatorProgramTest, EndsOnASignalAndCleansUp)
{
    start({QStringLiteral("--format=text")});
    ASSERT_TRUE(m_program.waitForReadyRead(20000));
    EXPECT_TRUE(QFileInfo(real("/dev/ttyS1")).isSymLink());
    m_program.terminate();
    EXPECT_EQ(result(), 0);
    EXPECT_FALSE(QFileInfo(real("/dev/ttyS1")).isSymLink());
    EXPECT_NE(output().find("    offset       hex  bytes  command\n"), std::string::npos);
}
