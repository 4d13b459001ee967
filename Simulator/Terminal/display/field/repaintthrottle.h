#pragma once

#include <QTimer>

class QWidget;

/// Redraws a widget whose changes may come faster than anybody can see: those within one frame's time share a drawing.
class RepaintThrottle {
public:
    /// `drawn` is not owned and outlives this object.
    explicit RepaintThrottle(QWidget *drawn);

    /// The widget is drawn within a frame's time from now, however often this is asked for until then. A hidden widget
    /// is drawn when it is shown.
    void request();

private:
    QWidget *widget;
    QTimer frame;
};
