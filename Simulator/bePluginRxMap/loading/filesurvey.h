#pragma once

#include "Backend/surveyreport.h"
#include "columnpolicy.h"
#include "columnunits.h"
#include "planering.h"
#include "rawprescription.h"

#include <vector>

/// Tells of a file that was read which columns it has, what they hold, and what would feed which product unasked.
class FileSurvey {
public:
    /// Both are not owned and outlive this. `polygons`: those of the map, on its plane.
    FileSurvey(const RawPrescription &source, const std::vector<PlanePolygon> &polygons);

    /// Enters the columns. `policy`: one for which the operator has named nothing. The reason why nothing can be fed,
    /// without the file's name; empty when something can.
    QString addColumns(const ColumnPolicy &policy, SurveyReport &report) const;
    void addPicture(SurveyReport &report) const;

private:
    /// `displayFactor`: from the file's unit to the one in which the classes are round.
    SurveyedColumn describe(int place, double displayFactor = 1.0) const;
    bool hasRate(int record) const; ///< In any column.
    void classify(const SourceColumn &column, double displayFactor, SurveyedColumn &told) const;

    const RawPrescription &source;
    const std::vector<PlanePolygon> &polygons;
    ColumnUnits units;
    std::vector<bool> hasPolygon; ///< By record.
};
