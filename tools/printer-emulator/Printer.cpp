#include "printer-emulator/Printer.h"

namespace PrinterEmulator {

namespace {

bool isObeyedAtOnce(CommandKind kind)
{
    return kind == CommandKind::StatusRequest || kind == CommandKind::BufferRequest ||
           kind == CommandKind::ClearBuffer;
}

} // namespace

Printer::Printer(const Behaviour& behaviour)
    : m_behaviour(behaviour)
{
}

std::vector<std::uint8_t> Printer::receive(std::uint8_t byte)
{
    std::optional<Command> command = m_reader.read(byte);
    if (!command)
        return {};
    m_commands.push_back(std::move(*command));
    const Command& last = m_commands.back();
    if (isObeyedAtOnce(last.kind))
        return obey(last);
    if (last.kind == CommandKind::CarriageReturn)
        ++m_jobs;
    m_queue.push_back(m_commands.size() - 1);
    m_waiting += static_cast<int>(last.bytes.size());
    pass(0);
    return {};
}

void Printer::pass(double seconds)
{
    if (m_behaviour.stalled)
        return;
    m_printable += seconds * m_behaviour.bytesPerSecond;
    while (!m_queue.empty()) {
        const auto size = static_cast<double>(m_commands[m_queue.front()].bytes.size());
        if (m_behaviour.bytesPerSecond > 0) {
            if (size > m_printable)
                return;
            m_printable -= size;
        }
        printNext();
    }
    m_printable = 0; // time in which there was nothing to print is lost
}

int Printer::waiting() const
{
    return m_waiting + static_cast<int>(m_reader.pending());
}

bool Printer::isUnplugged() const
{
    return m_behaviour.unplugAt && m_reader.offset() >= *m_behaviour.unplugAt;
}

void Printer::finish()
{
    m_reader.finish();
    while (!m_behaviour.stalled && !m_queue.empty())
        printNext();
}

std::vector<std::uint8_t> Printer::obey(const Command& command)
{
    if (command.kind == CommandKind::StatusRequest)
        return answer({m_behaviour.status});
    if (command.kind == CommandKind::BufferRequest)
        return answer({static_cast<std::uint8_t>(waiting() % 256),
                       static_cast<std::uint8_t>(waiting() / 256)});
    m_queue.clear();
    m_waiting = 0;
    return {};
}

std::vector<std::uint8_t> Printer::answer(std::vector<std::uint8_t> bytes)
{
    if (!m_behaviour.answers)
        return {};
    if (m_behaviour.garbage)
        bytes = garbage();
    bytes.resize(bytes.size() + static_cast<std::size_t>(m_behaviour.extraBytes), 0);
    return bytes;
}

// the same in each run, so that what it leads to can be told
std::vector<std::uint8_t> Printer::garbage()
{
    const auto next = [this] {
        m_noise = m_noise * 1664525 + 1013904223;
        return static_cast<std::uint8_t>(m_noise >> 24);
    };
    std::vector<std::uint8_t> bytes(1 + next() % 8U);
    for (std::uint8_t& byte : bytes)
        byte = next();
    return bytes;
}

void Printer::printNext()
{
    const Command& command = m_commands[m_queue.front()];
    m_queue.pop_front();
    m_waiting -= static_cast<int>(command.bytes.size());
    print(command);
}

void Printer::print(const Command& command)
{
    switch (command.kind) {
    case CommandKind::Initialise:
        m_paper.setLineSpacing(Paper::defaultSpacing);
        m_paper.returnCarriage();
        break;
    case CommandKind::LineSpacing:
        m_paper.setLineSpacing(command.bytes.back());
        break;
    case CommandKind::ImageBand:
        m_paper.printColumns(command.columns());
        break;
    case CommandKind::LineFeed:
        m_paper.feedLine();
        break;
    case CommandKind::CarriageReturn:
        m_paper.returnCarriage();
        break;
    case CommandKind::StatusRequest:
    case CommandKind::BufferRequest:
    case CommandKind::ClearBuffer:
        break;
    }
}

} // namespace PrinterEmulator
