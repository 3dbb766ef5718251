#include "print/PrintDots.h"
#include "print/PrinterForTest.h"
#include "print/ReportImage.h"
#include "printer-emulator/Emulator.h"
#include "support/PanelTest.h"
#include "support/SerialPort.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <memory>
#include <thread>

using namespace PANFx::Testing;
using PrinterEmulator::Behaviour;
using PrinterEmulator::CommandKind;
using PrinterEmulator::Emulator;
using PrinterEmulator::LineSettings;
using PrinterEmulator::Paper;
using PrinterEmulator::Printer;
using PrinterEmulator::PseudoTerminal;

namespace {

// An emulated printer on the port, over a real pseudo-terminal, while the object lives.
class EmulatedPrinter
{
public:
    EmulatedPrinter(const std::string& port, const Behaviour& behaviour, int baud = 0)
        : m_line(port)
        , m_emulator(m_line, behaviour, LineSettings{baud})
        , m_thread([this] { m_emulator.run(m_stop); })
    {
    }

    ~EmulatedPrinter() { stop(); }

    // what has come out of it; it is switched off then
    const Printer& printer()
    {
        stop();
        return m_emulator.printer();
    }

private:
    void stop()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
    }

    PseudoTerminal m_line;
    Emulator m_emulator;
    std::atomic<bool> m_stop{false};
    std::thread m_thread;
};

class PrintedPaperTest : public PanelTest
{
protected:
    PrintedPaperTest()
        : m_port(SerialPort::Line::Real)
    {
    }

    EmulatedPrinter& plugIn(const Behaviour& behaviour = {}, int baud = 0)
    {
        m_emulated.reset();
        m_emulated = std::make_unique<EmulatedPrinter>(realPath("/dev/ttyS1"), behaviour, baud);
        return *m_emulated;
    }

    // lines that a failing job writes are not what these tests are about
    int printQuietly(const char* text)
    {
        const int result = m_printer.printImageString(text);
        log().reset();
        return result;
    }

    double secondsFor(const char* text)
    {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(m_printer.printImageString(text), 0);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        return time.count();
    }

    static std::string reportOf(int lines)
    {
        std::string text;
        for (int line = 0; line < lines; ++line)
            text += "1|GLU" + std::to_string(line) + "|98|70-110|mg/dL\n";
        return text;
    }

    SerialPort m_port; // sleeps are counted, everything else is real
    PrinterForTest m_printer;
    std::unique_ptr<EmulatedPrinter> m_emulated;
};

bool isDark(QRgb pixel)
{
    return (11 * qRed(pixel) + 16 * qGreen(pixel) + 5 * qBlue(pixel)) / 32 <= 180;
}

// the first dot in which a band of the paper is not the same as the image
::testing::AssertionResult sameBand(const Paper& paper, const QImage& image, int band)
{
    for (int y = band * 24; y < band * 24 + 24; ++y) {
        for (int x = 0; x < 384; ++x) {
            if (paper.hasDot(x, y) != isDark(image.pixel(x, y)))
                return ::testing::AssertionFailure() << "dot " << x << ", " << y;
        }
    }
    return ::testing::AssertionSuccess();
}

// Reports with every kind of line.
const std::vector<std::pair<const char*, const char*>> reports = {
    {"empty", ""},
    {"one line that is not printed", "nothing"},
    {"Latin", "QA Instruments\nAnalyser 7\n#Patient: Jane Miller, born 1968\n"
              "#A heading that is much too wide to fit the paper in the normal font\n"
              "1|GLU|98|70-110|mg/dL\n2|CHOLEST1|1234567890|0.123-45.67890|mmol/L\n"
              "3|HBA1C|12345|1234567890123|percent8\nNa|140|mmol|H\n@fitted\n"
              "@a line of which the letters are moved together a little\n"
              "7||||\nplain|with|bars\n\n#\n@\n|||\n||||\n"},
    {"Korean", "검사 결과 보고서\n분석기\n#환자: 홍길동\n#환자의 이름이 매우 길어서 한 줄에 다 "
               "들어가지 못합니다\n"
               "1|혈당|정상|70에서 110|밀리\n나|백사십|밀리몰|높음\n@확인\n"
               "@글자 사이를 조금 좁혀서 한 줄에 인쇄합니다\n다||||\n서명\n"},
    {"mixed",
     "Report 보고서\n@가나다 ABC\n#이름: Kim 김철수 (M)\n1|GLU 혈당|98|70~110 정상|mg/dL\n"
     "Na 나트륨|140|mmol/L|높음 H\n@Zeile mit Umlauten: äöü ÄÖÜ ß µ ° ±\nα β γ 5.4 µmol/L\n"
     "a|b|c\n"},
};

} // namespace

