#include "print/PrinterForTest.h"
#include "print/ReportImage.h"
#include "support/InFrontOf.h"
#include "support/PanelTest.h"
#include "support/SerialPort.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <sys/resource.h>

using namespace PANFx::Testing;

#define PACK_BAND "_ZN5PANFx5Print8packBandERK6QImageiPh"

static int bytesOfWiderBand = 0; // 0 for the bands as they are

int widerPackBand(const QImage& dots, int band, unsigned char* bytes) IN_FRONT_OF(PACK_BAND);

// a band of wider paper, white
int widerPackBand(const QImage& dots, int band, unsigned char* bytes)
{
    if (bytesOfWiderBand == 0)
        return next<int (*)(const QImage&, int, unsigned char*)>(PACK_BAND)(dots, band, bytes);
    std::fill_n(bytes, bytesOfWiderBand, static_cast<unsigned char>(0));
    return bytesOfWiderBand;
}

namespace {

class ImagePrintJobTest : public PanelTest
{
protected:
    // a job never has two ports open
    void TearDown() override
    {
        int open = 0;
        for (const PortCallMade& made : m_port.calls()) {
            if (made.call == PortCall::Open) {
                EXPECT_EQ(open++, 0);
            }
            if (made.call == PortCall::Close)
                --open;
        }
    }

    int print(int rows)
    {
        QImage image = whiteImage(rows);
        return m_printer.Printer_BitImage(image, 7);
    }

    // what goes out for so many white bands of a good job
    static std::string whiteJob(int bands) { return jobOf(whiteImage(bands * 24)); }

    // what goes out for all bands of an image in a good job
    static std::string jobOf(const QImage& image)
    {
        std::string job = jobStart;
        const QImage dots = PANFx::Print::dotsOf(image);
        for (int band = 0; band < image.height() / 24; ++band) {
            unsigned char columns[PANFx::Print::bandBytes];
            PANFx::Print::packBand(dots, band, columns);
            job += statusRequest + bandBytes(std::string(std::begin(columns), std::end(columns)));
        }
        return job + jobEnd;
    }

    void expectStopped(const std::string& sent)
    {
        EXPECT_EQ(m_port.written(), sent + jobEnd + resetAndClear);
        EXPECT_EQ(log().count("[D] [Printer_BitImage] stop or checkstatus error"), 1);
        EXPECT_EQ(m_port.openPorts(), 0);
        EXPECT_EQ(m_port.count(PortCall::Open), 2);
        EXPECT_EQ(m_port.count(PortCall::Close), 2);
    }

    SerialPort m_port;
    PrinterForTest m_printer;
};

} // namespace

TEST_F(ImagePrintJobTest, SendsAJobOfOneBand)
{
    EXPECT_EQ(print(24), 0);
    EXPECT_EQ(m_port.written(), whiteJob(1));
    EXPECT_EQ(m_port.count(PortCall::Open), 1);
    EXPECT_EQ(m_port.count(PortCall::Close), 1);
    EXPECT_EQ(m_port.openPorts(), 0);
    log().expectInOrder({"[D] [Printer_BitImage] start 7", "[D] [Printer_BitImage] #1",
                         "[D] [checkStatusPrinter] OK  - 0x12"});
    EXPECT_EQ(log().countLevel('D'), 4);
}

TEST_F(ImagePrintJobTest, SendsOnlyWholeBands)
{
    EXPECT_EQ(print(71), 0);
    EXPECT_EQ(m_port.written(), whiteJob(2));
}

TEST_F(ImagePrintJobTest, SendsNoBandOfALowImage)
{
    EXPECT_EQ(print(23), 0);
    EXPECT_EQ(m_port.written(), whiteJob(0));
    EXPECT_EQ(m_port.openPorts(), 0);
}

TEST_F(ImagePrintJobTest, SendsEverythingByteByByteButTheRequests)
{
    print(24);
    for (const PortCallMade& made : m_port.calls()) {
        if (made.call == PortCall::Write && made.text != statusRequest) {
            EXPECT_EQ(made.text.size(), 1U);
        }
    }
}

