#pragma once

struct CommandLine;

/// Checks the prescriptions of the command line, each on its own, and prints what is found. Returns the exit status: 0
/// when nothing is, 2 when something is, 1 when a file cannot be read.
int runMapCheck(const CommandLine &line);
