#pragma once

#include <QByteArray>
#include <QString>

/// Writes a file, replacing an existing one. Returns its path; empty on failure.
QString writeFile(const QString &path, const QByteArray &content);
/// The whole content of a file; empty when it cannot be read.
QByteArray readFile(const QString &path);
