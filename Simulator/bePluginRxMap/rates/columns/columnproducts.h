#pragma once

#include "Backend/columnproduct.h"
#include "planering.h"
#include "rawprescription.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

/// The products of a machine that has none of its own yet, as the columns of a file tell them: one for each column that
/// is named, else for each one that most likely holds rates. It is called by what its column says and measured as the
/// column's unit is, else as its name says, else by weight.
class ColumnProducts {
public:
    /// So many columns that are guesses make products at most.
    static constexpr int mostGuesses = 3;

    /// As in LoadRequest.
    ColumnProducts(const QStringList &namedColumns, const QStringList &units);

    /// Those that are known to come before the file is read, by number alone.
    QList<ColumnProduct> expected() const;
    QList<ColumnProduct> of(const RawPrescription &source, const std::vector<PlanePolygon> &polygons) const;

    /// Whether a product of that name is what the column was made for.
    static bool isNamed(const SourceColumn &column, const QString &product);

private:
    QStringList names;
    QStringList operatorUnits;
};
