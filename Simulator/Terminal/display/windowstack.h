#pragma once

#include <QWidgetList>

/// How the program's windows lie over each other.
class WindowStack {
public:
    /// All windows, hidden ones too, from the top down: the popup in use, the modal dialog, any others, the terminal's
    /// display.
    static QWidgetList fromTop();
};
