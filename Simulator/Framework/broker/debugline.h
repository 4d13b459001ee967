#pragma once

#include <QDebug>

/// One line of the standard debug stream, in the category "default" and without file, line and function, whatever the
/// build type.
QDebug debugLine();
