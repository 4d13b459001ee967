#include "prescriptionreader.h"

#include "Backend/backendtext.h"
#include "databaseinterrupt.h"
#include "gdalsession.h"
#include "layerchoice.h"
#include "prescriptionfile.h"
#include "recordreader.h"
#include "tablecolumns.h"
#include "taskdata/taskdatareader.h"

#include <QFileInfo>

#include <ogrsf_frmts.h>

namespace {

/// Whether this is a GeoPackage's stand-in for "no coordinate system"; some versions of GDAL return it.
bool standsForNone(const OGRSpatialReference &reference)
{
    return QByteArray(reference.GetName()).toLower().startsWith("undefined");
}

/// Whether the coordinate system does not say where on the earth it is, such as one of a drawing or a site.
bool isUndefined(const OGRSpatialReference &reference)
{
    return reference.IsLocal() != 0 || QByteArray(reference.GetName()).toLower() == "unknown";
}

} // namespace

PrescriptionReader::PrescriptionReader(const ReadRequest &readRequest, ColumnJudge columnJudge,
                                       const LoadControl &loadControl)
    : request(readRequest)
    , judge(columnJudge)
    , control(loadControl)
{
}

bool PrescriptionReader::fail(const QString &text)
{
    reason = text;
    return false;
}

bool PrescriptionReader::refuse(const PrescriptionFile &file, RawPrescription &map)
{
    map.archived = file.candidates();
    return fail(file.error());
}

bool PrescriptionReader::mayRead(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return !TaskDataFolder(path).mainFile().isEmpty();
    const QStringList others{QStringLiteral("xml"), QStringLiteral("zip"), QStringLiteral("kmz")};
    return info.isFile() && info.size() > 0
        && (PrescriptionFile::endings() + others).contains(info.suffix(), Qt::CaseInsensitive);
}

bool PrescriptionReader::checkTask()
{
    return request.task.isEmpty() || fail(BackendText::tr("has no task \"%1\"; it has no tasks").arg(request.task));
}

bool PrescriptionReader::read(RawPrescription &map)
{
    TaskDataReader tasks(request, control);
    if (tasks.isTaskData())
        return tasks.read(map) || fail(tasks.error());
    const GdalSession session;
    PrescriptionFile file(request.path);
    if (!file.open(session))
        return refuse(file, map);
    const DatabaseInterrupt interrupt(file.dataset(), control.cancelled);
    return readLayer(file, session, map) || (control.isCancelled() && fail(BackendText::tr("loading was cancelled")));
}

bool PrescriptionReader::readLayer(const PrescriptionFile &file, const GdalSession &session, RawPrescription &map)
{
    LayerChoice choice(file.dataset(), request, judge);
    OGRLayer *layer = checkTask() ? choice.choose(map) : nullptr;
    // When there is nothing to read, GDAL's first failure says more.
    if (layer == nullptr && reason.isEmpty())
        return fail(session.firstFailure().isEmpty() ? choice.error() : session.firstFailure());
    if (layer == nullptr)
        return false;
    readReference(*layer, file, map);
    RecordReader records(*layer, request.columns, judge, control);
    const bool isRead = records.read(map);
    if (!isRead && (map.records > 0 || session.firstFailure().isEmpty()))
        return fail(records.error());
    return session.firstFailure().isEmpty() || fail(session.firstFailure());
}

bool PrescriptionReader::readColumnNames(QStringList &names)
{
    TaskDataReader tasks(request, control);
    if (tasks.isTaskData())
        return tasks.readColumnNames(names) || fail(tasks.error());
    const GdalSession session;
    PrescriptionFile file(request.path);
    if (!file.open(session))
        return fail(file.error());
    RawPrescription map;
    LayerChoice choice(file.dataset(), request, judge);
    OGRLayer *layer = checkTask() ? choice.chooseForMost(map) : nullptr;
    if (layer == nullptr)
        return fail(reason.isEmpty() ? choice.error() : reason);
    TableColumns::read(*layer->GetLayerDefn(), names);
    return true;
}

void PrescriptionReader::readReference(OGRLayer &layer, const PrescriptionFile &file, RawPrescription &map)
{
    // A Shapefile's definition is read only now; its faults are reported by other means.
    const GdalSession own;
    const OGRSpatialReference *given = layer.GetSpatialRef();
    const OGRSpatialReference *reference = given == nullptr || standsForNone(*given) ? nullptr : given;
    const QString definition = reference == nullptr ? file.definitionFile() : QString();
    if (reference != nullptr && isUndefined(*reference))
        map.lackOfReference = BackendText::tr("its coordinate system \"%1\" does not say where on the earth it is")
                                  .arg(QString::fromUtf8(reference->GetName()));
    else if (reference != nullptr)
        map.reference.reset(reference->Clone());
    else if (!definition.isEmpty())
        map.lackOfReference = BackendText::tr("its coordinate system (%1) cannot be read").arg(definition);
    // Otherwise each ring would register with the reference and deregister again, which takes a tenth of the reading
    // time.
    if (given != nullptr && layer.GetLayerDefn()->GetGeomFieldCount() > 0)
        layer.GetLayerDefn()->GetGeomFieldDefn(0)->SetSpatialRef(nullptr);
}
