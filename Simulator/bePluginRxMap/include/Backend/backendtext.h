#pragma once

#include <QCoreApplication>

/// What the back-end tells the operator, in the language of the application. The texts are parts of lines; what a line
/// is about stands before them.
class BackendText {
    Q_DECLARE_TR_FUNCTIONS(BackendText)
};
