#include "Comparison.h"

#include <QFont>
#include <QPainter>
#include <QString>

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace gallery {

namespace {

constexpr int visible = 24;    // of 255, in one channel
constexpr int mostAtEdges = 8; // pixels

// those of the style file of the example instrument
const char* const families[] = {"DejaVu Sans", "NanumGothic", "WenQuanYi Micro Hei"};
constexpr int pointSize = 16;
constexpr int lineHeight = 32; // pixels
constexpr int lineWidth = 400; // pixels

bool differ(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))}) > visible;
}

} // namespace

int pixelsOff(const QImage& one, const QImage& other)
{
    if (one.size() != other.size())
        return std::max(one.width() * one.height(), other.width() * other.height());
    int off = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            off += differ(one.pixel(x, y), other.pixel(x, y)) ? 1 : 0;
    }
    return off;
}

bool looksOtherwise(const QImage& one, const QImage& other)
{
    return pixelsOff(one, other) > mostAtEdges;
}

QImage fontSample()
{
    const QString text = QStringLiteral("Chlorine 0.52 mg/l \u00e9 \ud55c\uae00 \u4e2d\u6587");
    constexpr int lines = 2 * static_cast<int>(std::size(families));
    QImage sample(lineWidth, lines * lineHeight, QImage::Format_RGB32);
    sample.fill(Qt::white);
    QPainter painter(&sample);
    QRect line(0, 0, lineWidth, lineHeight);
    for (const char* family : families) {
        for (const QFont::Weight weight : {QFont::Normal, QFont::Bold}) {
            painter.setFont(QFont(QString::fromLatin1(family), pointSize, weight));
            painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, text);
            line.translate(0, lineHeight);
        }
    }
    return sample;
}

} // namespace gallery
