#include "drivedisplay.h"

#include "drivecontrols.h"
#include "drivekeys.h"
#include "drivepanel.h"
#include "driverecord.h"
#include "drivestrip.h"
#include "fieldview.h"
#include "followcamera.h"
#include "machine.h"
#include "mapoverlay.h"
#include "ratecontroller.h"
#include "simulation.h"
#include "terminalwindow.h"
#include "vehicle.h"

DriveDisplay::DriveDisplay(TerminalWindow *givenWindow, Simulation *givenSimulation, Recorder *recorder,
                           QObject *parent)
    : QObject(parent)
    , window(givenWindow)
    , simulation(givenSimulation)
    , controls(new DriveControls(givenSimulation, this))
    , driveRecord(new DriveRecord(givenSimulation, recorder, DriveRecord::usualFolder(), this))
    , history(givenSimulation)
    , ground(givenSimulation)
    , layer(&ground)
{
    auto *panel = new DrivePanel(controls, driveRecord);
    window->setDriving(panel, new DriveStrip(simulation, &history));
    new DriveKeys(controls, driveRecord, panel, this);
    connect(panel, &DrivePanel::replayWanted, this, &DriveDisplay::replayWanted);
    addCamera(panel);
    window->fieldView()->addAid(&layer);
    connect(window, &TerminalWindow::drivingShown, &history, &RateHistory::setKept);
    connect(simulation, &Simulation::stepped, this, &DriveDisplay::showLookAhead);
}

DriveDisplay::~DriveDisplay()
{
    window->setDriving(nullptr, nullptr);
    window->fieldView()->removeAid(&layer);
}

void DriveDisplay::replay(const QString &path)
{
    controls->replay(path);
    window->openDriving();
}

void DriveDisplay::addCamera(DrivePanel *panel)
{
    auto *camera = new FollowCamera(window->fieldView(), simulation->vehicle(), this);
    connect(camera, &FollowCamera::switched, panel, &DrivePanel::setFollowing);
    connect(window, &TerminalWindow::frameRequested, camera, [camera] { camera->setOn(false); });
    connect(panel, &DrivePanel::followWanted, camera, [this, camera](bool isWanted) {
        camera->setOn(isWanted);
        if (!isWanted)
            Q_EMIT window->frameRequested();
    });
}

void DriveDisplay::showLookAhead()
{
    const int number = simulation->machine()->activeProduct();
    const CommandSource source = simulation->controller()->command(number).source;
    const bool isAsked = source != CommandSource::NotControlled && source != CommandSource::NoPosition
        && source != CommandSource::Stopped;
    window->overlay()->setLookAhead(isAsked ? std::make_optional(simulation->controller()->askedPoint(number))
                                            : std::nullopt);
}
