#pragma once

#include <QtGlobal>

#include <sys/types.h>

/// Tries, before Qt does, whether the display can be opened: Qt aborts where it cannot. A child process tries it
/// silently, and stays connected while this lives: a display server without clients may restart, and refuse a client
/// that comes at that moment.
class DisplayProbe {
public:
    /// `program`: argv[0]. Make this before any thread is started.
    explicit DisplayProbe(char *program);
    ~DisplayProbe();

    /// True also when no child process can be made.
    bool canOpen() const { return isOpen; }

private:
    Q_DISABLE_COPY(DisplayProbe)

    pid_t child = -1;
    int holding = -1; ///< The child ends when this end of a pipe is closed.
    bool isOpen = true;
};
