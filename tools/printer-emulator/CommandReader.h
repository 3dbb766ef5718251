#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace PrinterEmulator {

enum class CommandKind {
    Initialise,     ///< 1B 40
    LineSpacing,    ///< 1B 33 n
    ImageBand,      ///< 1B 2A 21 nL nH and three bytes for each column
    LineFeed,       ///< 0A
    CarriageReturn, ///< 0D: the end of a job
    StatusRequest,  ///< 10 04 04
    BufferRequest,  ///< 10 04 07
    ClearBuffer,    ///< 10 05 02
};

struct Command
{
    CommandKind kind;
    std::uint64_t offset; ///< of the first byte in the stream
    std::vector<std::uint8_t> bytes;

    /** The bytes behind the head of an image band, three for each column. */
    std::vector<std::uint8_t> columns() const;
};

/** What is wrong in the stream, and at which byte. */
struct StreamFault
{
    std::uint64_t offset;
    std::string message;
};

/**
 * Takes the printer's commands out of a stream of bytes. Bytes of no command are faults, one for
 * each run of them, and are passed over.
 */
class CommandReader
{
public:
    /** @return the command that the byte completes */
    std::optional<Command> read(std::uint8_t byte);

    /** Tells the reader that the stream is over; a command begun is a fault. */
    void finish();

    /** Bytes read. */
    std::uint64_t offset() const { return m_offset; }

    /** Bytes of the command that is under way. */
    std::size_t pending() const { return m_bytes.size(); }

    const std::vector<StreamFault>& faults() const { return m_faults; }

private:
    std::optional<Command> completed();
    void refuse(const std::string& message);
    void passOver();

    std::vector<std::uint8_t> m_bytes; // of the command under way
    std::vector<StreamFault> m_faults;
    std::uint64_t m_offset = 0;
    std::uint64_t m_strayEnd = 0; // where the last run of bytes of no command ended
    std::uint64_t m_strayStart = 0;
};

} // namespace PrinterEmulator
