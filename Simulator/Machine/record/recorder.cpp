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
}

QString Recorder::start(const QString &path, const QPointF &origin)
{
    // What it holds back must not be written into the file that takes its place.
    const bool isSameFile = writer != nullptr && QFileInfo(writer->file()) == QFileInfo(path);
    QString lost = isSameFile ? stop() : QString();
    const auto opened = RecordWriter::open(path, simulation->machine()->products().size(), origin);
    if (!opened.isOk())
        return opened.error;
    if (!isSameFile)
        lost = stop();
    writer = opened.value;
    return lost;
}

QString Recorder::stop()
{
    if (!writer)
        return {};
    writer->finish();
    const QString error = writer->error();
    writer.reset();
    return error;
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
    if (!writer->error().isEmpty())
        Q_EMIT failed(writer->error());
}
