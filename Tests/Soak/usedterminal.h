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

    /// Builds the bound map once more, and now and then draws it.
    void rebuild(int number);
    /// Chooses a product that no map feeds, and then the fed one again.
    void rebuildWithoutMap(int number);
    /// Opens the settings, types a product's look-ahead and default rate, and leaves by Done, by Cancel because the
    /// machine moves, or by Escape.
    void useDialog(int number);
    /// Loads and unloads another map.
    void load(int number);
    /// Drives over the field for ten seconds, which are recorded and now and then drawn.
    void drive(int number);

    /// Waits for everything that an action has left to happen later.
    void settle();

private:
    void actIn(QDialog *dialog, int number);

    TerminalHost host;
    QString group;
    unsigned int polygons = 0;
    DrivePath way;
    QTemporaryDir folder;
};
