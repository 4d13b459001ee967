#pragma once

#include "terminal.h"

#include <QString>

/// A visible terminal with the built plug-in, for tests.
class TerminalHost {
public:
    explicit TerminalHost(UnitSystem units = UnitSystem::Metric);

    /// What went wrong during setup; empty when nothing did.
    QString problem() const { return error; }
    Terminal &terminal() { return shown; }

    /// Path of a prescription among the tests' fixtures.
    static QString fixture(const QString &name);
    static QString sampleField();
    /// The code that test scripts start with, on one line: same(a, b), which throws unless both are equal, and the
    /// paths `zones`, `sample` and `folder`.
    static QString scriptStart(const QString &folder);

private:
    Terminal shown;
    QString error;
};
