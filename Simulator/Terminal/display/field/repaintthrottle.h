#pragma once

#include <QTimer>

class QWidget;

/// Draws a widget again for changes that may come faster than anybody can see: those within a frame share its drawing.
class RepaintThrottle {
public:
    /// `drawn` is not owned and outlives this object.
    explicit RepaintThrottle(QWidget *drawn);

    /// The widget is drawn within a frame's time from now, however often this is asked for until then. One that is not
    /// shown is drawn when it is.
    void request();

private:
    QWidget *widget;
    QTimer frame;
};
