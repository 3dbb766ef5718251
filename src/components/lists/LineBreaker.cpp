#include "components/lists/LineBreaker.h"

#include <algorithm>

namespace PANFx::Components {

namespace {

constexpr int chineseUnit = 2; // characters
constexpr std::size_t pageLetters = 256;

/** Whether a cut there leaves the first half of a character that takes two QChars. */
bool endsInHalf(const QString& strText, int nTo)
{
    return nTo > 0 && strText.at(nTo - 1).isHighSurrogate();
}

} // namespace

LineBreaker::LineBreaker(const QFont& font, bool bChinese)
    : m_metrics(font)
    , m_exactMetrics(font)
    , m_bChinese(bChinese)
{
}

QStringList LineBreaker::linesOf(const QString& strParagraph, int nFirstWidth, int nWidth)
{
    findUnits(strParagraph);
    addUpAdvances(strParagraph);
    const QString separator = m_bChinese ? QString() : QStringLiteral(" ");
    QStringList lines;
    int from = 0;
    std::size_t next = 0; // the line's own first unit need not fit, but that of the paragraph must
    for (int width = nFirstWidth;; width = nWidth) {
        const std::size_t behind = firstBehindLine(strParagraph, from, next, width);
        if (behind == 0) {
            lines.append(QString());
        } else {
            const int to = m_units[behind - 1].to;
            lines.append(strParagraph.mid(from, to - from) + separator);
        }
        if (behind == m_units.size())
            return lines;
        const Unit& unit = m_units[behind];
        const bool blank = unit.to > unit.from && strParagraph.at(unit.from) == QLatin1Char(' ');
        from = unit.from + (blank ? 1 : 0);
        next = behind + 1;
    }
}

void LineBreaker::findUnits(const QString& strParagraph)
{
    const int size = static_cast<int>(strParagraph.size());
    m_units.clear();
    int from = 0;
    if (m_bChinese) {
        from = static_cast<int>(strParagraph.indexOf(QLatin1Char(' '))) + 1;
        m_units.push_back({0, from});
        for (; from < size; from += chineseUnit)
            m_units.push_back({from, std::min(from + chineseUnit, size)});
        return;
    }
    for (int i = 0; i < size; ++i) {
        if (strParagraph.at(i) != QLatin1Char(' '))
            continue;
        m_units.push_back({from, i});
        from = i + 1;
    }
    m_units.push_back({from, size});
}

void LineBreaker::addUpAdvances(const QString& strParagraph)
{
    m_advances.assign(1, 0.0F);
    for (const QChar letter : strParagraph)
        m_advances.push_back(m_advances.back() + advanceOf(letter));
}

float LineBreaker::advanceOf(QChar letter)
{
    std::vector<float>& page = m_letters[letter.row()];
    if (page.empty())
        page.assign(pageLetters, -1.0F); // not measured yet
    float& advance = page[letter.cell()];
    if (advance < 0)
        advance = std::max(static_cast<float>(m_exactMetrics.horizontalAdvance(letter)), 0.0F);
    return advance;
}

// To measure a line for each further word would cost many times what shaping the text costs. What
// the letters take one by one is near what the line takes, so it tells where to begin; but only the
// line as a whole decides. More text never takes less room, but for a character that is cut in two:
// half of it is drawn as a box. From there on unit after unit is measured.
std::size_t LineBreaker::firstBehindLine(const QString& strParagraph, int nFrom, std::size_t nNext,
                                         int nWidth) const
{
    const auto fits = [&](std::size_t unit) {
        return m_metrics.horizontalAdvance(strParagraph.mid(nFrom, m_units[unit].to - nFrom)) <=
               nWidth;
    };
    const float end = advanceTo(nFrom) + static_cast<float>(nWidth);
    std::size_t unit = nNext;
    while (unit < m_units.size() && advanceTo(m_units[unit].to) <= end &&
           !endsInHalf(strParagraph, m_units[unit].to))
        ++unit;
    const std::size_t guess = unit;
    while (unit < m_units.size() && fits(unit))
        ++unit;
    if (unit > guess)
        return unit;
    while (unit > nNext && !fits(unit - 1))
        --unit;
    return unit;
}

} // namespace PANFx::Components
