#pragma once

#include <QFontMetrics>
#include <QStringList>

/// Breaks a text that is longer than a line into several.
class TextLines {
public:
    /// The text on at most `most` lines of `width` pixels, broken between words where possible; what is still too long
    /// is shortened in the middle of the last line.
    static QStringList of(const QString &text, const QFontMetrics &metrics, int width, int most);
};
