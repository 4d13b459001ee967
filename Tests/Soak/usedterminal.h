#pragma once

#include "drivepath.h"
#include "terminalhost.h"

#include <QTemporaryDir>

class QDialog;

/// A terminal with the loaded plug-in and a map, used over and over. Each of its actions leaves it as it was.
class UsedTerminal {
public:
    UsedTerminal();

    /// Why it cannot be used; empty when it can.
    QString problem() const { return host.problem(); }

    /// The map that is bound is built once more, and now and then drawn.
    void rebuild(int number);
    /// A product is chosen that no map feeds, and then the fed one again.
    void rebuildWithoutMap(int number);
    /// The settings are opened, a product's look-ahead and default rate typed, and left by Done, by Cancel because the
    /// machine moves, or by Escape.
    void useDialog(int number);
    /// Another map is loaded and unloaded.
    void load(int number);
    /// Ten seconds of driving over the field, recorded and now and then drawn.
    void drive(int number);

    /// Lets pass what is still to come of what was done.
    void settle();

private:
    void actIn(QDialog *dialog, int number);

    TerminalHost host;
    QString group;
    unsigned int polygons = 0;
    DrivePath way;
    QTemporaryDir folder;
};
