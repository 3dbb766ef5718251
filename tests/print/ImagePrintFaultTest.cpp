#include "print/PrinterForTest.h"
#include "support/PanelTest.h"
#include "support/SerialPort.h"

#include <QDir>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <iterator>
#include <optional>
#include <random>
#include <set>
#include <thread>

using namespace PANFx::Testing;

namespace {

// where a call stands in a job of white bands
struct Place
{
    PortCallMade call;
    int band = -1;          // of a request or a byte of a band
    bool isRequest = false; // the status request, which is written as a whole
    bool isLastOfBand = false;
    bool isEdge = false; // first, middle or last byte of its command, or no byte at all
    size_t offset = 0;   // of the call in what goes out
};

struct Outcome
{
    int result;
    std::string written;
    std::vector<std::string> errors;
};

// The calls of a job that nothing happens to.
class GoodJob
{
public:
    explicit GoodJob(int bands)
        : m_bands(bands)
    {
        SerialPort port;
        PrinterForTest printer;
        QImage image = whiteImage(bands * 24);
        EXPECT_EQ(printer.Printer_BitImage(image, 0), 0);
        m_written = port.written();
        size_t offset = 0;
        for (const PortCallMade& made : port.calls()) {
            m_places.push_back(placeOf(made, offset));
            if (made.call == PortCall::Write)
                offset += made.text.size();
        }
    }

    const std::vector<Place>& places() const { return m_places; }
    int bands() const { return m_bands; }

    // what the job is to come to when this call does something else
    Outcome expected(const Place& place, PortFault fault) const
    {
        switch (place.call.call) {
        case PortCall::Open:
            return {-1,
                    "",
                    {"[E] [initPrinter] fd open error",
                     "[E] [Printer_BitImage] Failed to open printer"}};
        case PortCall::Write:
            return place.isRequest ? requestFails(place, fault) : byteFails(place, fault);
        case PortCall::Select:
            if (fault.error != 0)
                return stopped(place, {"[E] [sendCmd2Printer] uart_read_select error"});
            break;
        case PortCall::Read:
            if (fault.error != 0)
                return stopped(place, {"[E] [uart_read] read error",
                                       "[E] [sendCmd2Printer] uart_read_select error"});
            break;
        default:
            break;
        }
        return {0, m_written, {}};
    }

private:
    Place placeOf(const PortCallMade& made, size_t offset) const
    {
        Place place{made};
        place.offset = offset;
        const size_t perBand = statusRequest.size() + whiteBand.size();
        const bool inBands = offset >= jobStart.size() &&
                             offset < jobStart.size() + perBand * static_cast<size_t>(m_bands);
        const size_t at = inBands ? (offset - jobStart.size()) % perBand : 0;
        place.band = inBands ? static_cast<int>((offset - jobStart.size()) / perBand) : -1;
        place.isRequest = inBands && at == 0;
        const size_t data = statusRequest.size() + bandHead.size();
        place.isLastOfBand = inBands && at == data + 1151;
        const std::set<size_t> edges = {0, 3, 5, 7, 8, 8 + 576, data + 1151, data + 1152};
        place.isEdge = made.call != PortCall::Write || !inBands || edges.count(at) > 0;
        return place;
    }

    // the printer is cleared behind it
    Outcome stopped(const Place& place, const std::vector<std::string>& errors) const
    {
        return {-1, m_written.substr(0, place.offset) + jobEnd + resetAndClear, errors};
    }

    Outcome requestFails(const Place& place, PortFault fault) const
    {
        std::string written = m_written;
        if (fault.error == 0)
            return {0, written, {}};
        if (fault.error == EAGAIN || fault.error == EINTR)
            return {0, written.insert(place.offset, bufferRequest), {}};
        return stopped(place, {"[E] [uart_write] Print Error : -1 1 (3)",
                               "[E] [sendCmd2Printer] length != cmd size error"});
    }

    Outcome byteFails(const Place& place, PortFault fault) const
    {
        if (place.isLastOfBand && fault.error != 0)
            return {-1, m_written.substr(0, place.offset) + resetAndClear, {}};
        std::string written = m_written;
        return {0, written.erase(place.offset, 1), {}};
    }

    int m_bands;
    std::string m_written;
    std::vector<Place> m_places;
};

// what each open descriptor stands for, for people to read
std::set<std::string> openDescriptors()
{
    std::set<std::string> open;
    const QDir folder(QStringLiteral("/proc/self/fd"));
    for (const QFileInfo& entry :
         folder.entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        // the one that reads the folder is closed by now
        if (!entry.symLinkTarget().isEmpty())
            open.insert(
                (entry.fileName() + QLatin1String(" ") + entry.symLinkTarget()).toStdString());
    }
    return open;
}

// Those of an earlier test's thread may still be about to be closed, so only more are too many.
std::vector<std::string> openedSince(const std::set<std::string>& before)
{
    std::vector<std::string> opened;
    const std::set<std::string> open = openDescriptors();
    std::set_difference(open.begin(), open.end(), before.begin(), before.end(),
                        std::back_inserter(opened));
    return opened;
}

class ImagePrintFaultTest : public PanelTest, public ::testing::WithParamInterface<int>
{
protected:
    // a short write takes nothing, or of a request any number of bytes below its three
    static std::vector<PortFault> faultsAt(const Place& place)
    {
        if (GetParam() == 0 && place.call.call == PortCall::Write && place.isRequest)
            return {{}, {0, 1}, {0, 2}};
        return {{GetParam()}};
    }

