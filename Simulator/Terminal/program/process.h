#pragma once

#include <QString>

/// What the program takes care of among the system's other processes.
namespace Process {

/// To be called first in main(): sees to standard streams, signals, the environment, and uncaught exceptions.
void prepare();

/// The reason when the program may not open as many files at once as it needs: libraries would report one file or
/// another as missing, or end the program.
QString openFilesProblem();

/// If the shell closed standard output, printing is from now on an error, as on a full device.
void refuseLostOutput();

/// Provides the run-time folder that is missing without a login, so that Qt's remark on it does not mix with errors.
void provideRuntimeFolder();

/// While it lives, the program ends with a line and status 1 when the display's server is gone. Qt would end it from
/// within, and plug-ins would free what they hold in OpenGL after what that needs is gone.
class DisplayWatch {
public:
    DisplayWatch();
    ~DisplayWatch();

private:
    Q_DISABLE_COPY(DisplayWatch)
};

} // namespace Process
