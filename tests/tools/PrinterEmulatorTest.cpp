#include "printer-emulator/CommandList.h"
#include "printer-emulator/Options.h"
#include "printer-emulator/Printer.h"
#include "printer-emulator/PseudoTerminal.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <stdexcept>

using namespace PrinterEmulator;

namespace {

using Bytes = std::vector<std::uint8_t>;

// an image band in which every byte is the same
Bytes band(std::size_t columns, std::uint8_t byte)
{
    Bytes bytes = {0x1B, 0x2A, 0x21, static_cast<std::uint8_t>(columns % 256),
                   static_cast<std::uint8_t>(columns / 256)};
    bytes.resize(bytes.size() + 3 * columns, byte);
    return bytes;
}

Bytes joined(const std::vector<Bytes>& parts)
{
    Bytes all;
    for (const Bytes& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

const Bytes jobStart = {0x1B, 0x40, 0x1B, 0x33, 0x18};
const Bytes statusRequest = {0x10, 0x04, 0x04};
const Bytes bufferRequest = {0x10, 0x04, 0x07};

// hands the bytes over and gives all answers together
Bytes send(Printer& printer, const Bytes& bytes)
{
    Bytes answers;
    for (const std::uint8_t byte : bytes) {
        const Bytes answer = printer.receive(byte);
        answers.insert(answers.end(), answer.begin(), answer.end());
    }
    return answers;
}

// offset and message of each fault of a stream
std::vector<std::string> faultsOf(const Bytes& bytes)
{
    Printer printer{Behaviour{}};
    send(printer, bytes);
    printer.finish();
    std::vector<std::string> lines;
    for (const StreamFault& fault : printer.reader().faults())
        lines.push_back(faultLine("f", fault));
    return lines;
}

using Lines = std::vector<std::string>;

} // namespace

// ---- commands

TEST(PrinterEmulator, KnowsEveryCommandOfTheProtocol)
{
    Printer printer{Behaviour{}};
    send(printer, joined({jobStart,
                          statusRequest,
                          bufferRequest,
                          band(2, 0x81),
                          {0x0A, 0x0D},
                          {0x10, 0x05, 0x02}}));
    printer.finish();
    EXPECT_TRUE(printer.reader().faults().empty());
    EXPECT_EQ(commandList(printer, "f", ListFormat::Text),
              "    offset       hex  bytes  command\n"
              "         0         0      2  initialise                                1B 40\n"
              "         2         2      3  line spacing of 24 dots                   1B 33 18\n"
              "         5         5      3  status request                            10 04 04\n"
              "         8         8      3  buffer request                            10 04 07\n"
              "        11         B     11  image band of 2 columns, 12 dots          "
              "1B 2A 21 02 00 81 81 81 ...\n"
              "        22        16      1  line feed                                 0A\n"
              "        23        17      1  carriage return                           0D\n"
              "        24        18      3  clear buffer                              10 05 02\n");
}

TEST(PrinterEmulator, ListsAsJson)
{
    Printer printer{Behaviour{}};
    send(printer, joined({jobStart, band(1, 0x01), {0x41, 0x0D}}));
    printer.finish();
    EXPECT_EQ(commandList(printer, "a \"b\"\n", ListFormat::Json),
              "{\n"
              "  \"source\": \"a \\\"b\\\"\\u000a\",\n"
              "  \"bytes\": 15,\n"
              "  \"jobs\": 1,\n"
              "  \"commands\": [\n"
              "    {\"offset\": 0, \"length\": 2, \"name\": \"initialise\", \"head\": \"1B 40\"},\n"
              "    {\"offset\": 2, \"length\": 3, \"name\": \"line spacing\", \"spacing\": 24, "
              "\"head\": \"1B 33 18\"},\n"
              "    {\"offset\": 5, \"length\": 8, \"name\": \"image band\", \"columns\": 1, "
              "\"dots\": 3, \"head\": \"1B 2A 21 01 00 01 01 01\"},\n"
              "    {\"offset\": 14, \"length\": 1, \"name\": \"carriage return\", "
              "\"head\": \"0D\"}\n"
              "  ],\n"
              "  \"faults\": [\n"
              "    {\"offset\": 13, \"message\": \"the byte 41 belongs to no command\"}\n"
              "  ]\n"
              "}\n");
}

TEST(PrinterEmulator, TellsBytesThatBelongToNoCommand)
{
    EXPECT_EQ(faultsOf({0x0A, 0x41}), Lines{"f: byte 1 (0x1): the byte 41 belongs to no command"});
    EXPECT_EQ(faultsOf({0x41, 0x42, 0x43, 0x0A, 0x44}),
              (Lines{"f: byte 0 (0x0): 3 bytes belong to no command",
                     "f: byte 4 (0x4): the byte 44 belongs to no command"}));
    EXPECT_EQ(faultsOf({0x0A, 0x1B, 0x77}),
              (Lines{"f: byte 1 (0x1): no command begins with 1B and goes on with 77",
                     "f: byte 2 (0x2): the byte 77 belongs to no command"}));
    EXPECT_EQ(faultsOf({0x10, 0x04, 0x01, 0x0A}),
              (Lines{"f: byte 0 (0x0): no command begins with 10 04 and goes on with 01",
                     "f: byte 2 (0x2): the byte 01 belongs to no command"}));
}

// the byte that does not fit may begin the next command
TEST(PrinterEmulator, FindsTheNextCommandBehindAFault)
{
    Printer printer{Behaviour{}};
    send(printer, {0x1B, 0x1B, 0x40, 0x10, 0x0A});
    ASSERT_EQ(printer.commands().size(), 2U);
    EXPECT_EQ(printer.commands()[0].kind, CommandKind::Initialise);
    EXPECT_EQ(printer.commands()[0].offset, 1U);
    EXPECT_EQ(printer.commands()[1].kind, CommandKind::LineFeed);
    EXPECT_EQ(printer.reader().faults().size(), 2U);
}

TEST(PrinterEmulator, TellsACommandThatIsCut)
{
    EXPECT_EQ(faultsOf({0x0A, 0x1B, 0x33}),
              Lines{"f: byte 1 (0x1): the stream ends within a command, 2 bytes from its start "
                    "1B 33"});
    Bytes cut = band(384, 0);
    cut.pop_back();
    EXPECT_EQ(faultsOf(cut), Lines{"f: byte 0 (0x0): the stream ends within a command, 1156 bytes "
                                   "from its start 1B 2A 21 80 01"});
}

TEST(PrinterEmulator, TellsABandWiderThanThePaper)
{
    EXPECT_EQ(faultsOf(joined({{0x0A}, band(385, 0)})),
              Lines{"f: byte 1 (0x1): an image band of 385 columns on a paper of 384"});
    EXPECT_TRUE(faultsOf(band(384, 0)).empty());
    EXPECT_TRUE(faultsOf(band(0, 0)).empty());
}

// ---- paper

TEST(PrinterEmulator, PrintsTheHighestBitUppermost)
{
    Printer printer{Behaviour{}};
    Bytes bytes = band(2, 0);
    bytes[5] = 0x80;
    bytes[10] = 0x01;
    send(printer, joined({jobStart, bytes}));
    EXPECT_EQ(printer.paper().rows(), 24);
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 384; ++x)
            EXPECT_EQ(printer.paper().hasDot(x, y), (x == 0 && y == 0) || (x == 1 && y == 23));
    }
    EXPECT_EQ(printer.paper().picture().pixel(0, 0), 0xFF000000);
    EXPECT_EQ(printer.paper().picture().pixel(1, 0), 0xFFFFFFFF);
}

