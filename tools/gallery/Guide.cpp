#include "Guide.h"

#include "Scenes.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <stdexcept>

namespace gallery {

namespace {

constexpr int pageWidth = 860; // pixels, what a row of pictures may take
constexpr int indent = 4;      // of a group in a layout file

const char* const introduction =
    "# Gallery\n"
    "\n"
    "Every component of a layout file in its states, with the layout that makes it.\n"
    "`./panel gallery` writes this page and its pictures from `tools/gallery/`; edit the layouts\n"
    "there. What each name means stands in [layout-reference.md](layout-reference.md).\n"
    "\n"
    "The pictures, styles and fonts are those of the example instrument. What no layout says, "
    "such\n"
    "as the text of a field or the checked box of a row, an application has set.\n"
    "[A sample of the fonts](images/gallery/fonts.png) lies beside the pictures: where it comes\n"
    "out alike, a test compares their look.\n";

QStringList linesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
}

// the comment in the second line of a layout file
QString sentence(const QStringList& layout)
{
    const QString& line = layout.value(1);
    return line.mid(5, line.size() - 9);
}

// what stands between <Components> and </Components> of the page, which are indented by two
QStringList groups(const QStringList& layout)
{
    const auto first = layout.indexOf(QStringLiteral("  <Components>")) + 1;
    const auto last = layout.indexOf(QStringLiteral("  </Components>"));
    QStringList lines;
    for (auto i = first; i < last; ++i)
        lines.append(layout.at(i).mid(indent));
    return lines;
}

QString row(const QStringList& cells)
{
    return QStringLiteral("| ") + cells.join(QStringLiteral(" | ")) + QStringLiteral(" |\n");
}

QString table(const QStringList& states, const QStringList& pictures)
{
    QStringList rule;
    for (int i = 0; i < states.size(); ++i)
        rule.append(QStringLiteral("---"));
    return QLatin1Char('\n') + row(states) + row(rule) + row(pictures);
}

// How many pictures stand side by side: as many in each row as in the others, where that goes up.
int picturesInARow(const Exhibit& exhibit, const PictureSizes& sizes)
{
    int width = 0;
    for (const Scene& scene : exhibit.scenes)
        width += sizes.at(pictureName(exhibit.keyword, scene.state)).width();
    const int rows = std::max((width + pageWidth - 1) / pageWidth, 1);
    return (static_cast<int>(exhibit.scenes.size()) + rows - 1) / rows;
}

QString pictureTables(const Exhibit& exhibit, const PictureSizes& sizes)
{
    const QString keyword = QString::fromStdString(exhibit.keyword);
    const int inARow = picturesInARow(exhibit, sizes);
    QString text;
    QStringList states;
    QStringList pictures;
    for (const Scene& scene : exhibit.scenes) {
        if (states.size() == inARow) {
            text += table(states, pictures);
            states.clear();
            pictures.clear();
        }
        const QString state = QString::fromStdString(scene.state);
        states.append(state);
        pictures.append(QStringLiteral("![%1, %2](images/gallery/%3)")
                            .arg(keyword, state, pictureName(exhibit.keyword, scene.state)));
    }
    return text + table(states, pictures);
}

QString section(const Exhibit& exhibit, const QString& layouts, const PictureSizes& sizes)
{
    const QString keyword = QString::fromStdString(exhibit.keyword);
    const QStringList layout = linesOf(layouts + keyword + QStringLiteral(".resource"));
    QString text;
    QTextStream out(&text);
    out << "\n### `" << keyword << "`\n\n"
        << sentence(layout) << " [Reference](layout-reference.md#" << keyword.toLower() << ")\n"
        << pictureTables(exhibit, sizes) << "\n```xml\n"
        << groups(layout).join(QLatin1Char('\n')) << "\n```\n";
    return text;
}

} // namespace

QString pictureName(const std::string& strKeyword, const std::string& strState)
{
    QString name = QString::fromStdString(strKeyword + "-" + strState);
    name.remove(QLatin1Char(','));
    name.replace(QLatin1Char(' '), QLatin1Char('-'));
    return name + QStringLiteral(".png");
}

QString guide(const QString& layouts, const std::vector<Room>& rooms, const PictureSizes& sizes)
{
    QString text = QString::fromUtf8(introduction);
    for (const Room& room : rooms) {
        text += QStringLiteral("\n## %1\n").arg(QString::fromStdString(room.name));
        for (const Exhibit& exhibit : room.exhibits)
            text += section(exhibit, layouts, sizes);
    }
    return text;
}

} // namespace gallery
