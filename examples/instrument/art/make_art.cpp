// Draws every picture of the example instrument: make_art DIR writes below DIR/app/bin/resource.

#include "Icons.h"
#include "Palette.h"
#include "Shapes.h"

#include <QDir>
#include <QPainter>
#include <QPainterPath>
#include <QString>

#include <cstdio>
#include <cstring>

using namespace art;

namespace {

/// Writes pictures into one resource directory and remembers whether all went well.
class Album
{
public:
    explicit Album(const QString& strDir)
        : m_strDir(strDir)
    {
    }

    void add(const char* pszName, const QImage& image)
    {
        const QString strPath = m_strDir + QLatin1Char('/') + QString::fromLatin1(pszName);
        const int nSmallest = 0; // quality of a PNG is the opposite of compression
        if (image.save(strPath, "PNG", nSmallest))
            return;
        std::fprintf(stderr, "make_art: cannot write %s\n", qPrintable(strPath));
        m_bComplete = false;
    }

    bool isComplete() const { return m_bComplete; }

private:
    QString m_strDir;
    bool m_bComplete = true;
};

struct Channel
{
    const char* pszBadge;
    const char* pszRing;
    QPainterPath icon;
    QColor color;
};

const int ringSize = 208;
const int ringPen = 16;

/// The rectangle of a gauge's middle line. The outermost pixel stays free: a pie box never masks
/// it.
QRectF ringLine(const QPointF& topLeft)
{
    const qreal dInset = ringPen / 2.0 + 2;
    return QRectF(topLeft, QSizeF(ringSize, ringSize)).adjusted(dInset, dInset, -dInset, -dInset);
}

QImage ring(const QColor& color)
{
    QImage image = emptyPicture(QSize(ringSize, ringSize));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QConicalGradient gradient(ringSize / 2.0, ringSize / 2.0, 90);
    gradient.setColorAt(0, color.lighter(120));
    gradient.setColorAt(1, color.darker(160));
    painter.setPen(QPen(gradient, ringPen));
    painter.drawEllipse(ringLine(QPointF(0, 0)));
    return image;
}

QImage chart()
{
    QImage image = emptyPicture(QSize(416, 200));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawWell(painter, image.rect(), 8);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(line);
    for (int y = 25; y < 200; y += 50)
        painter.drawLine(8, y, 407, y);
    return image;
}

QImage tile(const QSize& size, qreal dRadius, State state, const QColor& accent = blue)
{
    QImage image = emptyPicture(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTile(painter, image.rect(), dRadius, state, accent);
    return image;
}

/// A tile with a drawing, in a grey that fits the state.
QImage iconTile(const QSize& size, qreal dRadius, State state, const QPainterPath& icon,
                const QRectF& place, const QColor& color)
{
    QImage image = tile(size, dRadius, state);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(state == State::Dim ? 0.4 : 1);
    drawIcon(painter, icon, place, color, 4);
    return image;
}

void addStates(Album& album)
{
    const QSize big(368, 144);
    const QRectF corner(320, 56, 32, 32);
    album.add("tile_up.png", iconTile(big, 16, State::Up, chevron(), corner, quiet));
    album.add("tile_down.png", iconTile(big, 16, State::Down, chevron(), corner, white));
    album.add("tile_dim.png", iconTile(big, 16, State::Dim, chevron(), corner, quiet));

    const QSize wide(208, 56);
    album.add("wide_up.png", tile(wide, 12, State::Up));
    album.add("wide_down.png", tile(wide, 12, State::Down));
    album.add("wide_dim.png", tile(wide, 12, State::Dim));
    album.add("wide_on.png", tile(wide, 12, State::On));

    const QSize square(56, 56);
    album.add("square_up.png", tile(square, 12, State::Up));
    album.add("square_down.png", tile(square, 12, State::Down));
    album.add("square_dim.png", tile(square, 12, State::Dim));

    const QSize back(64, 40);
    const QRectF middle(18, 6, 28, 28);
    album.add("back_up.png", iconTile(back, 10, State::Up, arrowBack(), middle, white));
    album.add("back_down.png", iconTile(back, 10, State::Down, arrowBack(), middle, blue));
    album.add("back_dim.png", iconTile(back, 10, State::Dim, arrowBack(), middle, white));

    const QSize channel(176, 104);
    album.add("channel_up.png", tile(channel, 12, State::Up));
    album.add("channel_down.png", tile(channel, 12, State::Down));
    album.add("channel_dim.png", tile(channel, 12, State::Dim));
    album.add("channel_on.png", tile(channel, 12, State::On));
}

void addIcons(Album& album)
{
    album.add("icon_measure.png", badge(drop(), 80, teal));
    album.add("icon_results.png", badge(results(), 80, blue));
    album.add("icon_settings.png", badge(sliders(), 80, violet));
    album.add("icon_language.png", badge(bubbleLatin(), 80, amber));

    const Channel channels[] = {{"channel_ph.png", "ring_ph.png", flask(), violet},
                                {"channel_cond.png", "ring_cond.png", bolt(), amber},
                                {"channel_oxygen.png", "ring_oxygen.png", oxygen(), teal},
                                {"channel_temp.png", "ring_temp.png", thermometer(), coral}};
    for (const Channel& channel : channels) {
        album.add(channel.pszBadge, badge(channel.icon, 40, channel.color));
        album.add(channel.pszRing, ring(channel.color));
    }
    album.add("chart.png", chart());
}

QImage homePage()
{
    QImage image = page();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient water(0, 12, 0, 44);
    water.setColorAt(0, blue.lighter(115));
    water.setColorAt(1, teal);
    painter.translate(20, 10);
    painter.scale(0.75, 0.75);
    painter.fillPath(dropShape(), water);
    painter.resetTransform();
    drawPanel(painter, QRectF(24, 392, 752, 72), 16);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int x = 212; x < 700; x += 188)
        painter.fillRect(x, 408, 1, 40, edge);
    return image;
}

QImage measurePage()
{
    QImage image = page();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPanel(painter, QRectF(24, 72, 272, 272), 16);
    drawPanel(painter, QRectF(312, 72, 464, 272), 16);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(well, ringPen));
    painter.drawEllipse(ringLine(QPointF(56, 104)));
    return image;
}

QImage resultsPage()
{
    QImage image = page();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPanel(painter, QRectF(24, 72, 536, 392), 16);
    drawPanel(painter, QRectF(576, 72, 200, 392), 16);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(25, 119, 534, 1, edge);
    for (int y = 168; y < 440; y += 40)
        painter.fillRect(40, y, 504, 1, line);
    return image;
}

QImage settingsPage()
{
    QImage image = page();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPanel(painter, QRectF(24, 72, 464, 392), 16);
    drawPanel(painter, QRectF(504, 72, 272, 392), 16);
    return image;
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
    QDir().mkpath(strResource + QStringLiteral("img"));
    QDir().mkpath(strResource + QStringLiteral("kr/img"));

    Album common(strResource + QStringLiteral("img"));
    common.add("page_home.png", homePage());
    common.add("page_measure.png", measurePage());
    common.add("page_results.png", resultsPage());
    common.add("page_settings.png", settingsPage());
    addStates(common);
    addIcons(common);

    Album korean(strResource + QStringLiteral("kr/img"));
    korean.add("icon_language.png", badge(bubbleKorean(), 80, amber));
    return common.isComplete() && korean.isComplete() ? 0 : 1;
}