TEST(PrinterEmulator, FeedsByTheLineSpacing)
{
    Printer printer{Behaviour{}};
    send(printer, joined({jobStart, band(1, 0xFF), {0x0A}, band(1, 0xFF), {0x0A}}));
    EXPECT_EQ(printer.paper().rows(), 48);
    EXPECT_TRUE(printer.paper().hasDot(0, 24));
    send(printer, {0x1B, 0x40, 0x0A}); // as the printer starts
    EXPECT_EQ(printer.paper().rows(), 48 + 30);
}

TEST(PrinterEmulator, PrintsBandsOfOneLineSideBySide)
{
    Printer printer{Behaviour{}};
    send(printer, joined({jobStart, band(3, 0xFF), band(1, 0), band(1, 0xFF)}));
    EXPECT_EQ(printer.paper().rows(), 24);
    EXPECT_TRUE(printer.paper().hasDot(2, 0));
    EXPECT_FALSE(printer.paper().hasDot(3, 0));
    EXPECT_TRUE(printer.paper().hasDot(4, 0));
    send(printer, joined({{0x0D}, band(4, 0xFF)}));
    EXPECT_TRUE(printer.paper().hasDot(3, 0));
}

// ---- answers and the receive buffer

TEST(PrinterEmulator, AnswersItsRequests)
{
    Printer printer{Behaviour{}};
    EXPECT_EQ(send(printer, statusRequest), Bytes{0x12});
    EXPECT_EQ(send(printer, bufferRequest), (Bytes{0x00, 0x00}));
    EXPECT_TRUE(send(printer, jobStart).empty());
}

