#pragma once

#include <QChar>

class QKeyEvent;

/// What a key of a hardware keyboard means to a numeric field.
struct NumericKey {
    enum class Action { None, Character, EraseLast, Clear, Finish };

    /// Digits of any key block, the point (a comma too, as some number blocks have it), the minus, Backspace, Delete,
    /// Enter and Escape; every other key and every shortcut is None.
    static NumericKey of(const QKeyEvent &event);

    Action action = Action::None;
    QChar character; ///< of Action::Character
};
