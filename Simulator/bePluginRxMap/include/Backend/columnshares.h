#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// What each of several files is to feed, when columns are named for all of them together.
struct ColumnShares {
    /// For each file the columns of products 1, 2, ..., as in LoadRequest; empty for a file that feeds none. None on
    /// failure.
    QList<QStringList> columns;
    /// One line that names the file and the reason, or the column that no file has; empty on success.
    QString error;
    /// The file that could not be read.
    QString path;

    bool isOk() const { return error.isEmpty(); }
};
