#pragma once

#include <QByteArray>
#include <QString>

/// Writes the file whole or not at all: what was there before stays when the disk is full. A device or pipe is written
/// to as it is. Empty, or the line that says what went wrong.
QString writeWholeFile(const QString &path, const QByteArray &content);
