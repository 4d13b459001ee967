#include "textlines.h"

#include "visibletext.h"

#include <algorithm>

namespace {

/// How many characters of the text fit into a line, up to the end of a word if possible.
int fitting(const QString &text, const QFontMetrics &metrics, int width)
{
    // Bisected: a name may be as long as its file likes, and each piece is laid out anew.
    int length = 1;
    for (int most = text.size(); length < most;) {
        const int middle = length + (most - length + 1) / 2;
        if (metrics.horizontalAdvance(text.left(middle)) <= width)
            length = middle;
        else
            most = middle - 1;
    }
    if (length == text.size())
        return length;
    const int word =
        std::max(text.lastIndexOf(QLatin1Char(' '), length), text.lastIndexOf(QLatin1Char('_'), length - 1));
    return word > 0 ? word + 1 : length;
}

} // namespace

QStringList TextLines::of(const QString &text, const QFontMetrics &metrics, int width, int most)
{
    QStringList lines;
    QString rest = VisibleText::of(text);
    while (lines.size() + 1 < most && metrics.horizontalAdvance(rest) > width) {
        const int length = fitting(rest, metrics, width);
        lines.append(rest.left(length).trimmed());
        rest = rest.mid(length);
    }
    lines.append(metrics.elidedText(rest, Qt::ElideMiddle, width));
    return lines;
}

QString TextLines::elided(const QString &text, const QFontMetrics &metrics, int width, Qt::TextElideMode mode)
{
    return metrics.elidedText(VisibleText::of(text), mode, width);
}

QString TextLines::breakable(const QString &text)
{
    constexpr QChar zeroWidthSpace(0x200b);
    return VisibleText::of(text)
        .replace(QLatin1Char('/'), QLatin1Char('/') + QString(zeroWidthSpace))
        .replace(QLatin1Char('_'), QLatin1Char('_') + QString(zeroWidthSpace));
}
