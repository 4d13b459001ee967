#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

/// A column of a test layer; the kind of `sample` (int, double or text) is the column's type.
struct LayerField {
    const char *name;
    QVariant sample;
};

/// A record of a test layer: geometry as well-known text (empty: no geometry) and one value per field (invalid: null).
struct LayerRow {
    QString geometry;
    QList<QVariant> values;
};

/// A layer for the tests to write. `driver` is GDAL's name for it; `epsg` 0: no coordinate system, -1: a site's local
/// one.
struct LayerSketch {
    const char *driver = "ESRI Shapefile";
    int epsg = 4326;
    QList<LayerField> fields;
    QList<LayerRow> rows;
    /// Kind of geometry as well-known text, "POLYGON" by default.
    const char *kind = "POLYGON";
    const char *name = "layer";

    /// False when GDAL fails.
    bool write(const QString &path) const;
};

/// Writes a file of several layers, in the format of the first. False when GDAL fails.
bool writeLayers(const QString &path, const QList<LayerSketch> &layers);

/// Packs files into a new archive: their names in it, and their paths. False when GDAL fails.
bool packFiles(const QString &archive, const QList<QPair<QString, QString>> &files);

/// Well-known text of a square with its lower left corner at (x, y).
QString squareText(double x, double y, double side);

/// Well-known text of a ring of `count` vertices anywhere in a square of a kilometre, the same each time.
QString scribbleText(int count);
