#pragma once

#include "ratehistory.h"
#include "trackreader.h"
#include "workedground.h"
#include "workedlayer.h"

#include <QObject>

class DriveControls;
class DriveRecord;
class Recorder;
class Simulation;
class TerminalWindow;

/// All of the display that serves driving: controls and keys, the strip under the map, the worked ground and the
/// look-ahead point on it, and the camera that follows.
class DriveDisplay : public QObject {
    Q_OBJECT

public:
    /// None is owned; all outlive this. The panel and the strip become the window's.
    DriveDisplay(TerminalWindow *window, Simulation *simulation, Recorder *recorder, QObject *parent = nullptr);
    ~DriveDisplay() override;

    WorkedGround *workedGround() { return &ground; }
    DriveRecord *record() const { return driveRecord; }
    /// Shows the controls and goes where a track went (Simulation::replayChecked).
    void replay(const QString &path);

Q_SIGNALS:
    /// The operator wants to choose a track to be replayed.
    void replayWanted();

private:
    void addCamera(class DrivePanel *panel);
    void showLookAhead();

    TerminalWindow *window;
    Simulation *simulation;
    DriveControls *controls;
    DriveRecord *driveRecord;
    RateHistory history;
    WorkedGround ground;
    WorkedLayer layer;
};
