#pragma once

#include <QByteArray>
#include <QList>

/// One hand-over of an accepted value to its listeners, as the group library was asked for it.
struct Announcement {
    QByteArray property;
    /// Type and address under which the value was declared.
    QByteArray typeName;
    const void *value;
};

/// The hand-overs so far, oldest first, and none afterwards. A program that has this recorder linked in records them
/// instead of making them: nobody is told.
QList<Announcement> takeAnnouncements();