TEST(PrinterEmulator, TakesNoRequestForOneWithinABand)
{
    Printer printer{Behaviour{}};
    Bytes bytes = band(2, 0);
    std::copy(statusRequest.begin(), statusRequest.end(), bytes.begin() + 5);
    EXPECT_TRUE(send(printer, bytes).empty());
}

TEST(PrinterEmulator, MisbehavesAsItIsTold)
{
    Behaviour behaviour;
    behaviour.status = 0x7E;
    behaviour.extraBytes = 2;
    Printer extra(behaviour);
    EXPECT_EQ(send(extra, statusRequest), (Bytes{0x7E, 0, 0}));
    EXPECT_EQ(send(extra, bufferRequest), (Bytes{0, 0, 0, 0}));

    Behaviour silent;
    silent.answers = false;
    Printer mute(silent);
    EXPECT_TRUE(send(mute, joined({statusRequest, bufferRequest})).empty());

    Behaviour noisy;
    noisy.garbage = true;
    Printer noise(noisy);
    bool good = true;
    for (int i = 0; i < 20; ++i) {
        const Bytes answer = send(noise, statusRequest);
        EXPECT_GE(answer.size(), 1U);
        EXPECT_LE(answer.size(), 8U);
        good = good && answer == Bytes{0x12};
    }
    EXPECT_FALSE(good);
}

TEST(PrinterEmulator, CountsWhatWaitsInItsBuffer)
{
    Behaviour slow;
    slow.bytesPerSecond = 1000;
    Printer printer(slow);
    send(printer, joined({jobStart, band(384, 0xFF), {0x0A}}));
    EXPECT_EQ(printer.waiting(), 5 + 1157 + 1);
    EXPECT_EQ(send(printer, bufferRequest), (Bytes{1163 % 256, 1163 / 256}));
    EXPECT_EQ(printer.paper().rows(), 0);
    printer.pass(0.01); // the two commands of job start
    EXPECT_EQ(printer.waiting(), 1158);
    printer.pass(1.2);
    EXPECT_EQ(printer.waiting(), 0);
    EXPECT_EQ(printer.paper().rows(), 24);
}

TEST(PrinterEmulator, HasRoomFor15000Bytes)
{
    Behaviour stalled;
    stalled.stalled = true;
    Printer printer(stalled);
    int taken = 0;
    for (; printer.hasRoom() && taken < 20000; ++taken)
        printer.receive(0x0A);
    EXPECT_EQ(taken, 15000);
    printer.pass(100);
    EXPECT_FALSE(printer.hasRoom());
    EXPECT_EQ(printer.paper().rows(), 0);
}

