#include "headlessdrive.h"

#include "commandline.h"
#include "consoleline.h"
#include "drivenfield.h"
#include "drivereport.h"
#include "fielddrive.h"
#include "fieldraster.h"
#include "machine.h"
#include "progressline.h"
#include "recorder.h"
#include "reportpage.h"
#include "simulation.h"
#include "terminal.h"
#include "wholefile.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>
#include <memory>

namespace {

/// Prints how far something is that begins now, and ends it if nobody can read that.
FieldDrive::Progress printedProgress(const char *what)
{
    QElapsedTimer passed;
    passed.start();
    return [progress = ProgressLine(QLatin1String(what)), passed](double fraction) mutable {
        const QString line = progress.at(fraction, passed.elapsed());
        if (!line.isEmpty())
            writeOutputLine(line);
        return outputProblem().isEmpty();
    };
}

/// Why the file cannot be written, known before the drive; empty when it can, and nothing has been written then.
QString writingProblem(const QString &path)
{
    const QFileInfo place(path);
    if (place.isDir())
        return QStringLiteral("is a folder, not a file");
    if (place.exists())
        return place.isWritable() ? QString() : QStringLiteral("cannot be written");
    QSaveFile probe(path);
    return probe.open(QIODevice::WriteOnly) ? QString() : probe.errorString();
}

/// Why the drive must not write what it is to write; one line with the file's name.
QString outputProblem(const CommandLine &line)
{
    for (const QString &output : {line.drive, line.record}) {
        const auto isOutput = [&output](const QString &input) {
            return !output.isEmpty() && QFileInfo(output) == QFileInfo(input);
        };
        if (std::any_of(line.prescriptions.begin(), line.prescriptions.end(), isOutput))
            return QStringLiteral("%1: is the prescription itself").arg(output);
        if (isOutput(line.productFile))
            return QStringLiteral("%1: is the products' file itself").arg(output);
    }
    const QString problem = writingProblem(line.drive);
    return problem.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(line.drive, problem);
}

/// Refuses maps on several planes: those on another plane would be applied at the coordinates of the one that is
/// driven.
QString farFieldProblem(const Terminal &terminal)
{
    const QList<LoadReport> maps = terminal.backend()->maps();
    const LoadReport *first = nullptr;
    for (const LoadReport &map : maps) {
        if (terminal.columnsOf(map.group).isEmpty())
            continue;
        if (first != nullptr && first->origin != map.origin)
            return QStringLiteral("%1: lies too far from %2 to be driven with it").arg(map.path, first->path);
        first = first != nullptr ? first : &map;
    }
    return {};
}

bool isPage(const CommandLine &line)
{
    return line.drive.endsWith(QLatin1String(".html"), Qt::CaseInsensitive);
}

} // namespace

QString runDrive(Terminal &terminal, const CommandLine &line)
{
    Simulation *simulation = terminal.simulation();
    const Result<DrivePath> path = FieldDrive::plan(*simulation, FieldDrive::usualOptions(*simulation));
    if (!path.isOk())
        return QStringLiteral("%1: %2").arg(line.prescriptions.join(QStringLiteral(", ")), path.error);
    QString problem = farFieldProblem(terminal);
    if (problem.isEmpty())
        problem = outputProblem(line);
    if (!problem.isEmpty())
        return problem;

    FieldDrive drive(simulation, path.value);
    DriveTally tally(simulation);
    std::unique_ptr<FieldRaster> raster;
    if (isPage(line))
        raster = std::make_unique<FieldRaster>(simulation, drive.workedBounds());
    Recorder recorder(simulation);
    if (!line.record.isEmpty()) {
        const QString error = recorder.start(line.record);
        if (!error.isEmpty())
            return error;
    }
    drive.run(printedProgress("driving"));
    problem = outputProblem();
    if (!problem.isEmpty())
        return problem;
    tally.end();
    if (raster)
        raster->end();
    const QString recordError = recorder.stop();
    if (!line.record.isEmpty() && recordError.isEmpty())
        writeOutputLine(QStringLiteral("%1: record written").arg(line.record));
    // Afterwards, so that the reported drive is the same with tuning and without.
    const std::vector<FieldDrive::Curve> curves = line.tune
        ? FieldDrive(simulation, path.value).tune(printedProgress("tuning"))
        : std::vector<FieldDrive::Curve>();
    problem = outputProblem();
    if (!problem.isEmpty())
        return problem;
    const QString files = line.prescriptions.join(QStringLiteral(", "));
    const QByteArray report = raster
        ? ReportPage::make({files, simulation, &tally, raster.get(), curves})
        : QJsonDocument(DriveReport::make(files, *terminal.machine(), tally, curves)).toJson();
    const QString error = writeWholeFile(line.drive, report);
    if (error.isEmpty())
        writeOutputLine(QStringLiteral("%1: report written").arg(line.drive));
    return error.isEmpty() ? recordError : error;
}
