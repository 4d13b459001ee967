#pragma once

#include <QWidgetList>

/// How the terminal's windows lie over each other.
class WindowStack {
public:
    /// All windows, hidden ones too, from the top down: the popup in use, the modal dialog, any others, the terminal's
    /// display. Excludes the window that shows them on the screen.
    static QWidgetList fromTop();
};
