#pragma once

#include <QByteArray>
#include <QString>

/// In which code page the table of a Shapefile is written.
class TableCodePage {
public:
    /// GDAL's name of it where the table leaves that open and its bytes tell it; empty where GDAL knows, or where
    /// Latin-1, which it then takes, will do. `shapePath`: of the .shp.
    static QByteArray guess(const QString &shapePath);
    /// The same for the bytes of a table's beginning. UTF-8 is known by its rules. Latin-1 and its like have letters
    /// from 0xC0 on and hardly anything before that stands in a name, where code page 850 has its letters.
    static QByteArray guess(const QByteArray &table);
};
