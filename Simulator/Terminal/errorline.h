#pragma once

class QString;

/// Writes a line on standard error, at once. It stays one line, and leaves the shell's window as it is, whatever bytes
/// a file or a library brought into it: control characters are written as question marks.
void writeErrorLine(const QString &line);
