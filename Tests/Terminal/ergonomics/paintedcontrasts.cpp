#include "paintedcontrasts.h"

#include "contrast.h"
#include "enginedevice.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include <cmath>

namespace {

/// Draws everything but texts into a picture; for each text it records what lies under it at that moment.
class GroundEngine : public QPaintEngine {
public:
    explicit GroundEngine(QImage *givenPicture)
        : QPaintEngine(AllFeatures)
        , picture(givenPicture)
    {
    }

    bool begin(QPaintDevice *) override { return painter.begin(picture); }
    bool end() override { return painter.end(); }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &next) override
    {
        painter.setTransform(next.transform());
        painter.setPen(next.pen());
        painter.setBrush(next.brush());
        painter.setBrushOrigin(next.brushOrigin());
        painter.setOpacity(next.opacity());
        painter.setRenderHints(painter.renderHints(), false);
        painter.setRenderHints(next.renderHints());
        painter.setCompositionMode(next.compositionMode());
        if ((next.state() & DirtyClipEnabled) != 0)
            painter.setClipping(next.isClipEnabled());
        if ((next.state() & DirtyClipRegion) != 0)
            painter.setClipRegion(next.clipRegion(), next.clipOperation());
        if ((next.state() & DirtyClipPath) != 0)
            painter.setClipPath(next.clipPath(), next.clipOperation());
    }

    void drawPath(const QPainterPath &path) override { painter.drawPath(path); }
    void drawPixmap(const QRectF &area, const QPixmap &pixmap, const QRectF &part) override
    {
        painter.drawPixmap(area, pixmap, part);
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        if (mode == PolylineMode)
            painter.drawPolyline(points, count);
        else
            painter.drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    }

    void drawTextItem(const QPointF &at, const QTextItem &item) override
    {
        const QRectF inked = QFontMetricsF(item.font()).tightBoundingRect(item.text());
        const QRect area = painter.transform().mapRect(inked.translated(at)).toAlignedRect() & picture->rect();
        QColor color = state->pen().color();
        color.setAlphaF(color.alphaF() * state->opacity());
        PaintedText text{item.text(), {}, {}};
        double least = 22.0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                const QColor ground = picture->pixelColor(x, y);
                const QColor seen = blended(color, ground);
                if (contrast(seen, ground) >= least)
                    continue;
                least = contrast(seen, ground);
                text.color = seen;
                text.ground = ground;
            }
        }
        if (text.ground.isValid())
            texts.append(text);
    }

    QList<PaintedText> texts;

private:
    QImage *picture;
    QPainter painter;
};

} // namespace

double PaintedText::contrast() const
{
    return ::contrast(color, ground);
}

QList<PaintedText> paintedContrasts(QWidget &widget, const QColor &backdrop)
{
    QImage picture(widget.size(), QImage::Format_RGB32);
    picture.fill(backdrop);
    EngineDevice<GroundEngine> device(picture.size(), &picture);
    widget.render(&device, QPoint(), QRegion(), QWidget::DrawChildren);
    return device.noted().texts;
}
