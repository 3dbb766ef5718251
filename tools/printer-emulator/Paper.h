#pragma once

#include <QImage>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace PrinterEmulator {

/** Dots across the paper. */
constexpr int paperWidth = 384;

/** Rows of dots that the print head makes at once. */
constexpr int headRows = 24;

/** The paper that has come out: rows of dots that grow downward. */
class Paper
{
public:
    /** Feed of a line after the printer was initialised, in dots. */
    static constexpr int defaultSpacing = 30;

    void setLineSpacing(int dots) { m_spacing = dots; }

    /**
     * Prints columns of three bytes each from where the line stands; the highest bit is the upper
     * dot. What lies right of the paper is lost.
     */
    void printColumns(const std::vector<std::uint8_t>& columns);

    /** To the start of the next line. */
    void feedLine();

    /** To the start of this line. */
    void returnCarriage() { m_column = 0; }

    /** Rows that have been printed on or fed. */
    int rows() const { return static_cast<int>(m_dots.size()) / paperWidth; }

    bool hasDot(int x, int y) const;

    /** Black dots on white, as wide as the paper; at least one row high. */
    QImage picture() const;

private:
    void growTo(int rows);
    void printColumn(const std::uint8_t* bytes);

    std::vector<std::uint8_t> m_dots; // one byte for each dot, row by row
    int m_spacing = defaultSpacing;
    int m_top = 0; // of the line, in rows
    int m_column = 0;
};

} // namespace PrinterEmulator
