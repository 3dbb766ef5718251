#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace PrinterEmulator {

/**
 * The printer's end of a serial line: a pseudo-terminal, and a link to its other end where the
 * port is looked for.
 */
class PseudoTerminal
{
public:
    /**
     * @param port where the link is made; a link that is there already is replaced
     * @throw std::runtime_error with a readable reason
     */
    explicit PseudoTerminal(const std::string& port);
    ~PseudoTerminal();

    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    /** Waits for bytes, not longer than the time given. @return whether there are any */
    bool wait(int milliseconds) const;

    /** Reads what is there, at most so many bytes. */
    std::vector<std::uint8_t> read(std::size_t most);

    void write(const std::vector<std::uint8_t>& bytes);

    /** Pulls the plug: the link is gone, and who has the port open finds the line dead. */
    void unplug();

private:
    void open();
    void link();

    std::string m_port;
    std::string m_device; // "/dev/pts/7"
    int m_line = -1;
    int m_farEnd = -1; // kept open, so that the line lives while nobody else has it open
};

} // namespace PrinterEmulator