TEST_F(ImagePrintJobTest, PausesBehindEachByteOfABandAndNoOther)
{
    print(24);
    EXPECT_EQ(m_port.arguments(PortCall::Usleep), std::vector<long>(1152, 1));
    EXPECT_EQ(m_port.count(PortCall::Sleep), 0);
    // open, flush, configure, job start, then the request with its wait and answer
    size_t at = 3 + jobStart.size() + 3 + bandHead.size();
    for (int i = 0; i < 1152; ++i) {
        ASSERT_EQ(m_port.calls()[at++].call, PortCall::Write) << i;
        ASSERT_EQ(m_port.calls()[at++].call, PortCall::Usleep) << i;
    }
    EXPECT_EQ(m_port.calls()[at++].text, "\x0A");
    EXPECT_EQ(m_port.calls()[at].text, "\x0A"); // of the job end
}

TEST_F(ImagePrintJobTest, PausesLongerBehindEach2048thByteOfAWiderBand)
{
    bytesOfWiderBand = 2 * 2048 + 1;
    print(24);
    bytesOfWiderBand = 0;
    std::vector<long> pauses(2 * 2048 + 1, 1);
    pauses[2047] = 500000;
    pauses[4095] = 500000;
    EXPECT_EQ(m_port.arguments(PortCall::Usleep), pauses);
}

TEST_F(ImagePrintJobTest, PacksTheImageIntoItsBands)
{
    QImage image = whiteImage(48);
    image.setPixel(0, 0, 0xFF000000);
    image.setPixel(1, 23, 0xFF000000);
    image.setPixel(383, 24 + 8, 0xFF000000);
    EXPECT_EQ(m_printer.Printer_BitImage(image, 1), 0);
    std::string first(1152, '\0');
    first[0] = '\x80';
    first[5] = '\x01';
    std::string second(1152, '\0');
    second[1150] = '\x80';
    EXPECT_EQ(m_port.written(), jobStart + statusRequest + bandBytes(first) + statusRequest +
                                    bandBytes(second) + jobEnd);
}

TEST_F(ImagePrintJobTest, PrintsTheFirstColumnsOfAWiderImage)
{
    QImage image = whiteImage(24, 500);
    image.setPixel(384, 0, 0xFF000000);
    EXPECT_EQ(m_printer.Printer_BitImage(image, 1), 0);
    EXPECT_EQ(m_port.written(), whiteJob(1));
}

TEST_F(ImagePrintJobTest, RefusesANarrowerImage)
{
    QImage image = whiteImage(24, 383);
    EXPECT_EQ(m_printer.Printer_BitImage(image, 1), -1);
    QImage null;
    EXPECT_EQ(m_printer.Printer_BitImage(null, 1), -1);
    log().expectError("[Printer_BitImage] image of 383 columns, 24 rows");
    log().expectError("[Printer_BitImage] image of 0 columns, 0 rows");
    EXPECT_TRUE(m_port.calls().empty());
}

// ---- the file

TEST_F(ImagePrintJobTest, SavesTheDotsInWhite)
{
    QImage image = whiteImage(24);
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 192; ++x)
            image.setPixel(x, y, 0xFF000000);
    }
    m_printer.Printer_BitImage(image, 1);
    const QString path = QFile::decodeName(realPath("/tmp/print.jpg").c_str());
    QImageReader reader(path);
    EXPECT_EQ(reader.format(), "jpeg");
    const QImage saved = reader.read();
    ASSERT_EQ(saved.size(), QSize(384, 24));
    EXPECT_EQ(saved.pixel(20, 12), 0xFFFFFFFF);
    EXPECT_EQ(saved.pixel(360, 12), 0xFF000000);
}

TEST_F(ImagePrintJobTest, SavesTheFileBetweenJobStartAndTheFirstRequest)
{
    std::string before;
    m_port.onCall = [&](const PortCallMade& made) {
        if (made.text == statusRequest && fileExists("/tmp/print.jpg"))
            before = m_port.written();
        if (made.call == PortCall::Write && m_port.written().size() < jobStart.size()) {
            EXPECT_FALSE(fileExists("/tmp/print.jpg"));
        }
    };
    print(24);
    EXPECT_EQ(before, jobStart);
}

