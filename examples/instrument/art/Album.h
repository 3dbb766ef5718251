#pragma once

#include <QImage>
#include <QString>

#include <string>

namespace art {

/// Writes pictures into one directory, which it makes, and remembers whether all went well.
class Album
{
public:
    explicit Album(const QString& strDir);

    /// Writes the picture as `strName`.png.
    void add(const std::string& strName, const QImage& image);

    bool isComplete() const { return m_bComplete; }

private:
    QString m_strDir;
    bool m_bComplete = true;
};

} // namespace art
