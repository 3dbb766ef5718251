#pragma once

#include "printer-emulator/Emulator.h"
#include "printer-emulator/PseudoTerminal.h"

#include <atomic>
#include <memory>
#include <thread>

/// The printer that the tour plugs in and pulls off: the emulator of tools/, on a thread of the
/// tour, at the serial port in the instrument's file system. It ends with the program.
class TourPrinter
{
public:
    TourPrinter() = default;
    ~TourPrinter();

    TourPrinter(const TourPrinter&) = delete;
    TourPrinter& operator=(const TourPrinter&) = delete;

    /// Plugs a new printer in, with new paper; the one before is pulled off. Where it cannot be
    /// done, the reason goes to the standard error and there is none.
    void plugIn(const PrinterEmulator::Behaviour& behaviour);

    /// Pulls it off when it has taken what is on its way. Paper and faults stay until the next one
    /// is plugged in. Nothing happens where there is none.
    void unplug();

    /// Whether there is one and it is working.
    bool isWorking() const { return m_pEmulator != nullptr && m_bWorking; }

    /// What came out of the last printer that was pulled off.
    const PrinterEmulator::Paper& paper() const { return m_paper; }

    /// Bytes that the printer understood; false also when there was no printer, or when it broke
    /// down. The standard error has the reason then.
    bool wasWellSpoken() const { return m_bWellSpoken; }

private:
    void run();

    std::unique_ptr<PrinterEmulator::PseudoTerminal> m_pLine;
    std::unique_ptr<PrinterEmulator::Emulator> m_pEmulator;
    std::atomic<bool> m_bStop{false};
    std::atomic<bool> m_bWorking{false};
    std::thread m_thread;
    PrinterEmulator::Paper m_paper;
    bool m_bWellSpoken = false;
};
