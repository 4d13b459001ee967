#include "Framework/databroker.h"

#include "databrokergroupprivate.h"

#include "Framework/databrokergroup.h"

#include <QDebug>
#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QPointer>
#include <QReadLocker>
#include <QReadWriteLock>
#include <QSet>
#include <QSettings>
#include <QWriteLocker>

namespace {

struct Entry {
    QString name;
    /// Guarded against a creator that deletes its group after all.
    QPointer<DataBrokerGroup> group;
    bool isRemoved = false;
};

bool matches(const QString &name, const QString &pattern)
{
    if (pattern.endsWith(QLatin1Char('*')))
        return name.startsWith(pattern.leftRef(pattern.size() - 1));
    return name == pattern;
}

/// "main.general.font" is key "font" of section "main.general".
QString settingsKey(const char *setting)
{
    QString key = QString::fromLatin1(setting);
    const int dot = key.lastIndexOf(QLatin1Char('.'));
    if (dot >= 0)
        key[dot] = QLatin1Char('/');
    return key;
}

} // namespace

class DataBrokerPrivate {
public:
    /// The published group of that name; if there is none and `orRemoved`, the latest that was taken out.
    DataBrokerGroup *find(const QString &name, bool orRemoved) const
    {
        const QReadLocker locker(&lock);
        DataBrokerGroup *removed = nullptr;
        for (const Entry &entry : entries) {
            if (entry.name != name || entry.group.isNull())
                continue;
            if (!entry.isRemoved)
                return entry.group;
            removed = entry.group;
        }
        return orRemoved ? removed : nullptr;
    }

    mutable QReadWriteLock lock;
    /// Every group that was ever published, oldest first.
    QList<Entry> entries;
    mutable QMutex settingsMutex;
    QScopedPointer<QSettings> settings;
    QSize displaySize;
};

DataBroker::DataBroker(const QString &iniFile, const QSize &displaySize, QObject *parent)
    : QObject(parent)
    , d(new DataBrokerPrivate)
{
    d->displaySize = displaySize;
    if (iniFile.isEmpty())
        return;
    d->settings.reset(new QSettings(iniFile, QSettings::IniFormat));
    d->settings->setIniCodec("UTF-8");
}

DataBroker::~DataBroker()
{
    while (true) {
        QPointer<DataBrokerGroup> group;
        {
            const QWriteLocker locker(&d->lock);
            if (d->entries.isEmpty())
                return;
            group = d->entries.takeLast().group;
        }
        delete group;
    }
}

QStringList DataBroker::findGroup(const QString &pattern, bool inPublicationOrder, bool includeRemoved) const
{
    QStringList names;
    {
        const QReadLocker locker(&d->lock);
        QSet<QString> published;
        for (const Entry &entry : d->entries) {
            if (!entry.isRemoved && !entry.group.isNull())
                published.insert(entry.name);
        }
        QSet<QString> listed;
        for (const Entry &entry : d->entries) {
            // A name that was published again stands at the place of the group that has it now.
            const bool isWanted = entry.isRemoved ? includeRemoved && !published.contains(entry.name) : true;
            if (!isWanted || entry.group.isNull() || listed.contains(entry.name) || !matches(entry.name, pattern))
                continue;
            listed.insert(entry.name);
            names.append(entry.name);
        }
    }
    if (!inPublicationOrder)
        names.sort();
    return names;
}

DataBrokerGroup *DataBroker::getGroup(const QString &name, bool reportMissing) const
{
    DataBrokerGroup *const group = d->find(name, false);
    if (group == nullptr && reportMissing)
        QMessageLogger().debug() << "no group of this name:" << name;
    return group;
}

int DataBroker::getProperty(const char *group, const char *property, QVariant &value) const
{
    const DataBrokerGroup *const found = d->find(QString::fromLatin1(group), true);
    return found != nullptr ? found->getProperty(property, value) : DataBrokerGroup::ErrUnknownGroup;
}

int DataBroker::setProperty(const char *group, const char *property, const QVariant &value)
{
    DataBrokerGroup *const found = d->find(QString::fromLatin1(group), true);
    return found != nullptr ? found->setProperty(property, value) : DataBrokerGroup::ErrUnknownGroup;
}

int DataBroker::getIniSetting(const char *setting, QVariant &value, const QVariant &defaultValue, bool useDefault) const
{
    const QString key = settingsKey(setting);
    {
        const QMutexLocker locker(&d->settingsMutex);
        if (d->settings && !key.isEmpty() && d->settings->contains(key)) {
            value = d->settings->value(key);
            return DataBrokerGroup::Success;
        }
    }
    if (!useDefault)
        return DataBrokerGroup::ErrUnknownProperty;
    value = defaultValue;
    return DataBrokerGroup::Success;
}

QSize DataBroker::getSize() const
{
    return d->displaySize;
}

int DataBroker::publishGroup(DataBrokerGroup *group)
{
    if (group == nullptr)
        return DataBrokerGroup::ErrUnknownGroup;
    const QString name = group->name();
    {
        const QWriteLocker locker(&d->lock);
        for (const Entry &entry : d->entries) {
            if (entry.name == name && !entry.isRemoved && !entry.group.isNull())
                return DataBrokerGroup::ErrNameTaken;
        }
        // A group is published once; one that has been taken out stays out.
        if (group->isRemoved() || group->broker() != nullptr)
            return DataBrokerGroup::ErrGroupRemoved;
        group->d->broker = this;
        group->setParent(nullptr);
        d->entries.append({name, group, false});
    }
    Q_EMIT groupPublished(name);
    return DataBrokerGroup::Success;
}

int DataBroker::removeGroup(const QString &name)
{
    QPointer<DataBrokerGroup> group;
    {
        const QWriteLocker locker(&d->lock);
        for (Entry &entry : d->entries) {
            if (entry.name != name || entry.isRemoved || entry.group.isNull())
                continue;
            entry.isRemoved = true;
            group = entry.group;
            group->d->isRemoved = true;
            break;
        }
    }
    if (group.isNull())
        return DataBrokerGroup::ErrUnknownGroup;
    Q_EMIT group->removed(group);
    Q_EMIT groupRemoved(name);
    return DataBrokerGroup::Success;
}
