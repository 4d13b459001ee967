#include "Framework/orvikimage.h"

#include "sharpimage.h"

#include <QPainter>

class OrvikImagePrivate {
public:
    int id = 0;
    SharpImage image;
};

OrvikImage::OrvikImage(int id, QDir imageDir, QString image, QPoint position, QWidget *parent)
    : QWidget(parent)
    , d(new OrvikImagePrivate)
{
    d->id = id;
    d->image = SharpImage(imageDir.filePath(image));
    setGeometry(QRect(position, d->image.size()));
}

OrvikImage::~OrvikImage() = default;

int OrvikImage::id() const
{
    return d->id;
}

void OrvikImage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, d->image.forPainter(painter));
}
