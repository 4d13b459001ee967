#pragma once

#include <QByteArray>
#include <QString>

/// Writes a file, in place of one that is there. Its path; empty when that cannot be done.
QString writeFile(const QString &path, const QByteArray &content);
/// All that a file holds; empty when it cannot be read.
QByteArray readFile(const QString &path);
