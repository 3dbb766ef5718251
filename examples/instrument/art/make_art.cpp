// Draws every picture of the example instrument: make_art DIR writes below DIR/app/bin/resource.

#include "Album.h"
#include "Buttons.h"
#include "Gauges.h"
#include "Icons.h"
#include "Keys.h"
#include "Lists.h"
#include "Pages.h"
#include "Palette.h"
#include "Shapes.h"

#include <QPainter>
#include <QPainterPath>
#include <QString>

#include <cstdio>
#include <cstring>

using namespace art;

namespace {

/// A badge with the margin that brings it to its place in a row: a row puts its icon at the edge.
QImage rowIcon(const QPainterPath& icon, const QColor& color)
{
    QImage image = emptyPicture(QSize(56, 56));
    QPainter painter(&image);
    painter.drawImage(9, 7, badge(icon, 40, color));
    return image;
}

/// A quiet drawing beside a caption.
QImage plainIcon(const QPainterPath& icon)
{
    QImage image = emptyPicture(QSize(24, 24));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawIcon(painter, icon, image.rect(), quiet.lighter(125), 3.6);
    return image;
}

void addIcons(Album& album)
{
    album.add("channel_ph", badge(flask(), 40, violet));
    album.add("channel_cond", badge(bolt(), 40, amber));
    album.add("channel_oxygen", badge(oxygen(), 40, teal));
    album.add("channel_temp", badge(thermometer(), 40, coral));
    album.add("icon_tag", plainIcon(tag()));
    album.add("icon_barcode", plainIcon(barcode()));
    album.add("row_alarm", rowIcon(bell(), coral));
    album.add("row_stirrer", rowIcon(stirrer(), teal));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2 || std::strcmp(argv[1], "--help") == 0) {
        std::puts("usage: make_art ROOTFS");
        return argc == 2 ? 0 : 2;
    }
    const QString strResource =
        QString::fromLocal8Bit(argv[1]) + QStringLiteral("/app/bin/resource/");

    Album common(strResource + QStringLiteral("img"));
    addPages(common);
    addRings(common);
    addButtons(common);
    addFields(common);
    addKeys(common);
    addGauges(common);
    addLists(common);
    addIcons(common);

    Album korean(strResource + QStringLiteral("kr/img"));
    addLanguageTile(korean, bubbleKorean());
    return common.isComplete() && korean.isComplete() ? 0 : 1;
}
