#include "print/ReportImage.h"

#include "print/PrintDots.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <limits>

namespace PANFx::Print {

namespace {

// Qt 5 paints nothing below row 32767 of an image: a long report is painted in pieces.
constexpr int linesOfPiece = 256;

constexpr int leftAligned = Qt::AlignLeft;
constexpr int rightAligned = Qt::AlignRight;
constexpr int centred = Qt::AlignHCenter | Qt::AlignVCenter;

// A point is a dot whatever the resolution of the screen. The size is not given in points of a
// resolution set for the image: Qt then scales letter spacing too, in whole steps, often down to 0.
QFont printFont(int points, int stretch)
{
    QFont font(QStringLiteral("Droid Sans Mono"));
    font.setPixelSize(points);
    font.setStretch(stretch);
    font.setStyleStrategy(QFont::NoSubpixelAntialias); // colours would shift the threshold
    return font;
}

struct PrintFonts
{
    QFont normal = printFont(24, 85);
    QFont fitted = printFont(24, 85); // its letter spacing changes
    QFont wide23 = printFont(23, 100);
    QFont narrow23 = printFont(23, 75);
    QFont narrower23 = printFont(23, 65);
    QFont narrowest23 = printFont(23, 55);
    QFont narrow22 = printFont(22, 70);
    QFont narrowest22 = printFont(22, 55); // no line uses it
    QFont narrow21 = printFont(21, 60);
};

// What is drawn is decoded only here; until then a letter is as many characters as it has bytes.
QString decoded(const QString& piece)
{
    return QString::fromUtf8(piece.toLatin1().constData());
}

bool startsWith(const QString& line, char mark)
{
    return line.startsWith(QLatin1Char(mark));
}

// The lines of a report from the top down. The font that a line leaves set holds for the first
// column of a five-column row behind it.
class ReportDrawing
{
public:
    ReportDrawing(QImage& paper, int width, int mode);

    void drawPiece(const QStringList& lines, int from, int to);

private:
    void drawLine(const QString& line, int number);
    void drawHeading(const QString& text);
    void drawFiveColumns(const QStringList& parts);
    void drawFourColumns(const QStringList& parts);
    void drawFitted(const QString& text, int number);
    void drawPlain(const QString& line, int number);
    void drawText(int left, int right, int alignment, const QString& text);
    void drawThenNormal(int left, int right, int alignment, const QString& text, const QFont& font);
    bool fits(const QFont& font, const QString& text) const;

    QImage& m_paper;
    const int m_width;
    const int m_mode;
    PrintFonts m_fonts;
    QFont m_font; // as the piece before left it
    QPainter m_painter;
    int m_top = 0; // of the line in its piece
};

ReportDrawing::ReportDrawing(QImage& paper, int width, int mode)
    : m_paper(paper)
    , m_width(width)
    , m_mode(mode)
    , m_font(m_fonts.normal)
{
}

void ReportDrawing::drawPiece(const QStringList& lines, int from, int to)
{
    QImage piece(m_paper.scanLine((from + 1) * lineHeight), paperWidth, (to - from) * lineHeight,
                 static_cast<int>(m_paper.bytesPerLine()), QImage::Format_RGB32);
    m_painter.begin(&piece);
    m_painter.setFont(m_font);
    for (int number = from; number < to; ++number) {
        m_top = (number - from) * lineHeight;
        drawLine(lines.at(number), number);
    }
    m_font = m_painter.font();
    m_painter.end();
}

void ReportDrawing::drawLine(const QString& line, int number)
{
    if (startsWith(line, '#')) {
        drawHeading(line.mid(1));
        return;
    }
    const QStringList parts = line.split(QLatin1Char('|'));
    if (parts.size() >= 5)
        drawFiveColumns(parts);
    else if (parts.size() == 4)
        drawFourColumns(parts);
    else if (startsWith(line, '@'))
        drawFitted(line.mid(1), number);
    else
        drawPlain(line, number);
}

void ReportDrawing::drawHeading(const QString& text)
{
    m_painter.setFont(fits(m_fonts.normal, text) ? m_fonts.normal : m_fonts.narrow23);
    drawText(0, 383, leftAligned, text);
}

void ReportDrawing::drawFiveColumns(const QStringList& parts)
{
    const auto length = [&parts](int column) { return parts.at(column).size(); };
    drawText(0, 12, leftAligned, parts.at(0));
    drawThenNormal(22, 93, leftAligned, parts.at(1),
                   length(1) > 7 ? m_fonts.narrow21 : m_painter.font());
    drawThenNormal(97, 187, centred, parts.at(2), length(2) > 7 ? m_fonts.wide23 : m_fonts.normal);
    drawThenNormal(194, 315, centred, parts.at(3),
                   length(3) >= 14   ? m_fonts.narrow21
                   : length(3) == 13 ? m_fonts.narrow22
                                     : m_fonts.narrow23);
    drawThenNormal(308, 384, rightAligned, parts.at(4),
                   length(4) >= 8   ? m_fonts.narrowest23
                   : length(4) >= 6 ? m_fonts.narrower23
                                    : m_fonts.normal);
}

void ReportDrawing::drawFourColumns(const QStringList& parts)
{
    m_painter.setFont(m_fonts.normal);
    drawText(0, 84, leftAligned, parts.at(0));
    drawText(85, 199, centred, parts.at(1));
    drawText(195, 299, centred, parts.at(2));
    drawText(300, 384, rightAligned, parts.at(3));
}

void ReportDrawing::drawFitted(const QString& text, int number)
{
    const qreal spacing = fits(m_fonts.fitted, text) ? 0 : -0.8;
    m_fonts.fitted.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    m_painter.setFont(m_fonts.fitted);
    drawText(0, 383, number == 1 ? centred : leftAligned, text);
    m_fonts.fitted.setLetterSpacing(QFont::AbsoluteSpacing, 0);
}

// Place alone decides what is centred.
void ReportDrawing::drawPlain(const QString& line, int number)
{
    const int title = m_mode == 2 ? 8 : 0;
    m_painter.setFont(m_fonts.normal);
    drawText(0, 383, number == 1 || number == title ? centred : leftAligned, line);
}

void ReportDrawing::drawText(int left, int right, int alignment, const QString& text)
{
    const QRect row(QPoint(left, m_top), QPoint(right, m_top + lineHeight - 1));
    m_painter.drawText(row, alignment, decoded(text));
}

void ReportDrawing::drawThenNormal(int left, int right, int alignment, const QString& text,
                                   const QFont& font)
{
    m_painter.setFont(font);
    drawText(left, right, alignment, text);
    m_painter.setFont(m_fonts.normal);
}

bool ReportDrawing::fits(const QFont& font, const QString& text) const
{
    const QRect bounds = QFontMetrics(font, m_painter.device()).boundingRect(text);
    return bounds.right() - bounds.left() < m_width;
}

QImage blankPaper(int lines)
{
    if (lines > std::numeric_limits<int>::max() / lineHeight)
        return QImage();
    QImage paper(paperWidth, lines * lineHeight, QImage::Format_RGB32);
    paper.fill(Qt::white);
    return paper;
}

} // namespace

QImage drawReport(const QStringList& lines, int width, int mode)
{
    const int count = static_cast<int>(lines.size());
    QImage paper = blankPaper(count);
    if (paper.isNull())
        return paper;
    ReportDrawing drawing(paper, width, mode);
    for (int from = 0; from < count - 1; from += linesOfPiece)
        drawing.drawPiece(lines, from, std::min(from + linesOfPiece, count - 1));
    return paper;
}

} // namespace PANFx::Print
