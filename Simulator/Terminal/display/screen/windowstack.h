#pragma once

#include <QImage>
#include <QWidgetList>

class TerminalWindow;

/// How the terminal's windows lie over each other.
class WindowStack {
public:
    /// All windows, hidden ones too, from the top down: the popup in use, the modal dialog, any others, the terminal's
    /// display. Excludes the window that shows them on the screen.
    static QWidgetList fromTop();
    /// The display as it is seen, with every dialog and popup that is open over it.
    static QImage picture(TerminalWindow *display);
};
