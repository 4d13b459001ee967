#pragma once

#include <QString>
#include <QStringList>

/// Which file to read, and what of it.
struct ReadRequest {
    QString path;
    /// Names of the columns; empty entries are ignored, an empty list reads every column that is worth it.
    QStringList columns = {};
    /// Empty: the first that will do.
    QString layer = {};
    QString task = {};
};
