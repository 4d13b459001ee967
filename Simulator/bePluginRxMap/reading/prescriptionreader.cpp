#include "prescriptionreader.h"

#include "gdalsession.h"
#include "shapefilecheck.h"
#include "shapereader.h"
#include "tablecolumns.h"
#include "taskdata/taskdatareader.h"
#include "textrate.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <cpl_string.h>
#include <iterator>
#include <limits>
#include <ogrsf_frmts.h>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

bool isRate(double value)
{
    return std::isfinite(value) && value >= 0.0;
}

/// The number that stands as text; not a number, and counted, where it is in another unit than those before.
double readText(const OGRFeature &feature, int record, SourceColumn &column)
{
    const QString text = QString::fromUtf8(feature.GetFieldAsString(column.field));
    const TextRate rate = TextRate::parse(text);
    if (column.unit.isEmpty())
        column.unit = rate.unit;
    if (!rate.isReadable || (!rate.unit.isEmpty() && rate.unit != column.unit)) {
        column.unreadable.push_back(record);
        return notANumber;
    }
    if (rate.isAmbiguous && column.ambiguous.isEmpty())
        column.ambiguous = text.trimmed();
    return rate.value;
}

void compareText(const OGRFeature &feature, TextColumn &column)
{
    if (column.isMixed)
        return;
    const QString text = QString::fromUtf8(feature.GetFieldAsString(column.field)).trimmed();
    if (column.text.isEmpty())
        column.text = text;
    column.isMixed = !text.isEmpty() && text != column.text;
}

/// Makes room for that many records of one cell each. Files may promise more than they hold, so there is a limit.
void reserve(RawPrescription &map, double records)
{
    constexpr double most = 1e6;
    constexpr size_t cellVertices = 5;
    const auto room = static_cast<size_t>(std::min(most, records));
    map.rings.reserve(room);
    map.xs.reserve(room * cellVertices);
    map.ys.reserve(room * cellVertices);
    for (SourceColumn &column : map.columns)
        column.values.reserve(room);
}

/// The columns that may hold numbers; `names` gets the names of all.
std::vector<SourceColumn> tableColumns(OGRFeatureDefn &definition, QStringList &names)
{
    std::vector<SourceColumn> columns;
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        const OGRFieldDefn *field = definition.GetFieldDefn(i);
        SourceColumn column;
        column.name = QString::fromUtf8(field->GetNameRef());
        column.field = i;
        column.isText = field->GetType() == OFTString;
        column.isInteger = field->GetType() == OFTInteger || field->GetType() == OFTInteger64;
        names.append(column.name);
        // GDAL counts true and false among the whole numbers; they say where, not how much.
        const bool isNumeric = column.isInteger || field->GetType() == OFTReal;
        if (column.isText || (isNumeric && field->GetSubType() != OFSTBoolean))
            columns.push_back(std::move(column));
    }
    return columns;
}

bool mayHoldPolygons(OGRLayer &layer)
{
    const OGRwkbGeometryType kind = wkbFlatten(layer.GetGeomType());
    return OGR_GT_IsSubClassOf(kind, wkbSurface) || OGR_GT_IsSubClassOf(kind, wkbMultiSurface) || kind == wkbUnknown
        || kind == wkbGeometryCollection;
}

} // namespace

PrescriptionReader::PrescriptionReader(const ReadRequest &request, ColumnFilter columnFilter,
                                       const LoadControl &loadControl)
    : asked(request)
    , path(request.path)
    , wanted(request.columns)
    , wantedLayer(request.layer)
    , wantedTask(request.task)
    , isWorthReading(columnFilter)
    , control(loadControl)
{
    wanted.removeAll(QString());
}

bool PrescriptionReader::fail(const QString &text)
{
    reason = text;
    return false;
}

bool PrescriptionReader::mayRead(const QString &path)
{
    const QStringList endings{QStringLiteral("shp"), QStringLiteral("gpkg"), QStringLiteral("geojson"),
                              QStringLiteral("json")};
    return endings.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive)
        || !TaskDataFolder(path).mainFile().isEmpty();
}

