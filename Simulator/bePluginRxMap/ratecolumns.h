#pragma once

#include "sourcemap.h"

#include <QStringList>

#include <vector>

/// Which columns of an attribute table hold rates.
class RateColumns {
public:
    /// Whether the column's name and type leave it possible that it holds rates.
    static bool isWorthReading(const SourceColumn &column);
    /// Place of the column called `wanted`, else of the first whose name differs in case only; -1 when there is none.
    static int find(const QStringList &names, const QString &wanted);
    /// Places, in table order, of the likely rate columns of `map.columns`, at most `most`. A column whose name says
    /// that it is a rate outdoes all that only could be one by their content. `recordAreas`: square metres per record.
    static std::vector<int> mostLikely(const SourceMap &map, const std::vector<double> &recordAreas, int most);
};
