#pragma once

#include "testbase.h"

#include "Framework/orviklineedit.h"

#include <QDialog>
#include <QDir>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>

/// Base of the tests of the line edit: each test function gets a dialog with a field that shows 2.5.
class LineEditTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// The open keypad; null when there is none.
    static QWidget *keypad();
    /// Touches the keypad's keys: digits, '.', '-', '<' to delete, a line feed to enter.
    static void touchKeys(const QString &keys);
    /// Another field of the dialog, owned by it; call show() on it when the dialog is already visible.
    OrvikLineEdit *addField(int id, const QPoint &position);

    QDir images;
    QScopedPointer<QDialog> dialog;
    QPointer<OrvikLineEdit> field;
    /// What `field` reported.
    QScopedPointer<QSignalSpy> changed;
};
