#pragma once

#include "Backend/columnproduct.h"
#include "planering.h"
#include "rateunit.h"
#include "rawprescription.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

/// The products that the columns of a file give to a machine that has none of its own yet: one for each column that is
/// named, else for each column that most likely holds rates. A product is named after its column, and measured as the
/// column's unit is, else as its name says, else by weight.
class ColumnProducts {
public:
    /// At most this many columns that are guesses make products.
    static constexpr int mostGuesses = 3;

    /// As in LoadRequest.
    ColumnProducts(const QStringList &namedColumns, const QStringList &units);

    /// The products known before the file is read, by number only.
    QList<ColumnProduct> expected() const;
    QList<ColumnProduct> of(const RawPrescription &source, const std::vector<PlanePolygon> &polygons) const;

    /// The product that a column in that unit makes, without a number; other columns may make one of the same name.
    static ColumnProduct ofColumn(const SourceColumn &column, const RateUnit &unit);
    /// Whether the column was made for a product of that name.
    static bool isNamed(const SourceColumn &column, const QString &product);

private:
    QStringList names;
    QStringList operatorUnits;
};
