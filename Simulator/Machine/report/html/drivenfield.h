#pragma once

#include "fielddrive.h"

#include <QString>

#include <vector>

class DriveTally;
class FieldRaster;
class Simulation;

/// All that a page shows of a drive; nothing in it is owned.
struct DrivenField {
    /// The prescriptions' files.
    QString file;
    const Simulation *simulation = nullptr;
    const DriveTally *tally = nullptr;
    /// Of the same drive, ended.
    const FieldRaster *raster = nullptr;
    /// Those of FieldDrive::tune(), by product; none without tuning.
    std::vector<FieldDrive::Curve> curves;
};
