#include "groups/Lineup.h"

#include <QString>

#include <cstdlib>
#include <stdexcept>

namespace bench {

namespace {

constexpr int channelTolerance = 24;    // of 255
constexpr double pixelTolerance = 0.02; // share of pixels that may differ by more: text edges
constexpr double inkAtLeast = 0.2;      // share of pixels that the floor must have painted

int channelDifference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

// share of pixels that differ; 1 for pictures of different size
double difference(const QImage& a, const QImage& b)
{
    if (a.isNull() || a.size() != b.size())
        return 1;
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += channelDifference(a.pixel(x, y), b.pixel(x, y)) > channelTolerance ? 1 : 0;
    }
    return static_cast<double>(count) / (a.width() * a.height());
}

} // namespace

Lineup::Lineup(const Site& site)
{
    for (const Maker& maker : makers()) {
        m_entries.push_back({maker.key, maker.name, maker.make(site)});
        m_entries.back().pCandidate->open();
    }
}

Candidate& Lineup::candidate(const std::string& key)
{
    for (Entry& entry : m_entries) {
        if (entry.key == key)
            return *entry.pCandidate;
    }
    throw std::runtime_error("no candidate " + key);
}

QImage Lineup::paintedPicture(Candidate& candidate, const std::string& page) const
{
    candidate.activate();
    candidate.expectPaint();
    candidate.load(page);
    const QImage picture = candidate.waitPainted() ? candidate.picture() : QImage();
    candidate.unload();
    return picture.convertToFormat(QImage::Format_RGB32);
}

void Lineup::comparePictures(Table& table, const std::string& page, const std::string& directory)
{
    QImage floor;
    for (Entry& entry : m_entries) {
        const QImage picture = paintedPicture(*entry.pCandidate, page);
        if (!directory.empty())
            picture.save(QString::fromStdString(directory + "/" + page + "-" + entry.key + ".png"));
        if (floor.isNull()) {
            floor = picture;
            QImage black(800, 480, QImage::Format_RGB32);
            black.fill(Qt::black);
            if (difference(floor, black) < inkAtLeast)
                table.fault(entry.name + " painted hardly anything");
            continue;
        }
        const double share = difference(picture, floor);
        if (share > pixelTolerance)
            table.fault(entry.name + " painted another picture of " + page + ": " +
                        fixed(100 * share, 1) + " % of the pixels differ");
    }
}

void ratioRows(Table& table, const std::vector<Course>& courses, std::size_t lap, Goal goal)
{
    const double floor = courses.front().laps[lap].median();
    for (const Course& course : courses) {
        const double median = course.laps[lap].median();
        table.ratio(course.name, milliseconds(median), median / floor,
                    course.name == "QTPANFx" ? goal : Goal{});
    }
}

} // namespace bench