    void expectOutcome(const GoodJob& job, size_t number)
    {
        for (const PortFault& fault : faultsAt(job.places()[number]))
            expectOutcome(job, number, fault);
    }

    void expectOutcome(const GoodJob& job, size_t number, PortFault fault)
    {
        const Place& place = job.places()[number];
        const Outcome expected = job.expected(place, fault);
        log().reset();
        SerialPort port;
        PrinterForTest printer;
        QImage image = whiteImage(job.bands() * 24);
        port.failCall(static_cast<int>(number), fault);
        SCOPED_TRACE("call " + std::to_string(number) + " at byte " + std::to_string(place.offset) +
                     ", taken " + std::to_string(fault.taken));
        EXPECT_EQ(printer.Printer_BitImage(image, 0), expected.result);
        EXPECT_EQ(port.written(), expected.written);
        EXPECT_EQ(port.openPorts(), 0);
        EXPECT_EQ(port.count(PortCall::Sleep), 0);
        if (fault.taken > 0) {
            const std::string taken = std::to_string(fault.taken);
            EXPECT_EQ(log().count("[D] write[" + taken + "], offset[" + taken + "] \n"), 1);
        }
        std::vector<std::string> errors;
        for (const std::string& text : log().texts()) {
            if (text.compare(0, 3, "[E]") == 0)
                errors.push_back(text);
        }
        EXPECT_EQ(errors, expected.errors);
        log().reset(); // the errors have been judged
    }
};

} // namespace

// an error of each call, or with 0 a short write, an end of file, a time-out
INSTANTIATE_TEST_SUITE_P(Each, ImagePrintFaultTest,
                         ::testing::Values(EAGAIN, EINTR, EIO, ENXIO, 0));

TEST_P(ImagePrintFaultTest, EndsAJobOfOneBandAsToldWhateverCallFails)
{
    const GoodJob job(1);
    const std::set<std::string> before = openDescriptors();
    int tried = 0;
    for (size_t number = 0; number < job.places().size() && !HasFailure(); ++number) {
        if (job.places()[number].call.call == PortCall::Usleep)
            continue; // nobody asks how it went
        expectOutcome(job, number);
        ++tried;
    }
    // open, flush, configure, select, read, close, and all writes
    EXPECT_EQ(tried, 6 + 5 + 1 + 5 + 1152 + 1 + 5);
    EXPECT_EQ(openedSince(before), std::vector<std::string>());
}

TEST_P(ImagePrintFaultTest, EndsAJobOfThreeBandsAsToldWhateverCommandFails)
{
    const GoodJob job(3);
    const std::set<std::string> before = openDescriptors();
    int tried = 0;
    for (size_t number = 0; number < job.places().size() && !HasFailure(); ++number) {
        const Place& place = job.places()[number];
        if (place.call.call == PortCall::Usleep || !place.isEdge)
            continue;
        expectOutcome(job, number);
        ++tried;
    }
    EXPECT_EQ(tried, 4 + 5 + 3 * (2 + 8) + 5);
    EXPECT_EQ(openedSince(before), std::vector<std::string>());
}

// ---- cancelling from another thread

namespace {

class ImagePrintCancelTest : public PanelTest
{
protected:
    static constexpr int bands = 5;

    // what may have gone out: of a job cut behind so many bands, or of a whole one
    static std::string sentBands(int count)
    {
        std::string sent = jobStart;
        for (int i = 0; i < count; ++i)
            sent += statusRequest + whiteBand;
        return sent;
    }

    // the number of the stated outcome; -1 for none of them
    static int outcomeOf(int result, const std::string& written)
    {
        std::vector<std::pair<int, std::string>> stated = {
            {0, ""}, {0, jobStart}, {0, sentBands(bands) + jobEnd}};
        for (int i = 0; i < bands; ++i)
            stated.emplace_back(-1, sentBands(i) + jobEnd + resetAndClear);
        const auto found = std::find(stated.begin(), stated.end(), std::pair{result, written});
        return found == stated.end() ? -1 : static_cast<int>(found - stated.begin());
    }
};

} // namespace

TEST_F(ImagePrintCancelTest, EndsAJobAsToldWheneverItIsCancelled)
{
    using Clock = std::chrono::steady_clock;
    std::mt19937 random(1);
    std::chrono::nanoseconds longest{1};
    std::set<int> outcomes;
    const auto end = Clock::now() + std::chrono::seconds(15); // on a busy machine
    for (int round = 0; round < 1000 && Clock::now() < end; ++round) {
        SerialPort port;
        PrinterForTest printer;
        const auto start = Clock::now();
        const auto moment =
            start + longest * static_cast<long>(random() % 1000) / 900; // and a little behind
        std::thread canceller([&printer, moment] {
            while (Clock::now() < moment)
                std::this_thread::yield();
            printer.CancelPrint();
        });
        const int result = printer.printImageString("\n\n\n");
        if (round < 20)
            longest = std::max<std::chrono::nanoseconds>(longest, Clock::now() - start);
        canceller.join();
        const int outcome = outcomeOf(result, port.written());
        ASSERT_NE(outcome, -1) << "result " << result << ", " << port.written().size() << " bytes";
        ASSERT_EQ(port.openPorts(), 0);
        outcomes.insert(outcome);
        log().reset();
    }
    EXPECT_GT(outcomes.size(), 2U);
}
