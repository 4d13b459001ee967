#include "databrokergroupprivate.h"
#include "debugline.h"
#include "writeoutcome.h"

#include "Framework/grouplock.h"
#include "Framework/groupproperty.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QPointer>

GroupPropertyAccess::Locker::Locker(const DataBrokerGroup &group)
    : lock(group.d->isThreadSafe ? group.d->lock.load() : nullptr)
{
    if (lock != nullptr)
        lock->lock(0);
}

GroupPropertyAccess::Locker::~Locker()
{
    unlock();
}

void GroupPropertyAccess::Locker::unlock()
{
    if (lock != nullptr)
        lock->unlock();
    lock = nullptr;
}

int GroupPropertyAccess::resolveIndex(const DataBrokerGroup &group, const char *property, std::atomic<int> &cached,
                                      const char *failure)
{
    int index = cached.load(std::memory_order_relaxed);
    if (index != -1)
        return index;
    index = group.metaObject()->indexOfProperty(property);
    if (index < 0)
        debugLine() << failure << QString::fromLatin1(property) << index;
    cached.store(index, std::memory_order_relaxed);
    return index;
}

void GroupPropertyAccess::beforeRead(const DataBrokerGroup &group, int index)
{
    const PropertyState *const state = group.d->state(group, index);
    if (state != nullptr && state->beforeRead != nullptr)
        state->beforeRead(state->beforeReadArgument);
}

void GroupPropertyAccess::afterRead(const DataBrokerGroup &group, int index)
{
    const PropertyState *const state = group.d->state(group, index);
    if (state != nullptr && state->afterRead != nullptr)
        state->afterRead(state->afterReadArgument);
}

bool GroupPropertyAccess::isWriteAllowed(const DataBrokerGroup &group, int index, const QUuid *token)
{
    const PropertyState *const state = group.d->state(group, index);
    if (state == nullptr || !state->isWriteProtected)
        return true;
    return token != nullptr && *token == group.d->writeAccessToken();
}

void GroupPropertyAccess::reportInvalidToken(DataBrokerGroup &group, const char *property)
{
    WriteOutcome::report(DataBrokerGroup::ErrInvalidToken);
    const QString name = QString::fromLatin1(property);
    group.log_group_warning(QStringLiteral("set %1::%2 failed: invalid write access token").arg(group.name(), name));
    debugLine() << QStringLiteral("ERROR: set %1::%2 failed: invalid write access token").arg(group.name(), name);
}

bool GroupPropertyAccess::refuseRemoved(DataBrokerGroup &group, const char *property)
{
    if (!group.isRemoved())
        return false;
    group.d->mostRecentErr = DataBrokerGroup::ErrGroupRemoved;
    WriteOutcome::report(DataBrokerGroup::ErrGroupRemoved);
    debugLine() << "mostRecentErr = DataBrokerGroup::ErrGroupRemoved, while setting" << QString::fromLatin1(property);
    return true;
}

bool GroupPropertyAccess::hasValidator(const DataBrokerGroup &group, int index)
{
    const PropertyState *const state = group.d->state(group, index);
    return state != nullptr && state->validator != nullptr && !group.isValidationSuspended();
}

int GroupPropertyAccess::validate(DataBrokerGroup &group, int index, const QVariant &value)
{
    const PropertyState *const state = group.d->state(group, index);
    int code = DataBrokerGroup::Success;
    {
        const WriteOutcome::Pause pause;
        code = state->validator(value, state->validatorArgument);
    }
    group.d->mostRecentErr = code;
    if (code != DataBrokerGroup::Success)
        WriteOutcome::report(code);
    return code;
}

void GroupPropertyAccess::reportRejected(DataBrokerGroup &group, const char *property, int code)
{
    const QString text =
        QStringLiteral("set %1::%2 failed: %3").arg(group.name(), QString::fromLatin1(property), QString::number(code));
    group.log_group_warning(text);
    debugLine() << "mostRecentErr != DataBrokerGroup::Success: " << text;
}

void GroupPropertyAccess::markWritten(DataBrokerGroup &group, int index)
{
    group.d->mostRecentErr = DataBrokerGroup::Success;
    WriteOutcome::report(DataBrokerGroup::Success);
    PropertyState *const state = group.d->state(group, index);
    if (state == nullptr)
        return;
    state->holdsRuntimeValue = true;
    state->holdsStoredValue = false;
}

void GroupPropertyAccess::announce(DataBrokerGroup &group, const char *property, int index, QGenericArgument value)
{
    // A listener may delete a group that nobody has published.
    const QPointer<DataBrokerGroup> living(&group);
    const QMetaMethod notify = group.metaObject()->property(index).notifySignal();
    notify.invoke(&group, Qt::DirectConnection, value);
    if (living)
        group.propertySet(&group, property);
}
