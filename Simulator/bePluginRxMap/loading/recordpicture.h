#pragma once

#include "planering.h"

#include <QSize>
#include <QVector>

#include <vector>

/// A small picture of polygons, north up, in which each pixel knows the record seen there. It lies in a square of
/// `side` pixels and has the map's own proportions.
class RecordPicture {
public:
    RecordPicture(const std::vector<PlanePolygon> &polygons, int side);

    QSize size() const { return pixels; }
    /// Line by line from the top; -1 where there is no polygon. A later polygon covers an earlier one.
    const QVector<int> &records() const { return seen; }

private:
    QSize pixels;
    QVector<int> seen;
};
