#include "printer-emulator/Emulator.h"

#include <algorithm>
#include <thread>

namespace PrinterEmulator {

namespace {

constexpr std::size_t mostAtOnce = 4096; // what a pseudo-terminal holds
constexpr int waitMilliseconds = 5;
constexpr int lateMilliseconds = 250; // by which a busy machine may hold this thread up
constexpr int restMilliseconds = 20;
constexpr int bitsOfByte = 10; // with start and stop bit

} // namespace

Emulator::Emulator(PseudoTerminal& line, const Behaviour& behaviour, const LineSettings& settings)
    : m_line(line)
    , m_settings(settings)
    , m_printer(behaviour)
{
}

void Emulator::run(const std::atomic<bool>& stop)
{
    while (!stop && !isDone()) {
        waitAWhile();
        const Clock::time_point before = m_now;
        m_now = Clock::now();
        m_printer.pass(std::chrono::duration<double>(m_now - before).count());
        takeBytes();
        sendAnswers();
    }
    takeTheRest();
    if (m_printer.isUnplugged())
        m_line.unplug();
    m_printer.finish();
}

// Bytes that must wait in the line would end any waiting for bytes at once.
void Emulator::waitAWhile()
{
    if (!m_printer.hasRoom() || Clock::now() < m_lineFree)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    else
        m_line.wait(m_answers.empty() ? waitMilliseconds : 1);
}

void Emulator::takeBytes()
{
    const std::size_t most = mayTake();
    if (most == 0)
        return;
    const std::vector<std::uint8_t> bytes = m_line.read(most);
    if (!bytes.empty()) {
        m_lastByte = m_now;
        bringThrough(bytes.size());
        receive(bytes);
    }
    m_ranDry = bytes.size() < most;
}

// Bytes that waited while this thread was late have come through meanwhile; others start now.
void Emulator::bringThrough(std::size_t bytes)
{
    if (m_settings.baud == 0)
        return;
    const std::chrono::duration<double> time(static_cast<double>(bytes) * bitsOfByte /
                                             m_settings.baud);
    m_lineFree = m_now - late() + std::chrono::duration_cast<Clock::duration>(time);
}

// For how long bytes have come through since the last ones were taken.
Emulator::Clock::duration Emulator::late() const
{
    if (m_ranDry)
        return Clock::duration::zero();
    return std::min<Clock::duration>(m_now - m_lineFree,
                                     std::chrono::milliseconds(lateMilliseconds));
}

void Emulator::receive(const std::vector<std::uint8_t>& bytes)
{
    const Clock::time_point through = std::max(m_now, m_lineFree);
    const std::chrono::milliseconds late(m_printer.behaviour().lateMilliseconds);
    m_captured.insert(m_captured.end(), bytes.begin(), bytes.end());
    for (const std::uint8_t byte : bytes) {
        std::vector<std::uint8_t> answer = m_printer.receive(byte);
        if (!answer.empty())
            m_answers.push_back({through + late, std::move(answer)});
    }
}

// what is on its way when the printer is switched off
void Emulator::takeTheRest()
{
    m_settings.baud = 0;
    while (!m_printer.isUnplugged() && m_printer.hasRoom() && m_line.wait(restMilliseconds))
        takeBytes();
}

// what has come through the line, fits the receive buffer, and comes before the plug is pulled
std::size_t Emulator::mayTake()
{
    const Printer& printer = m_printer;
    auto most = static_cast<std::size_t>(std::max(Printer::bufferSize - printer.waiting(), 0));
    most = std::min(most, mostAtOnce);
    if (m_settings.baud > 0) {
        if (m_now < m_lineFree)
            return 0;
        const std::chrono::duration<double> time =
            late() + std::chrono::milliseconds(waitMilliseconds);
        const auto come = static_cast<std::size_t>(time.count() * m_settings.baud / bitsOfByte);
        most = std::min(most, std::max<std::size_t>(come, 1));
    }
    if (printer.behaviour().unplugAt)
        most = static_cast<std::size_t>(std::min<std::uint64_t>(
            most, *printer.behaviour().unplugAt - printer.reader().offset()));
    return most;
}

void Emulator::sendAnswers()
{
    while (!m_answers.empty() && m_answers.front().due <= m_now) {
        m_line.write(m_answers.front().bytes);
        m_answers.pop_front();
    }
}

bool Emulator::isDone() const
{
    if (m_printer.isUnplugged())
        return true;
    return m_settings.jobs > 0 && m_printer.jobs() >= m_settings.jobs &&
           Clock::now() - m_lastByte > std::chrono::milliseconds(m_settings.quietMilliseconds);
}

} // namespace PrinterEmulator
