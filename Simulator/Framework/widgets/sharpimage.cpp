#include "sharpimage.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

#include <cmath>

namespace {

constexpr int ratio = 2;

QString finerPath(const QString &path)
{
    const QFileInfo file(path);
    return file.dir().filePath(
        QStringLiteral("%1@%2x.%3").arg(file.completeBaseName(), QString::number(ratio), file.suffix()));
}

} // namespace

SharpImage::SharpImage(const QString &path)
    : image(path)
    , finer(image.isNull() ? QString() : finerPath(path))
{
    if (finer.size() != ratio * image.size())
        finer = QPixmap();
    finer.setDevicePixelRatio(ratio);
}

const QPixmap &SharpImage::forPainter(const QPainter &painter) const
{
    // No finer than the device, but for rounding.
    constexpr double enlarged = 1.01;
    const double scale = std::sqrt(std::fabs(painter.deviceTransform().determinant()));
    return finer.isNull() || scale < enlarged ? image : finer;
}
