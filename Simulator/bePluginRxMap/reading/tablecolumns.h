#pragma once

#include "rawprescription.h"

#include <QStringList>

class OGRFeatureDefn;

/// The columns of an attribute table by their names.
class TableColumns {
public:
    /// A prescription's table has no more columns than this; a file may announce any number.
    static constexpr int most = 2048;

    /// The columns that may hold numbers; `names` gets the names of all.
    static std::vector<SourceColumn> read(OGRFeatureDefn &definition, QStringList &names);
    /// Place of the column called `wanted`, else of the first whose name differs in case only, else of the column whose
    /// number from 1 it is ("#3"); -1 when there is none.
    static int find(const QStringList &names, const QString &wanted);
    /// The names in one line; only the first if there are many.
    static QString list(const QStringList &names);
};
