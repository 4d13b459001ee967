#pragma once

#include "Backend/machineproduct.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What to load, and for whom.
struct LoadRequest {
    /// A file of one of the formats that are read, or a folder of task data.
    QString path;
    /// Rate columns; entry i feeds products[i]. An empty entry leaves that product out. An empty list lets the
    /// back-end choose the most likely columns.
    QStringList columns;
    /// Units of the columns that feed products[i] ("lb/ac"); empty and missing ones are left to the file.
    QStringList units;
    /// All products of the machine, in product order.
    QList<MachineProduct> products;
    /// Which one of the file's layers, or of its tasks; empty: the first that will do.
    QString layer;
    QString task;
};
