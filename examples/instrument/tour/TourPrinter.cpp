#include "tour/TourPrinter.h"

#include "common/systemPath.h"

#include <cstdio>
#include <exception>
#include <stdexcept>

using PANFx::Common::systemPath;
using PrinterEmulator::Behaviour;
using PrinterEmulator::Emulator;
using PrinterEmulator::LineSettings;
using PrinterEmulator::Paper;
using PrinterEmulator::PseudoTerminal;

TourPrinter::~TourPrinter()
{
    unplug();
}

void TourPrinter::plugIn(const Behaviour& behaviour)
{
    unplug();
    m_bWellSpoken = false;
    m_paper = Paper();
    try {
        m_pLine = std::make_unique<PseudoTerminal>(systemPath("/dev/ttyS1"));
    } catch (const std::runtime_error& fault) {
        std::fprintf(stderr, "no printer: %s\n", fault.what());
        return;
    }
    m_pEmulator = std::make_unique<Emulator>(*m_pLine, behaviour, LineSettings());
    m_bStop = false;
    m_bWorking = true;
    m_thread = std::thread([this] { run(); });
}

// Nothing may leave the thread: it would end the program.
void TourPrinter::run()
{
    try {
        m_pEmulator->run(m_bStop);
    } catch (const std::exception& fault) {
        m_bWorking = false;
        std::fprintf(stderr, "the printer broke down: %s\n", fault.what());
    }
}

void TourPrinter::unplug()
{
    if (m_pEmulator == nullptr)
        return;
    m_bStop = true;
    if (m_thread.joinable())
        m_thread.join();
    m_bWellSpoken = m_bWorking && m_pEmulator->printer().reader().faults().empty();
    m_paper = m_pEmulator->printer().paper();
    m_pEmulator.reset();
    m_pLine.reset();
}
