#pragma once

#include <QString>

/// What the cells of a grid hold.
enum class GridContent {
    /// Twelve zones with smooth borders, a rate for each, as prescriptions have them.
    Zones,
    /// A rate of its own for each cell: none equals its neighbour.
    Different
};

/// Writes task data with a grid of 500 × 500 cells of 2 m, one rate each, into a folder.
void writeGridFile(const QString &folder, GridContent content);
