#include "framepace.h"

#include <QWidget>

namespace {

constexpr int frameTime = 30; // Milliseconds.

} // namespace

FramePace::FramePace(QWidget *widget)
{
    frame.setSingleShot(true);
    frame.setInterval(frameTime);
    QObject::connect(&frame, &QTimer::timeout, widget, qOverload<>(&QWidget::update));
}

void FramePace::request()
{
    if (!frame.isActive())
        frame.start();
}
