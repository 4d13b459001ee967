#include "Framework/databrokergroup.h"

#include "Variants/valueconversion.h"
#include "databrokergroupprivate.h"
#include "debugline.h"
#include "writeoutcome.h"

#include "Framework/groupproperty.h"

#include <QLoggingCategory>
#include <QMetaMethod>
#include <QMetaProperty>

namespace {

Q_LOGGING_CATEGORY(hostGroupLog, "host.group")

/// Whether `slot` is SLOT() or SIGNAL() text of a method of `receiver` that a signal of that signature can call.
bool canConnect(const QByteArray &signal, const QObject *receiver, const char *slot)
{
    if (slot == nullptr || (slot[0] != '0' + QSLOT_CODE && slot[0] != '0' + QSIGNAL_CODE))
        return false;
    const QByteArray method = QMetaObject::normalizedSignature(slot + 1);
    return receiver->metaObject()->indexOfMethod(method.constData()) >= 0
        && QMetaObject::checkConnectArgs(signal.constData(), method.constData());
}

} // namespace

DataBrokerGroup::DataBrokerGroup(const QString &name, QObject *parent)
    : QObject(parent)
    , d(new DataBrokerGroupPrivate(name))
{
}

DataBrokerGroup::~DataBrokerGroup() = default;

QString DataBrokerGroup::name() const
{
    return d->name;
}

DataBroker *DataBrokerGroup::broker() const
{
    return d->broker;
}

bool DataBrokerGroup::isRemoved() const
{
    return d->isRemoved;
}

int DataBrokerGroup::mostRecentErr() const
{
    return d->mostRecentErr;
}

int DataBrokerGroup::getProperty(const char *property, QVariant &value) const
{
    if (isRemoved())
        return ErrGroupRemoved;
    const int index = DataBrokerGroupPrivate::indexOfProperty(*this, property);
    if (index < 0)
        return ErrUnknownProperty;
    value = metaObject()->property(index).read(this);
    return Success;
}

int DataBrokerGroup::setProperty(const char *property, const QVariant &value)
{
    const int index = DataBrokerGroupPrivate::indexOfProperty(*this, property);
    if (index < 0)
        return ErrUnknownProperty;
    const QMetaProperty described = metaObject()->property(index);
    if (!described.isWritable())
        return ErrInvalidToken;
    QVariant converted;
    if (!convertWithoutLoss(value, described.userType(), converted))
        return ErrWrongType;
    const WriteOutcome outcome;
    if (!described.write(this, converted))
        return ErrWrongType;
    return outcome.code();
}

bool DataBrokerGroup::connectPropertySetSlot(const char *property, QObject *receiver, const char *slot,
                                             Qt::ConnectionType type, bool reportFailure)
{
    const int signalIndex = d->setSignal(*this, DataBrokerGroupPrivate::indexOfProperty(*this, property));
    const QByteArray signal = metaObject()->method(signalIndex).methodSignature();
    if (signalIndex < 0 || receiver == nullptr || !canConnect(signal, receiver, slot)) {
        if (reportFailure) {
            debugLine() << "connectPropertySetSlot() failure:" << name() << QString::fromLatin1(property)
                        << QString::fromLatin1(slot);
        }
        return false;
    }
    const QByteArray signalText = QByteArray::number(QSIGNAL_CODE) + signal;
    return QObject::connect(this, signalText.constData(), receiver, slot, type);
}

void DataBrokerGroup::log_group_warning(const QString &text)
{
    qCWarning(hostGroupLog, "%s", qUtf8Printable(text));
}

void DataBrokerGroup::propertySet(DataBrokerGroup *group, const char *property)
{
    if (group == nullptr)
        return;
    const int index = DataBrokerGroupPrivate::indexOfProperty(*group, property);
    const int signalIndex = group->d->setSignal(*group, index);
    if (signalIndex < 0)
        return;
    const QMetaMethod signal = group->metaObject()->method(signalIndex);
    // Reading the value runs the property's hooks, so it is read only when somebody listens.
    if (!group->isSignalConnected(signal))
        return;
    const QVariant value = group->metaObject()->property(index).read(group);
    signal.invoke(group, Qt::DirectConnection, QGenericArgument(value.typeName(), value.constData()));
}

QUuid DataBrokerGroup::writeAccessToken() const
{
    return d->writeAccessToken();
}

void DataBrokerGroup::setWriteAccessToken(const QUuid &token)
{
    d->setWriteAccessToken(token);
}

void DataBrokerGroup::setThreadSafe(bool threadSafe)
{
    d->isThreadSafe = threadSafe;
}

bool DataBrokerGroup::isThreadSafe() const
{
    return d->isThreadSafe;
}

void DataBrokerGroup::setLock(GroupLock *lock)
{
    d->lock = lock != nullptr ? lock : &d->ownLock;
}

void DataBrokerGroup::setValidationSuspended(bool suspended)
{
    d->isValidationSuspended = suspended;
}

bool DataBrokerGroup::isValidationSuspended() const
{
    return d->isValidationSuspended;
}

bool DataBrokerGroup::setWriteProtected(const char *property, bool isProtected)
{
    PropertyState *const state = d->state(*this, DataBrokerGroupPrivate::indexOfProperty(*this, property));
    if (state == nullptr)
        return false;
    state->isWriteProtected = isProtected;
    return true;
}

bool DataBrokerGroup::setBeforeReadHook(const char *property, ReadHook hook, void *argument)
{
    PropertyState *const state = d->state(*this, DataBrokerGroupPrivate::indexOfProperty(*this, property));
    if (state == nullptr)
        return false;
    const GroupPropertyAccess::Locker locker(*this);
    state->beforeRead = hook;
    state->beforeReadArgument = argument;
    return true;
}

bool DataBrokerGroup::setAfterReadHook(const char *property, ReadHook hook, void *argument)
{
    PropertyState *const state = d->state(*this, DataBrokerGroupPrivate::indexOfProperty(*this, property));
    if (state == nullptr)
        return false;
    const GroupPropertyAccess::Locker locker(*this);
    state->afterRead = hook;
    state->afterReadArgument = argument;
    return true;
}

bool DataBrokerGroup::setWriteValidator(const char *property, WriteValidator validator, void *argument)
{
    PropertyState *const state = d->state(*this, DataBrokerGroupPrivate::indexOfProperty(*this, property));
    if (state == nullptr)
        return false;
    const GroupPropertyAccess::Locker locker(*this);
    state->validator = validator;
    state->validatorArgument = argument;
    return true;
}

bool DataBrokerGroup::setHoldsStoredValue(const char *property, bool holds)
{
    PropertyState *const state = d->state(*this, DataBrokerGroupPrivate::indexOfProperty(*this, property));
    if (state == nullptr)
        return false;
    const GroupPropertyAccess::Locker locker(*this);
    state->holdsStoredValue = holds;
    return true;
}

bool DataBrokerGroup::holdsStoredValue(const char *property) const
{
    const PropertyState *const state = d->state(*this, DataBrokerGroupPrivate::indexOfProperty(*this, property));
    if (state == nullptr)
        return false;
    const GroupPropertyAccess::Locker locker(*this);
    return state->holdsStoredValue;
}

bool DataBrokerGroup::holdsRuntimeValue(const char *property) const
{
    const PropertyState *const state = d->state(*this, DataBrokerGroupPrivate::indexOfProperty(*this, property));
    if (state == nullptr)
        return false;
    const GroupPropertyAccess::Locker locker(*this);
    return state->holdsRuntimeValue;
}
