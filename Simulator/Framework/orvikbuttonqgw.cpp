#include "Framework/orvikbuttonqgw.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QTimer>

namespace {

constexpr int longTouchMs = 800;

} // namespace

class OrvikButtonQgwPrivate {
public:
    int id = 0;
    QList<QPixmap> images;
    int currentImage = 0;
    bool isPressed = false;
    QTimer timer;
};

OrvikButtonQgw::OrvikButtonQgw(int id, const QDir &imageDir, const QStringList &images, const QPointF &position,
                               QGraphicsWidget *parent)
    : QGraphicsWidget(parent)
    , d(new OrvikButtonQgwPrivate)
{
    d->id = id;
    for (const QString &image : images)
        d->images.append(QPixmap(imageDir.filePath(image)));
    setGeometry(QRectF(position, d->images.isEmpty() ? QSizeF(0, 0) : QSizeF(d->images.first().size())));
    d->timer.setSingleShot(true);
    connect(&d->timer, &QTimer::timeout, this, [this]() {
        d->isPressed = false;
        update();
        Q_EMIT longTouch(d->id);
    });
}

OrvikButtonQgw::~OrvikButtonQgw() = default;

int OrvikButtonQgw::id() const
{
    return d->id;
}

void OrvikButtonQgw::setCurrentImage(int index)
{
    if (index < 0 || index >= d->images.size())
        return;
    d->currentImage = index;
    update();
}

int OrvikButtonQgw::currentImage() const
{
    return d->currentImage;
}

void OrvikButtonQgw::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->drawPixmap(0, 0, d->images.value(d->currentImage));
    if (d->isPressed)
        painter->fillRect(rect(), QColor(255, 255, 255, 60));
}

void OrvikButtonQgw::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    d->isPressed = true;
    d->timer.start(longTouchMs);
    update();
    Q_EMIT buttonPressed(d->id);
}

void OrvikButtonQgw::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (rect().contains(event->pos()))
        return;
    d->isPressed = false;
    d->timer.stop();
    update();
}

void OrvikButtonQgw::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    d->timer.stop();
    if (!d->isPressed)
        return;
    d->isPressed = false;
    update();
    if (rect().contains(event->pos()))
        Q_EMIT buttonReleased(d->id);
}
