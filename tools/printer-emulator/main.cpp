#include "printer-emulator/CommandList.h"
#include "printer-emulator/Emulator.h"
#include "printer-emulator/Options.h"

#include <QFile>
#include <QString>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

using namespace PrinterEmulator;

namespace {

using Bytes = std::vector<std::uint8_t>;

std::atomic<bool> stop{false};

void onSignal(int /*number*/)
{
    stop = true;
}

[[noreturn]] void failOn(const std::string& path)
{
    throw std::runtime_error(path + ": " + strerror(errno));
}

Bytes readFile(const std::string& path)
{
    FILE* const file = fopen(path.c_str(), "rb");
    if (!file)
        failOn(path);
    Bytes bytes;
    for (int byte = getc(file); byte != EOF; byte = getc(file))
        bytes.push_back(static_cast<std::uint8_t>(byte));
    const int error = errno;
    const bool failed = ferror(file) != 0;
    fclose(file);
    errno = error;
    if (failed)
        failOn(path);
    return bytes;
}

void writeFile(const std::string& path, const void* bytes, std::size_t size)
{
    FILE* const file = path == "-" ? stdout : fopen(path.c_str(), "wb");
    if (!file)
        failOn(path);
    const bool written = fwrite(bytes, 1, size, file) == size;
    const bool closed = file == stdout ? fflush(file) == 0 : fclose(file) == 0;
    if (!written || !closed)
        failOn(path);
}

// what the options ask for, and the exit status
int report(const Printer& printer, const std::string& source, const Options& options)
{
    if (!options.listFile.empty()) {
        const std::string list = commandList(printer, source, options.format);
        writeFile(options.listFile, list.data(), list.size());
    }
    const QString paper = QFile::decodeName(options.paperFile.c_str());
    if (!paper.isEmpty() && !printer.paper().picture().save(paper, "PNG"))
        throw std::runtime_error(options.paperFile + ": the picture could not be written");
    for (const StreamFault& fault : printer.reader().faults())
        fprintf(stderr, "%s\n", faultLine(source, fault).c_str());
    return printer.reader().faults().empty() ? 0 : 1;
}

int decode(const Options& options)
{
    Printer printer(options.behaviour);
    for (const std::uint8_t byte : readFile(options.decodeFile))
        printer.receive(byte);
    printer.finish();
    return report(printer, options.decodeFile, options);
}

int emulate(const Options& options)
{
    PseudoTerminal line(options.port);
    signal(SIGINT, onSignal);
    signal(SIGTERM, onSignal);
    printf("ready %s\n", options.port.c_str());
    fflush(stdout);
    Emulator emulator(line, options.behaviour, options.line);
    emulator.run(stop);
    if (!options.captureFile.empty())
        writeFile(options.captureFile, emulator.captured().data(), emulator.captured().size());
    return report(emulator.printer(), options.port, options);
}

int run(const std::vector<std::string>& arguments)
{
    const char* const sysroot = getenv("QTPANFX_SYSROOT");
    const Options options = readOptions(arguments, sysroot ? sysroot : "");
    if (options.help) {
        fputs(usage().c_str(), stdout);
        return 0;
    }
    return options.decodeFile.empty() ? emulate(options) : decode(options);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const std::exception& fault) {
        fprintf(stderr, "printer-emulator: %s\n", fault.what());
        return 2;
    }
}
