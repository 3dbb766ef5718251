// The gallery of components: gallery DOCS writes DOCS/gallery.md and DOCS/images/gallery/;
// gallery --check DOCS tells whether they are what it would write. Fonts differ from machine to
// machine: where these aren't those of the pictures, it compares only their sizes, says so, and
// ends with 77 when all else is well.

#include "Book.h"

#include <QApplication>

#include <cstdio>
#include <exception>

namespace {

using gallery::Book;

constexpr int otherFonts = 77;

int report(const Book& book, bool bLooks)
{
    for (const QString& fault : book.faults())
        std::fprintf(stderr, "gallery: %s\n", fault.toUtf8().constData());
    if (!book.faults().isEmpty())
        return 1;
    if (bLooks)
        return 0;
    std::puts("gallery: other fonts than those of the pictures; only sizes are compared");
    return otherFonts;
}

int run(const QString& docs, bool bCheck)
{
    Book book(docs);
    if (bCheck)
        return report(book, book.check());
    book.write();
    return report(book, true);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QTPANFX_SYSROOT", GALLERY_ROOTFS);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "72"); // as on the instrument: a point is a pixel
    const QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const bool checking = arguments.removeOne(QStringLiteral("--check"));
    if (arguments.size() != 1) {
        std::fputs("usage: gallery [--check] DOCS\n", stderr);
        return 2;
    }
    try {
        return run(arguments.first(), checking);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "gallery: %s\n", exception.what());
        return 1;
    }
}
