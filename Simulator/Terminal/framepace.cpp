#include "framepace.h"

#include <QWidget>

namespace {

constexpr int FrameMs = 30;

} // namespace

FramePace::FramePace(QWidget *widget)
{
    frame.setSingleShot(true);
    frame.setInterval(FrameMs);
    QObject::connect(&frame, &QTimer::timeout, widget, qOverload<>(&QWidget::update));
}

void FramePace::request()
{
    if (!frame.isActive())
        frame.start();
}
