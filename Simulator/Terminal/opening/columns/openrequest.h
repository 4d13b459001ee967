#pragma once

#include "Backend/columnproduct.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// What the operator, the command line or a script asks the terminal to open.
struct OpenRequest {
    QStringList paths;
    /// Columns of products 1, 2, ...; an empty name leaves its product out, an empty list takes the most likely ones.
    QStringList columns = {};
    /// Units of the columns that feed products 1, 2, ...; empty and missing ones are left to the file.
    QStringList units = {};
    /// Which layer and which task of each file; empty: the first that will do.
    QString layer = {};
    QString task = {};
    /// What the products were made from that were chosen among, see LoadRequest; empty: they were the machine's.
    std::optional<QList<ColumnProduct>> columnProducts = {};
    /// Groups of maps that the operator wants closed once it is open.
    QStringList closes = {};
    /// Groups of maps that are left without a product by it, and closed for that.
    QStringList replaces = {};
};
