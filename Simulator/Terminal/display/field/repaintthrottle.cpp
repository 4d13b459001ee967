#include "repaintthrottle.h"

#include <QWidget>

namespace {

constexpr int frameTime = 30; // Milliseconds.

} // namespace

RepaintThrottle::RepaintThrottle(QWidget *drawn)
    : widget(drawn)
{
    frame.setSingleShot(true);
    frame.setInterval(frameTime);
    QObject::connect(&frame, &QTimer::timeout, widget, qOverload<>(&QWidget::update));
}

void RepaintThrottle::request()
{
    if (!frame.isActive() && widget->isVisible())
        frame.start();
}
