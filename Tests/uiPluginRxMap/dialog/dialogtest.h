#pragma once

#include "dialoghost.h"
#include "dialogprobe.h"
#include "testbase.h"

/// Base of the tests of the settings dialog: each test function gets a host, and a dialog when it opens one.
class DialogTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// Builds the dialog, replacing the one before, and shows it without waiting for it to end.
    void open();
    /// Releases Done: the dialog must close.
    void done();

    QScopedPointer<DialogHost> host;
    QScopedPointer<RxMapWidgetDialog01> dialog;
    QScopedPointer<DialogProbe> probe;
};
