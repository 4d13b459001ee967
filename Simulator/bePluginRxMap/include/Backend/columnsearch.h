#pragma once

#include <QString>
#include <QStringList>

/// Which columns a file's table has.
struct ColumnSearch {
    /// Those of the wanted columns that are there, as they were asked for.
    QStringList found;
    /// One line that names the file and the reason; empty on success.
    QString error;

    bool isOk() const { return error.isEmpty(); }
};
