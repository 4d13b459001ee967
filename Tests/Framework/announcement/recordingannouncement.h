#pragma once

#include <QByteArray>
#include <QList>

/// One announcement of an accepted value to its listeners, as requested from the group library.
struct Announcement {
    QByteArray property;
    /// Type and address with which the value was declared.
    QByteArray typeName;
    const void *value;
};

/// The announcements so far, oldest first, which are then forgotten. A program with this recorder linked in records
/// them instead of making them: no listener is told.
QList<Announcement> takeAnnouncements();
