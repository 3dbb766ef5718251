#include "printer-emulator/Paper.h"

#include <algorithm>

namespace PrinterEmulator {

namespace {

std::size_t indexOf(int x, int y)
{
    return static_cast<std::size_t>(y) * paperWidth + static_cast<std::size_t>(x);
}

} // namespace

void Paper::printColumns(const std::vector<std::uint8_t>& columns)
{
    growTo(m_top + headRows);
    for (std::size_t i = 0; i + 2 < columns.size(); i += 3)
        printColumn(&columns[i]);
}

void Paper::printColumn(const std::uint8_t* bytes)
{
    for (int row = 0; row < headRows && m_column < paperWidth; ++row) {
        if (bytes[row / 8] & 0x80 >> row % 8)
            m_dots[indexOf(m_column, m_top + row)] = 1;
    }
    ++m_column;
}

void Paper::feedLine()
{
    m_top += m_spacing;
    m_column = 0;
    growTo(m_top);
}

bool Paper::hasDot(int x, int y) const
{
    return m_dots.at(indexOf(x, y)) != 0;
}

QImage Paper::picture() const
{
    QImage picture(paperWidth, std::max(rows(), 1), QImage::Format_Mono);
    picture.setColor(0, 0xFFFFFFFF);
    picture.setColor(1, 0xFF000000);
    picture.fill(0);
    for (int y = 0; y < rows(); ++y) {
        for (int x = 0; x < paperWidth; ++x) {
            if (hasDot(x, y))
                picture.setPixel(x, y, 1);
        }
    }
    return picture;
}

void Paper::growTo(int rows)
{
    const auto size = static_cast<std::size_t>(rows) * paperWidth;
    m_dots.resize(std::max(m_dots.size(), size), 0);
}

} // namespace PrinterEmulator