TEST_F(PrintedPaperTest, IsTheReportDotForDot)
{
    for (const int mode : {0, 2}) {
        for (const auto& [name, text] : reports) {
            SCOPED_TRACE(std::string(name) + ", mode " + std::to_string(mode));
            EmulatedPrinter& emulated = plugIn();
            m_printer.setPrintMode(mode);
            ASSERT_EQ(m_printer.printImageString(text), 0);
            const Printer& printer = emulated.printer();
            EXPECT_TRUE(printer.reader().faults().empty());
            const QStringList lines = QString::fromLatin1(text).split(QLatin1Char('\n'));
            const QImage image = PANFx::Print::drawReport(lines, 384, mode);
            const int bands = image.height() / 24;
            // the job's end feeds four lines behind the last band
            ASSERT_EQ(printer.paper().rows(), bands * 24 + 4 * 24);
            for (int band = 0; band < bands; ++band)
                ASSERT_TRUE(sameBand(printer.paper(), image, band)) << "band " << band;
            for (int y = bands * 24; y < printer.paper().rows(); ++y) {
                for (int x = 0; x < 384; ++x)
                    ASSERT_FALSE(printer.paper().hasDot(x, y));
            }
        }
    }
}

TEST_F(PrintedPaperTest, IsMadeByTheCommandsOfTheProtocol)
{
    EmulatedPrinter& emulated = plugIn();
    ASSERT_EQ(m_printer.printImageString("a\n"), 0);
    std::vector<CommandKind> kinds;
    for (const PrinterEmulator::Command& command : emulated.printer().commands())
        kinds.push_back(command.kind);
    EXPECT_EQ(kinds, (std::vector<CommandKind>{
                         CommandKind::Initialise, CommandKind::LineSpacing,
                         CommandKind::StatusRequest, CommandKind::ImageBand, CommandKind::LineFeed,
                         CommandKind::StatusRequest, CommandKind::ImageBand, CommandKind::LineFeed,
                         CommandKind::LineFeed, CommandKind::LineFeed, CommandKind::LineFeed,
                         CommandKind::LineFeed, CommandKind::CarriageReturn}));
    EXPECT_EQ(emulated.printer().jobs(), 1);
}

TEST_F(PrintedPaperTest, ComesWholeAtTheSpeedOfTheLine)
{
    EmulatedPrinter& emulated = plugIn({}, 115200);
    ASSERT_EQ(m_printer.printImageString("a\nb\n"), 0);
    EXPECT_EQ(emulated.printer().paper().rows(), 96 + 96);
    EXPECT_TRUE(emulated.printer().reader().faults().empty());
}

// the answer to the last of the four requests comes when three bands are through
TEST_F(PrintedPaperTest, TakesAsLongAsTheLineDoes)
{
    plugIn({}, 115200);
    EXPECT_GE(secondsFor("a\nb\n"), 3 * 1161 * 10 / 115200.0);
    double shortest = 10;
    for (int tries = 0; tries < 10; ++tries) { // the machine may be busy
        plugIn({}, 0);
        shortest = std::min(shortest, secondsFor("a\nb\n"));
    }
    EXPECT_LT(shortest, 3 * 1161 * 10 / 115200.0);
}

TEST_F(PrintedPaperTest, IsTheSameForTwoReportsBehindEachOther)
{
    EmulatedPrinter& emulated = plugIn();
    ASSERT_EQ(m_printer.printImageString("a\n"), 0);
    ASSERT_EQ(m_printer.printImageString("a\n"), 0);
    const Paper& paper = emulated.printer().paper();
    ASSERT_EQ(paper.rows(), 2 * (48 + 96));
    for (int y = 0; y < 144; ++y) {
        for (int x = 0; x < 384; ++x)
            ASSERT_EQ(paper.hasDot(x, y), paper.hasDot(x, y + 144));
    }
}

// ---- a real line

TEST_F(PrintedPaperTest, IsAskedForOverARealLine)
{
    EmulatedPrinter& emulated = plugIn();
    const int fd = m_printer.initPrinter(nullptr);
    ASSERT_GE(fd, 1);
    EXPECT_EQ(m_printer.checkStatusPrinter(fd), 0);
    EXPECT_EQ(m_printer.uart_write(fd, "\x1B\x40", 2), 2);
    termios settings{};
    ASSERT_EQ(tcgetattr(fd, &settings), 0);
    EXPECT_EQ(settings.c_iflag, tcflag_t(IGNPAR));
    EXPECT_EQ(settings.c_lflag & (ICANON | ECHO), tcflag_t(0));
    EXPECT_EQ(settings.c_cflag & (CSIZE | CREAD | CRTSCTS), tcflag_t(CS8 | CREAD | CRTSCTS));
    EXPECT_EQ(cfgetospeed(&settings), speed_t(B115200));
    m_printer.deInitPrinter(fd, nullptr);
    EXPECT_EQ(m_printer.checkPrinterRxBuf(), 15000);
    EXPECT_EQ(m_printer.clearPrintBuffer(), 0);
    // status request, initialise, buffer request, reset and clear
    EXPECT_EQ(emulated.printer().commands().size(), 5U);
}

// each read gives nothing at once where nothing has come
TEST_F(PrintedPaperTest, ReadsNothingFromASilentRealLine)
{
    plugIn();
    const int fd = m_printer.initPrinter(nullptr);
    char buffer[6];
    EXPECT_EQ(m_printer.uart_read(fd, buffer, 1, 6), -1);
    log().expectError("[uart_read] retry_cnt(7) < max length(6) error");
    m_printer.deInitPrinter(fd, nullptr);
}

