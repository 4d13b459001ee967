#pragma once

#include <QString>

struct CommandLine;

/// Does what the command line asks for, once the application object is made; its window is `scale` times the display's
/// size at first, for 0 as large as it was last or as suits the screen. Empty, or the line that says what is wrong
/// with which file or argument; plug-ins that were skipped are reported on standard error.
QString runTerminal(const CommandLine &line, double scale = 0.0);
