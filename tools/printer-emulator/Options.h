#pragma once

#include "printer-emulator/CommandList.h"
#include "printer-emulator/Emulator.h"
#include "printer-emulator/Printer.h"

#include <string>
#include <vector>

namespace PrinterEmulator {

/** What the command line says. */
struct Options
{
    bool help = false;
    std::string port;        ///< where the link to the line is made
    std::string decodeFile;  ///< decode this file instead of opening a line
    std::string paperFile;   ///< PNG of the paper; "" for none
    std::string captureFile; ///< the bytes as they came in; "" for none
    std::string listFile;    ///< list of commands; "" for none, "-" for the standard output
    ListFormat format = ListFormat::Text;
    Behaviour behaviour;
    LineSettings line;
};

/**
 * Reads the command line.
 * @param sysroot value of QTPANFX_SYSROOT, below which the port is looked for; "" if it is not set
 * @throw std::runtime_error with a readable reason
 */
Options readOptions(const std::vector<std::string>& arguments, const std::string& sysroot);

/** What --help prints. */
std::string usage();

} // namespace PrinterEmulator
