#pragma once

#include "fielddrive.h"

#include <QJsonObject>
#include <QString>

class DriveTally;
class Machine;

/// The result of a drive as JSON: areas in square metres, amounts in the product's base unit times hectares; positive
/// metres and seconds mean late.
class DriveReport {
public:
    /// `curves` are those of FieldDrive::tune(); none without tuning.
    static QJsonObject make(const QString &file, const Machine &machine, const DriveTally &tally,
                            const std::vector<FieldDrive::Curve> &curves);
};
