#pragma once

#include <QtGlobal>

/// How a write by name learns what became of it. The accessors of a property report only to the group's most recent
/// result, which a listener or another thread may have overwritten by the time the write returns; this object hears
/// of the first outcome that is reported on its thread while it lives, and of no other.
class WriteOutcome {
public:
    WriteOutcome();
    ~WriteOutcome();

    /// The reported code; DataBrokerGroup::Success when nothing was reported.
    int code() const { return reported; }

    /// Tells the outcome that waits on this thread, if any, and ends its wait.
    static void report(int code);

    /// While it lives, reports on this thread reach nobody: a validator may itself write properties.
    class Pause {
    public:
        Pause();
        ~Pause();

    private:
        Q_DISABLE_COPY(Pause)
        WriteOutcome *paused;
    };

private:
    Q_DISABLE_COPY(WriteOutcome)
    WriteOutcome *previous;
    int reported = 0;
};
