#include "databrokergroupprivate.h"

#include <QMetaMethod>
#include <QMetaObject>
#include <QMetaProperty>

#include <algorithm>

DataBrokerGroupPrivate::DataBrokerGroupPrivate(const QString &givenName)
    : name(givenName)
{
}

PropertyState *DataBrokerGroupPrivate::state(const DataBrokerGroup &group, int index)
{
    if (index < 0)
        return nullptr;
    const auto position = static_cast<std::size_t>(index);
    const Table *table = current.load(std::memory_order_acquire);
    if (table == nullptr || position >= table->size())
        table = grow(std::max(position + 1, static_cast<std::size_t>(group.metaObject()->propertyCount())));
    return (*table)[position];
}

const DataBrokerGroupPrivate::Table *DataBrokerGroupPrivate::grow(std::size_t size)
{
    const std::lock_guard<std::mutex> guard(mutex);
    while (states.size() < size)
        states.push_back(std::make_unique<PropertyState>());
    auto table = std::make_unique<Table>();
    for (const std::unique_ptr<PropertyState> &each : states)
        table->push_back(each.get());
    tables.push_back(std::move(table));
    current.store(tables.back().get(), std::memory_order_release);
    return tables.back().get();
}

int DataBrokerGroupPrivate::setSignal(const DataBrokerGroup &group, int propertyIndex)
{
    PropertyState *const property = state(group, propertyIndex);
    if (property == nullptr)
        return -1;
    int index = property->setSignal.load(std::memory_order_relaxed);
    if (index != PropertyState::unresolved)
        return index;
    const QMetaObject *const meta = group.metaObject();
    const QMetaProperty described = meta->property(propertyIndex);
    QByteArray signature = QByteArray(described.name()) + "Set(" + described.typeName() + ')';
    index = meta->indexOfSignal(QMetaObject::normalizedSignature(signature.constData()).constData());
    property->setSignal.store(index, std::memory_order_relaxed);
    return index;
}

QUuid DataBrokerGroupPrivate::writeAccessToken() const
{
    const std::lock_guard<std::mutex> guard(mutex);
    return token;
}

void DataBrokerGroupPrivate::setWriteAccessToken(const QUuid &newToken)
{
    const std::lock_guard<std::mutex> guard(mutex);
    token = newToken;
}

int DataBrokerGroupPrivate::indexOfProperty(const DataBrokerGroup &group, const char *property)
{
    const int index = property == nullptr ? -1 : group.metaObject()->indexOfProperty(property);
    // QObject's own properties are no group properties.
    return index < DataBrokerGroup::staticMetaObject.propertyCount() ? -1 : index;
}
