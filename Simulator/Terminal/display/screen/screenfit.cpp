#include "screenfit.h"

#include "terminalwindow.h"

#include <algorithm>
#include <cmath>

namespace {

/// How much of a screen with very many pixels the window takes at first.
constexpr double roomyShare = 0.8;

double largestScale(const QSizeF &window)
{
    return std::min(window.width() / TerminalWindow::displaySize.width(),
                    window.height() / TerminalWindow::displaySize.height());
}

} // namespace

ScreenFit::ScreenFit(const QSizeF &window)
{
    if (window.isEmpty())
        return;
    factor = largestScale(window);
    const QSizeF shown = factor * QSizeF(TerminalWindow::displaySize);
    // On whole pixels, so that at scale 1 nothing is blurred.
    corner = QPointF(std::floor((window.width() - shown.width()) / 2.0),
                     std::floor((window.height() - shown.height()) / 2.0));
}

QTransform ScreenFit::toWindow() const
{
    return QTransform::fromTranslate(corner.x(), corner.y()).scale(factor, factor);
}

QSize ScreenFit::firstSize(const QSize &available)
{
    const double multiple = std::max(1.0, std::floor(roomyShare * largestScale(available)));
    return (std::min(multiple, largestScale(available)) * QSizeF(TerminalWindow::displaySize)).toSize();
}

QRect ScreenFit::onScreen(const QRect &window, const QMargins &frame, const QRect &available)
{
    const QRect room = available.marginsRemoved(frame);
    QRect place = window;
    if (place.width() > room.width() || place.height() > room.height())
        place.setSize(place.size().scaled(room.size(), Qt::KeepAspectRatio));
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    return place;
}
