#pragma once

#include <QMargins>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QTransform>

/// How the terminal's display lies in a window: whole, in its proportions, in the middle.
class ScreenFit {
public:
    /// `window`: size of the window, in the units of its events. Scale 1 where it is empty.
    explicit ScreenFit(const QSizeF &window);

    /// Units of the window for each pixel of the terminal.
    double scale() const { return factor; }
    /// From the terminal's pixels to the window's.
    QTransform toWindow() const;
    QPointF toTerminal(const QPointF &inWindow) const { return (inWindow - corner) / factor; }
    /// The part of the window that shows any of `inTerminal`, rounded up to whole units.
    QRect shownIn(const QRectF &inTerminal) const { return toWindow().mapRect(inTerminal).toAlignedRect(); }

    /// The first size of a window on a screen whose free part has this size: the terminal's own, or the largest that
    /// fits; on screens with very many pixels a multiple of it.
    static QSize firstSize(const QSize &available);
    /// Where to put a window that would be at `window` with that frame around it (`available`: the free part of the
    /// screen): moved, and made smaller in proportion, no more than it takes to see all of it.
    static QRect onScreen(const QRect &window, const QMargins &frame, const QRect &available);

private:
    double factor = 1.0;
    QPointF corner; ///< Of the terminal's display, in the window.
};
