#pragma once

#include "hostilehost.h"

/// A hook, validator or subscriber of a property in which the host acts once, at the n-th access.
class Trap : public QObject {
    Q_OBJECT

public:
    enum Kind { BeforeRead, AfterRead, Validator, Subscriber };

    Trap(HostileHost &givenHost, int givenAccesses, int givenAction)
        : QObject(&givenHost)
        , host(givenHost)
        , accesses(givenAccesses)
        , action(givenAction)
    {
    }

    void set(DataBrokerGroup &group, const char *property, Kind kind)
    {
        const auto hook = [](void *trap) { static_cast<Trap *>(trap)->access(); };
        const auto validator = [](QVariant, void *trap) { return static_cast<Trap *>(trap)->access(); };
        if (kind == BeforeRead)
            group.setBeforeReadHook(property, hook, this);
        else if (kind == AfterRead)
            group.setAfterReadHook(property, hook, this);
        else if (kind == Validator)
            group.setWriteValidator(property, validator, this);
        else
            group.connectPropertySetSlot(property, this, SLOT(access()), Qt::DirectConnection, true);
    }

public Q_SLOTS:
    int access()
    {
        if (!host.isQuiet() && accesses > 0 && --accesses == 0)
            host.spring(action);
        return 0;
    }

private:
    HostileHost &host;
    int accesses;
    int action;
};
