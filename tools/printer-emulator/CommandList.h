#pragma once

#include "printer-emulator/CommandReader.h"
#include "printer-emulator/Printer.h"

#include <string>

namespace PrinterEmulator {

enum class ListFormat { Text, Json };

/** The name of a command, for people: "image band". */
std::string nameOf(CommandKind kind);

/**
 * Every command with its offset.
 * @param source file or port that the bytes came from
 */
std::string commandList(const Printer& printer, const std::string& source, ListFormat format);

/** "capture.bin: byte 12 (0xC): the byte 41 belongs to no command" */
std::string faultLine(const std::string& source, const StreamFault& fault);

} // namespace PrinterEmulator
