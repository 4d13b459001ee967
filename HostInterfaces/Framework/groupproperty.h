#pragma once

#include "Framework/databrokergroup.h"

#include <atomic>

/// The steps of property access that do not depend on the value's type. Indexes are those of the group's meta-object;
/// with an index of -1 (unknown property) hooks, validators and flags are skipped.
class FRAMEWORK_EXPORT GroupPropertyAccess {
public:
    /// Holds the group's lock for its lifetime when the group is in thread-safe mode.
    class FRAMEWORK_EXPORT Locker {
    public:
        explicit Locker(const DataBrokerGroup &group);
        ~Locker();
        void unlock();

    private:
        Q_DISABLE_COPY(Locker)
        GroupLock *lock;
    };

    /// Returns the property's index; -1, after one debug line that starts with `failure`, when there is none.
    static int resolveIndex(const DataBrokerGroup &group, const char *property, std::atomic<int> &cached,
                            const char *failure);
    static void beforeRead(const DataBrokerGroup &group, int index);
    static void afterRead(const DataBrokerGroup &group, int index);
    static bool isWriteAllowed(const DataBrokerGroup &group, int index, const QUuid *token);
    /// Reports a refused token to the log and the debug stream.
    static void reportInvalidToken(DataBrokerGroup &group, const char *property);
    /// True, and reported, when the group is gone.
    static bool refuseRemoved(DataBrokerGroup &group, const char *property);
    static bool hasValidator(const DataBrokerGroup &group, int index);
    /// Runs the validator and keeps its code as the group's most recent result.
    static int validate(DataBrokerGroup &group, int index, const QVariant &value);
    static void reportRejected(DataBrokerGroup &group, const char *property, int code);
    /// Result code 0, run-time flag set, stored flag cleared.
    static void markWritten(DataBrokerGroup &group, int index);
    /// Emits the notify signal with `value` directly, then tells the subscribers.
    static void announce(DataBrokerGroup &group, const char *property, int index, QGenericArgument value);
};

/// Whether two values are known to share their data, so that a store can be left out. Overloaded for lists.
template <typename T> bool sharesData(const T &, const T &)
{
    return false;
}

template <typename T> bool sharesData(const QList<T> &a, const QList<T> &b)
{
    return a.isSharedWith(b);
}

/// The accessor family of one property: `Property::Type` is its value type, `Property::name()` its name and
/// `Property::typeName()` the meta-type name under which the notify signal declares its argument.
/// Each accessor keeps a process-wide index of its own, never reset: all groups handed to it have the same meta-object
/// layout up to the property.
template <typename Property> class GroupProperty {
public:
    using Type = typename Property::Type;

    /// A copy of `stored`, whether it was ever written or not.
    static Type get(const DataBrokerGroup &group, const Type &stored)
    {
        static std::atomic<int> cached{-1};
        const int index =
            GroupPropertyAccess::resolveIndex(group, Property::name(), cached, "publicGetFn() propertyName failure:");
        GroupPropertyAccess::Locker locker(group);
        GroupPropertyAccess::beforeRead(group, index);
        Type copy = stored;
        GroupPropertyAccess::afterRead(group, index);
        return copy;
    }

    /// 0 when the value was handed to internalSet(), whatever that then made of it (see mostRecentErr());
    /// DataBrokerGroup::ErrInvalidToken when the property is write-protected and `token` is not the group's.
    static int set(DataBrokerGroup &group, Type &stored, const Type &value, const QUuid *token)
    {
        static std::atomic<int> cached{-1};
        const int index =
            GroupPropertyAccess::resolveIndex(group, Property::name(), cached, "privateSetFn() propertyName failure:");
        if (!GroupPropertyAccess::isWriteAllowed(group, index, token)) {
            GroupPropertyAccess::reportInvalidToken(group, Property::name());
            return DataBrokerGroup::ErrInvalidToken;
        }
        internalSet(group, stored, value);
        return DataBrokerGroup::Success;
    }

    /// Validates, stores and announces `value`. An unchanged value is announced all the same. The outcome is left in
    /// mostRecentErr(). The lock is released before anything is logged or announced.
    static void internalSet(DataBrokerGroup &group, Type &stored, const Type &value)
    {
        static std::atomic<int> cached{-1};
        const int index =
            GroupPropertyAccess::resolveIndex(group, Property::name(), cached, "privateSetFn() propertyName failure:");
        if (GroupPropertyAccess::refuseRemoved(group, Property::name()))
            return;
        {
            GroupPropertyAccess::Locker locker(group);
            if (GroupPropertyAccess::hasValidator(group, index)) {
                const int code = GroupPropertyAccess::validate(group, index, QVariant::fromValue(value));
                if (code != DataBrokerGroup::Success) {
                    locker.unlock();
                    GroupPropertyAccess::reportRejected(group, Property::name(), code);
                    return;
                }
            }
            if (!sharesData(stored, value))
                stored = value;
            GroupPropertyAccess::markWritten(group, index);
        }
        GroupPropertyAccess::announce(group, Property::name(), index, QGenericArgument(Property::typeName(), &value));
    }
};

/// Declares a property inside a group class (after Q_OBJECT; leaves the access at private): the Qt property, its
/// three accessors, the notify signal `<property>Changed` and the signal `<property>Set` behind
/// DataBrokerGroup::connectPropertySetSlot.
#define ORVIK_GROUP_PROPERTY(TYPE, PROPERTY, ACCESSOR)                                                                 \
    Q_PROPERTY(TYPE PROPERTY READ get##ACCESSOR WRITE set##ACCESSOR NOTIFY PROPERTY##Changed)                          \
public:                                                                                                                \
    TYPE get##ACCESSOR() const;                                                                                        \
    int set##ACCESSOR(TYPE value, QUuid *token = nullptr);                                                             \
    void internalSet##ACCESSOR(TYPE value);                                                                            \
Q_SIGNALS:                                                                                                             \
    void PROPERTY##Changed(TYPE value);                                                                                \
    void PROPERTY##Set(TYPE value);                                                                                    \
                                                                                                                       \
private:

/// Defines in a source file what ORVIK_GROUP_PROPERTY declares; `STORAGE` is an lvalue of the property's type,
/// reachable from a member function.
#define ORVIK_GROUP_PROPERTY_ACCESSORS(CLASS, TYPE, PROPERTY, ACCESSOR, STORAGE)                                       \
    namespace {                                                                                                        \
    struct CLASS##ACCESSOR##Property {                                                                                 \
        using Type = TYPE;                                                                                             \
        static const char *name() { return #PROPERTY; }                                                                \
        static const char *typeName() { return #TYPE; }                                                                \
    };                                                                                                                 \
    }                                                                                                                  \
    TYPE CLASS::get##ACCESSOR() const                                                                                  \
    {                                                                                                                  \
        return GroupProperty<CLASS##ACCESSOR##Property>::get(*this, STORAGE);                                          \
    }                                                                                                                  \
    int CLASS::set##ACCESSOR(TYPE value, QUuid *token)                                                                 \
    {                                                                                                                  \
        return GroupProperty<CLASS##ACCESSOR##Property>::set(*this, STORAGE, value, token);                            \
    }                                                                                                                  \
    void CLASS::internalSet##ACCESSOR(TYPE value)                                                                      \
    {                                                                                                                  \
        GroupProperty<CLASS##ACCESSOR##Property>::internalSet(*this, STORAGE, value);                                  \
    }
