// A report as dots for the printer, beside the same texts drawn by hand.

#include "Harness.h"
#include "Process.h"
#include "groups/Groups.h"
#include "groups/Lineup.h"

#include "print/PrintDots.h"
#include "print/ReportImage.h"

#include <QFont>
#include <QPainter>
#include <QStringList>

#include <cstdlib>
#include <map>

namespace bench {

namespace {

using namespace PANFx::Print;

constexpr int reportLines = 40;
constexpr Goal reportGoal{1.5};
constexpr int darkest = 181; // the first gray that stays white
constexpr double dotTolerance = 0.02;

std::string repeated(const std::vector<std::string>& lines)
{
    std::string text;
    for (std::size_t i = 0; i < reportLines; ++i)
        text += lines[i % lines.size()] + "\n";
    return text;
}

// each byte of the UTF-8 text is a letter, as printImageString hands it over
QStringList linesOf(const std::string& text)
{
    return QString::fromLatin1(text.c_str()).split(QLatin1Char('\n'));
}

/** All dots of an image in bands, column by column. */
using Bands = std::vector<unsigned char>;

Bands libraryBands(const std::string& text)
{
    const QImage dots = dotsOf(drawReport(linesOf(text), paperWidth, 0));
    const int count = dots.height() / bandRows;
    Bands bands(static_cast<std::size_t>(count) * bandBytes);
    for (int band = 0; band < count; ++band)
        packBand(dots, band, &bands[static_cast<std::size_t>(band) * bandBytes]);
    return bands;
}

void drawByHand(QPainter& painter, const QString& line, int top, bool centred)
{
    const QStringList parts = line.split(QLatin1Char('|'));
    if (parts.size() == 1) {
        painter.drawText(QRect(0, top, paperWidth, lineHeight),
                         centred ? Qt::AlignCenter : Qt::AlignLeft, line);
        return;
    }
    const int lefts[] = {0, 85, 195, 300, 385};
    const int alignments[] = {Qt::AlignLeft, Qt::AlignCenter, Qt::AlignCenter, Qt::AlignRight};
    for (int i = 0; i < 4; ++i)
        painter.drawText(QRect(lefts[i], top, lefts[i + 1] - lefts[i], lineHeight), alignments[i],
                         parts.at(i));
}

// the font, the places and the threshold of the library, and nothing else
QImage paperByHand(const std::string& text)
{
    const QStringList lines = QString::fromStdString(text).split(QLatin1Char('\n'));
    QImage paper(paperWidth, static_cast<int>(lines.size()) * lineHeight, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QFont font(QStringLiteral("Droid Sans Mono"));
    font.setPixelSize(24);
    font.setStretch(85);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    QPainter painter(&paper);
    painter.setFont(font);
    for (int i = 0; i + 1 < lines.size(); ++i)
        drawByHand(painter, lines.at(i), (i + 1) * lineHeight, i < 2);
    return paper;
}

Bands handBands(const std::string& text)
{
    const QImage paper = paperByHand(text);
    const int count = paper.height() / bandRows;
    Bands bands(static_cast<std::size_t>(count) * bandBytes);
    for (int y = 0; y < count * bandRows; ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(paper.constScanLine(y));
        unsigned char* band = &bands[static_cast<std::size_t>(y / bandRows) * bandBytes];
        const int bit = 0x80 >> y % 8;
        for (int x = 0; x < paperWidth; ++x) {
            if (qGray(row[x]) < darkest)
                band[x * 3 + y % bandRows / 8] |= static_cast<unsigned char>(bit);
        }
    }
    return bands;
}

int countDots(const Bands& bands)
{
    int dots = 0;
    for (const unsigned char byte : bands)
        dots += __builtin_popcount(byte);
    return dots;
}

void measureReport(Run& run, const std::string& title, const std::vector<std::string>& lines)
{
    const std::string text = repeated(lines);
    Bands byHand;
    Bands ours;
    std::vector<Course> courses = {{"code (the floor)",
                                    [&](Watch& watch) {
                                        watch.start();
                                        byHand = handBands(text);
                                        watch.lap();
                                    }},
                                   {"QTPANFx", [&](Watch& watch) {
                                        watch.start();
                                        ours = libraryBands(text);
                                        watch.lap();
                                    }}};
    alternate(courses, run.bQuick ? Plan{4} : Plan{51});
    run.table.group("Report of 40 lines to bands of 24 dots: " + title);
    ratioRows(run.table, courses, 0, reportGoal);
    const int dots = countDots(byHand);
    if (dots < 10000 || byHand.size() != ours.size() ||
        std::abs(countDots(ours) - dots) > dots * dotTolerance)
        run.table.fault("the library made " + std::to_string(countDots(ours)) +
                        " dots, by hand there are " + std::to_string(dots));
}

void measureLine(Run& run)
{
    const EnvironmentVariable noWaits("LD_PRELOAD", besideOwnPath("qtpanfx_bench_no_waits.so"));
    std::map<std::string, double> values = figuresOf(
        runChild({ownPath(), "--site", run.site.root(), "--print", run.bQuick ? "4" : "40"}));
    if (values.size() != 3) {
        run.table.fault("the child process for printing failed");
        return;
    }
    const double bytes = values["bytes"];
    const auto row = [&](const char* name, double time) {
        run.table.ratio(name, fixed(bytes / time * 1e9 / 1e3, 0) + " kB/s", time / values["code"]);
    };
    run.table.group("Dots of that report through a pseudo-terminal, pauses left out");
    row("code, a write for each byte", values["code"]);
    row("QTPANFx, Printer_BitImage", values["ours"]);
    run.table.note("a serial line of 115200 baud takes 11.5 kB/s");
}

} // namespace

void measurePrint(Run& run)
{
    measureReport(run, "plain lines, Latin",
                  {"Sample 4711 of the morning", "Glucose 5.32 mmol/l normal",
                   "Potassium 4.10 mmol/l", "checked by the operator"});
    measureReport(run, "plain lines, Hangul",
                  {"오전에 받은 검체 번호", "포도당 수치는 정상 범위", "칼륨 농도가 조금 높음",
                   "담당자가 결과를 확인함"});
    measureReport(
        run, "four columns, Latin",
        {"GLU|5.32|mmol/l|norm", "K+|4.10|mmol/l|norm", "Na+|141|mmol/l|high", "pH|7.41|-|norm"});
    measureReport(run, "four columns, Hangul",
                  {"포도당|5.32|mmol/l|정상", "칼륨|4.10|mmol/l|정상", "나트륨|141|mmol/l|높음",
                   "산도|7.41|단위|정상"});
    measureLine(run);
}

} // namespace bench
