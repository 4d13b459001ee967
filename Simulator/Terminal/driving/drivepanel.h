#pragma once

#include <QList>
#include <QTimer>
#include <QWidget>

class DriveControls;
class DriveRecord;
class QLabel;
class TouchButton;
class WheelBar;

/// The column of buttons that drive the machine; pedals and wheel show while it is driven by hand.
class DrivePanel : public QWidget {
    Q_OBJECT

public:
    /// Neither is owned; both outlive the panel's use.
    DrivePanel(DriveControls *controls, DriveRecord *record, QWidget *parent = nullptr);

    WheelBar *wheel() const { return wheelBar; }
    /// Sets whether the button shows that the camera follows the vehicle.
    void setFollowing(bool isFollowing);

Q_SIGNALS:
    /// The operator wants the camera to follow the vehicle, or not.
    void followWanted(bool isWanted);
    /// The operator wants to choose a track to be replayed.
    void replayWanted();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// `spoken` names a button whose text is no word.
    TouchButton *add(const QString &text, const char *name, const QString &spoken = {}, bool isSwitch = false);
    QLabel *addReadout(const char *name);
    void addDriving();
    void addPace();
    void addWays();
    void addTracks();
    void addPedals();
    void refresh();
    void refreshSoon();

    DriveControls *controls;
    DriveRecord *record;
    /// Rows from the top; a row of three has a readout in its middle.
    QList<QList<QWidget *>> rows;
    TouchButton *startButton = nullptr;
    QLabel *speed = nullptr;
    QLabel *pace = nullptr;
    TouchButton *pauseButton = nullptr;
    TouchButton *followButton = nullptr;
    TouchButton *swathsButton = nullptr;
    TouchButton *handButton = nullptr;
    TouchButton *replayButton = nullptr;
    TouchButton *recordButton = nullptr;
    TouchButton *signalButton = nullptr;
    TouchButton *brake = nullptr;
    TouchButton *throttle = nullptr;
    WheelBar *wheelBar = nullptr;
    QLabel *message = nullptr;
    QTimer pause;
};
