#pragma once

#include "result.h"

#include <QStringList>

class QJSValue;

/// The options of a script's open(): {columns: [...], units: [...]}.
struct OpenOptions {
    /// Columns of products 1, 2, ...; an empty one leaves its product out.
    QStringList columns;
    /// Units of the columns that feed products 1, 2, ...; an empty one is left to the file.
    QStringList units;

    /// Reads each option once; an option that is not known, or no list of texts, is an error.
    static Result<OpenOptions> read(const QJSValue &options);
};
