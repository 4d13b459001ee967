#pragma once

#include <QString>

struct CommandLine;
class Terminal;

/// Drives the loaded field to its end, without showing anything, and writes the report, and the record if one is asked
/// for; tells on standard output how far it is. The reason when anything of it cannot be done.
QString runDrive(Terminal &terminal, const CommandLine &line);
