#pragma once

#include "printer-emulator/Printer.h"
#include "printer-emulator/PseudoTerminal.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <deque>
#include <vector>

namespace PrinterEmulator {

/** How the line runs, and when it is enough. */
struct LineSettings
{
    int baud = 115200;           ///< ten bits to a byte; 0 takes bytes as they come
    int jobs = 0;                ///< ends after so many jobs; 0 for no end
    int quietMilliseconds = 500; ///< after the last job, the line must have been quiet so long
};

/** A printer at the end of a line. */
class Emulator
{
public:
    Emulator(PseudoTerminal& line, const Behaviour& behaviour, const LineSettings& settings);

    /** Runs until told to stop, until the last job is done, or until unplugged. */
    void run(const std::atomic<bool>& stop);

    /** All bytes that came in. */
    const std::vector<std::uint8_t>& captured() const { return m_captured; }

    const Printer& printer() const { return m_printer; }

private:
    using Clock = std::chrono::steady_clock;

    struct Answer
    {
        Clock::time_point due;
        std::vector<std::uint8_t> bytes;
    };

    void waitAWhile();
    void takeBytes();
    void bringThrough(std::size_t bytes);
    Clock::duration late() const;
    void receive(const std::vector<std::uint8_t>& bytes);
    void takeTheRest();
    std::size_t mayTake();
    void sendAnswers();
    bool isDone() const;

    PseudoTerminal& m_line;
    LineSettings m_settings;
    Printer m_printer;
    std::vector<std::uint8_t> m_captured;
    std::deque<Answer> m_answers;
    Clock::time_point m_now = Clock::now();
    Clock::time_point m_lineFree = m_now; // when the last byte taken has come through
    Clock::time_point m_lastByte = m_now;
    bool m_ranDry = true; // nothing was left on the line at the last look
};

} // namespace PrinterEmulator
