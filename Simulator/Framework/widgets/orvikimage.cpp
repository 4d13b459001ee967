#include "Framework/orvikimage.h"

#include <QPainter>
#include <QPixmap>

class OrvikImagePrivate {
public:
    int id = 0;
    QPixmap image;
};

OrvikImage::OrvikImage(int id, QDir imageDir, QString image, QPoint position, QWidget *parent)
    : QWidget(parent)
    , d(new OrvikImagePrivate)
{
    d->id = id;
    d->image.load(imageDir.filePath(image));
    setGeometry(QRect(position, d->image.size()));
}

OrvikImage::~OrvikImage() = default;

int OrvikImage::id() const
{
    return d->id;
}

void OrvikImage::paintEvent(QPaintEvent *)
{
    QPainter(this).drawPixmap(0, 0, d->image);
}
