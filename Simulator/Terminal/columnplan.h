#pragma once

#include "result.h"

#include <QList>
#include <QString>
#include <QStringList>

/// Which file feeds which product, when the rate columns are named for several files at once.
class ColumnPlan {
public:
    /// A prescription file and those of the wanted columns that it has.
    struct File {
        QString path;
        QStringList columns;
    };

    /// Looks `wanted` (columns for products 1, 2, ...; an empty name leaves its product out) up in the files, in order:
    /// the first file that has a column feeds the product from it. One list per file, empty for a file that feeds
    /// none. A column that no file has is an error that names it.
    static Result<QList<QStringList>> distribute(const QList<File> &files, const QStringList &wanted);
};
