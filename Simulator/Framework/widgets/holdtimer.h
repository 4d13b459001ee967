#pragma once

#include <QObject>
#include <QTimer>

/// Tells a touch how long the finger has stayed. It goes by the time as it passes; tests put a time of their own in its
/// place.
class HoldTimer : public QObject {
    Q_OBJECT

public:
    HoldTimer();

    /// timeout() follows once after so many milliseconds, counted anew from now.
    virtual void start(int milliseconds);
    virtual void stop();

Q_SIGNALS:
    void timeout();

private:
    QTimer timer;
};
