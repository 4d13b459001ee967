#pragma once

#include <QString>

class QFile;

/// Why `path` is not a file that can be read to its end; empty when it is one. A pipe or device is not: it may have no
/// end, or nobody writing to it.
QString regularFileProblem(const QString &path);
/// Opens a file to be written, unbuffered; empty, or the reason when it cannot be. A pipe that nobody reads cannot:
/// opening it would wait for a reader.
QString openOutput(QFile &file);
