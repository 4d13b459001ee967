#pragma once

#include "testbase.h"

#include "Framework/orviklineedit.h"

#include <QDialog>
#include <QDir>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>

/// Base of the tests of the line edit: for each test function a dialog with a field that shows 2.5.
class LineEditTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// The keypad that is open; null when none is.
    static QWidget *keypad();
    /// Touches the keypad's keys: digits, '.', '-', '<' to take back, a line feed to enter.
    static void touchKeys(const QString &keys);
    /// Another field of the dialog, owned by it; show() it when the dialog is shown already.
    OrvikLineEdit *addField(int id, const QPoint &position);

    QDir images;
    QScopedPointer<QDialog> dialog;
    QPointer<OrvikLineEdit> field;
    /// What `field` reported.
    QScopedPointer<QSignalSpy> changed;
};
