#include "geopackagerecord.h"

#include "fieldplane.h"

#include <QFile>

#include <cmath>
#include <cpl_conv.h>
#include <cpl_error.h>
#include <cpl_string.h>
#include <ogrsf_frmts.h>

namespace {

constexpr int fixedFields = 5;
constexpr int fieldsOfProduct = 4;

/// Sets how GDAL works while it lives: GDAL prints nothing, and failures show in results.
class QuietGdal {
public:
    QuietGdal() { CPLPushErrorHandler(CPLQuietErrorHandler); }
    ~QuietGdal() { CPLPopErrorHandler(); }
    Q_DISABLE_COPY(QuietGdal)

    /// What GDAL said last, one line.
    static QString reason()
    {
        const QString said = QString::fromUtf8(CPLGetLastErrorMsg()).simplified();
        return said.isEmpty() ? QStringLiteral("it cannot be written") : said;
    }

private:
    // A crash of the program must not cost more than the last second; one of the computer may.
    CPLConfigOptionSetter synchronous{"OGR_SQLITE_SYNCHRONOUS", "OFF", false};
    // By design: not the day of writing, so that the same drive makes the same file.
    CPLConfigOptionSetter date{"OGR_CURRENT_DATE", "2000-01-01T00:00:00.000Z", false};
};

/// What the implement passed over in the step.
OGRPolygon strip(const RecordEntry &entry)
{
    const QPointF before = 0.5 * entry.width * entry.start.rightward();
    const QPointF after = 0.5 * entry.width * entry.pose.rightward();
    OGRLinearRing ring;
    for (const QPointF &corner : {entry.start.place - before, entry.start.place + before, entry.pose.place + after,
                                  entry.pose.place - after, entry.start.place - before})
        ring.addPoint(corner.x(), corner.y());
    OGRPolygon polygon;
    polygon.addRing(&ring);
    polygon.flattenTo2D();
    return polygon;
}

} // namespace

GeoPackageRecord::GeoPackageRecord(const QString &givenPath)
    : RecordWriter(givenPath)
{
}

GeoPackageRecord::~GeoPackageRecord()
{
    finish();
}

Result<std::shared_ptr<RecordWriter>> GeoPackageRecord::create(const QString &path, int products, const QPointF &origin)
{
    const QuietGdal quiet;
    const std::shared_ptr<GeoPackageRecord> record(new GeoPackageRecord(path));
    CPLErrorReset();
    const QString error = record->begin(products, origin);
    return {error.isEmpty() ? record : nullptr, error};
}

QString GeoPackageRecord::begin(int products, const QPointF &origin)
{
    RegisterOGRGeoPackage();
    if (QFile::exists(path) && !QFile::remove(path))
        return QStringLiteral("it is there and cannot be replaced");
    GDALDriver *driver = GetGDALDriverManager()->GetDriverByName("GPKG");
    // GDAL's table of counts would still count features that were taken back when the disk was full.
    CPLStringList options;
    options.SetNameValue("ADD_GPKG_OGR_CONTENTS", "NO");
    file = driver != nullptr ? driver->Create(QFile::encodeName(path).constData(), 0, 0, 0, GDT_Unknown, options.List())
                             : nullptr;
    const QString plane = FieldPlane::definition(origin);
    const bool isReady = file != nullptr && addLayer("points", wkbPoint, products, plane, points)
        && addLayer("strips", wkbPolygon, products, plane, strips) && file->StartTransaction() == OGRERR_NONE;
    return isReady ? QString() : QuietGdal::reason();
}

bool GeoPackageRecord::addLayer(const char *name, int geometry, int products, const QString &plane, OGRLayer *&layer)
{
    OGRSpatialReference reference;
    reference.importFromProj4(plane.toLatin1().constData());
    layer = file->CreateLayer(name, &reference, OGRwkbGeometryType(geometry), nullptr);
    const auto addField = [layer](const QByteArray &field, OGRFieldType type) {
        OGRFieldDefn definition(field.constData(), type);
        return layer->CreateField(&definition) == OGRERR_NONE;
    };
    bool isMade = layer != nullptr;
    for (const char *field : {"time", "heading", "speed", "width"})
        isMade = isMade && addField(field, OFTReal);
    isMade = isMade && addField("working", OFTInteger);
    for (int number = 1; number <= products; ++number) {
        const QByteArray behind = "_" + QByteArray::number(number);
        for (const char *field : {"prescribed", "commanded", "applied"})
            isMade = isMade && addField(field + behind, OFTReal);
        isMade = isMade && addField("source" + behind, OFTString);
    }
    return isMade;
}

bool GeoPackageRecord::writeStep(OGRLayer *layer, OGRGeometry &geometry, const RecordEntry &entry)
{
    OGRFeature feature(layer->GetLayerDefn());
    feature.SetGeometry(&geometry);
    feature.SetField(0, entry.time);
    feature.SetField(1, entry.pose.degrees());
    feature.SetField(2, entry.speed);
    feature.SetField(3, entry.width);
    feature.SetField(4, entry.isWorking ? 1 : 0);
    int field = fixedFields;
    for (const RecordEntry::Channel &channel : entry.channels) {
        if (!std::isnan(channel.command.prescribed))
            feature.SetField(field, channel.command.prescribed);
        feature.SetField(field + 1, channel.command.commanded);
        feature.SetField(field + 2, channel.applied);
        feature.SetField(field + 3, sourceName(channel.command.source));
        field += fieldsOfProduct;
    }
    return layer->CreateFeature(&feature) == OGRERR_NONE;
}

QString GeoPackageRecord::add(const RecordEntry &entry)
{
    const QuietGdal quiet;
    OGRPoint point(entry.pose.place.x(), entry.pose.place.y());
    bool isWritten = writeStep(points, point, entry);
    if (isWritten && entry.isWorking) {
        OGRPolygon passed = strip(entry);
        isWritten = writeStep(strips, passed, entry);
    }
    if (isWritten)
        return {};
    const QString reason = QuietGdal::reason();
    file->RollbackTransaction();
    return reason;
}

QString GeoPackageRecord::keep()
{
    if (file == nullptr)
        return {};
    const QuietGdal quiet;
    if (file->CommitTransaction() == OGRERR_NONE && file->StartTransaction() == OGRERR_NONE)
        return {};
    const QString reason = QuietGdal::reason();
    file->RollbackTransaction();
    return reason;
}

void GeoPackageRecord::close()
{
    const QuietGdal quiet;
    if (file != nullptr)
        GDALClose(file);
    file = nullptr;
}