TEST_F(ImagePrintJobTest, SavesTheFileInAQualityOfEighty)
{
    QImage image = whiteImage(48);
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 384; ++x)
            image.setPixel(x, y, (x * x / 7 + y * y / 3) % 5 == 0 ? 0xFF000000 : 0xFFFFFFFF);
    }
    m_printer.Printer_BitImage(image, 1);
    const auto saved = [dots = PANFx::Print::dotsOf(image)](int quality) {
        QBuffer buffer;
        EXPECT_TRUE(dots.save(&buffer, "JPEG", quality));
        return buffer.data().toStdString();
    };
    EXPECT_EQ(readFile("/tmp/print.jpg"), saved(80));
    EXPECT_NE(readFile("/tmp/print.jpg"), saved(75));
    EXPECT_NE(readFile("/tmp/print.jpg"), saved(100));
}

TEST_F(ImagePrintJobTest, GoesOnWhereTheFileCannotBeSaved)
{
    SystemFaults faults;
    faults.fail(SystemCall::Open, EACCES, "/tmp/print.jpg");
    EXPECT_EQ(print(24), 0);
    EXPECT_EQ(m_port.written(), whiteJob(1));
    EXPECT_FALSE(fileExists("/tmp/print.jpg"));
}

// ---- failures

TEST_F(ImagePrintJobTest, NeedsAPort)
{
    m_port.fail(PortCall::Open, {ENOENT});
    EXPECT_EQ(print(24), -1);
    EXPECT_EQ(m_port.calls().size(), 1U);
    EXPECT_FALSE(fileExists("/tmp/print.jpg"));
    log().expectError("[initPrinter] fd open error");
    log().expectError("[Printer_BitImage] Failed to open printer");
}

TEST_F(ImagePrintJobTest, StopsBeforeTheFirstBandOfAPrinterThatIsNotReady)
{
    for (const char* answer : {"\x7E", "\x11", ""}) {
        SCOPED_TRACE(answer);
        m_port.answer = [answer](const std::string&) { return answer; };
        const size_t before = m_port.written().size();
        EXPECT_EQ(print(48), -1);
        EXPECT_EQ(m_port.written().substr(before),
                  jobStart + statusRequest + jobEnd + resetAndClear);
        EXPECT_EQ(m_port.openPorts(), 0);
    }
    EXPECT_EQ(log().count("[D] [Printer_BitImage] stop or checkstatus error"), 3);
    log().expectError("[sendCmd2Printer] uart_read_select error");
}

TEST_F(ImagePrintJobTest, TellsOfAPrinterThatCannotBeClearedBehindAStop)
{
    m_port.answer = [](const std::string&) { return "\x7E"; };
    m_port.fail(PortCall::Open, {EBUSY}, 1);
    EXPECT_EQ(print(48), -1);
    EXPECT_EQ(m_port.written(), jobStart + statusRequest + jobEnd);
    EXPECT_EQ(m_port.openPorts(), 0);
    log().expectError("[initPrinter] fd open error");
    log().expectError("[clearPrintBuffer] Failed to open printer");
    EXPECT_EQ(log().texts().back(), "[D] [Printer_BitImage] stop or checkstatus error");
}

TEST_F(ImagePrintJobTest, StopsBetweenBandsWhenThePaperEnds)
{
    int requests = 0;
    m_port.answer = [&requests](const std::string& written) {
        return written != statusRequest ? "" : ++requests < 3 ? "\x12" : "\x7E";
    };
    EXPECT_EQ(print(96), -1);
    expectStopped(jobStart + statusRequest + whiteBand + statusRequest + whiteBand + statusRequest);
    log().expectInOrder({"[D] [checkStatusPrinter] NG  - 0x7E",
                         "[D] [Printer_BitImage] stop or checkstatus error"});
}

TEST_F(ImagePrintJobTest, LooksOnlyAtTheLastByteOfABand)
{
    m_port.onCall = [this](const PortCallMade& made) { // all but the last of the band
        const int data = m_port.count(PortCall::Usleep);
        if (made.call == PortCall::Usleep && data == 1)
            m_port.fail(PortCall::Write, {EIO}, 0, 1150);
    };
    EXPECT_EQ(print(24), 0);
    EXPECT_EQ(m_port.written(),
              jobStart + statusRequest + bandBytes(std::string(2, '\0')) + jobEnd);
    EXPECT_EQ(m_port.count(PortCall::Usleep), 1152);
}

