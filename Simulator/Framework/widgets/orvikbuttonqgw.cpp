#include "Framework/orvikbuttonqgw.h"

#include "buttonimages.h"
#include "touchpress.h"

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QMetaMethod>
#include <QPainter>

class OrvikButtonQgwPrivate {
public:
    OrvikButtonQgwPrivate(int buttonId, const QDir &imageDir, const QStringList &files)
        : id(buttonId)
        , images(imageDir, files)
    {
    }

    int id;
    ButtonImages images;
    TouchPress touch;
};

OrvikButtonQgw::OrvikButtonQgw(int id, QDir imageDir, QStringList images, QPointF position, QGraphicsWidget *parent)
    : QGraphicsWidget(parent)
    , d(new OrvikButtonQgwPrivate(id, imageDir, images))
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setGeometry(QRectF(position, d->images.size()));
    connect(&d->touch, &TouchPress::lookChanged, this, [this] { update(); });
    connect(&d->touch, &TouchPress::pressed, this, [this] { Q_EMIT buttonPressed(d->id); });
    connect(&d->touch, &TouchPress::released, this, [this] { Q_EMIT buttonReleased(d->id); });
    connect(&d->touch, &TouchPress::longTouched, this, [this] {
        // A slot may open a dialog, which swallows the lift of the finger: the page's next touch is not for this
        // button.
        if (scene() != nullptr && scene()->mouseGrabberItem() == this)
            ungrabMouse();
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
    if (d->images.setCurrent(index))
        update();
}

int OrvikButtonQgw::currentImage() const
{
    return d->images.current();
}

void OrvikButtonQgw::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    d->images.paint(*painter, d->touch.looksPressed() ? ButtonImages::Look::Pressed : ButtonImages::Look::Normal);
}

void OrvikButtonQgw::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    const bool wantsLongTouch = isSignalConnected(QMetaMethod::fromSignal(&OrvikButtonQgw::longTouch));
    d->touch.press(wantsLongTouch ? TouchPress::Hold::LongTouch : TouchPress::Hold::Nothing);
}

void OrvikButtonQgw::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    d->touch.move(contains(event->pos()));
}

void OrvikButtonQgw::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    d->touch.release(contains(event->pos()));
}

void OrvikButtonQgw::ungrabMouseEvent(QEvent *)
{
    d->touch.cancel();
}
