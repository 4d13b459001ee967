#pragma once

#include "terminalhost.h"

#include <QStringList>
#include <QWidget>

/// Everything that can be seen and touched on the terminal, state by state.
class DisplayStates {
public:
    /// `host` is not owned.
    explicit DisplayStates(TerminalHost &host);

    static QStringList names();
    /// Brings a terminal that has loaded nothing into the state; false when that fails.
    bool bring(const QString &name);
    /// The visible parts of the display that are the terminal's own: neither the map nor what plug-ins paint.
    QList<QWidget *> pieces() const;

private:
    bool open(const char *file, const char *column);
    bool openMap();
    bool touch(const QString &control);
    bool drive(bool isByHand);
    bool showPreview(const char *file = "three-zones.geojson");

    Terminal &terminal;
};
