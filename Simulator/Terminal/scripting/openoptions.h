#pragma once

#include "openrequest.h"
#include "result.h"

class QJSValue;

/// The options of a script's open(): {columns: [...], units: [...], layer, task}.
class OpenOptions {
public:
    /// What is asked for with the file of that path. Reads each option once; an option that is not known, or no list of
    /// texts or text, is an error.
    static Result<OpenRequest> read(const QString &path, const QJSValue &options);
};
