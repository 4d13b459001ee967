#pragma once

#include "terminalhost.h"
#include "testbase.h"

#include <QScopedPointer>

/// Base of the tests of the terminal: each test function gets a terminal with the plug-in that has loaded nothing.
class TerminalTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    Terminal &terminal() { return host->terminal(); }
    /// Opens a prescription of the tests' fixtures.
    LoadReport open(const QString &file, const QStringList &columns);

    QScopedPointer<TerminalHost> host;
};
