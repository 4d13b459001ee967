#include "driverecord.h"

#include "Backend/prescriptionbackend.h"
#include "machine.h"
#include "recorder.h"
#include "regularfile.h"
#include "simulation.h"
#include "trackreader.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

/// Characters of a field's name, so that the whole remains a file's name.
constexpr int longestName = 40;

} // namespace

DriveRecord::DriveRecord(Simulation *givenSimulation, Recorder *givenRecorder, const QString &givenFolder,
                         QObject *parent)
    : QObject(parent)
    , simulation(givenSimulation)
    , recorder(givenRecorder)
    , folder(givenFolder)
{
    connect(recorder, &Recorder::switched, this, &DriveRecord::changed);
    connect(recorder, &Recorder::failed, this,
            [this](const QString &reason) { Q_EMIT told(tr("The drive is no longer recorded"), reason); });
    connect(simulation, &Simulation::stepped, this, [this] {
        if (isOn())
            Q_EMIT changed();
    });
}

QString DriveRecord::usualFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

bool DriveRecord::isOn() const
{
    return recorder->isRecording();
}

void DriveRecord::setOn(bool isWanted)
{
    if (isWanted == isOn())
        return;
    isWanted ? start() : stop();
}

void DriveRecord::endIfAt(const QString &path)
{
    if (isOn() && QFileInfo(recorder->file()) == QFileInfo(path))
        setOn(false);
}

QString DriveRecord::elapsed() const
{
    const int seconds = int(recorder->seconds());
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString DriveRecord::fieldName() const
{
    const Machine &machine = *simulation->machine();
    QString path;
    const QList<LoadReport> maps = machine.backend()->maps();
    for (const LoadReport &map : maps) {
        if (path.isEmpty() || machine.columnsOf(map.group).contains(machine.activeProduct()))
            path = map.path;
    }
    const QString name = QFileInfo(path).completeBaseName().left(longestName);
    return name.isEmpty() ? tr("drive", "name of a record where no field is open") : name;
}

Result<QString> DriveRecord::makeFile() const
{
    if (!QDir().mkpath(folder))
        return Result<QString>::failure(tr("%1: this folder cannot be made").arg(folder));
    const QString moment = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss"));
    const QString name = QStringLiteral("%1_%2").arg(fieldName(), moment);
    for (int number = 1;; ++number) {
        const QString another = number > 1 ? QStringLiteral("_%1").arg(number) : QString();
        QFile file(QDir(folder).filePath(name + another + QStringLiteral(".csv")));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return {file.fileName(), {}};
        if (!file.exists())
            return Result<QString>::failure(QStringLiteral("%1: %2").arg(file.fileName(), systemReason(file)));
    }
}

void DriveRecord::start()
{
    const Result<QString> path = makeFile();
    QString error = path.error;
    if (path.isOk()) {
        error = recorder->start(path.value);
        // It also tells what a former record lost, which was told when it was lost.
        if (isOn())
            return;
        QFile::remove(path.value);
    }
    Q_EMIT told(tr("The drive cannot be recorded"), error);
    Q_EMIT changed();
}

void DriveRecord::stop()
{
    const QString path = QFileInfo(recorder->file()).absoluteFilePath();
    const QString error = recorder->stop();
    if (error.isEmpty() && TrackReader::mayRead(path))
        Q_EMIT kept(path);
    Q_EMIT told(error.isEmpty() ? tr("The drive is recorded") : tr("The drive is not recorded to its end"),
                error.isEmpty() ? path : error);
}
