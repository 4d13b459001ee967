#include "drivepanel.h"

#include "drivecontrols.h"
#include "driverecord.h"
#include "readout.h"
#include "theme.h"
#include "touchbutton.h"
#include "wheelbar.h"

#include <QLabel>
#include <QPainter>

namespace {

constexpr int gap = 8;
constexpr int handRows = 2;
// Milliseconds between updates: steps may follow each other faster than anybody can read.
constexpr int refreshTime = 100;

} // namespace

DrivePanel::DrivePanel(DriveControls *givenControls, DriveRecord *givenRecord, QWidget *parent)
    : QWidget(parent)
    , controls(givenControls)
    , record(givenRecord)
{
    setObjectName(QStringLiteral("drivePanel"));
    addDriving();
    addPace();
    addWays();
    addTracks();
    addPedals();
    pause.setSingleShot(true);
    pause.setInterval(refreshTime);
    connect(&pause, &QTimer::timeout, this, &DrivePanel::refresh);
    connect(controls, &DriveControls::changed, this, &DrivePanel::refreshSoon);
    connect(record, &DriveRecord::changed, this, &DrivePanel::refreshSoon);
    refresh();
}

void DrivePanel::refreshSoon()
{
    if (!pause.isActive())
        pause.start();
}

TouchButton *DrivePanel::add(const QString &text, const char *name, const QString &spoken, bool isSwitch)
{
    auto *button = new TouchButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(spoken);
    button->setCheckable(isSwitch);
    // The button has switched its own state, but what it does may be refused.
    connect(button, &TouchButton::clicked, this, &DrivePanel::refresh, Qt::QueuedConnection);
    return button;
}

QLabel *DrivePanel::addReadout(const char *name)
{
    auto *readout = new Readout(this);
    readout->setObjectName(QLatin1String(name));
    return readout;
}

void DrivePanel::addDriving()
{
    startButton = add(tr("Start"), "driveStart", {}, true);
    TouchButton *stop = add(tr("Stop"), "driveStop");
    connect(startButton, &TouchButton::clicked, controls, &DriveControls::start);
    connect(stop, &TouchButton::clicked, controls, &DriveControls::stop);
    rows.append(QList<QWidget *>{startButton, stop});

    TouchButton *slower = add(QStringLiteral("\u2212"), "speedDown", tr("Slower"));
    speed = addReadout("driveSpeed");
    TouchButton *faster = add(QStringLiteral("+"), "speedUp", tr("Faster"));
    connect(slower, &TouchButton::clicked, controls, &DriveControls::slower);
    connect(faster, &TouchButton::clicked, controls, &DriveControls::faster);
    rows.append(QList<QWidget *>{slower, speed, faster});
}

void DrivePanel::addPace()
{
    TouchButton *down = add(QStringLiteral("\u2212"), "paceDown", tr("Time passes slower"));
    pace = addReadout("drivePace");
    TouchButton *up = add(QStringLiteral("+"), "paceUp", tr("Time passes faster"));
    connect(down, &TouchButton::clicked, controls, &DriveControls::paceDown);
    connect(up, &TouchButton::clicked, controls, &DriveControls::paceUp);
    rows.append(QList<QWidget *>{down, pace, up});

    pauseButton = add(tr("Pause"), "drivePause", {}, true);
    followButton = add(tr("Follow"), "followCamera", {}, true);
    followButton->setNote(tr("Camera"));
    connect(pauseButton, &TouchButton::clicked, controls, &DriveControls::setPaused);
    connect(followButton, &TouchButton::clicked, this, &DrivePanel::followWanted);
    rows.append(QList<QWidget *>{pauseButton, followButton});
}

