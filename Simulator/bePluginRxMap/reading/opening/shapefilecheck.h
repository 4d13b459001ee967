#pragma once

#include <QString>

/// Checks the files of a Shapefile before it is read: a reader would take half of one for the whole.
class ShapefileCheck {
public:
    /// Path of the part of the Shapefile with that extension, in lower or upper case; empty when there is none.
    static QString partPath(const QString &shapePath, const QString &extension);
    /// What keeps the Shapefile from being read in full; empty when nothing does. The text names no file but parts.
    static QString problem(const QString &path);
    /// Name of the file beside it that should define its coordinate system; empty where no file says anything.
    static QString definitionFile(const QString &path);
};
