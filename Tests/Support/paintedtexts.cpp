#include "paintedtexts.h"

#include "enginedevice.h"

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

} // namespace

QStringList paintedTexts(QWidget &widget)
{
    EngineDevice<TextEngine> device(widget.size());
    widget.render(&device, QPoint(), QRegion(), QWidget::DrawChildren);
    return device.noted().texts;
}
