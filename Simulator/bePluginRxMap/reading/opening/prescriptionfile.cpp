#include "prescriptionfile.h"

#include "Backend/backendtext.h"
#include "archivedprescription.h"
#include "gdalsession.h"
#include "journaleddatabase.h"
#include "shapefilecheck.h"
#include "tablecodepage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cpl_string.h>

namespace {

const char *const shapefileOnly[] = {"ESRI Shapefile", nullptr};
const char *const otherFormats[] = {"GPKG", "GeoJSON", "GeoJSONSeq", "LIBKML", "FlatGeobuf", "GML", nullptr};

/// The name by which GDAL takes the path for that file: it must not begin like a name in GDAL's own file systems.
QByteArray nameForGdal(const QString &path)
{
    const QByteArray name = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    return name.startsWith("/vsi") ? "/." + name : name;
}

} // namespace

PrescriptionFile::PrescriptionFile(const QString &filePath)
    : path(filePath)
{
}

QStringList PrescriptionFile::endings()
{
    return {QStringLiteral("shp"),      QStringLiteral("gpkg"),     QStringLiteral("geojson"), QStringLiteral("json"),
            QStringLiteral("geojsonl"), QStringLiteral("geojsons"), QStringLiteral("ndjson"),  QStringLiteral("kml"),
            QStringLiteral("fgb"),      QStringLiteral("gml")};
}

bool PrescriptionFile::fail(const QString &text)
{
    reason = text;
    return false;
}

bool PrescriptionFile::isShapefile() const
{
    return QFileInfo(path).suffix().compare(QLatin1String("shp"), Qt::CaseInsensitive) == 0;
}

bool PrescriptionFile::check()
{
    const QFileInfo info(path);
    if (!info.exists())
        return fail(BackendText::tr("there is no such file"));
    if (info.isDir())
        return fail(BackendText::tr("is a folder, not a file"));
    // Opening a pipe could wait forever.
    if (!info.isFile())
        return fail(BackendText::tr("is no plain file"));
    // The system's own files have the size zero, and reading some never ends.
    if (info.size() == 0)
        return fail(BackendText::tr("is empty"));
    // A reader would take a file that it cannot open for another format.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(BackendText::tr("cannot be opened: %1").arg(file.errorString()));
    file.close();
    if (!isShapefile())
        return true;
    const QString problem = ShapefileCheck::problem(path);
    return problem.isEmpty() || fail(problem);
}

CPLStringList PrescriptionFile::options() const
{
    // Each format ignores the options of the others.
    CPLStringList options;
    options.SetNameValue("WRITE_GFS", "NO");
    options.SetNameValue("DOWNLOAD_SCHEMA", "NO");
    // Otherwise a database would be opened for writing, to tidy up its journal. By design: not if the name holds a
    // percent sign, which would be decoded.
    if (!isJournaled && !nameForGdal(path).contains('%'))
        options.SetNameValue("IMMUTABLE", "YES");
    const QByteArray codePage = isShapefile() ? TableCodePage::guess(path) : QByteArray();
    if (!codePage.isEmpty())
        options.SetNameValue("ENCODING", codePage.constData());
    return options;
}

bool PrescriptionFile::unpack()
{
    QString inner;
    const QString archive = ZipArchive::find(path, inner);
    if (archive.isEmpty())
        return true;
    unpacked = std::make_unique<UnpackingFolder>();
    if (!unpacked->isValid())
        return fail(BackendText::tr("cannot be unpacked: %1").arg(unpacked->error()));
    ArchivedPrescription prescription(archive, inner);
    path = prescription.unpack(QDir(unpacked->path()));
    const QStringList candidates = prescription.candidates();
    for (const QString &candidate : candidates)
        several.append(archive + QLatin1Char('/') + candidate);
    return !path.isEmpty() || fail(prescription.error());
}

bool PrescriptionFile::takeJournal()
{
    JournaledDatabase database(path);
    isJournaled = database.hasJournal();
    // An unpacked file is a copy already.
    if (!isJournaled || unpacked)
        return true;
    unpacked = std::make_unique<UnpackingFolder>();
    if (!unpacked->isValid())
        return fail(BackendText::tr("cannot be copied: %1").arg(unpacked->error()));
    path = database.copyTo(QDir(unpacked->path()));
    return !path.isEmpty() || fail(database.error());
}

bool PrescriptionFile::open(const GdalSession &session)
{
    if (!unpack() || !check() || !takeJournal())
        return false;
    // Rolling back an unfinished change needs write access; only the copy is written to.
    const unsigned int access = isJournaled ? GDAL_OF_UPDATE : GDAL_OF_READONLY;
    data.reset(GDALDataset::Open(nameForGdal(path).constData(), GDAL_OF_VECTOR | access,
                                 isShapefile() ? shapefileOnly : otherFormats, options().List()));
    if (data)
        return true;
    const QString failure = session.firstFailure();
    return fail(failure.isEmpty()
                    ? BackendText::tr("is none of the formats that are read: Shapefile, GeoPackage, "
                                      "GeoJSON (also as a text sequence), KML, FlatGeobuf, GML, task data, or "
                                      "one of them in a .zip")
                    : failure);
}

QString PrescriptionFile::definitionFile() const
{
    return isShapefile() ? ShapefileCheck::definitionFile(path) : QString();
}
