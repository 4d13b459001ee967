#pragma once

#include <QImage>
#include <QString>

/// Compares pictures with stored ones. A pixel differs when one of its channels is off by more than the tolerance; a
/// picture differs when more than a given share of its pixels do, so that a line one pixel off its place does not
/// count.
class Picture {
public:
    static constexpr int channelTolerance = 24;
    static constexpr double usualPixelShare = 0.005;

    /// Compares with Tests/Terminal/pictures/<name>.png. Empty when they agree; else a description of what is wrong,
    /// and the build's folder of that name holds actual, expected and difference.
    static QString compare(const QImage &actual, const QString &name, double pixelShare = usualPixelShare);
    /// Compares with a picture file; `results` is the folder for the differences.
    static QString compare(const QImage &actual, const QString &storedFile, const QString &results, double pixelShare);
};
