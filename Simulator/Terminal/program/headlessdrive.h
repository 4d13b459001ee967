#pragma once

#include <QString>

struct CommandLine;
class Terminal;

/// Drives the loaded field to its end, without showing anything, and writes the report, and the record if one is asked
/// for; says on standard output how far it is. Returns the reason when any of that cannot be done.
QString runDrive(Terminal &terminal, const CommandLine &line);
