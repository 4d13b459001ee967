#include "Framework/orvikbutton.h"

#include "buttonimages.h"
#include "touchpress.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QMap>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>

namespace {

struct TextItem {
    QString text;
    QColor color;
    QFont font;
};

constexpr int textMargin = 5;      // pixels on either side
constexpr int minTextPercent = 50; // of the font size asked for
constexpr int textPercentStep = 5;
constexpr qreal dimmedTextOpacity = 0.5;

QFont scaled(QFont font, qreal share)
{
    if (font.pixelSize() > 0)
        font.setPixelSize(qMax(1, qRound(font.pixelSize() * share)));
    else
        font.setPointSizeF(qMax(1.0, font.pointSizeF() * share));
    return font;
}

/// The font, made smaller step by step until the text fits the width, as long as it stays readable.
QFont fittedFont(const QFont &font, const QString &text, qreal width)
{
    // Versions of a font differ in their kerning: with it, what fits on one machine would not fit on another.
    QFont unpaired = font;
    unpaired.setKerning(false);
    QFont fitted = unpaired;
    for (int percent = 100 - textPercentStep;
         percent >= minTextPercent && QFontMetricsF(fitted).horizontalAdvance(text) > width; percent -= textPercentStep)
        fitted = scaled(unpaired, percent / 100.0);
    return fitted;
}

} // namespace

class OrvikButtonPrivate {
public:
    OrvikButtonPrivate(int buttonId, const QDir &imageDir, const QStringList &files)
        : id(buttonId)
        , images(imageDir, files)
    {
    }

    int id;
    ButtonImages images;
    TouchPress touch;
    QMap<int, TextItem> texts;
    bool repeats = false;
    bool dimsWhenDisabled = false;
    bool highlightsWhenPressed = true;
};

OrvikButton::OrvikButton(int id, QDir imageDir, QStringList images, QPoint position, QWidget *parent, bool repeats)
    : QWidget(parent)
    , d(new OrvikButtonPrivate(id, imageDir, images))
{
    d->repeats = repeats;
    setGeometry(QRect(position, d->images.size()));
    connect(&d->touch, &TouchPress::lookChanged, this, [this] { update(); });
    connect(&d->touch, &TouchPress::pressed, this, [this] { Q_EMIT buttonPressed(d->id); });
    connect(&d->touch, &TouchPress::released, this, [this] { Q_EMIT buttonReleased(d->id); });
    connect(&d->touch, &TouchPress::longTouched, this, [this] { Q_EMIT longTouch(d->id); });
}

OrvikButton::~OrvikButton() = default;

int OrvikButton::id() const
{
    return d->id;
}

void OrvikButton::setCurrentImage(int index)
{
    if (d->images.setCurrent(index))
        update();
}

int OrvikButton::currentImage() const
{
    return d->images.current();
}

void OrvikButton::setDisableMode(bool dimmed)
{
    d->dimsWhenDisabled = dimmed;
    update();
}

void OrvikButton::setHighLight(bool highlighted)
{
    d->highlightsWhenPressed = highlighted;
    update();
}

void OrvikButton::addText(int item, QString text, QColor color, QFont font)
{
    d->texts.insert(item, TextItem{text, color, font});
    update();
}

void OrvikButton::setTextColor(int item, QColor color)
{
    const auto found = d->texts.find(item);
    if (found == d->texts.end())
        return;
    found->color = color;
    update();
}

QString OrvikButton::text(int item) const
{
    return d->texts.value(item).text;
}

QColor OrvikButton::textColor(int item) const
{
    return d->texts.value(item).color;
}

void OrvikButton::paintEvent(QPaintEvent *)
{
    const bool dimmed = d->dimsWhenDisabled && !isEnabled();
    const bool highlighted = d->highlightsWhenPressed && d->touch.looksPressed();
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    d->images.paint(painter,
                    dimmed            ? ButtonImages::Look::Dimmed
                        : highlighted ? ButtonImages::Look::Pressed
                                      : ButtonImages::Look::Normal);

    if (dimmed)
        painter.setOpacity(dimmedTextOpacity);
    const QRect area = d->images.drawnArea().adjusted(textMargin, 0, -textMargin, 0);
    for (const TextItem &item : qAsConst(d->texts)) {
        const QFont font = fittedFont(item.font, item.text, area.width());
        painter.setFont(font);
        painter.setPen(item.color);
        painter.drawText(area, Qt::AlignCenter,
                         QFontMetricsF(font).elidedText(item.text, Qt::ElideRight, area.width()));
    }
}

void OrvikButton::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    // A touch may still be on its way when the button is hidden.
    if (event->button() != Qt::LeftButton || !isVisible())
        return;
    const bool wantsLongTouch = isSignalConnected(QMetaMethod::fromSignal(&OrvikButton::longTouch));
    d->touch.press(d->repeats           ? TouchPress::Hold::Repeat
                       : wantsLongTouch ? TouchPress::Hold::LongTouch
                                        : TouchPress::Hold::Nothing);
}

void OrvikButton::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    d->touch.move(rect().contains(event->pos()));
}

void OrvikButton::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        d->touch.release(rect().contains(event->pos()));
}

void OrvikButton::hideEvent(QHideEvent *event)
{
    d->touch.cancel();
    QWidget::hideEvent(event);
}

void OrvikButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange) {
        if (!isEnabled())
            d->touch.cancel();
        update();
    }
    QWidget::changeEvent(event);
}
