#include "printer-emulator/CommandList.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace PrinterEmulator {

namespace {

constexpr std::size_t shownBytes = 8;

__attribute__((format(printf, 1, 2))) std::string print(const char* format, ...)
{
    char text[256];
    va_list arguments;
    va_start(arguments, format);
    vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    return text;
}

std::string hexOf(const Command& command)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(command.bytes.size(), shownBytes); ++i)
        text += print("%s%02X", i == 0 ? "" : " ", command.bytes[i]);
    return command.bytes.size() > shownBytes ? text + " ..." : text;
}

int dotsOf(const Command& command)
{
    int dots = 0;
    for (std::uint8_t byte : command.columns()) {
        for (; byte; byte = static_cast<std::uint8_t>(byte & (byte - 1)))
            ++dots;
    }
    return dots;
}

// what a command says besides its name
std::string details(const Command& command)
{
    if (command.kind == CommandKind::LineSpacing)
        return print(" of %d dots", command.bytes.back());
    if (command.kind == CommandKind::ImageBand)
        return print(" of %zu columns, %d dots", command.columns().size() / 3, dotsOf(command));
    return "";
}

std::string jsonDetails(const Command& command)
{
    if (command.kind == CommandKind::LineSpacing)
        return print(", \"spacing\": %d", command.bytes.back());
    if (command.kind == CommandKind::ImageBand)
        return print(", \"columns\": %zu, \"dots\": %d", command.columns().size() / 3,
                     dotsOf(command));
    return "";
}

std::string quoted(const std::string& text)
{
    std::string json = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            json += std::string("\\") + c;
        else if (static_cast<unsigned char>(c) < 0x20)
            json += print("\\u%04x", static_cast<unsigned>(c));
        else
            json += c;
    }
    return json + "\"";
}

std::string textList(const Printer& printer)
{
    std::string list = "    offset       hex  bytes  command\n";
    for (const Command& command : printer.commands()) {
        const std::string what = nameOf(command.kind) + details(command);
        list += print("%10llu  %8llX  %5zu  ", static_cast<unsigned long long>(command.offset),
                      static_cast<unsigned long long>(command.offset), command.bytes.size());
        list += print("%-40s  ", what.c_str()) + hexOf(command) + "\n";
    }
    return list;
}

// one object to a line, so that lines can be counted and compared
std::string jsonList(const Printer& printer, const std::string& source)
{
    std::string list = "{\n  \"source\": " + quoted(source) + ",\n";
    list += print("  \"bytes\": %llu,\n  \"jobs\": %d,\n  \"commands\": [",
                  static_cast<unsigned long long>(printer.reader().offset()), printer.jobs());
    const char* between = "\n";
    for (const Command& command : printer.commands()) {
        list +=
            between + print("    {\"offset\": %llu, \"length\": %zu, \"name\": ",
                            static_cast<unsigned long long>(command.offset), command.bytes.size());
        list += quoted(nameOf(command.kind)) + jsonDetails(command) +
                ", \"head\": " + quoted(hexOf(command)) + "}";
        between = ",\n";
    }
    list += "\n  ],\n  \"faults\": [";
    between = "\n";
    for (const StreamFault& fault : printer.reader().faults()) {
        list += between + print("    {\"offset\": %llu, \"message\": ",
                                static_cast<unsigned long long>(fault.offset));
        list += quoted(fault.message) + "}";
        between = ",\n";
    }
    return list + "\n  ]\n}\n";
}

} // namespace

std::string nameOf(CommandKind kind)
{
    switch (kind) {
    case CommandKind::Initialise:
        return "initialise";
    case CommandKind::LineSpacing:
        return "line spacing";
    case CommandKind::ImageBand:
        return "image band";
    case CommandKind::LineFeed:
        return "line feed";
    case CommandKind::CarriageReturn:
        return "carriage return";
    case CommandKind::StatusRequest:
        return "status request";
    case CommandKind::BufferRequest:
        return "buffer request";
    case CommandKind::ClearBuffer:
        return "clear buffer";
    }
    return "";
}

std::string commandList(const Printer& printer, const std::string& source, ListFormat format)
{
    return format == ListFormat::Json ? jsonList(printer, source) : textList(printer);
}

std::string faultLine(const std::string& source, const StreamFault& fault)
{
    return source +
           print(": byte %llu (0x%llX): ", static_cast<unsigned long long>(fault.offset),
                 static_cast<unsigned long long>(fault.offset)) +
           fault.message;
}

} // namespace PrinterEmulator
