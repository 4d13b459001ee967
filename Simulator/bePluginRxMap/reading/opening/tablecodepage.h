#pragma once

#include <QByteArray>
#include <QString>

/// In which code page the table of a Shapefile is written.
class TableCodePage {
public:
    /// GDAL's name of the code page if the table leaves it open and has letters that depend on it; else empty.
    /// `shapePath`: of the .shp.
    static QByteArray guess(const QString &shapePath);
    /// The same for the bytes of a table's beginning. UTF-8 is recognised by its rules. Latin-1 and its like have
    /// letters from 0xC0 on, and before that hardly anything that occurs in a name; there code page 850 has its
    /// letters.
    static QByteArray guess(const QByteArray &table);
};
