// The way of a print job to the printer: a pseudo-terminal stands for the serial line, and a thread
// for the printer.

#include "Harness.h"
#include "groups/Groups.h"

#include "print/ImagePrint.h"
#include "print/PrintDots.h"

#include <QImage>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <termios.h>
#include <thread>
#include <unistd.h>

namespace bench {

namespace {

constexpr int bands = 54; // of a report of 40 lines
constexpr char status[] = {0x10, 0x04, 0x04};
constexpr char ready = 0x12;

/** Takes all bytes that come over the line, counts them, and answers each question for its status.
 */
class Printer
{
public:
    Printer()
        : m_end(posix_openpt(O_RDWR | O_NOCTTY))
    {
        if (m_end < 0 || grantpt(m_end) != 0 || unlockpt(m_end) != 0)
            throw std::runtime_error("there is no pseudo-terminal");
        // The line stays open between the jobs. It is raw from the start.
        m_line = open(path(), O_RDWR | O_NOCTTY);
        termios settings{};
        if (m_line < 0 || tcgetattr(m_line, &settings) != 0)
            throw std::runtime_error("cannot open the pseudo-terminal");
        cfmakeraw(&settings);
        tcsetattr(m_line, TCSANOW, &settings);
        m_thread = std::thread([this] { serve(); });
    }

    ~Printer()
    {
        m_bStop = true;
        const ssize_t woken = write(m_line, "", 1);
        static_cast<void>(woken);
        m_thread.join();
        close(m_line);
        close(m_end);
    }

    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;

    const char* path() const { return ptsname(m_end); }
    int line() const { return m_line; }
    long taken() const { return m_taken; }

    void waitFor(long bytes) const
    {
        while (m_taken < bytes)
            std::this_thread::yield();
    }

private:
    void serve()
    {
        char bytes[4096];
        while (!m_bStop) {
            const ssize_t count = read(m_end, bytes, sizeof bytes);
            for (ssize_t i = 0; i < count; ++i)
                take(bytes[i]);
            m_taken += count > 0 ? count : 0;
        }
    }

    void take(char byte)
    {
        m_matched = byte == status[m_matched] ? m_matched + 1 : byte == status[0] ? 1 : 0;
        if (m_matched < sizeof status)
            return;
        m_matched = 0;
        if (write(m_end, &ready, 1) != 1)
            m_bStop = true;
    }

    int m_end;
    int m_line = -1;
    std::size_t m_matched = 0;
    std::atomic<long> m_taken{0};
    std::atomic<bool> m_bStop{false};
    std::thread m_thread;
};

// Rows that no three dots make a question for the status of: columns of two kinds.
QImage striped()
{
    QImage image(PANFx::Print::paperWidth, bands * PANFx::Print::bandRows, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = x / 6 % 2 == 0 ? 0xFF000000U : 0xFFFFFFFFU;
    }
    return image;
}

// Never more than a band ahead, as the library is, since the line loses what it has no room for.
void sendByHand(const Printer& printer, long bytes)
{
    constexpr long ahead = 1024;
    const long before = printer.taken();
    for (long i = 0; i < bytes; ++i) {
        if (i % ahead == 0)
            printer.waitFor(before + i);
        if (write(printer.line(), "U", 1) != 1)
            throw std::runtime_error("cannot write to the pseudo-terminal");
    }
    printer.waitFor(before + bytes);
}

} // namespace

void childPrint(const Site& site, int turns)
{
    Printer printer;
    const std::string port = site.root() + "/dev/ttyS1";
    std::filesystem::remove(port);
    std::filesystem::create_symlink(printer.path(), port);
    ImagePrint job;
    QImage image = striped();
    const long bytes =
        long(bands) * (PANFx::Print::bandBytes + 6 + long(sizeof status)) + 5 + 5; // start and end
    std::vector<Course> courses = {{"code",
                                    [&](Watch& watch) {
                                        watch.start();
                                        sendByHand(printer, bytes);
                                        watch.lap();
                                    }},
                                   {"ours", [&](Watch& watch) {
                                        const long before = printer.taken();
                                        watch.start();
                                        if (job.Printer_BitImage(image, 40) != 0)
                                            throw std::runtime_error("the job failed");
                                        printer.waitFor(before + bytes);
                                        watch.lap();
                                    }}};
    alternate(courses, Plan{turns, 1, 1});
    for (const Course& course : courses)
        std::printf("%s %.1f\n", course.name.c_str(), course.laps[0].median());
    std::printf("bytes %ld\n", bytes);
}

} // namespace bench
