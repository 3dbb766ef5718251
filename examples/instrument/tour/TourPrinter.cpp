#include "tour/TourPrinter.h"

#include "common/systemPath.h"

#include <cstdio>
#include <stdexcept>

using PANFx::Common::systemPath;
using PrinterEmulator::Behaviour;
using PrinterEmulator::Emulator;
using PrinterEmulator::LineSettings;
using PrinterEmulator::PseudoTerminal;

TourPrinter::~TourPrinter()
{
    unplug();
}

void TourPrinter::plugIn(const Behaviour& behaviour)
{
    unplug();
    try {
        m_pLine = std::make_unique<PseudoTerminal>(systemPath("/dev/ttyS1"));
    } catch (const std::runtime_error& fault) {
        std::fprintf(stderr, "no printer: %s\n", fault.what());
        return;
    }
    m_pEmulator = std::make_unique<Emulator>(*m_pLine, behaviour, LineSettings());
    m_bStop = false;
    m_thread = std::thread([this] { m_pEmulator->run(m_bStop); });
}

void TourPrinter::unplug()
{
    m_bStop = true;
    if (m_thread.joinable())
        m_thread.join();
    m_bWellSpoken = m_pEmulator && m_pEmulator->printer().reader().faults().empty();
    m_paper = m_pEmulator ? m_pEmulator->printer().paper() : PrinterEmulator::Paper();
    m_pEmulator.reset();
    m_pLine.reset();
}
