#pragma once

#include <QColor>

class QAbstractButton;
class QWidget;

/// What a button or a row of a list is painted with in the state that it is in: colours of the theme in use.
struct ButtonLook {
    QColor ground;
    QColor text;
    QColor note;
    /// Symbols, and words that stand out.
    QColor mark;
    /// The ground is the accent.
    bool isOnAccent = false;

    /// Whether touches do not get to the control: it is disabled, or a modal dialog keeps them away.
    static bool isOutOfReach(const QWidget &control);

    enum class Checked { ByAccent, ByOther };

    /// `checked` says whether the ground tells that the button is checked.
    static ButtonLook of(const QAbstractButton &button, Checked checked);
};
