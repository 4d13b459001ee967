#pragma once

#include <QPaintDevice>

#include <utility>

/// Lets a test's own paint engine note what a widget paints, as on a display of `pixels` at 96 dots per inch.
template <class Engine> class EngineDevice : public QPaintDevice {
public:
    template <class... Arguments>
    explicit EngineDevice(const QSize &pixels, Arguments &&...ofEngine)
        : size(pixels)
        , engine(std::forward<Arguments>(ofEngine)...)
    {
    }

    QPaintEngine *paintEngine() const override { return &engine; }
    const Engine &noted() const { return engine; }

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
    mutable Engine engine;
};
