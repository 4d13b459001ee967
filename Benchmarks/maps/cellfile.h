#pragma once

#include <QString>

/// Writes a Shapefile of side × side square cells of 10 m, three rates each.
void writeCellFile(const QString &path, int side);
