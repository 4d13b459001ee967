#pragma once

#include <QObject>
#include <QTimer>

/// Tells a touch how long the finger has stayed. It goes by real time; tests put a time of their own in its place.
class HoldTimer : public QObject {
    Q_OBJECT

public:
    HoldTimer();

    /// timeout() follows once, that many milliseconds from now; a count in progress starts over.
    virtual void start(int milliseconds);
    virtual void stop();

Q_SIGNALS:
    void timeout();

private:
    QTimer timer;
};
