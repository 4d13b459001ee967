#pragma once

#include <QtGlobal>

#include <sys/types.h>

/// Tries, before Qt does, whether the display can be opened: Qt aborts where it cannot. A child process tries it,
/// silently, and stays connected while this lives: a display server without clients may start anew, and would refuse
/// whoever comes at that moment.
class DisplayProbe {
public:
    /// `program`: argv[0]. Make it before there is any thread.
    explicit DisplayProbe(char *program);
    ~DisplayProbe();

    /// Where no process can be made, the display is taken for granted.
    bool canOpen() const { return isOpen; }

private:
    Q_DISABLE_COPY(DisplayProbe)

    pid_t child = -1;
    int holding = -1; ///< The child goes when this end of a pipe is closed.
    bool isOpen = true;
};
