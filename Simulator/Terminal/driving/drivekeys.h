#pragma once

#include <QObject>
#include <QSet>

class DriveControls;
class DrivePanel;
class DriveRecord;
class QKeyEvent;

/// A keyboard's keys for driving, while the panel is on the display with no dialog or page over it: Space starts and
/// stops, P pauses, plus and minus change the speed, Page up and Page down the pace, S takes swaths and H the wheel, L
/// loses and finds the signal, R starts and ends a record, T asks for a track; by hand Up is the throttle, Down the
/// brake, Left and Right turn the wheel as long as they are held, and otherwise move the map.
class DriveKeys : public QObject {
    Q_OBJECT

public:
    /// None is owned; all outlive the keys.
    DriveKeys(DriveControls *controls, DriveRecord *record, DrivePanel *panel, QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Whether a key pressed in `watched` reaches the panel.
    bool isForDriving(const QObject *watched) const;
    /// False for a key that drives nothing.
    bool press(const QKeyEvent &event);
    bool release(const QKeyEvent &event);
    bool pressOnce(int key);
    bool hold(int key, bool isPressed, bool isRepeated);

    DriveControls *controls;
    DriveRecord *record;
    DrivePanel *panel;
    QSet<int> held; ///< Pedals and the wheel's keys.
};
