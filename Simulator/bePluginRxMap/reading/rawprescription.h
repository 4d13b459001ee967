#pragma once

#include "Backend/backendtext.h"
#include "Backend/placerates.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <ogr_spatialref.h>
#include <vector>

/// Releases a spatial reference, whose holders GDAL counts.
struct SpatialReferenceRelease {
    void operator()(OGRSpatialReference *reference) const { reference->Release(); }
};
using SpatialReference = std::unique_ptr<OGRSpatialReference, SpatialReferenceRelease>;

/// A column of the attribute table.
struct SourceColumn {
    /// What the format says of a column, whatever its name and content.
    enum class Meaning { NotSaid, Rates, NoRates };

    QString name;
    /// What is measured ("Mass"), in a word, where the format names no product; a product of the column is called so.
    /// Empty where the column's own name does.
    QString measured;
    /// Place among the table's fields.
    int field = -1;
    bool isText = false;
    bool isInteger = false;
    /// One per record; not a number where the table has none, or one below zero.
    std::vector<double> values;
    /// Records whose entry is a text that is no number or in another unit than `unit`, or a number that is no rate
    /// (below zero or not finite).
    std::vector<int> unreadable;
    /// What follows numbers that are written as text ("kg/ha"); empty when nothing does.
    QString unit;
    /// The first text whose comma may be a thousands separator; empty when there is none.
    QString ambiguous;
    Meaning meaning = Meaning::NotSaid;
    /// The unit that the format gives, "mm3/m2"; empty when it gives none.
    QString formatUnit;
    /// In the column's unit.
    PlaceRates placeRates = {};
};

/// Whether a column, judged by name and type, may hold rates, or is even called a rate. What is called a total is read
/// for the operator to choose, but no layer is taken for it.
enum class RateChance { None, Total, Possible, Named };
using ColumnJudge = RateChance (*)(const SourceColumn &);

/// A column that holds the same text in every record that has any, or spells the same unit of a rate.
struct TextColumn {
    QString name;
    /// Place among the table's fields.
    int field = -1;
    QString text;
    /// The records differ, so the text tells nothing.
    bool isMixed = false;
    /// The first text that differs from `text`.
    QString other = {};
};

/// A ring of a record, in the file's own coordinates; closed implicitly from the last vertex to the first.
struct SourceRing {
    size_t first = 0; ///< Index of its first vertex in RawPrescription::xs and ys.
    size_t count = 0;
    int record = -1;     ///< From 0.
    bool isHole = false; ///< Holes follow the outer ring that they belong to.
};

/// The boundary of a field, in the file's own coordinates.
struct SourceBoundary {
    std::vector<double> xs;
    std::vector<double> ys;
    /// For each ring, outer or inner, the place after its last vertex.
    std::vector<size_t> ends;
};

/// What a prescription file holds.
struct RawPrescription {
    std::vector<double> xs;
    std::vector<double> ys;
    std::vector<SourceRing> rings;
    /// The layer and the task that were read, and all that the file offers, as in LoadReport.
    QString layer;
    QString task;
    QStringList layers;
    QStringList tasks;
    /// As in SurveyReport.
    QStringList archived;
    /// The columns that were read, in table order.
    std::vector<SourceColumn> columns;
    /// All columns of text, in table order.
    std::vector<TextColumn> texts;
    /// Places among the table's fields of all columns of numbers, read or not, ascending.
    std::vector<int> numberFields;
    /// Names of all columns of the table.
    QStringList columnNames;
    /// Null when the file names no coordinate system; its coordinates are taken as WGS 84 longitudes and latitudes.
    SpatialReference reference;
    /// How a null `reference` is reported; empty where the format allows WGS 84 only.
    QString lackOfReference = BackendText::tr("names no coordinate system");
    int records = 0;
    /// The number of equal cells that each record of a grid stands for; records beyond the list's end stand for one
    /// each.
    std::vector<int> cells;

    int cellsOf(int record) const
    {
        const auto place = static_cast<size_t>(record);
        return place < cells.size() ? cells[place] : 1;
    }
    // Records that were left out, and why.
    std::vector<int> emptyRecords;     ///< Without geometry, or with rings that enclose nothing only.
    std::vector<int> otherRecords;     ///< Points and lines.
    std::vector<int> notFiniteRecords; ///< With a coordinate that is not finite.
    std::vector<int> droppedRings;     ///< The record of each ring with fewer than three different vertices.
    QStringList warnings;
    /// Empty where the file has none.
    SourceBoundary boundary;
};
