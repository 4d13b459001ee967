#pragma once

#include "Framework/frameworkglobal.h"

#include <QObject>
#include <QScopedPointer>
#include <QString>
#include <QUuid>
#include <QVariant>

class DataBroker;
class DataBrokerGroupPrivate;
class GroupLock;

/// A named group of typed properties. A subclass declares its properties with ORVIK_GROUP_PROPERTY
/// (Framework/groupproperty.h); access by name and by typed accessor runs through the same code, so validators, write
/// protection, hooks, notify signals and subscriptions hold either way.
///
/// The broker owns a published group and keeps it alive, marked as removed, after it has been taken out: whoever still
/// holds the pointer may go on calling it.
class FRAMEWORK_EXPORT DataBrokerGroup : public QObject {
    Q_OBJECT

public:
    /// Result codes of access by name and of writes. Validators may return further codes of their own.
    enum Error {
        Success = 0,
        ErrUnknownGroup = 1,
        ErrInvalidToken = 2,
        ErrUnknownProperty = 3,
        ErrWrongType = 4,
        ErrNameTaken = 5,
        ErrGroupRemoved = 7
    };

    /// Called around a read (also the one that tells subscribers of a write), under the group's lock, with the argument
    /// registered beside it.
    using ReadHook = void (*)(void *argument);
    /// Called with a new value before it is stored, under the group's lock; 0 accepts it, any other code refuses it.
    using WriteValidator = int (*)(QVariant value, void *argument);

    explicit DataBrokerGroup(const QString &name, QObject *parent = nullptr);
    ~DataBrokerGroup() override;

    QString name() const;
    /// The broker that published the group; null before that.
    DataBroker *broker() const;
    bool isRemoved() const;
    /// Result code of the latest write that reached the group.
    int mostRecentErr() const;

    /// Reads a property by name. Success, ErrUnknownProperty or ErrGroupRemoved; `value` is untouched on failure.
    int getProperty(const char *property, QVariant &value) const;
    /// Writes a property by name, without a token. The value must be of the property's type or convert to it without
    /// loss. Success, ErrUnknownProperty, ErrWrongType, ErrInvalidToken, ErrGroupRemoved or the validator's code;
    /// nothing changes on failure.
    int setProperty(const char *property, const QVariant &value);

    /// Calls `slot` (SLOT() text) of `receiver` after every accepted write of `property`, with the value it has
    /// then if the slot takes one. The connection's sender is this group, so QObject::disconnect(group, receiver) ends
    /// it. With `reportFailure` an unknown property or slot writes one debug line. False when no connection was made,
    /// also when `type` has Qt::UniqueConnection and the connection exists.
    bool connectPropertySetSlot(const char *property, QObject *receiver, const char *slot, Qt::ConnectionType type,
                                bool reportFailure);

    /// Writes one warning about this group to the host's log.
    void log_group_warning(const QString &text);
    /// Tells the subscribers of `property` that `group` (this group) accepted a write of it.
    void propertySet(DataBrokerGroup *group, const char *property);

    // For the group's creator.

    /// The token that opens write-protected properties; only the creator hands it on.
    QUuid writeAccessToken() const;
    void setWriteAccessToken(const QUuid &token);
    /// In thread-safe mode the group's lock guards values, flags and result code.
    void setThreadSafe(bool threadSafe);
    bool isThreadSafe() const;
    /// Replaces the built-in recursive lock. Not owned; must outlive the group.
    void setLock(GroupLock *lock);
    void setValidationSuspended(bool suspended);
    bool isValidationSuspended() const;
    /// The following return false when the group has no such property.
    bool setWriteProtected(const char *property, bool isProtected);
    bool setBeforeReadHook(const char *property, ReadHook hook, void *argument);
    bool setAfterReadHook(const char *property, ReadHook hook, void *argument);
    bool setWriteValidator(const char *property, WriteValidator validator, void *argument);
    /// Marks the property as holding a value restored from storage; the next accepted write clears the mark.
    bool setHoldsStoredValue(const char *property, bool holds);
    bool holdsStoredValue(const char *property) const;
    /// True once a write at run time was accepted.
    bool holdsRuntimeValue(const char *property) const;

Q_SIGNALS:
    /// The group has been taken out of the broker; emitted once, after isRemoved() has become true.
    void removed(DataBrokerGroup *group);

private:
    friend class DataBroker;
    friend class GroupPropertyAccess;

    QScopedPointer<DataBrokerGroupPrivate> d;
};
