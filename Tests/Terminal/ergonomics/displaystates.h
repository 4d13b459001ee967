#pragma once

#include "terminalhost.h"

#include <QStringList>
#include <QWidget>

/// Everything of the terminal that is seen and touched, state by state.
class DisplayStates {
public:
    /// `host` is not owned.
    explicit DisplayStates(TerminalHost &host);

    static QStringList names();
    /// Brings a terminal that has loaded nothing into the state; false when it cannot.
    bool bring(const QString &name);
    /// What of the display is seen now and is the terminal's own, in pieces: neither the map nor what plug-ins paint.
    QList<QWidget *> pieces() const;

private:
    bool open(const char *file, const char *column);
    bool openMap();
    bool touch(const QString &control);
    bool drive(bool isByHand);
    bool showPreview(const char *file = "three-zones.geojson");

    Terminal &terminal;
};
