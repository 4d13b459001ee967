#pragma once

#include <QColor>

class QAbstractButton;
class QWidget;

/// The colours of the theme in use that a button or a list row is painted with in its present state.
struct ButtonLook {
    QColor ground;
    QColor text;
    QColor note;
    /// Symbols, and words that stand out.
    QColor mark;
    /// Whether the ground has the accent colour.
    bool isOnAccent = false;

    /// Whether touches do not reach the control: it is disabled, or a modal dialog keeps them away.
    static bool isOutOfReach(const QWidget &control);

    enum class Checked { ByAccent, ByOther };

    /// `checked` says whether the ground shows that the button is checked.
    static ButtonLook of(const QAbstractButton &button, Checked checked);
};
