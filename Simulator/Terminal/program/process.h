#pragma once

#include <QString>

/// What the program takes care of among the system's other processes.
namespace Process {

/// First of all in main(): standard streams, signals, the environment, and exceptions that nobody catches.
void prepare();

/// The reason when the program may not open as many files at once as it needs: libraries would report one file or
/// another as missing, or end the program.
QString openFilesProblem();

/// Where the shell closed standard output, what is printed from now on is an error, as on a full device.
void refuseLostOutput();

/// Without a login there is no run-time folder, and Qt remarks on it; errors are to stand alone.
void provideRuntimeFolder();

/// While it lives, the program ends with a line and status 1 when the display's server is gone. Qt ends it then from
/// within, and what plug-ins hold in OpenGL would be freed after all that it needs.
class DisplayWatch {
public:
    DisplayWatch();
    ~DisplayWatch();

private:
    Q_DISABLE_COPY(DisplayWatch)
};

} // namespace Process