TEST_F(ImagePrintJobTest, StopsBehindABandWhoseLastByteDidNotGoOut)
{
    m_port.onCall = [this](const PortCallMade& made) {
        if (made.call == PortCall::Usleep && m_port.count(PortCall::Usleep) == 1151)
            m_port.fail(PortCall::Write, {EAGAIN}, 0, 1);
    };
    EXPECT_EQ(print(48), -1);
    EXPECT_EQ(m_port.written(),
              jobStart + statusRequest + bandHead + std::string(1151, '\0') + resetAndClear);
    EXPECT_EQ(m_port.count(PortCall::Usleep), 1152); // behind the byte that failed, too
    EXPECT_EQ(m_port.openPorts(), 0);
    EXPECT_EQ(log().count("[D] [Printer_BitImage] nreturn -1"), 1);
    EXPECT_EQ(log().texts().back(), "[D] [Printer_BitImage] nreturn -1");
}

TEST_F(ImagePrintJobTest, DoesNotMindALastByteThatWasNotTaken)
{
    m_port.onCall = [this](const PortCallMade& made) {
        if (made.call == PortCall::Usleep && m_port.count(PortCall::Usleep) == 1151)
            m_port.fail(PortCall::Write, {}, 0, 1);
    };
    EXPECT_EQ(print(24), 0);
}

// ---- cancelling

TEST_F(ImagePrintJobTest, IsCancelledBeforeThePortIsOpened)
{
    m_printer.CancelPrint();
    EXPECT_EQ(print(24), 0);
    EXPECT_TRUE(m_port.calls().empty());
    EXPECT_FALSE(fileExists("/tmp/print.jpg"));
    EXPECT_EQ(log().texts(), (std::vector<std::string>{"[D] [Printer_BitImage] start 7",
                                                       "[D] [Printer_BitImage] #1",
                                                       "[D] [Printer_BitImage] stop true"}));
}

TEST_F(ImagePrintJobTest, IsCancelledBehindJobStart)
{
    m_port.onCall = [this](const PortCallMade& made) {
        if (made.call == PortCall::Write)
            m_printer.CancelPrint();
    };
    EXPECT_EQ(print(24), 0);
    EXPECT_EQ(m_port.written(), jobStart);
    EXPECT_EQ(m_port.openPorts(), 0);
    EXPECT_FALSE(fileExists("/tmp/print.jpg"));
    EXPECT_EQ(log().texts().back(), "[D] [Printer_BitImage] stop");
}

TEST_F(ImagePrintJobTest, IsCancelledWhileTheFileIsSaved)
{
    int files = 0;
    m_port.onOtherFile = [this, &files](const std::string& path) {
        if (path != realPath("/tmp/print.jpg"))
            return; // a plugin of Qt
        ++files;
        m_printer.CancelPrint();
    };
    EXPECT_EQ(print(24), -1);
    EXPECT_EQ(files, 1);
    expectStopped(jobStart);
    EXPECT_TRUE(fileExists("/tmp/print.jpg"));
}

TEST_F(ImagePrintJobTest, IsCancelledBeforeABandWithoutAsking)
{
    m_port.onCall = [this](const PortCallMade& made) {
        if (made.call == PortCall::Usleep) // within the first band, which goes out whole
            m_printer.CancelPrint();
    };
    EXPECT_EQ(print(72), -1);
    expectStopped(jobStart + statusRequest + whiteBand);
    EXPECT_EQ(log().texts().back(), "[D] [Printer_BitImage] stop or checkstatus error");
}

TEST_F(ImagePrintJobTest, IsNotCancelledBehindTheLastBand)
{
    m_port.onCall = [this](const PortCallMade& made) {
        if (made.call == PortCall::Usleep)
            m_printer.CancelPrint();
    };
    EXPECT_EQ(print(24), 0);
    EXPECT_EQ(m_port.written(), whiteJob(1));
}

// ---- reports

TEST_F(ImagePrintJobTest, PrintsAnEmptyTextAsOneWhiteBand)
{
    EXPECT_EQ(m_printer.printImageString(""), 0);
    EXPECT_EQ(m_port.written(), whiteJob(1));
    log().expectInOrder(
        {"[D] [printImageString] string line count = 1", "[D] [Printer_BitImage] start 1"});
}

TEST_F(ImagePrintJobTest, PrintsNoTextLikeAnEmptyOne)
{
    EXPECT_EQ(m_printer.printImageString(nullptr), 0);
    EXPECT_EQ(m_port.written(), whiteJob(1));
}