TEST(PrinterEmulator, EmptiesItsBufferWhenCleared)
{
    Behaviour stalled;
    stalled.stalled = true;
    Printer printer(stalled);
    send(printer, joined({jobStart, band(10, 0xFF)}));
    EXPECT_GT(printer.waiting(), 0);
    send(printer, {0x1B, 0x40, 0x10, 0x05, 0x02});
    EXPECT_EQ(printer.waiting(), 0);
}

TEST(PrinterEmulator, IsUnpluggedBehindSoManyBytes)
{
    Behaviour behaviour;
    behaviour.unplugAt = 3;
    Printer printer(behaviour);
    send(printer, {0x0A, 0x0A});
    EXPECT_FALSE(printer.isUnplugged());
    send(printer, {0x0A});
    EXPECT_TRUE(printer.isUnplugged());
}

// ---- the command line

namespace {

std::string refusal(const std::vector<std::string>& arguments, const std::string& sysroot = "/r")
{
    try {
        readOptions(arguments, sysroot);
    } catch (const std::runtime_error& fault) {
        return fault.what();
    }
    return "";
}

const std::string more = " (--help tells more)";

} // namespace

TEST(PrinterEmulatorOptions, LookForThePortBelowTheSysroot)
{
    EXPECT_EQ(readOptions({}, "/somewhere").port, "/somewhere/dev/ttyS1");
    EXPECT_EQ(readOptions({"--port=/tmp/p"}, "/somewhere").port, "/tmp/p");
    EXPECT_EQ(readOptions({"--port=/tmp/p"}, "").port, "/tmp/p");
    EXPECT_EQ(refusal({}, ""), "no port: give --port=PATH, or set QTPANFX_SYSROOT to the directory "
                               "that stands for the instrument's file system" +
                                   more);
    EXPECT_TRUE(readOptions({"--help"}, "").help);
}

TEST(PrinterEmulatorOptions, HaveDefaults)
{
    const Options options = readOptions({"--decode=f"}, "");
    EXPECT_EQ(options.decodeFile, "f");
    EXPECT_EQ(options.port, "");
    EXPECT_EQ(options.line.baud, 115200);
    EXPECT_EQ(options.line.jobs, 0);
    EXPECT_EQ(options.line.quietMilliseconds, 500);
    EXPECT_EQ(options.behaviour.status, 0x12);
    EXPECT_EQ(options.behaviour.bytesPerSecond, 0);
    EXPECT_EQ(options.listFile, "");
}

TEST(PrinterEmulatorOptions, AreRead)
{
    const Options options =
        readOptions({"--baud=9600", "--jobs=2", "--quiet=10", "--print-speed=5000", "--paper=p.png",
                     "--capture=c.bin", "--list=l.json", "--format=json", "--fault=late-answer=30",
                     "--fault=wrong-answer=0x16", "--fault=extra-bytes=3", "--fault=unplug=77"},
                    "/r");
    EXPECT_EQ(options.line.baud, 9600);
    EXPECT_EQ(options.line.jobs, 2);
    EXPECT_EQ(options.line.quietMilliseconds, 10);
    EXPECT_EQ(options.behaviour.bytesPerSecond, 5000);
    EXPECT_EQ(options.paperFile, "p.png");
    EXPECT_EQ(options.captureFile, "c.bin");
    EXPECT_EQ(options.listFile, "l.json");
    EXPECT_EQ(options.format, ListFormat::Json);
    EXPECT_EQ(options.behaviour.lateMilliseconds, 30);
    EXPECT_EQ(options.behaviour.status, 0x16);
    EXPECT_EQ(options.behaviour.extraBytes, 3);
    EXPECT_EQ(options.behaviour.unplugAt, 77U);
}

TEST(PrinterEmulatorOptions, ReadFaultsWithoutAValue)
{
    const Behaviour behaviour = readOptions({"--fault=no-paper", "--fault=no-answer",
                                             "--fault=full-buffer", "--fault=garbage"},
                                            "/r")
                                    .behaviour;
    EXPECT_EQ(behaviour.status, 0x7E);
    EXPECT_FALSE(behaviour.answers);
    EXPECT_TRUE(behaviour.stalled);
    EXPECT_TRUE(behaviour.garbage);
    EXPECT_EQ(refusal({"--fault=no-paper=1"}), "no-paper takes no value" + more);
}

