#pragma once

#include "Backend/surveyreport.h"
#include "columnpolicy.h"
#include "columnunits.h"
#include "planering.h"
#include "rawprescription.h"

#include <vector>

/// Says which columns a file that was read has, what they hold, and which would feed which product unasked.
class FileSurvey {
public:
    /// Both are not owned and outlive this. `polygons`: those of the map, on its plane.
    FileSurvey(const RawPrescription &source, const std::vector<PlanePolygon> &polygons);

    /// Enters the columns. `report` holds the products that they made. `policy`: one for which the operator has named
    /// no columns. Returns why no product can be fed, without the file's name; empty when one can.
    QString addColumns(const ColumnPolicy &policy, SurveyReport &report) const;
    void addPicture(SurveyReport &report) const;

private:
    SurveyedColumn describe(int place) const;
    bool hasRate(int record) const; ///< In any column.
    /// Enters the column's rates and their extremes.
    void measure(const SourceColumn &column, SurveyedColumn &told) const;

    const RawPrescription &source;
    const std::vector<PlanePolygon> &polygons;
    ColumnUnits units;
    std::vector<bool> hasPolygon; ///< By record.
};
