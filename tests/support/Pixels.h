#pragma once

#include <QColor>
#include <QImage>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QRegion>

#include <gtest/gtest.h>

class QWidget;

/** What a widget paints, as pixels that a test can look at. Colours are compared exactly. */
namespace PANFx::Testing::Pixels {

/** Marks what a widget leaves unpainted: a colour that no test picture uses. */
extern const QColor untouched;

/** The widget and its children, drawn over a background of one colour. */
QImage grab(QWidget* widget, const QColor& background = untouched);

/** An image of the same kind, for drawing what is expected. */
QImage canvas(const QSize& size, const QColor& background = untouched);

/** Whether both are of one size and the same in every pixel; tells the first that is not. */
::testing::AssertionResult same(const QImage& actual, const QImage& expected);

QColor at(const QImage& image, int x, int y);

/** How many pixels have exactly this colour, in the whole image or in a rectangle of it. */
int count(const QImage& image, const QColor& colour);
int count(const QImage& image, const QColor& colour, const QRect& inside);

/** How many pixels differ from the background, inside and outside of a rectangle. */
int inkInside(const QImage& image, const QRect& rectangle, const QColor& background = untouched);
int inkOutside(const QImage& image, const QRect& rectangle, const QColor& background = untouched);

/** The smallest rectangle that holds all that differs from the background; null for nothing. */
QRect inkBox(const QImage& image, const QColor& background = untouched);

} // namespace PANFx::Testing::Pixels

namespace PANFx::Testing {

/**
 * Counts the paint events of a widget while it lives. The widget must be visible, and the events
 * be delivered (EventLoop::deliver), for a wish to repaint to become a paint event.
 */
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget);

    int count() const { return m_count; }

    /** What was to be painted, all paint events together. */
    QRegion region() const { return m_region; }

    /** Pixels of region(). */
    int area() const;

    /** Starts at nothing again; what is still to be painted is delivered before. */
    void reset();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int m_count = 0;
    QRegion m_region;
};

} // namespace PANFx::Testing
