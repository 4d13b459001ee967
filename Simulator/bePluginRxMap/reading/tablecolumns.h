#pragma once

#include <QStringList>

/// The columns of an attribute table by their names.
class TableColumns {
public:
    /// Place of the column called `wanted`, else of the first whose name differs in case only, else of the column whose
    /// number from 1 it is ("#3"); -1 when there is none.
    static int find(const QStringList &names, const QString &wanted);
};
