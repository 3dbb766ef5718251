#pragma once

#include "common/Export.h"

#include <QFontMetrics>
#include <QStringList>

#include <array>
#include <cstddef>
#include <vector>

namespace PANFx::Components {

/**
 * Breaks paragraphs into lines of a width. A paragraph can be broken between words; in Chinese,
 * which has no blanks, behind the first blank and then behind each two characters. A line takes
 * what fits, and what is too long for a line isn't cut.
 *
 * Taken for granted is that more text never takes less room. That holds for the scripts of the
 * instrument's languages, and characters of two QChars, which a cut in Chinese may halve, are seen
 * to; a joined emoji that is cut in two may take more room than the whole one, and a line may then
 * end elsewhere than by measuring unit after unit.
 */
class QTPANFX_EXPORT LineBreaker
{
public:
    /** @param bChinese whether to break as in Chinese */
    LineBreaker(const QFont& font, bool bChinese);

    /**
     * @param nFirstWidth pixels for the first line
     * @param nWidth pixels for the others
     * @return at least one line; each ends in a blank, except in Chinese
     */
    QStringList linesOf(const QString& strParagraph, int nFirstWidth, int nWidth);

private:
    struct Unit
    {
        int from;
        int to;
    };

    void findUnits(const QString& strParagraph);
    void addUpAdvances(const QString& strParagraph);
    float advanceOf(QChar letter);
    float advanceTo(int nLetter) const { return m_advances[static_cast<std::size_t>(nLetter)]; }
    std::size_t firstBehindLine(const QString& strParagraph, int nFrom, std::size_t nNext,
                                int nWidth) const;

    QFontMetrics m_metrics;
    QFontMetricsF m_exactMetrics;
    bool m_bChinese;
    /// advance of each letter on its own, 256 to a page; a page that has had no letter is empty
    std::array<std::vector<float>, 256> m_letters;
    std::vector<Unit> m_units;     ///< of the paragraph
    std::vector<float> m_advances; ///< of the letters before each letter
};

} // namespace PANFx::Components
