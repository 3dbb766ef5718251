#include "tour/PaintedTexts.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

namespace {

const int tolerance = 1; // pixels; a letter may begin beside its place

/// Takes texts down, and paints nothing.
class TextEngine : public QPaintEngine
{
public:
    TextEngine()
        : QPaintEngine(AllFeatures)
    {
    }

    PaintedTexts m_texts;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}

    void drawTextItem(const QPointF& place, const QTextItem& item) override
    {
        const QString strText = item.text();
        m_texts.strAll += strText;
        const QRectF text(place.x(), place.y() - item.ascent(), item.width(), item.ascent());
        const QTransform toDevice = painter()->deviceTransform();
        QRectF box = systemClip().boundingRect();
        // a text that is wider than its rectangle is clipped to it
        if (painter()->hasClipping())
            box &= toDevice.mapRect(painter()->clipBoundingRect());
        const QRectF onDevice = toDevice.mapRect(text);
        const bool bFits = onDevice.left() >= box.left() - tolerance &&
                           onDevice.right() <= box.right() + tolerance;
        if (!bFits && !strText.trimmed().isEmpty() && m_texts.strCut.isEmpty())
            m_texts.strCut = strText;
    }

    void drawRects(const QRect*, int) override {}
    void drawRects(const QRectF*, int) override {}
    void drawLines(const QLine*, int) override {}
    void drawLines(const QLineF*, int) override {}
    void drawEllipse(const QRectF&) override {}
    void drawEllipse(const QRect&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPoints(const QPointF*, int) override {}
    void drawPoints(const QPoint*, int) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawPolygon(const QPoint*, int, PolygonDrawMode) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawTiledPixmap(const QRectF&, const QPixmap&, const QPointF&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override
    {
    }
};

/// As large as a window, and with as many dots per inch: fonts come out as on it.
class TextDevice : public QPaintDevice
{
public:
    explicit TextDevice(const QWidget& window)
        : m_window(window)
    {
    }

    const PaintedTexts& texts() const { return m_engine.m_texts; }
    QPaintEngine* paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric which) const override
    {
        switch (which) {
        case PdmWidth:
            return m_window.width();
        case PdmHeight:
            return m_window.height();
        case PdmWidthMM:
            return m_window.widthMM();
        case PdmHeightMM:
            return m_window.heightMM();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return m_window.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return m_window.logicalDpiY();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0; // colours, which are of no account here
        }
    }

private:
    const QWidget& m_window;
    mutable TextEngine m_engine;
};

} // namespace

PaintedTexts paintedTexts(QWidget& window)
{
    TextDevice device(window);
    window.render(&device);
    return device.texts();
}