bool PrescriptionReader::checkFile()
{
    const QFileInfo info(path);
    if (!info.exists())
        return fail(QStringLiteral("there is no such file"));
    if (info.isDir())
        return fail(QStringLiteral("is a folder, not a file"));
    // A pipe would be waited on without end.
    if (!info.isFile())
        return fail(QStringLiteral("is no plain file"));
    if (!isShapefile())
        return true;
    const QString problem = ShapefileCheck::problem(path);
    return problem.isEmpty() || fail(problem);
}

bool PrescriptionReader::checkTask()
{
    return wantedTask.isEmpty() || fail(QStringLiteral("has no task \"%1\"; it has no tasks").arg(wantedTask));
}

bool PrescriptionReader::isShapefile() const
{
    return QFileInfo(path).suffix().compare(QLatin1String("shp"), Qt::CaseInsensitive) == 0;
}

bool PrescriptionReader::read(RawPrescription &map)
{
    TaskDataReader tasks(asked, control);
    if (tasks.isTaskData())
        return tasks.read(map) || fail(tasks.error());
    if (!checkFile() || !checkTask())
        return false;
    const GdalSession session;
    const GDALDatasetUniquePtr dataset = openDataset(session);
    if (!dataset)
        return false;
    OGRLayer *layer = chooseLayer(*dataset, map);
    if (layer == nullptr || !chooseColumns(*layer, map))
        return false;
    readReference(*layer, map);
    const bool isRead = readRecords(*layer, map);
    if (isRead && !session.firstFailure().isEmpty())
        return fail(session.firstFailure());
    return isRead;
}

bool PrescriptionReader::readColumnNames(QStringList &names)
{
    TaskDataReader tasks(asked, control);
    if (tasks.isTaskData())
        return tasks.readColumnNames(names) || fail(tasks.error());
    if (!checkFile() || !checkTask())
        return false;
    const GdalSession session;
    const GDALDatasetUniquePtr dataset = openDataset(session);
    RawPrescription map;
    OGRLayer *layer = dataset ? chooseLayer(*dataset, map) : nullptr;
    if (layer == nullptr)
        return false;
    tableColumns(*layer->GetLayerDefn(), names);
    return true;
}

GDALDatasetUniquePtr PrescriptionReader::openDataset(const GdalSession &session)
{
    const char *const shapefileOnly[] = {"ESRI Shapefile", nullptr};
    const char *const otherFormats[] = {"GPKG", "GeoJSON", nullptr};
    GDALDatasetUniquePtr dataset(GDALDataset::Open(QFileInfo(path).absoluteFilePath().toUtf8().constData(),
                                                   GDAL_OF_VECTOR | GDAL_OF_READONLY,
                                                   isShapefile() ? shapefileOnly : otherFormats));
    if (!dataset) {
        const QString failure = session.firstFailure();
        fail(failure.isEmpty() ? QStringLiteral("is no Shapefile, GeoPackage or GeoJSON file") : failure);
    }
    return dataset;
}

OGRLayer *PrescriptionReader::chooseLayer(GDALDataset &dataset, RawPrescription &map)
{
    std::vector<OGRLayer *> layers;
    for (OGRLayer *layer : dataset.GetLayers()) {
        if (!mayHoldPolygons(*layer))
            continue;
        layers.push_back(layer);
        map.layers.append(QString::fromUtf8(layer->GetName()));
    }
    if (layers.empty()) {
        fail(dataset.GetLayerCount() == 0 ? QStringLiteral("holds no layer") : QStringLiteral("holds no polygons"));
        return nullptr;
    }
    const int chosen = wantedLayer.isEmpty() ? 0 : map.layers.indexOf(wantedLayer);
    if (chosen < 0) {
        fail(QStringLiteral("has no layer \"%1\" with polygons; it has %2")
                 .arg(wantedLayer, map.layers.join(QStringLiteral(", "))));
        return nullptr;
    }
    map.layer = map.layers.at(chosen);
    for (int i = 1; i < map.layers.size() && wantedLayer.isEmpty(); ++i)
        map.warnings.append(
            QStringLiteral("layer \"%1\" is not loaded: only the first layer with polygons is").arg(map.layers.at(i)));
    return layers[static_cast<size_t>(chosen)];
}

