#pragma once

#include "printer-emulator/CommandReader.h"
#include "printer-emulator/Paper.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace PrinterEmulator {

/** What a printer does that is not as it should be. */
struct Behaviour
{
    std::uint8_t status = 0x12;            ///< the answer to a status request; 0x7E without paper
    bool answers = true;                   ///< false: a request gets no answer
    int lateMilliseconds = 0;              ///< each answer comes so late
    int extraBytes = 0;                    ///< so many zeros follow each answer
    bool stalled = false;                  ///< nothing leaves the receive buffer
    bool garbage = false;                  ///< other bytes stand in for each answer, 1 to 8 of them
    std::optional<std::uint64_t> unplugAt; ///< gone behind so many bytes
    int bytesPerSecond = 0;                ///< what leaves the receive buffer; 0 for all at once
};

/**
 * The printer's own side: takes bytes, answers requests, and prints what waits in its receive
 * buffer. Requests and the command to clear the buffer are obeyed as they come in, and take no
 * room in it.
 */
class Printer
{
public:
    static constexpr int bufferSize = 15000;

    explicit Printer(const Behaviour& behaviour);

    /** One byte from the line. @return the answer, often none */
    std::vector<std::uint8_t> receive(std::uint8_t byte);

    /** Lets time pass: what waits is printed as fast as the printer can. */
    void pass(double seconds);

    /** Bytes in the receive buffer. */
    int waiting() const;

    /** Whether the receive buffer takes a further byte; the line is held otherwise. */
    bool hasRoom() const { return waiting() < bufferSize; }

    /** Whether the printer has been pulled off the line. */
    bool isUnplugged() const;

    /** Prints what still waits, and judges a command that was cut. */
    void finish();

    /** Carriage returns that came in. */
    int jobs() const { return m_jobs; }

    const Behaviour& behaviour() const { return m_behaviour; }
    const CommandReader& reader() const { return m_reader; }
    const std::vector<Command>& commands() const { return m_commands; }
    const Paper& paper() const { return m_paper; }

private:
    std::vector<std::uint8_t> obey(const Command& command);
    std::vector<std::uint8_t> answer(std::vector<std::uint8_t> bytes);
    std::vector<std::uint8_t> garbage();
    void print(const Command& command);
    void printNext();

    Behaviour m_behaviour;
    CommandReader m_reader;
    std::vector<Command> m_commands; // all that came in
    std::deque<std::size_t> m_queue; // those that wait to be printed
    int m_waiting = 0;               // their bytes
    double m_printable = 0;          // bytes that time has allowed to print
    Paper m_paper;
    int m_jobs = 0;
    std::uint32_t m_noise = 1;
};

} // namespace PrinterEmulator
