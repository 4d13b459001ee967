#include "propertycheck.h"

#include "Framework/databroker.h"
#include "Framework/databrokergroup.h"

#include <QMetaProperty>
#include <QSignalSpy>

namespace {

/// Values of the class's own properties by name, that of `except` left out.
QVariantMap otherValues(const DataBrokerGroup &group, const QString &except)
{
    QVariantMap values;
    const QMetaObject *meta = group.metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QString name = QString::fromLatin1(meta->property(i).name());
        if (name != except)
            values.insert(name, meta->property(i).read(&group));
    }
    return values;
}

} // namespace

QString problemOfProperty(DataBrokerGroup *group, const QString &property, const QVariant &value)
{
    DataBroker broker(QString(), QSize(1280, 800));
    broker.publishGroup(group);
    const QByteArray groupName = group->name().toLatin1();
    const QByteArray name = property.toLatin1();
    const QVariantMap before = otherValues(*group, property);
    const QMetaProperty meta = group->metaObject()->property(group->metaObject()->indexOfProperty(name.constData()));
    if (!meta.hasNotifySignal())
        return QStringLiteral("no such property, or no notify signal");
    QSignalSpy notified(group, QByteArray("2" + meta.notifySignal().methodSignature()).constData());
    if (meta.read(group) == value)
        return QStringLiteral("has the value beforehand");
    if (broker.setProperty(groupName.constData(), name.constData(), value) != DataBrokerGroup::Success)
        return QStringLiteral("the broker refuses the value");
    QVariant read;
    if (broker.getProperty(groupName.constData(), name.constData(), read) != DataBrokerGroup::Success || read != value)
        return QStringLiteral("reads as \"%1\"").arg(read.toString());
    if (notified.size() != 1 || notified.first().first() != value)
        return QStringLiteral("notified %1 times").arg(notified.size());
    return otherValues(*group, property) == before ? QString() : QStringLiteral("another property moved as well");
}
