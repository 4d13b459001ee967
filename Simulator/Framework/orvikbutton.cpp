#include "Framework/orvikbutton.h"

#include <QEvent>
#include <QMap>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QTimer>

namespace {

constexpr int longTouchMs = 800;
constexpr int repeatMs = 150;
constexpr double dimmedOpacity = 0.4;

struct TextItem {
    QString text;
    QColor color;
    QFont font;
};

} // namespace

class OrvikButtonPrivate {
public:
    int id = 0;
    QList<QPixmap> images;
    int currentImage = 0;
    bool isDimmedWhenDisabled = false;
    bool isHighlighted = true;
    bool repeats = false;
    bool isPressed = false;
    QMap<int, TextItem> texts;
    QTimer timer;
};

OrvikButton::OrvikButton(int id, const QDir &imageDir, const QStringList &images, const QPoint &position,
                         QWidget *parent, bool repeats)
    : QWidget(parent)
    , d(new OrvikButtonPrivate)
{
    d->id = id;
    d->repeats = repeats;
    for (const QString &image : images)
        d->images.append(QPixmap(imageDir.filePath(image)));
    setGeometry(QRect(position, d->images.isEmpty() ? QSize(0, 0) : d->images.first().size()));
    d->timer.setSingleShot(!repeats);
    connect(&d->timer, &QTimer::timeout, this, [this]() {
        if (d->repeats) {
            Q_EMIT buttonReleased(d->id);
            return;
        }
        d->isPressed = false;
        update();
        Q_EMIT longTouch(d->id);
    });
}

OrvikButton::~OrvikButton() = default;

int OrvikButton::id() const
{
    return d->id;
}

void OrvikButton::setCurrentImage(int index)
{
    if (index < 0 || index >= d->images.size())
        return;
    d->currentImage = index;
    update();
}

int OrvikButton::currentImage() const
{
    return d->currentImage;
}

void OrvikButton::setDisableMode(bool dimmed)
{
    d->isDimmedWhenDisabled = dimmed;
    update();
}

void OrvikButton::setHighLight(bool highlighted)
{
    d->isHighlighted = highlighted;
    update();
}

void OrvikButton::addText(int item, const QString &text, const QColor &color, const QFont &font)
{
    d->texts.insert(item, {text, color, font});
    update();
}

void OrvikButton::setTextColor(int item, const QColor &color)
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
    QPainter painter(this);
    if (!isEnabled() && d->isDimmedWhenDisabled)
        painter.setOpacity(dimmedOpacity);
    painter.drawPixmap(0, 0, d->images.value(d->currentImage));
    for (const TextItem &item : qAsConst(d->texts)) {
        painter.setPen(item.color);
        painter.setFont(item.font);
        const QString shown = QFontMetrics(item.font).elidedText(item.text, Qt::ElideRight, width());
        painter.drawText(rect(), Qt::AlignCenter, shown);
    }
    if (d->isPressed && d->isHighlighted)
        painter.fillRect(rect(), QColor(255, 255, 255, 60));
}

void OrvikButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    d->isPressed = true;
    d->timer.start(d->repeats ? repeatMs : longTouchMs);
    update();
    Q_EMIT buttonPressed(d->id);
}

void OrvikButton::mouseMoveEvent(QMouseEvent *event)
{
    if (rect().contains(event->pos()))
        return;
    d->isPressed = false;
    d->timer.stop();
    update();
}

void OrvikButton::mouseReleaseEvent(QMouseEvent *event)
{
    d->timer.stop();
    if (!d->isPressed || event->button() != Qt::LeftButton)
        return;
    d->isPressed = false;
    update();
    if (rect().contains(event->pos()))
        Q_EMIT buttonReleased(d->id);
}

void OrvikButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange) {
        d->isPressed = false;
        d->timer.stop();
        update();
    }
    QWidget::changeEvent(event);
}
