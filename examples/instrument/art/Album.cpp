#include "Album.h"

#include <QDir>

#include <cstdio>

namespace art {

Album::Album(const QString& strDir)
    : m_strDir(strDir)
{
    m_bComplete = QDir().mkpath(strDir);
}

void Album::add(const std::string& strName, const QImage& image)
{
    const QString strPath =
        m_strDir + QLatin1Char('/') + QString::fromStdString(strName) + QLatin1String(".png");
    const int nSmallest = 0; // quality of a PNG is the opposite of compression
    if (image.save(strPath, "PNG", nSmallest))
        return;
    std::fprintf(stderr, "make_art: cannot write %s\n", qPrintable(strPath));
    m_bComplete = false;
}

} // namespace art
