#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class Machine;
class OpenSelection;

/// An open map, and how a file that is to be opened affects it.
struct OpenMap {
    QString group;
    /// Without its folder.
    QString file;
    /// Names of its products that the file takes over.
    QStringList taken;
    /// The file leaves it without a product, and it is closed.
    bool isReplaced = false;
    /// Distance from the file's field, metres; 0 where they share a plane.
    double distance = 0.0;

    /// It stays open, though it lies on a plane of its own: what it prescribes is applied at the same coordinates.
    bool staysFarAway() const { return !isReplaced && distance > 0.0; }

    /// All open maps but that of the file itself, the oldest first.
    static QList<OpenMap> beside(const OpenSelection &selection, const Machine &machine);
};