void DrivePanel::addWays()
{
    swathsButton = add(tr("Swaths"), "driveSwaths", {}, true);
    handButton = add(tr("By hand"), "driveByHand", {}, true);
    connect(swathsButton, &TouchButton::clicked, controls, &DriveControls::takeSwaths);
    connect(handButton, &TouchButton::clicked, controls, &DriveControls::takeHand);
    rows.append(QList<QWidget *>{swathsButton, handButton});
}

void DrivePanel::addTracks()
{
    replayButton = add(tr("Replay"), "driveReplay", {}, true);
    recordButton = add(tr("Record"), "driveRecord", {}, true);
    connect(replayButton, &TouchButton::clicked, this, &DrivePanel::replayWanted);
    connect(recordButton, &TouchButton::clicked, record, &DriveRecord::setOn);
    rows.append(QList<QWidget *>{replayButton, recordButton});

    signalButton = add(tr("Signal loss"), "signalLoss", {}, true);
    connect(signalButton, &TouchButton::clicked, controls, [this](bool isLost) { controls->setSignal(!isLost); });
    rows.append(QList<QWidget *>{signalButton});
}

void DrivePanel::addPedals()
{
    brake = add(tr("Brake"), "brake");
    throttle = add(tr("Throttle"), "throttle");
    connect(brake, &TouchButton::pressed, controls, [this] { controls->pressBrake(true); });
    connect(brake, &TouchButton::released, controls, [this] { controls->pressBrake(false); });
    connect(throttle, &TouchButton::pressed, controls, [this] { controls->pressThrottle(true); });
    connect(throttle, &TouchButton::released, controls, [this] { controls->pressThrottle(false); });
    wheelBar = new WheelBar(this);
    connect(wheelBar, &WheelBar::turnedTo, controls, &DriveControls::turnWheel);
    rows.append(QList<QWidget *>{brake, throttle});
    rows.append(QList<QWidget *>{wheelBar});

    message = addReadout("driveMessage");
    message->setFont(Theme::font(17));
}

void DrivePanel::setFollowing(bool isFollowing)
{
    followButton->setChecked(isFollowing);
}

void DrivePanel::refresh()
{
    const bool isByHand = controls->isByHand();
    startButton->setChecked(controls->isUnderWay());
    speed->setText(controls->speedText());
    pace->setText(tr("%1\u00d7 time", "pace of the simulated time").arg(controls->pace()));
    pauseButton->setChecked(controls->isPaused());
    swathsButton->setChecked(!isByHand && !controls->isReplay());
    handButton->setChecked(isByHand);
    replayButton->setChecked(controls->isReplay());
    recordButton->setChecked(record->isOn());
    recordButton->setNote(record->isOn() ? record->elapsed() : QString());
    signalButton->setChecked(!controls->hasSignal());
    for (QWidget *control :
         {static_cast<QWidget *>(brake), static_cast<QWidget *>(throttle), static_cast<QWidget *>(wheelBar)})
        control->setVisible(isByHand);
    message->setText(controls->message());
    message->setVisible(!isByHand);
}

void DrivePanel::resizeEvent(QResizeEvent *)
{
    const int inner = width() - 2 * gap;
    const int tall = (height() - gap * (rows.size() + 1)) / rows.size();
    int top = gap;
    for (const QList<QWidget *> &row : qAsConst(rows)) {
        const bool hasReadout = row.size() == 3;
        const int wide = hasReadout ? Theme::touchTarget - gap : (inner - gap * (row.size() - 1)) / row.size();
        for (int i = 0; i < row.size(); ++i)
            row.at(i)->setGeometry(gap + i * (wide + gap), top, wide, tall);
        if (hasReadout) {
            row.at(1)->setGeometry(gap + wide, top, inner - 2 * wide, tall);
            row.at(2)->move(gap + inner - wide, top);
        }
        top += tall + gap;
    }
    const int handHeight = handRows * (tall + gap);
    message->setGeometry(gap, height() - handHeight, inner, handHeight - gap);
}

void DrivePanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Theme::drawPanel(painter, rect(), Theme::colors().panel);
}
