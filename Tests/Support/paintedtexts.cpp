#include "paintedtexts.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QWidget>

namespace {

/// Notes texts and draws nothing.
class TextEngine : public QPaintEngine {
public:
    TextEngine()
        : QPaintEngine(AllFeatures)
    {
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override { }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
    void drawPath(const QPainterPath &) override { }
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override { }
    void drawTextItem(const QPointF &, const QTextItem &item) override { texts.append(item.text()); }
    Type type() const override { return User; }

    QStringList texts;
};

class TextDevice : public QPaintDevice {
public:
    explicit TextDevice(const QSize &givenSize)
        : size(givenSize)
    {
    }

    QPaintEngine *paintEngine() const override { return &engine; }
    const QStringList &texts() const { return engine.texts; }

protected:
    int metric(PaintDeviceMetric wanted) const override
    {
        constexpr int dotsPerInch = 96;
        switch (wanted) {
        case PdmWidth:
            return size.width();
        case PdmHeight:
            return size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dotsPerInch;
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(wanted);
        }
    }

private:
    QSize size;
    mutable TextEngine engine;
};

} // namespace

QStringList paintedTexts(QWidget &widget)
{
    TextDevice device(widget.size());
    widget.render(&device, QPoint(), QRegion(), QWidget::DrawChildren);
    return device.texts();
}
