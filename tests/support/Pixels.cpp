#include "support/Pixels.h"

#include "support/EventLoop.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

namespace PANFx::Testing::Pixels {

namespace {

// calls action(x, y) for each pixel of another colour than the background
template <typename Action>
void forEachInk(const QImage& image, const QColor& background, Action action)
{
    const QRgb empty = background.rgb();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != empty)
                action(x, y);
        }
    }
}

std::string named(QRgb colour)
{
    return QColor::fromRgba(colour).name(QColor::HexArgb).toStdString();
}

} // namespace

const QColor untouched(1, 254, 3);

QImage grab(QWidget* widget, const QColor& background)
{
    QImage image = canvas(widget->size(), background);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QImage canvas(const QSize& size, const QColor& background)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(background);
    return image;
}

::testing::AssertionResult same(const QImage& actual, const QImage& expected)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure()
               << "size " << actual.width() << "x" << actual.height() << ", expected "
               << expected.width() << "x" << expected.height();
    int different = 0;
    QPoint first;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            if (actual.pixel(x, y) == expected.pixel(x, y))
                continue;
            if (different++ == 0)
                first = QPoint(x, y);
        }
    }
    if (different == 0)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << different << " pixels differ, the first at " << first.x() << "," << first.y() << ": "
           << named(actual.pixel(first)) << ", expected " << named(expected.pixel(first));
}

QColor at(const QImage& image, int x, int y)
{
    if (!image.valid(x, y)) {
        ADD_FAILURE() << "no pixel at " << x << "," << y << " in an image of " << image.width()
                      << "x" << image.height();
        return QColor();
    }
    return image.pixelColor(x, y);
}

int count(const QImage& image, const QColor& colour)
{
    return count(image, colour, image.rect());
}

int count(const QImage& image, const QColor& colour, const QRect& inside)
{
    const QRect part = inside & image.rect();
    int found = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            found += image.pixel(x, y) == colour.rgb() ? 1 : 0;
    }
    return found;
}

int inkInside(const QImage& image, const QRect& rectangle, const QColor& background)
{
    int found = 0;
    forEachInk(image, background, [&](int x, int y) { found += rectangle.contains(x, y) ? 1 : 0; });
    return found;
}

int inkOutside(const QImage& image, const QRect& rectangle, const QColor& background)
{
    int found = 0;
    forEachInk(image, background, [&](int x, int y) { found += rectangle.contains(x, y) ? 0 : 1; });
    return found;
}

QRect inkBox(const QImage& image, const QColor& background)
{
    QRect box;
    forEachInk(image, background, [&](int x, int y) { box |= QRect(x, y, 1, 1); });
    return box;
}

} // namespace PANFx::Testing::Pixels

namespace PANFx::Testing {

PaintCounter::PaintCounter(QWidget* widget)
{
    EventLoop::deliver();
    widget->installEventFilter(this);
}

int PaintCounter::area() const
{
    int pixels = 0;
    for (const QRect& part : m_region)
        pixels += part.width() * part.height();
    return pixels;
}

void PaintCounter::reset()
{
    EventLoop::deliver();
    m_count = 0;
    m_region = QRegion();
}

bool PaintCounter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        ++m_count;
        m_region += static_cast<QPaintEvent*>(event)->region();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace PANFx::Testing
