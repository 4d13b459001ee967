#pragma once

#include <QFontMetrics>
#include <QStringList>

/// Texts as they are painted: with names that may come from files, made harmless (VisibleText), and where one is longer
/// than a line, broken into several or shortened.
class TextLines {
public:
    /// The text on at most `most` lines of `width` pixels, broken between words where possible; what is still too long
    /// is shortened in the middle of the last line.
    static QStringList of(const QString &text, const QFontMetrics &metrics, int width, int most);
    /// The text on one line of `width` pixels, shortened where it is too long.
    static QString elided(const QString &text, const QFontMetrics &metrics, int width,
                          Qt::TextElideMode mode = Qt::ElideMiddle);
    /// For a label: the text with places where it may break, since words such as paths are longer than a line.
    static QString breakable(const QString &text);
};
