#include "printer-emulator/CommandReader.h"

#include "printer-emulator/Paper.h"

#include <algorithm>
#include <cstdio>

namespace PrinterEmulator {

namespace {

constexpr std::uint8_t bandMode = 0x21;
constexpr std::size_t bandHead = 5;

struct Form
{
    std::vector<std::uint8_t> head;
    std::size_t arguments; // bytes behind the head
    CommandKind kind;
};

const std::vector<Form>& forms()
{
    static const std::vector<Form> all = {
        {{0x0A}, 0, CommandKind::LineFeed},
        {{0x0D}, 0, CommandKind::CarriageReturn},
        {{0x1B, 0x40}, 0, CommandKind::Initialise},
        {{0x1B, 0x33}, 1, CommandKind::LineSpacing},
        {{0x1B, 0x2A, bandMode}, 2, CommandKind::ImageBand},
        {{0x10, 0x04, 0x04}, 0, CommandKind::StatusRequest},
        {{0x10, 0x04, 0x07}, 0, CommandKind::BufferRequest},
        {{0x10, 0x05, 0x02}, 0, CommandKind::ClearBuffer},
    };
    return all;
}

// the form that these bytes begin, or have begun
const Form* formOf(const std::vector<std::uint8_t>& bytes)
{
    const auto begins = [&bytes](const Form& form) {
        const auto size = static_cast<std::ptrdiff_t>(std::min(bytes.size(), form.head.size()));
        return std::equal(bytes.begin(), bytes.begin() + size, form.head.begin());
    };
    const auto found = std::find_if(forms().begin(), forms().end(), begins);
    return found == forms().end() ? nullptr : &*found;
}

std::size_t columnsOf(const std::vector<std::uint8_t>& bytes)
{
    return bytes[3] + 256U * bytes[4];
}

std::size_t sizeOf(const Form& form, const std::vector<std::uint8_t>& bytes)
{
    std::size_t size = form.head.size() + form.arguments;
    if (form.kind == CommandKind::ImageBand && bytes.size() >= bandHead)
        size += 3 * columnsOf(bytes);
    return size;
}

std::string hex(const std::vector<std::uint8_t>& bytes)
{
    std::string text;
    for (const std::uint8_t byte : bytes) {
        char digits[4];
        snprintf(digits, sizeof digits, "%s%02X", text.empty() ? "" : " ", byte);
        text += digits;
    }
    return text;
}

} // namespace

std::vector<std::uint8_t> Command::columns() const
{
    if (kind != CommandKind::ImageBand)
        return {};
    return {bytes.begin() + bandHead, bytes.end()};
}

std::optional<Command> CommandReader::read(std::uint8_t byte)
{
    m_bytes.push_back(byte);
    ++m_offset;
    if (formOf(m_bytes))
        return completed();
    if (m_bytes.size() == 1) {
        passOver();
        return std::nullopt;
    }
    // the byte itself may begin the next command
    m_bytes.pop_back();
    --m_offset;
    refuse("no command begins with " + hex(m_bytes) + " and goes on with " + hex({byte}));
    return read(byte);
}

std::optional<Command> CommandReader::completed()
{
    const Form& form = *formOf(m_bytes);
    if (m_bytes.size() < sizeOf(form, m_bytes))
        return std::nullopt;
    Command command{form.kind, m_offset - m_bytes.size(), std::move(m_bytes)};
    m_bytes.clear();
    if (command.kind == CommandKind::ImageBand && columnsOf(command.bytes) > paperWidth) {
        m_faults.push_back(
            {command.offset, "an image band of " + std::to_string(columnsOf(command.bytes)) +
                                 " columns on a paper of " + std::to_string(paperWidth)});
    }
    return command;
}

void CommandReader::finish()
{
    if (m_bytes.empty())
        return;
    const std::size_t size = m_bytes.size();
    m_bytes.resize(std::min(size, bandHead));
    const std::string start = hex(m_bytes);
    m_bytes.resize(size);
    refuse("the stream ends within a command, " + std::to_string(size) + " bytes from its start " +
           start);
}

void CommandReader::refuse(const std::string& message)
{
    m_faults.push_back({m_offset - m_bytes.size(), message});
    m_bytes.clear();
}

void CommandReader::passOver()
{
    const bool goesOn = m_strayEnd > 0 && m_strayEnd == m_offset - 1;
    if (!goesOn) {
        m_strayStart = m_offset - 1;
        m_faults.push_back({m_strayStart, ""});
    }
    m_strayEnd = m_offset;
    const std::uint64_t count = m_strayEnd - m_strayStart;
    m_faults.back().message = count == 1 ? "the byte " + hex(m_bytes) + " belongs to no command"
                                         : std::to_string(count) + " bytes belong to no command";
    m_bytes.clear();
}

} // namespace PrinterEmulator
