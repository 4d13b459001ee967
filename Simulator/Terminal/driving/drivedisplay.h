#pragma once

#include "ratehistory.h"
#include "workedground.h"
#include "workedlayer.h"

#include <QObject>

class DriveControls;
class Simulation;
class TerminalWindow;

/// All of the display that serves driving: controls and keys, the strip under the map, the worked ground and the
/// look-ahead point on it, and the camera that follows.
class DriveDisplay : public QObject {
    Q_OBJECT

public:
    /// Neither is owned; both outlive this. The panel and the strip become the window's.
    DriveDisplay(TerminalWindow *window, Simulation *simulation, QObject *parent = nullptr);
    ~DriveDisplay() override;

    WorkedGround *workedGround() { return &ground; }

private:
    void addCamera(class DrivePanel *panel);
    void showLookAhead();

    TerminalWindow *window;
    Simulation *simulation;
    DriveControls *controls;
    RateHistory history;
    WorkedGround ground;
    WorkedLayer layer;
};
