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
    /// The columns from which the products on offer were made, see LoadRequest; an empty list: the offer was the
    /// machine's own products.
    std::optional<QList<ColumnProduct>> columnProducts = {};
    /// Groups of maps that the operator wants closed once it is open.
    QStringList closes = {};
    /// Groups of maps that it leaves without a product, and that are closed for that reason.
    QStringList replaces = {};
};
