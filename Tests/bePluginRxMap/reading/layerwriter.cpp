#include "layerwriter.h"

#include "files.h"
#include "gdalsession.h"

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <cpl_vsi.h>
#include <memory>
#include <ogrsf_frmts.h>
#include <random>

namespace {

OGRFieldType typeOf(const QVariant &sample)
{
    switch (sample.userType()) {
    case QMetaType::Int:
        return OFTInteger;
    case QMetaType::Double:
        return OFTReal;
    default:
        return OFTString;
    }
}

void setValues(OGRFeature &feature, const QList<QVariant> &values)
{
    for (int i = 0; i < values.size(); ++i) {
        const QVariant &value = values.at(i);
        if (!value.isValid())
            feature.SetFieldNull(i);
        else if (value.userType() == QMetaType::QString)
            feature.SetField(i, value.toString().toUtf8().constData());
        else
            feature.SetField(i, value.toDouble());
    }
}

bool addLayer(GDALDataset &file, const LayerSketch &sketch)
{
    OGRSpatialReference reference;
    if (sketch.epsg > 0)
        reference.importFromEPSG(sketch.epsg);
    else
        reference.SetLocalCS("Site");
    reference.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRLayer *layer =
        file.CreateLayer(sketch.name, sketch.epsg == 0 ? nullptr : &reference, OGRFromOGCGeomType(sketch.kind));
    if (layer == nullptr)
        return false;
    for (const LayerField &field : sketch.fields) {
        OGRFieldDefn definition(field.name, typeOf(field.sample));
        if (definition.GetType() == OFTReal && sketch.driver == QByteArray("ESRI Shapefile")) {
            definition.SetWidth(18);
            definition.SetPrecision(6);
        }
        layer->CreateField(&definition);
    }
    for (const LayerRow &row : sketch.rows) {
        OGRFeature feature(layer->GetLayerDefn());
        setValues(feature, row.values);
        OGRGeometry *geometry = nullptr;
        if (!row.geometry.isEmpty()) {
            OGRGeometryFactory::createFromWkt(row.geometry.toUtf8().constData(), nullptr, &geometry);
            feature.SetGeometryDirectly(geometry);
        }
        if (layer->CreateFeature(&feature) != OGRERR_NONE)
            return false;
    }
    return true;
}

} // namespace

bool writeLayers(const QString &path, const QList<LayerSketch> &layers)
{
    const GdalSession session;
    GDALDriver *format = GetGDALDriverManager()->GetDriverByName(layers.first().driver);
    const GDALDatasetUniquePtr file(format->Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
    return file && std::all_of(layers.begin(), layers.end(), [&file](const LayerSketch &layer) {
               return addLayer(*file, layer);
           });
}

bool LayerSketch::write(const QString &path) const
{
    return writeLayers(path, {*this});
}

bool packFiles(const QString &archive, const QList<QPair<QString, QString>> &files)
{
    const GdalSession session;
    const QByteArray whole = "/vsizip/" + archive.toUtf8();
    VSILFILE *open = VSIFOpenL(whole.constData(), "wb");
    bool isPacked = open != nullptr;
    for (const auto &[name, path] : files) {
        const QByteArray bytes = readFile(path);
        VSILFILE *entry = VSIFOpenL((whole + '/' + name.toUtf8()).constData(), "wb");
        const auto size = static_cast<size_t>(bytes.size());
        isPacked = isPacked && entry != nullptr && VSIFWriteL(bytes.constData(), 1, size, entry) == size
            && VSIFCloseL(entry) == 0;
    }
    return isPacked && VSIFCloseL(open) == 0;
}

QString squareText(double x, double y, double side)
{
    return QStringLiteral("POLYGON ((%1 %2, %3 %2, %3 %4, %1 %4, %1 %2))")
        .arg(x, 0, 'f', 9)
        .arg(y, 0, 'f', 9)
        .arg(x + side, 0, 'f', 9)
        .arg(y + side, 0, 'f', 9);
}

QString scribbleText(int count)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(0.0, 0.01);
    QStringList corners;
    for (int i = 0; i < count; ++i) {
        const double x = 11.0 + place(random);
        corners.append(QStringLiteral("%1 %2").arg(x, 0, 'f', 9).arg(48.0 + place(random), 0, 'f', 9));
    }
    corners.append(corners.first());
    return QStringLiteral("POLYGON ((%1))").arg(corners.join(QLatin1Char(',')));
}