TEST_F(ImagePrintJobTest, PrintsNothingOfALineWithoutLineFeed)
{
    EXPECT_EQ(m_printer.printImageString("result"), 0);
    EXPECT_EQ(m_port.written(), whiteJob(1));
    EXPECT_EQ(m_printer.m_strText, QStringLiteral("result"));
}

TEST_F(ImagePrintJobTest, SendsFourBandsToThreeLines)
{
    const auto bands = [this](const char* text) {
        const size_t before = m_port.written().size();
        EXPECT_EQ(m_printer.printImageString(text), 0);
        const size_t bytes = m_port.written().size() - before - jobStart.size() - jobEnd.size();
        return bytes / (statusRequest.size() + whiteBand.size());
    };
    EXPECT_EQ(bands("a\n"), 2U);
    EXPECT_EQ(bands("a\nb\n"), 4U);
    EXPECT_EQ(bands("a\nb\nc\n"), 5U);
    EXPECT_EQ(bands("\n\n\n\n\n\n"), 9U);
}

TEST_F(ImagePrintJobTest, PrintsTheSameWhateverIsKeptForTheInterface)
{
    const auto sent = [this] {
        const size_t before = m_port.written().size();
        EXPECT_EQ(m_printer.printImageString("Glucose\n98 mg/dL\n"), 0);
        return m_port.written().substr(before);
    };
    const std::string plain = sent();
    EXPECT_NE(plain, whiteJob(4));
    m_printer.setFont("DejaVu Serif", 40);
    m_printer.setCodecName("EUC-KR");
    m_printer.setOffset(100, 100);
    m_printer.setImageSize(384, 400);
    EXPECT_EQ(sent(), plain);
}

TEST_F(ImagePrintJobTest, ComparesTextsWithTheWidthGiven)
{
    const char* const text = "#Result\n@Glucose\n";
    EXPECT_EQ(m_printer.printImageString(text), 0);
    const std::string wide = m_port.written();
    m_printer.setImageSize(40, 20);
    EXPECT_EQ(m_printer.printImageString(text), 0);
    const std::string narrow = m_port.written().substr(wide.size());
    EXPECT_NE(narrow, wide);
    const QStringList lines = QString::fromLatin1(text).split(QLatin1Char('\n'));
    EXPECT_EQ(narrow, jobOf(PANFx::Print::drawReport(lines, 40, 0)));
    EXPECT_EQ(wide, jobOf(PANFx::Print::drawReport(lines, 384, 0)));
}

TEST_F(ImagePrintJobTest, KeepsTheTextUndecoded)
{
    m_printer.printImageString("\xEA\xB0\x80\n");
    EXPECT_EQ(m_printer.m_strText.size(), 4);
}

TEST_F(ImagePrintJobTest, ForgetsACancelFromBeforeTheReport)
{
    m_printer.CancelPrint();
    EXPECT_EQ(m_printer.printImageString(""), 0);
    EXPECT_EQ(m_port.written(), whiteJob(1));
    EXPECT_FALSE(m_printer.m_bCancel);
}

TEST_F(ImagePrintJobTest, HandsOnTheResultOfTheJob)
{
    m_port.answer = [](const std::string&) { return "\x7E"; };
    EXPECT_EQ(m_printer.printImageString("a\n"), -1);
}

#if defined(__has_feature)
#define HAS_FEATURE(name) __has_feature(name)
#else
#define HAS_FEATURE(name) 0
#endif

TEST_F(ImagePrintJobTest, RefusesATextTooLongForAnImage)
{
#if defined(__SANITIZE_ADDRESS__) || HAS_FEATURE(address_sanitizer)
    GTEST_SKIP() << "no memory is the end of a program under this sanitizer";
#endif
    const std::string text(100000, '\n'); // nearly 5 GB of pixels
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_AS, &limit), 0);
    const rlimit little{rlim_t(3) << 30, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_AS, &little), 0);
    EXPECT_EQ(m_printer.printImageString(text.c_str()), -1);
    setrlimit(RLIMIT_AS, &limit);
    EXPECT_TRUE(m_port.calls().empty());
    log().expectError("[printImageString] no image for 100001 lines");
}