TEST(PrinterEmulatorOptions, ListToTheStandardOutputWhereNoFileIsGiven)
{
    EXPECT_EQ(readOptions({"--format=text"}, "/r").listFile, "-");
    EXPECT_EQ(readOptions({"--format=text", "--list=f"}, "/r").listFile, "f");
}

TEST(PrinterEmulatorOptions, TellWhatIsWrong)
{
    EXPECT_EQ(refusal({"--speed=3"}), "unknown argument \"--speed=3\"" + more);
    EXPECT_EQ(refusal({"file.bin"}), "unknown argument \"file.bin\"" + more);
    EXPECT_EQ(refusal({"--baud=fast"}),
              "--baud needs a number from 0 to 10000000, not \"fast\"" + more);
    EXPECT_EQ(refusal({"--baud"}), "--baud needs a number from 0 to 10000000, not \"\"" + more);
    EXPECT_EQ(refusal({"--jobs=-1"}), "--jobs needs a number from 0 to 1000000, not \"-1\"" + more);
    EXPECT_EQ(refusal({"--format=xml"}), "--format is text or json, not \"xml\"" + more);
    EXPECT_EQ(refusal({"--paper"}), "--paper needs a value: --paper=VALUE" + more);
    EXPECT_EQ(refusal({"--fault=hiccup"}), "unknown fault \"hiccup\"" + more);
    EXPECT_EQ(refusal({"--fault=wrong-answer=256"}),
              "wrong-answer needs a number from 0 to 255, not \"256\"" + more);
    EXPECT_EQ(refusal({"--decode=f", "--port=p"}), "--decode and --port exclude each other" + more);
}

TEST(PrinterEmulatorOptions, AreAllInTheHelp)
{
    for (const char* name :
         {"--port", "--paper", "--list", "--format", "--capture", "--jobs", "--quiet", "--baud",
          "--print-speed", "--fault", "--decode", "no-paper", "wrong-answer", "no-answer",
          "late-answer", "extra-bytes", "garbage", "full-buffer", "unplug"})
        EXPECT_NE(usage().find(name), std::string::npos) << name;
}

// ---- the line

TEST(PrinterEmulatorLine, IsLinkedToThePortWhileItStands)
{
    const QTemporaryDir folder;
    const QString port = folder.path() + QStringLiteral("/ttyS1");
    {
        const PseudoTerminal line(port.toStdString());
        EXPECT_TRUE(QFile::symLinkTarget(port).startsWith(QStringLiteral("/dev/pts/")));
    }
    EXPECT_FALSE(QFileInfo(port).isSymLink());
}

TEST(PrinterEmulatorLine, TakesAnOldLinkAwayAndNothingElse)
{
    const QTemporaryDir folder;
    const QString port = folder.path() + QStringLiteral("/ttyS1");
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/pts/99999"), port));
    {
        const PseudoTerminal first(port.toStdString());
        const PseudoTerminal second(port.toStdString());
        EXPECT_TRUE(QFile::exists(port));
    }
    ASSERT_FALSE(QFileInfo(port).isSymLink());
    QFile file(port);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    try {
        const PseudoTerminal line(port.toStdString());
        FAIL() << "a file was taken away";
    } catch (const std::runtime_error& fault) {
        EXPECT_EQ(fault.what(),
                  port.toStdString() + ": is there and is no link, so it is left alone");
    }
    EXPECT_TRUE(QFile::exists(port));
}

TEST(PrinterEmulatorLine, TellsWhereThePortCannotBeMade)
{
    const QTemporaryDir folder;
    const std::string port = folder.path().toStdString() + "/dev/ttyS1";
    try {
        const PseudoTerminal line(port);
        FAIL() << "a folder was made";
    } catch (const std::runtime_error& fault) {
        EXPECT_EQ(fault.what(), port + ": No such file or directory");
    }
}
