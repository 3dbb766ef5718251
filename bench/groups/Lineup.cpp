#include "groups/Lineup.h"

#include <QString>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace bench {

namespace {

constexpr int channelTolerance = 24; // of 255

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

Lineup::Lineup(const Site& site, const std::vector<std::string>& keys)
{
    for (const Maker& maker : makers()) {
        if (!keys.empty() && std::find(keys.begin(), keys.end(), maker.key) == keys.end())
            continue;
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

QImage Lineup::paintedPicture(Candidate& candidate, const std::string& page,
                              const Likeness& likeness) const
{
    candidate.activate();
    candidate.expectPaint();
    candidate.load(page);
    bool painted = candidate.waitPainted();
    if (likeness.change) {
        candidate.expectPaint();
        likeness.change(candidate);
        painted = candidate.waitPainted();
        settle();
    }
    const QImage picture = painted ? candidate.picture() : QImage();
    candidate.unload();
    return picture.convertToFormat(QImage::Format_RGB32);
}

void Lineup::comparePictures(Table& table, const std::string& page, const std::string& directory,
                             const Likeness& likeness)
{
    QImage floor;
    for (Entry& entry : m_entries) {
        const QImage picture = paintedPicture(*entry.pCandidate, page, likeness);
        if (!directory.empty())
            picture.save(QString::fromStdString(directory + "/" + page + "-" + entry.key + ".png"));
        if (picture.isNull()) {
            table.fault(entry.name + " painted no picture of " + page);
            continue;
        }
        if (floor.isNull()) {
            floor = picture;
            QImage black(800, 480, QImage::Format_RGB32);
            black.fill(Qt::black);
            if (difference(floor, black) < likeness.inkAtLeast)
                table.fault(entry.name + " painted hardly anything");
            continue;
        }
        const double share = difference(picture, floor);
        if (share > likeness.mayDiffer)
            table.fault(entry.name + " painted another picture of " + page + ": " +
                        fixed(100 * share, 1) + " % of the pixels differ");
    }
}

Course loadCourse(const std::string& name, Candidate& candidate, const std::string& page)
{
    return {name, [&candidate, page](Watch& watch) {
                candidate.activate();
                candidate.expectPaint();
                watch.start();
                candidate.load(page);
                watch.lap();
                candidate.waitPainted();
                watch.lap();
                candidate.unload();
            }};
}

Course changeCourse(const std::string& name, Candidate& candidate,
                    const std::function<void(Candidate&)>& change)
{
    return {name, [&candidate, change](Watch& watch) {
                candidate.activate();
                candidate.expectPaint();
                watch.start();
                change(candidate);
                candidate.waitPainted();
                watch.lap();
                settle();
            }};
}

void measureLoad(Run& run, Lineup& lineup, const LoadedPage& page, const Plan& plan)
{
    lineup.comparePictures(run.table, page.name, run.pictures, page.likeness);
    std::vector<Course> courses;
    for (Lineup::Entry& entry : lineup.entries())
        courses.push_back(loadCourse(entry.name, *entry.pCandidate, page.name));
    alternate(courses, plan);
    run.table.group(page.title + ", live: opened, parsed, built, shown");
    ratioRows(run.table, courses, 0, page.live);
    run.table.group(page.title + ", painted: live and the first paint");
    ratioRows(run.table, courses, 1, page.painted);
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
