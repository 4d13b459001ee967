#pragma once

#include <QTimer>

class QWidget;

/// Draws a widget again for changes that may come faster than anybody can see: those within a frame share its drawing.
class RepaintThrottle {
public:
    /// `widget` is not owned and outlives this object.
    explicit RepaintThrottle(QWidget *widget);

    /// The widget is drawn within a frame's time from now, however often this is asked for until then.
    void request();

private:
    QTimer frame;
};