bool PrescriptionReader::chooseColumns(OGRLayer &layer, RawPrescription &map)
{
    const std::vector<SourceColumn> table = tableColumns(*layer.GetLayerDefn(), map.columnNames);
    for (const SourceColumn &column : table) {
        if (column.isText)
            map.texts.push_back({column.name, column.field, {}, false});
    }
    if (!wanted.isEmpty())
        return takeWantedColumns(table, map);
    std::copy_if(table.begin(), table.end(), std::back_inserter(map.columns), isWorthReading);
    return true;
}

bool PrescriptionReader::takeWantedColumns(const std::vector<SourceColumn> &table, RawPrescription &map)
{
    QVector<int> taken;
    for (const QString &name : wanted) {
        const int place = TableColumns::find(map.columnNames, name);
        if (place < 0)
            return fail(QStringLiteral("has no column \"%1\"; it has %2")
                            .arg(name, map.columnNames.join(QStringLiteral(", "))));
        const auto column =
            std::find_if(table.begin(), table.end(), [place](const auto &c) { return c.field == place; });
        if (column == table.end())
            return fail(QStringLiteral("column \"%1\" holds no numbers").arg(map.columnNames.at(place)));
        if (!taken.contains(place))
            map.columns.push_back(*column);
        taken.append(place);
    }
    return true;
}

void PrescriptionReader::skipOtherColumns(OGRLayer &layer, const RawPrescription &map)
{
    if (layer.TestCapability(OLCIgnoreFields) == 0)
        return;
    const OGRFeatureDefn &definition = *layer.GetLayerDefn();
    CPLStringList others;
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        const char *name = definition.GetFieldDefn(i)->GetNameRef();
        // GDAL goes by names, which two columns may share, or which stand for something else than a column.
        const bool isOwnName = definition.GetFieldIndex(name) == i && !STARTS_WITH_CI(name, "OGR_");
        const bool isRead = std::any_of(map.columns.begin(), map.columns.end(),
                                        [i](const SourceColumn &column) { return column.field == i; });
        const bool isText = std::any_of(map.texts.begin(), map.texts.end(),
                                        [i](const TextColumn &column) { return column.field == i; });
        if (isOwnName && !isRead && !isText)
            others.AddString(name);
    }
    layer.SetIgnoredFields(const_cast<const char **>(others.List()));
}

void PrescriptionReader::readReference(OGRLayer &layer, RawPrescription &map)
{
    // A Shapefile's definition is read only now; what is wrong with it is said by other means.
    const GdalSession own;
    if (const OGRSpatialReference *reference = layer.GetSpatialRef()) {
        map.reference.reset(reference->Clone());
        return;
    }
    const QString file = isShapefile() ? ShapefileCheck::definitionFile(path) : QString();
    if (!file.isEmpty())
        map.lackOfReference = QStringLiteral("its coordinate system (%1) cannot be read").arg(file);
}

bool PrescriptionReader::readRecords(OGRLayer &layer, RawPrescription &map)
{
    const double expected = static_cast<double>(std::max<GIntBig>(1, layer.GetFeatureCount()));
    reserve(map, expected);
    skipOtherColumns(layer, map);
    ShapeReader shapes(map);
    while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
        if (control.isCancelled())
            return fail(QStringLiteral("loading was cancelled"));
        readValues(*feature, map);
        shapes.read(feature->GetGeometryRef());
        ++map.records;
        if (map.records % 256 == 0)
            control.report(std::min(1.0, map.records / expected));
    }
    return map.records > 0 || fail(QStringLiteral("holds no records"));
}

void PrescriptionReader::readValues(const OGRFeature &feature, RawPrescription &map)
{
    for (SourceColumn &column : map.columns) {
        double value = notANumber;
        if (feature.IsFieldSetAndNotNull(column.field)) {
            value = column.isText ? readText(feature, map.records, column) : feature.GetFieldAsDouble(column.field);
            if (!isRate(value) && !(column.isText && std::isnan(value)))
                column.unreadable.push_back(map.records);
        }
        // The sum turns a negative zero into the plain one.
        column.values.push_back(isRate(value) ? value + 0.0 : notANumber);
    }
    for (TextColumn &column : map.texts)
        compareText(feature, column);
}
