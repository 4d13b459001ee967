#pragma once

#include <QFontMetrics>
#include <QStringList>

/// A text that is longer than a line on several ones.
class TextLines {
public:
    /// On `most` lines of `width` pixels at most, broken between words where that is possible; what is too long even so
    /// is shortened in the middle of the last line.
    static QStringList of(const QString &text, const QFontMetrics &metrics, int width, int most);
};
