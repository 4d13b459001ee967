#pragma once

#include <QString>

/// Why `path` is no file whose content can be read to its end; empty when it is one. A pipe or device is none: it may
/// have no end, or nobody who writes it.
QString regularFileProblem(const QString &path);
