#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

/// The images that the terminal, its widgets and the plug-in take from the image folder.
namespace NeededImages {

QStringList names();
/// Empty, or the line that names the first image that is missing or cannot be read.
QString problem(const QDir &folder);

} // namespace NeededImages
