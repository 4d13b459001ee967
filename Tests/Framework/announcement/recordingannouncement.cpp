#include "recordingannouncement.h"

#include "Framework/groupproperty.h"

static QList<Announcement> announcements;

QList<Announcement> takeAnnouncements()
{
    QList<Announcement> taken;
    taken.swap(announcements);
    return taken;
}

// Takes precedence over the library's own function of that name in the whole program, including the other libraries.
void GroupPropertyAccess::announce(DataBrokerGroup & /*group*/, const char *property, int /*index*/,
                                   QGenericArgument value)
{
    announcements.append({property, value.name(), value.data()});
}
