#include "recordingannouncement.h"

#include "Framework/groupproperty.h"

static QList<Announcement> announcements;

QList<Announcement> takeAnnouncements()
{
    QList<Announcement> taken;
    taken.swap(announcements);
    return taken;
}

// Stands before the library's own function of that name for the whole program, the other libraries included.
void GroupPropertyAccess::announce(DataBrokerGroup & /*group*/, const char *property, int /*index*/,
                                   QGenericArgument value)
{
    announcements.append({property, value.name(), value.data()});
}
