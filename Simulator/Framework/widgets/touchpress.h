#pragma once

#include "holdtimer.h"

#include <QObject>
#include <QScopedPointer>

/// One finger on one control, from touch to lift: tells a counted release from a cancelled one and from a hold.
/// The control passes on where the finger is and draws itself pressed while looksPressed(). A slot of pressed(),
/// released() and longTouched() may delete the control.
class TouchPress : public QObject {
    Q_OBJECT

public:
    /// What holding the finger still does.
    enum class Hold {
        Nothing,
        LongTouch, ///< ends the touch with longTouched() after longTouchMs
        Repeat     ///< released() comes after repeatDelayMs and then every repeatIntervalMs
    };

    static constexpr int longTouchMs = 800;
    static constexpr int repeatDelayMs = 500;
    static constexpr int repeatIntervalMs = 120;

    /// Owns the timer.
    explicit TouchPress(HoldTimer *timer = new HoldTimer);

    /// The finger comes down on the control.
    void press(Hold hold);
    /// The finger moves, now over the control or not. The time of a hold starts again when it comes back.
    void move(bool inside);
    /// The finger is lifted, over the control or not; outside it the touch is cancelled.
    void release(bool inside);
    /// Forgets the touch: the control went away under the finger.
    void cancel();
    bool looksPressed() const;

Q_SIGNALS:
    void pressed();
    void released();
    void longTouched();
    void lookChanged();

private:
    void startHold();
    void heldLongEnough();
    void end();

    QScopedPointer<HoldTimer> holdTimer;
    Hold holdAction = Hold::Nothing;
    bool isDown = false;
    bool isInside = false;
    bool hasRepeated = false;
};
