#pragma once

#include <QImage>
#include <QString>

/// Compares pictures with stored ones. A pixel differs when one of its channels is off by more than the tolerance; a
/// picture differs when more than a share of its pixels do, so that a line that falls a pixel aside does not count.
class Picture {
public:
    static constexpr int channelTolerance = 24;
    static constexpr double usualPixelShare = 0.005;

    /// Compares with Tests/Terminal/pictures/<name>.png. Empty when they agree. Else what is wrong, and actual,
    /// expected and difference lie in the build's folder of that name.
    static QString compare(const QImage &actual, const QString &name, double pixelShare = usualPixelShare);
    /// The same with the picture of a file; `results` is the folder for what differs.
    static QString compare(const QImage &actual, const QString &storedFile, const QString &results, double pixelShare);
};
