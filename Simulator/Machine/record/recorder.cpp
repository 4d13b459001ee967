#include "recorder.h"

#include "machine.h"
#include "simulation.h"
#include "vehicle.h"

#include <QFileInfo>

Recorder::Recorder(Simulation *givenSimulation, QObject *parent)
    : QObject(parent)
    , simulation(givenSimulation)
{
    connect(simulation, &Simulation::stepped, this, &Recorder::record);
    connect(simulation->machine(), &Machine::mapsChanged, this, &Recorder::checkPlane);
    connect(simulation->machine(), &Machine::activeProductChanged, this, &Recorder::checkPlane);
}

QString Recorder::start(const QString &path)
{
    // What it holds back must not be written into the file that takes its place.
    const bool isSameFile = writer != nullptr && QFileInfo(writer->file()) == QFileInfo(path);
    QString lost = isSameFile ? stop() : QString();
    const Machine &machine = *simulation->machine();
    const auto opened = RecordWriter::open(path, machine.products().size(), machine.planeOrigin());
    if (!opened.isOk())
        return opened.error;
    if (!isSameFile)
        lost = stop();
    writer = opened.value;
    origin = machine.planeOrigin();
    steps = 0;
    Q_EMIT switched();
    return lost;
}

QString Recorder::stop()
{
    if (!writer)
        return {};
    writer->finish();
    const QString error = writer->error();
    writer.reset();
    Q_EMIT switched();
    return error;
}

double Recorder::seconds() const
{
    return double(steps * Simulation::stepMs) / 1000.0;
}

RecordEntry Recorder::entryOf(const Simulation &simulation)
{
    const Vehicle &vehicle = *simulation.vehicle();
    RecordEntry entry;
    entry.time = simulation.seconds();
    entry.pose = vehicle.pose();
    entry.start = simulation.stepStart();
    entry.speed = vehicle.currentSpeed();
    entry.isWorking = vehicle.isWorking();
    entry.width = vehicle.size().width;
    for (int number = 1; number <= simulation.machine()->products().size(); ++number) {
        const Simulation::Rates rates = simulation.rates(number);
        entry.channels.push_back({rates.command, rates.applied});
    }
    return entry;
}

void Recorder::record()
{
    if (!isRecording())
        return;
    writer->write(entryOf(*simulation));
    ++steps;
    if (!writer->error().isEmpty())
        tellEnd();
}

void Recorder::checkPlane()
{
    if (!isRecording() || !origin)
        return;
    const std::optional<QPointF> present = simulation->machine()->planeOrigin();
    if (!present || *present == *origin)
        return;
    writer->leaveField();
    tellEnd();
}

void Recorder::tellEnd()
{
    // Listeners may start another record.
    const QString reason = writer->error();
    Q_EMIT switched();
    Q_EMIT failed(reason);
}
