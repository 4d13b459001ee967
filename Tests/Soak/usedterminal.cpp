#include "usedterminal.h"

#include "fielddrive.h"
#include "machine.h"
#include "recorder.h"
#include "simulation.h"
#include "uidriver.h"
#include "vehicle.h"

#include "Framework/orvikbuttonqgw.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>

namespace {

constexpr int drawnEvery = 200;
constexpr int handledEvery = 20;

[[noreturn]] void give(const QString &what)
{
    qFatal("%s", qPrintable(what));
}

void expect(bool holds, const char *what)
{
    if (!holds)
        give(QLatin1String(what));
}

void touch(QWidget *button)
{
    const QPointF middle = button->rect().center();
    for (const QEvent::Type kind : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(kind, middle, Qt::LeftButton,
                          kind == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(button, &event);
    }
}

void type(QWidget *edit, const QString &text)
{
    for (const QChar &character : text) {
        QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QApplication::sendEvent(edit, &event);
    }
}

} // namespace

UsedTerminal::UsedTerminal()
{
    if (!problem().isEmpty())
        return;
    Terminal &terminal = host.terminal();
    // Its time passes only in drive().
    terminal.simulation()->setTimeFactor(0.0);
    const LoadReport report = terminal
                                  .open({{TerminalHost::fixture(QStringLiteral("three-zones.geojson"))},
                                         {QStringLiteral("SEED_K_HA"), QStringLiteral("FERT_KG_HA")}})
                                  .first();
    if (!report.isOk())
        give(report.error);
    group = report.group;
    polygons = unsigned(report.polygons);
    Simulation &simulation = *terminal.simulation();
    const Result<DrivePath> path = FieldDrive::plan(simulation, FieldDrive::usualOptions(simulation));
    if (!path.isOk())
        give(path.error);
    way = path.value;
    const QString error = terminal.recorder()->start(folder.filePath(QStringLiteral("record.csv")));
    if (!error.isEmpty())
        give(error);
}

void UsedTerminal::rebuild(int number)
{
    Terminal &terminal = host.terminal();
    expect(terminal.broker()->setProperty(group.toLatin1().constData(), "polygonCount", polygons) == 0,
           "the map is published once more");
    if (number % drawnEvery == 0)
        expect(terminal.mapColor({-100, 0}).isValid(), "the map is drawn");
    if (number % handledEvery == 0)
        QApplication::processEvents();
}

void UsedTerminal::rebuildWithoutMap(int /*number*/)
{
    Machine &machine = *host.terminal().machine();
    expect(machine.setActiveProduct(3) && machine.setActiveProduct(1), "there are three products");
}

void UsedTerminal::actIn(QDialog *dialog, int number)
{
    touch(dialog->findChild<QWidget *>(QStringLiteral("productButton%1").arg(number % 2)));
    type(dialog->findChild<QWidget *>(QStringLiteral("lookAheadEdit")), QString::number(number % 9 + 1));
    type(dialog->findChild<QWidget *>(QStringLiteral("defaultRateEdit")), QString::number(number % 7 + 10));
    if (number % 3 == 0) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(dialog, &escape);
        return;
    }
    // Of the remaining dialogs every other one sees the machine move meanwhile.
    host.terminal().vehicle()->drive(number % 3 == 1 ? 3.0 : 0.0);
    QMetaObject::invokeMethod(dialog, "testForZeroSpeed");
    touch(dialog->findChild<QWidget *>(QStringLiteral("doneButton")));
    host.terminal().vehicle()->drive(0.0);
}

void UsedTerminal::useDialog(int number)
{
    auto *button = qobject_cast<OrvikButtonQgw *>(UiDriver::find(QStringLiteral("rxOptions")));
    expect(button != nullptr, "the plug-in's button is there");
    bool isUsed = false;
    QTimer opened;
    opened.setSingleShot(true);
    QObject::connect(&opened, &QTimer::timeout, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        expect(dialog != nullptr, "the dialog opens");
        actIn(dialog, number);
        isUsed = true;
    });
    opened.start(0);
    Q_EMIT button->longTouch(button->id());
    expect(isUsed && QApplication::activeModalWidget() == nullptr, "the dialog was used and is gone");
}

void UsedTerminal::load(int /*number*/)
{
    Terminal &terminal = host.terminal();
    const LoadReport report =
        terminal.open({{TerminalHost::fixture(QStringLiteral("two-strips.geojson"))}, {QString(), QString(), "A"}})
            .first();
    expect(report.isOk() && terminal.close(report.group), "a map is loaded and unloaded");
}

void UsedTerminal::drive(int number)
{
    Terminal &terminal = host.terminal();
    Vehicle &vehicle = *terminal.vehicle();
    if (vehicle.isOver() || vehicle.mode() != Motion::Mode::Swaths) {
        vehicle.follow(way);
        vehicle.drive(8.0);
    }
    terminal.simulation()->run(10.0);
    expect(terminal.recorder()->isRecording(), "the drive is recorded");
    if (number % drawnEvery == 0)
        expect(terminal.mapColor({-100, 0}).isValid(), "the map is drawn");
}

void UsedTerminal::settle()
{
    // Longer than the interval at which a dialog checks the vehicle, which goes on in the background.
    constexpr int milliseconds = 1200;
    QElapsedTimer passed;
    passed.start();
    while (!passed.hasExpired(milliseconds)) {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
