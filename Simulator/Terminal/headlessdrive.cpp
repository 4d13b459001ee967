#include "headlessdrive.h"

#include "Backend/prescriptionbackend.h"
#include "commandline.h"
#include "consoleline.h"
#include "drivereport.h"
#include "fielddrive.h"
#include "recorder.h"
#include "simulation.h"
#include "terminal.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QSaveFile>

namespace {

/// Tells how far something is and how long it is likely to take, at every tenth of it.
class ProgressLine {
public:
    explicit ProgressLine(const char *what)
        : what(what)
    {
        passed.start();
    }

    void operator()(double fraction)
    {
        const int tenths = int(10.0 * fraction);
        if (tenths <= told || fraction <= 0.0)
            return;
        told = tenths;
        const double left = double(passed.elapsed()) / 1000.0 * (1.0 - fraction) / fraction;
        writeOutputLine(
            QStringLiteral("%1: %2 %, about %3 s left").arg(QLatin1String(what)).arg(10 * tenths).arg(left, 0, 'f', 0));
    }

private:
    const char *what;
    QElapsedTimer passed;
    int told = 0;
};

QString writeReport(QSaveFile &file, const QJsonObject &report)
{
    const QByteArray json = QJsonDocument(report).toJson();
    const bool isWritten = file.write(json) == json.size() && file.commit();
    return isWritten ? QString() : QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
}

} // namespace

QString runDrive(Terminal &terminal, const CommandLine &line)
{
    Simulation *simulation = terminal.simulation();
    const Result<DrivePath> path = FieldDrive::plan(*simulation, FieldDrive::usualOptions(*simulation));
    if (!path.isOk())
        return QStringLiteral("%1: %2").arg(line.prescriptions.join(QStringLiteral(", ")), path.error);
    // Before the drive: what cannot be written is known at once.
    QSaveFile reportFile(line.drive);
    if (!reportFile.open(QIODevice::WriteOnly))
        return QStringLiteral("%1: %2").arg(line.drive, reportFile.errorString());

    FieldDrive drive(simulation, path.value);
    DriveTally tally(simulation);
    Recorder recorder(simulation);
    if (!line.record.isEmpty()) {
        const QString error = recorder.start(line.record, terminal.backend()->maps().last().origin);
        if (!error.isEmpty())
            return error;
    }
    drive.run(ProgressLine("driving"));
    tally.end();
    const QString recordError = recorder.stop();
    // Afterwards, so that the drive that is reported is the same with and without.
    const std::vector<FieldDrive::Curve> curves =
        line.tune ? FieldDrive(simulation, path.value).tune(ProgressLine("tuning")) : std::vector<FieldDrive::Curve>();
    const QString files = line.prescriptions.join(QStringLiteral(", "));
    const QString error = writeReport(reportFile, DriveReport::make(files, *terminal.machine(), tally, curves));
    return error.isEmpty() ? recordError : error;
}
