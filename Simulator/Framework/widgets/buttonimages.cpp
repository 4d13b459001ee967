#include "buttonimages.h"

#include <QBitmap>
#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRegion>

namespace {

const QColor pressedShade(16, 24, 32, 90);
const QColor pressedRing(255, 176, 0);
constexpr qreal pressedRingWidth = 4.0;
constexpr qreal pressedRingRadius = 9.0;
constexpr qreal dimmedOpacity = 0.4;

/// The image as it looks under the finger: darker, with an amber ring, so that neither colour alone carries it.
QPixmap pressedImage(const QPixmap &image)
{
    QPixmap result = image;
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    const QRectF area(QPointF(), QSizeF(image.size()) / image.devicePixelRatio());
    painter.fillRect(area, pressedShade);
    painter.setPen(QPen(pressedRing, pressedRingWidth));
    const qreal inset = pressedRingWidth / 2.0 + 2.0;
    painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), pressedRingRadius, pressedRingRadius);
    return result;
}

} // namespace

ButtonImages::ButtonImages(const QDir &folder, const QStringList &files)
{
    for (const QString &file : files)
        images.append(SharpImage(folder.filePath(file)));
    const QPixmap first = images.value(0).plain();
    drawn = first.hasAlphaChannel() ? QRegion(first.mask()).boundingRect() : first.rect();
}

QSize ButtonImages::size() const
{
    return images.isEmpty() ? QSize(0, 0) : images.constFirst().size();
}

QRect ButtonImages::drawnArea() const
{
    return drawn;
}

int ButtonImages::current() const
{
    return shown;
}

bool ButtonImages::setCurrent(int index)
{
    if (index < 0 || index >= images.size() || index == shown)
        return false;
    shown = index;
    return true;
}

void ButtonImages::paint(QPainter &painter, Look look) const
{
    const QPixmap image = images.value(shown).forPainter(painter);
    if (image.isNull())
        return;
    painter.save();
    if (look == Look::Dimmed)
        painter.setOpacity(painter.opacity() * dimmedOpacity);
    painter.drawPixmap(0, 0, look == Look::Pressed ? pressedImage(image) : image);
    painter.restore();
}
