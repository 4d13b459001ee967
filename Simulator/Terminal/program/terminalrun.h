#pragma once

#include <QString>

struct CommandLine;

/// Does what the command line asks for, once the application object is made. Empty, or the line that says what is wrong
/// with which file or argument; plug-ins that were skipped are reported on standard error.
QString runTerminal(const CommandLine &line);