TEST_F(PrintedPaperTest, TellsWhatASlowPrinterHasStillToPrint)
{
    Behaviour slow;
    slow.bytesPerSecond = 10;
    plugIn(slow);
    const int fd = m_printer.initPrinter(nullptr);
    ASSERT_EQ(m_printer.uart_write(fd, whiteBand.data(), static_cast<int>(whiteBand.size())), 1158);
    // what goes out behind it on a second descriptor comes behind it too
    EXPECT_EQ(m_printer.checkPrinterRxBuf(), 15000 - 1158);
    m_printer.deInitPrinter(fd, nullptr);
}

// ---- printers that misbehave

TEST_F(PrintedPaperTest, StaysBlankWithoutPaper)
{
    Behaviour noPaper;
    noPaper.status = 0x7E;
    EmulatedPrinter& emulated = plugIn(noPaper);
    EXPECT_EQ(printQuietly("a\nb\n"), -1);
    const std::vector<PrinterEmulator::Command>& commands = emulated.printer().commands();
    // job start, status request, job end, reset and clear
    EXPECT_EQ(commands.size(), 2U + 1U + 5U + 2U);
    EXPECT_EQ(emulated.printer().paper().rows(), 96); // fed by the job end
}

TEST_F(PrintedPaperTest, ComesWholeOfAPrinterThatAnswersLateOrTooMuch)
{
    Behaviour behaviour;
    behaviour.lateMilliseconds = 50;
    behaviour.extraBytes = 2;
    EmulatedPrinter& emulated = plugIn(behaviour);
    EXPECT_EQ(printQuietly("a\n"), 0);
    EXPECT_EQ(emulated.printer().paper().rows(), 48 + 96);
    plugIn(behaviour);
    EXPECT_EQ(m_printer.checkPrinterRxBuf(), -1);
}

TEST_F(PrintedPaperTest, WaitsForEachAnswerThatComesLate)
{
    Behaviour late;
    late.lateMilliseconds = 50;
    plugIn(late);
    EXPECT_GE(secondsFor("a\n"), 2 * 0.050);
}

TEST_F(PrintedPaperTest, EndsWithAPrinterThatAnswersTooLate)
{
    Behaviour late;
    late.lateMilliseconds = 1500; // a job waits for 1.2 seconds
    plugIn(late);
    EXPECT_EQ(m_printer.printImageString("a\n"), -1);
    EXPECT_EQ(log().count("[D] select timeout\n"), 4);
    log().expectError("[sendCmd2Printer] uart_read_select error");
}

TEST_F(PrintedPaperTest, EndsWithAWrongAnswerOrGarbage)
{
    Behaviour wrong;
    wrong.status = 0x16;
    plugIn(wrong);
    EXPECT_EQ(printQuietly("a\n"), -1);
    Behaviour garbage;
    garbage.garbage = true;
    plugIn(garbage);
    EXPECT_EQ(printQuietly("a\n"), -1);
}

// this and the next wait for 1.2 seconds, as the printer is given
TEST_F(PrintedPaperTest, EndsWithAPrinterThatDoesNotAnswer)
{
    Behaviour silent;
    silent.answers = false;
    plugIn(silent);
    EXPECT_EQ(m_printer.printImageString("a\n"), -1);
    EXPECT_EQ(log().count("[D] select timeout\n"), 4);
    log().expectError("[sendCmd2Printer] uart_read_select error");
}

TEST_F(PrintedPaperTest, EndsWithAPrinterWhoseBufferStaysFull)
{
    Behaviour stalled;
    stalled.stalled = true;
    EmulatedPrinter& emulated = plugIn(stalled);
    const std::string report = reportOf(12); // 17 bands, of which 13 fill the buffer
    EXPECT_EQ(printQuietly(report.c_str()), -1);
    // job start, twelve bands with their line feeds, and what was left of the room
    const int whole = 5 + 12 * 1158;
    EXPECT_EQ(emulated.printer().waiting(), whole);
    ASSERT_EQ(emulated.printer().reader().faults().size(), 1U);
    EXPECT_EQ(emulated.printer().reader().faults()[0].message,
              "the stream ends within a command, " + std::to_string(15000 - whole) +
                  " bytes from its start 1B 2A 21 80 01");
    EXPECT_EQ(emulated.printer().paper().rows(), 0);
}

TEST_F(PrintedPaperTest, EndsWithAPrinterThatIsUnplugged)
{
    for (const std::uint64_t at : {0U, 3U, 7U, 500U, 1170U, 2000U}) {
        SCOPED_TRACE(at);
        Behaviour unplugged;
        unplugged.unplugAt = at;
        EmulatedPrinter& emulated = plugIn(unplugged);
        EXPECT_EQ(printQuietly(reportOf(12).c_str()), -1);
        EXPECT_EQ(emulated.printer().reader().offset(), at);
        EXPECT_EQ(m_port.openPorts(), 0);
    }
}
