#pragma once

#include "openrequest.h"
#include "result.h"

class QJSValue;

/// The options of a script's open(): {columns: [...], units: [...], layer, task}.
class OpenOptions {
public:
    /// The request for the file of that path. Reads each option once; an unknown option, or one that is not a list of
    /// texts or a text, is an error.
    static Result<OpenRequest> read(const QString &path, const QJSValue &options);
};
