#pragma once

#include "recursivegrouplock.h"

#include "Framework/databrokergroup.h"

#include <QString>
#include <QUuid>

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

/// What a group keeps beside the value of one property. Hooks, validator and the two status flags are guarded by the
/// group's lock.
struct PropertyState {
    static constexpr int unresolved = -2;

    DataBrokerGroup::ReadHook beforeRead = nullptr;
    void *beforeReadArgument = nullptr;
    DataBrokerGroup::ReadHook afterRead = nullptr;
    void *afterReadArgument = nullptr;
    DataBrokerGroup::WriteValidator validator = nullptr;
    void *validatorArgument = nullptr;
    bool holdsRuntimeValue = false;
    bool holdsStoredValue = false;
    std::atomic<bool> isWriteProtected{false};
    /// Index of the signal `<property>Set` in the group's meta-object, -1 when there is none.
    std::atomic<int> setSignal{unresolved};
};

class DataBrokerGroupPrivate {
public:
    explicit DataBrokerGroupPrivate(const QString &name);

    /// The state of the property with that index of `group`'s meta-object; null for an index below 0.
    PropertyState *state(const DataBrokerGroup &group, int index);
    /// Index of the signal `<property>Set` of the property with that index; -1 when there is none.
    int setSignal(const DataBrokerGroup &group, int propertyIndex);
    QUuid writeAccessToken() const;
    void setWriteAccessToken(const QUuid &token);

    /// Index of a property that the group's own classes declare; -1 for any other name.
    static int indexOfProperty(const DataBrokerGroup &group, const char *property);

    const QString name;
    std::atomic<DataBroker *> broker{nullptr};
    std::atomic<bool> isRemoved{false};
    std::atomic<bool> isThreadSafe{false};
    std::atomic<bool> isValidationSuspended{false};
    std::atomic<int> mostRecentErr{DataBrokerGroup::Success};
    RecursiveGroupLock ownLock;
    std::atomic<GroupLock *> lock{&ownLock};

private:
    using Table = std::vector<PropertyState *>;

    const Table *grow(std::size_t size);

    // Readers go by the newest table without a lock. A group's meta-object grows only while its classes are under
    // construction, so there are few tables, and the older ones stay for readers that still hold them.
    std::atomic<const Table *> current{nullptr};
    mutable std::mutex mutex;
    std::vector<std::unique_ptr<Table>> tables;
    std::vector<std::unique_ptr<PropertyState>> states;
    QUuid token;
};
