#pragma once

#include "terminal.h"

#include <QString>

/// A terminal with the built plug-in, shown, for tests.
class TerminalHost {
public:
    explicit TerminalHost(UnitSystem units = UnitSystem::Metric);

    /// What went wrong while it was set up; empty when it stands.
    QString problem() const { return error; }
    Terminal &terminal() { return shown; }

    /// A prescription of the tests' own.
    static QString fixture(const QString &name);
    static QString sampleField();
    /// What scripts of the tests begin with, on one line: same(a, b), which throws unless both are equal, and the paths
    /// `zones`, `sample` and `folder`.
    static QString scriptStart(const QString &folder);

private:
    Terminal shown;
    QString error;
};
