#include "support/DecimalComma.h"

#include <QByteArray>
#include <QFile>
#include <QProcess>

#include <clocale>
#include <cstdio>

namespace PANFx::Testing {

namespace {

constexpr const char* searchPath = "LOCPATH";

// The tables of the C library are a package of their own, so both inputs are written here.
QByteArray localeSource()
{
    return "LC_NUMERIC\n"
           "decimal_point \",\"\n"
           "thousands_sep \".\"\n"
           "grouping 3;3\n"
           "END LC_NUMERIC\n";
}

QByteArray characterMap()
{
    QByteArray map = "<code_set_name> ANSI_X3.4-1968\n"
                     "<comment_char> %\n"
                     "<escape_char> /\n"
                     "CHARMAP\n";
    for (unsigned int code = 0; code < 128; ++code) {
        char line[32];
        std::snprintf(line, sizeof line, "<U%04X> /x%02x\n", code, code);
        map += line;
    }
    return map + "END CHARMAP\n";
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

} // namespace

DecimalComma::DecimalComma()
    : m_numbersBefore(std::setlocale(LC_NUMERIC, nullptr))
    , m_pathBefore(qgetenv(searchPath))
{
    const QString source = m_folder.filePath(QStringLiteral("comma.source"));
    const QString map = m_folder.filePath(QStringLiteral("comma.map"));
    write(source, localeSource());
    write(map, characterMap());
    QProcess make; // warns about the categories that are left out, and says so by its status
    make.setStandardErrorFile(QProcess::nullDevice());
    make.start(QStringLiteral("localedef"),
               {QStringLiteral("-c"), QStringLiteral("-f"), map, QStringLiteral("-i"), source,
                m_folder.filePath(QStringLiteral("comma"))});
    make.waitForFinished();
    qputenv(searchPath, QFile::encodeName(m_folder.path()));
    std::setlocale(LC_NUMERIC, "comma");
}

DecimalComma::~DecimalComma()
{
    std::setlocale(LC_NUMERIC, m_numbersBefore.c_str());
    if (m_pathBefore.isNull())
        qunsetenv(searchPath);
    else
        qputenv(searchPath, m_pathBefore);
}

bool DecimalComma::active() const
{
    return *std::localeconv()->decimal_point == ',';
}

} // namespace PANFx::Testing
