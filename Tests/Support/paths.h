#pragma once

#include <QString>

/// Absolute path of a file of the project; `relative` starts at its root.
QString sourcePath(const char *relative);
/// Absolute path of a file that the build made; `relative` starts at the build folder.
QString buildPath(const char *relative);
/// The folder with real prescriptions that RXMAP_REAL_DATA names, in the environment or else when the build was
/// configured; empty where neither does.
QString realDataFolder();
