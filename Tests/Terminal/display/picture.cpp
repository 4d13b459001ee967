#include "picture.h"

#include "paths.h"

#include <QDir>

#include <algorithm>

namespace {

int channelDistance(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

} // namespace

QString Picture::compare(const QImage &actual, const QString &name, double pixelShare)
{
    return compare(actual, sourcePath("Tests/Terminal/pictures/%1.png").arg(name),
                   buildPath("Tests/Terminal/pictures/%1").arg(name), pixelShare);
}

QString Picture::compare(const QImage &actual, const QString &storedFile, const QString &results, double pixelShare)
{
    const QImage expected(storedFile);
    const QDir folder(results);
    folder.mkpath(QStringLiteral("."));
    actual.save(folder.filePath(QStringLiteral("actual.png")));
    if (expected.isNull())
        return QStringLiteral("there is no stored picture %1").arg(storedFile);
    expected.save(folder.filePath(QStringLiteral("expected.png")));
    if (expected.size() != actual.size())
        return QStringLiteral("the picture is %1 by %2 pixels").arg(actual.width()).arg(actual.height());

    QImage difference(actual.size(), QImage::Format_RGB32);
    int differing = 0;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const bool isOff = channelDistance(actual.pixel(x, y), expected.pixel(x, y)) > channelTolerance;
            difference.setPixel(x, y, isOff ? qRgb(255, 0, 0) : qRgb(255, 255, 255));
            differing += isOff ? 1 : 0;
        }
    }
    if (differing <= pixelShare * actual.width() * actual.height())
        return {};
    difference.save(folder.filePath(QStringLiteral("difference.png")));
    return QStringLiteral("%1 pixels differ; see %2").arg(differing).arg(folder.path());
}
