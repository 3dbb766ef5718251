#include "printer-emulator/Options.h"

#include <cstdlib>
#include <functional>
#include <map>
#include <stdexcept>

namespace PrinterEmulator {

namespace {

[[noreturn]] void refuse(const std::string& reason)
{
    throw std::runtime_error(reason + " (--help tells more)");
}

// the name before the first "=" and the value behind it
struct Setting
{
    explicit Setting(const std::string& text)
        : name(text.substr(0, text.find('=')))
        , hasValue(name.size() < text.size())
        , value(hasValue ? text.substr(name.size() + 1) : "")
    {
    }

    std::string name;
    bool hasValue;
    std::string value;
};

long number(const Setting& setting, long from, long to)
{
    char* end = nullptr;
    const long value = strtol(setting.value.c_str(), &end, 0);
    if (setting.value.empty() || *end != '\0' || value < from || value > to)
        refuse(setting.name + " needs a number from " + std::to_string(from) + " to " +
               std::to_string(to) + ", not \"" + setting.value + "\"");
    return value;
}

int intNumber(const Setting& setting, int to)
{
    return static_cast<int>(number(setting, 0, to));
}

const std::string& text(const Setting& setting)
{
    if (setting.value.empty())
        refuse(setting.name + " needs a value: " + setting.name + "=VALUE");
    return setting.value;
}

void mustBeAlone(const Setting& setting)
{
    if (setting.hasValue)
        refuse(setting.name + " takes no value");
}

using FaultReader = std::function<void(const Setting&, Behaviour&)>;

const std::map<std::string, FaultReader>& faults()
{
    static const auto alone = [](const FaultReader& change) {
        return [change](const Setting& setting, Behaviour& behaviour) {
            mustBeAlone(setting);
            change(setting, behaviour);
        };
    };
    static const std::map<std::string, FaultReader> all = {
        {"no-paper", alone([](const Setting&, Behaviour& it) { it.status = 0x7E; })},
        {"no-answer", alone([](const Setting&, Behaviour& it) { it.answers = false; })},
        {"full-buffer", alone([](const Setting&, Behaviour& it) { it.stalled = true; })},
        {"garbage", alone([](const Setting&, Behaviour& it) { it.garbage = true; })},
        {"late-answer",
         [](const Setting& s, Behaviour& it) { it.lateMilliseconds = intNumber(s, 60000); }},
        {"wrong-answer",
         [](const Setting& s, Behaviour& it) {
             it.status = static_cast<std::uint8_t>(number(s, 0, 255));
         }},
        {"extra-bytes", [](const Setting& s, Behaviour& it) { it.extraBytes = intNumber(s, 100); }},
        {"unplug",
         [](const Setting& s, Behaviour& it) {
             it.unplugAt = static_cast<std::uint64_t>(number(s, 0, 1000000000));
         }},
    };
    return all;
}

void readFault(const Setting& setting, Options& options)
{
    const Setting fault(text(setting));
    const auto found = faults().find(fault.name);
    if (found == faults().end())
        refuse("unknown fault \"" + fault.name + "\"");
    found->second(fault, options.behaviour);
}

void readFormat(const Setting& setting, Options& options)
{
    if (setting.value != "text" && setting.value != "json")
        refuse("--format is text or json, not \"" + setting.value + "\"");
    options.format = setting.value == "json" ? ListFormat::Json : ListFormat::Text;
    if (options.listFile.empty())
        options.listFile = "-";
}

using OptionReader = std::function<void(const Setting&, Options&)>;

const std::map<std::string, OptionReader>& readers()
{
    static const std::map<std::string, OptionReader> all = {
        {"--help", [](const Setting&, Options& it) { it.help = true; }},
        {"--port", [](const Setting& s, Options& it) { it.port = text(s); }},
        {"--decode", [](const Setting& s, Options& it) { it.decodeFile = text(s); }},
        {"--paper", [](const Setting& s, Options& it) { it.paperFile = text(s); }},
        {"--capture", [](const Setting& s, Options& it) { it.captureFile = text(s); }},
        {"--list", [](const Setting& s, Options& it) { it.listFile = text(s); }},
        {"--format", readFormat},
        {"--fault", readFault},
        {"--baud", [](const Setting& s, Options& it) { it.line.baud = intNumber(s, 10000000); }},
        {"--jobs", [](const Setting& s, Options& it) { it.line.jobs = intNumber(s, 1000000); }},
        {"--quiet",
         [](const Setting& s, Options& it) { it.line.quietMilliseconds = intNumber(s, 3600000); }},
        {"--print-speed",
         [](const Setting& s, Options& it) {
             it.behaviour.bytesPerSecond = intNumber(s, 100000000);
         }},
    };
    return all;
}

// The machine's own port may have something on it: it is never taken unasked.
std::string defaultPort(const std::string& sysroot)
{
    if (sysroot.empty())
        refuse("no port: give --port=PATH, or set QTPANFX_SYSROOT to the directory that stands "
               "for the instrument's file system");
    return sysroot + "/dev/ttyS1";
}

} // namespace

Options readOptions(const std::vector<std::string>& arguments, const std::string& sysroot)
{
    Options options;
    for (const std::string& argument : arguments) {
        const Setting setting(argument);
        const auto found = readers().find(setting.name);
        if (found == readers().end())
            refuse("unknown argument \"" + argument + "\"");
        found->second(setting, options);
    }
    if (options.help)
        return options;
    if (!options.decodeFile.empty() && !options.port.empty())
        refuse("--decode and --port exclude each other");
    if (options.decodeFile.empty() && options.port.empty())
        options.port = defaultPort(sysroot);
    return options;
}

std::string usage()
{
    return R"(Usage: qtpanfx-printer-emulator [OPTION]...
       qtpanfx-printer-emulator --decode=FILE [OPTION]...

Stands in for the thermal printer: opens a pseudo-terminal, links it to where the port is looked
for, and prints "ready PORT" once the line stands. Ends on an interrupt, behind the jobs that --jobs
allows, or where --fault=unplug=N pulls the plug. With --decode it reads a file of bytes instead.

  --port=PATH        where the link is made ($QTPANFX_SYSROOT/dev/ttyS1)
  --paper=FILE       writes the paper's picture there, as PNG
  --list=FILE        lists every command with its offset; "-" is the standard output
  --format=FORMAT    of the list: text or json; lists to the standard output if --list is not given
  --capture=FILE     writes the bytes there as they came in
  --jobs=N           ends after N jobs, each ended by a carriage return (0: goes on)
  --quiet=MS         so long the line must have been quiet then (500)
  --baud=N           speed of the line, ten bits to a byte (115200; 0: as fast as bytes come)
  --print-speed=N    bytes a second that leave the receive buffer of 15000 bytes (0: all at once)
  --fault=FAULT      misbehaves; may be given more than once:
      no-paper           the answer to a status request is 0x7E
      wrong-answer=BYTE  the answer to a status request is that byte
      no-answer          no request is answered
      late-answer=MS     each answer comes so late
      extra-bytes=N      so many zeros follow each answer
      garbage            1 to 8 other bytes stand in for each answer
      full-buffer        nothing is printed: the receive buffer fills, then the line is held
      unplug=N           the line is dead behind N bytes

The result is 0; 1 when bytes belong to no command, a command is cut, or an image band is wider than
the paper's 384 columns, with a line for each; 2 when the arguments are wrong or the system refuses
something.
)";
}

} // namespace PrinterEmulator
