#pragma once

#include "rawprescription.h"

#include <QStringList>

/// What can be said of the columns of an attribute table before they are read.
class RateColumns {
public:
    /// Whether the column's name and type leave it possible that it holds rates.
    static bool isWorthReading(const SourceColumn &column);
    /// Place of the column called `wanted`, else of the first whose name differs in case only; -1 when there is none.
    static int find(const QStringList &names, const QString &wanted);
};
