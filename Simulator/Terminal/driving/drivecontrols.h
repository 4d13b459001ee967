#pragma once

#include "trackreader.h"

#include <QObject>
#include <QString>

class Simulation;
struct SwathOptions;
class Vehicle;

/// What the operator does to drive, for buttons and keys alike. The simulation knows how the machine drives; this keeps
/// what it is to do next: the speed of the next start, and the pace after a pause.
class DriveControls : public QObject {
    Q_OBJECT

public:
    /// `simulation` is not owned and outlives the controls.
    explicit DriveControls(Simulation *simulation, QObject *parent = nullptr);

    /// Drives at speed(): by hand, along the present way, or else along new swaths over the loaded field. Like stop(),
    /// it ends the operator's pause, during which nothing would happen.
    void start();
    void stop();
    /// The machine is to move, and is not at the end of its way.
    bool isUnderWay() const;

    /// Metres per second.
    double speed() const;
    /// In the operator's unit, with the unit.
    QString speedText() const;
    /// To the next whole number of the operator's unit, up or down.
    void faster();
    void slower();

    /// Simulated seconds in one of the wall's while there is no pause.
    double pace() const;
    /// To the next of 1, 2, 5, 10, 20 and 50, up or down.
    void paceUp();
    void paceDown();
    bool isPaused() const;
    void setPaused(bool pauses);

    /// Puts the machine at the beginning of swaths over the loaded field; it drives on if it is under way.
    void takeSwaths();
    /// Leaves the machine to pedals and wheel, at the speed that it has.
    void takeHand();
    bool isByHand() const;
    bool isReplay() const;
    /// Goes where a track went (Simulation::replayChecked), and ends the operator's pause.
    void replay(const QString &path);

    /// By hand: speeds up, to speed() at most, while it is pressed; the machine then keeps the speed that it has.
    void pressThrottle(bool isPressed);
    /// By hand: slows down, or drives backwards where the machine stands.
    void pressBrake(bool isPressed);
    /// By hand: -1 is as far to the left as the machine can turn, 1 to the right.
    void turnWheel(double turn);

    void setSignal(bool isThere);
    bool hasSignal() const;

    /// What the operator should know of the way: why there is none, or that its end is reached.
    QString message() const;

Q_SIGNALS:
    /// Something that these controls report may have changed.
    void changed();

private:
    Vehicle *vehicle() const;
    bool isMetric() const;
    void changeSpeed(int steps);
    void changePace(int steps);
    bool planSwaths();
    QString whyNot(const SwathOptions &options) const;
    void endPause();

    Simulation *simulation;
    double nextSpeed;
    double lastPace = 1.0;
    bool isPausedHere = false; ///< The operator paused; a pause by a script is left to the script.
    QString problem;
};
