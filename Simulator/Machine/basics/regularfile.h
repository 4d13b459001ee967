#pragma once

#include <QString>

class QFile;
class QFileDevice;

/// Why `path` is not a file that can be read to its end; empty when it is one. A pipe or device is not: it may have no
/// end, or nobody writing to it.
QString regularFileProblem(const QString &path);
/// Why the file could not be opened, read or written, in the language chosen.
QString systemReason(const QFileDevice &file);
/// Opens a file to be written, unbuffered; empty, or the reason when it cannot be. A pipe that nobody reads cannot:
/// opening it would wait for a reader.
QString openOutput(QFile &file);
