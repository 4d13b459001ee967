#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class Machine;
class OpenSelection;

/// A map that is open, as a file concerns it that is to be opened.
struct OpenMap {
    QString group;
    /// Without its folder.
    QString file;
    /// Names of its products that the file takes over.
    QStringList taken;
    /// It is left without any product, and closed.
    bool isReplaced = false;
    /// From the file's field, metres; 0 where they share a plane.
    double distance = 0.0;

    /// It stays open, though it lies on a plane of its own: what it prescribes is put out at the same coordinates.
    bool staysFarAway() const { return !isReplaced && distance > 0.0; }

    /// All but the file itself, the oldest first.
    static QList<OpenMap> beside(const OpenSelection &selection, const Machine &machine);
};
