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

private:
    Terminal shown;
    QString error;
};
