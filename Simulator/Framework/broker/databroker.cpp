#include "Framework/databroker.h"

#include "databrokergroupprivate.h"
#include "debugline.h"

#include "Framework/databrokergroup.h"

#include <QHash>
#include <QPointer>
#include <QSettings>
#include <QVector>

#include <algorithm>
#include <mutex>
#include <shared_mutex>

namespace {

struct Entry {
    QString name;
    /// Guarded, because a creator may delete its group after all.
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
        const std::shared_lock<std::shared_mutex> locker(lock);
        const Entry *const entry = latest(name);
        return entry != nullptr && (orRemoved || !entry->isRemoved) ? entry->group.data() : nullptr;
    }

    /// The latest entry of that name, or null. Under the lock.
    const Entry *latest(const QString &name) const
    {
        const auto place = latestPlace.constFind(name);
        return place != latestPlace.constEnd() ? &entries.at(*place) : nullptr;
    }

    bool isListed(int place, bool includeRemoved) const
    {
        const Entry &entry = entries.at(place);
        // A name that was published again stands at the place of the group that has it now.
        return !entry.group.isNull() && (includeRemoved || !entry.isRemoved)
            && latestPlace.value(entry.name, -1) == place;
    }

    /// Forgets the groups that were deleted since. Under the lock.
    void forgetDeleted()
    {
        const auto isDeleted = [](const Entry &entry) { return entry.group.isNull(); };
        entries.erase(std::remove_if(entries.begin(), entries.end(), isDeleted), entries.end());
        latestPlace.clear();
        for (int place = 0; place < entries.size(); ++place)
            latestPlace.insert(entries.at(place).name, place);
        sizeToTidy = 2 * entries.size() + leastSizeToTidy;
    }

    static constexpr int leastSizeToTidy = 64;

    mutable std::shared_mutex lock;
    int sizeToTidy = leastSizeToTidy;
    /// Every group that was ever published and still lives, oldest first, and some that were deleted.
    QVector<Entry> entries;
    /// Place of the latest entry of each name; the earlier ones have been removed.
    QHash<QString, int> latestPlace;
    mutable std::mutex settingsMutex;
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
            const std::lock_guard<std::shared_mutex> locker(d->lock);
            if (d->entries.isEmpty())
                return;
            const Entry entry = d->entries.takeLast();
            if (d->latestPlace.value(entry.name) == d->entries.size())
                d->latestPlace.remove(entry.name);
            group = entry.group;
        }
        delete group;
    }
}

QStringList DataBroker::findGroup(QString pattern, bool inPublicationOrder, bool includeRemoved) const
{
    QStringList names;
    {
        const std::shared_lock<std::shared_mutex> locker(d->lock);
        for (int place = 0; place < d->entries.size(); ++place) {
            const QString &name = d->entries.at(place).name;
            if (matches(name, pattern) && d->isListed(place, includeRemoved))
                names.append(name);
        }
    }
    if (!inPublicationOrder)
        names.sort();
    return names;
}

DataBrokerGroup *DataBroker::getGroup(QString name, bool reportMissing) const
{
    DataBrokerGroup *const group = d->find(name, false);
    if (group == nullptr && reportMissing)
        debugLine() << "no group of this name:" << name;
    return group;
}

int DataBroker::getProperty(const char *group, const char *property, QVariant &value) const
{
    const DataBrokerGroup *const found = d->find(QString::fromLatin1(group), true);
    return found != nullptr ? found->getProperty(property, value) : DataBrokerGroup::ErrUnknownGroup;
}

int DataBroker::setProperty(const char *group, const char *property, QVariant value)
{
    DataBrokerGroup *const found = d->find(QString::fromLatin1(group), true);
    return found != nullptr ? found->setProperty(property, value) : DataBrokerGroup::ErrUnknownGroup;
}

int DataBroker::getIniSetting(const char *setting, QVariant &value, QVariant defaultValue, bool useDefault) const
{
    const QString key = settingsKey(setting);
    {
        const std::lock_guard<std::mutex> locker(d->settingsMutex);
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
        const std::lock_guard<std::shared_mutex> locker(d->lock);
        // A group is published once; one that has been taken out stays out.
        if (group->isRemoved())
            return DataBrokerGroup::ErrGroupRemoved;
        const Entry *const holder = d->latest(name);
        const bool isTaken = holder != nullptr && !holder->isRemoved && !holder->group.isNull();
        if (isTaken || group->broker() != nullptr)
            return DataBrokerGroup::ErrNameTaken;
        group->d->broker = this;
        if (d->entries.size() >= d->sizeToTidy)
            d->forgetDeleted();
        d->latestPlace.insert(name, d->entries.size());
        d->entries.append({name, group, false});
    }
    // The broker owns it from here on.
    group->setParent(nullptr);
    Q_EMIT groupPublished(name);
    return DataBrokerGroup::Success;
}

int DataBroker::removeGroup(const QString &name)
{
    QPointer<DataBrokerGroup> group;
    {
        const std::lock_guard<std::shared_mutex> locker(d->lock);
        const Entry *const entry = d->latest(name);
        if (entry == nullptr || entry->isRemoved || entry->group.isNull())
            return DataBrokerGroup::ErrUnknownGroup;
        group = entry->group;
        group->d->isRemoved = true;
        d->entries[d->latestPlace.value(name)].isRemoved = true;
    }
    // A listener may delete the broker.
    const QPointer<DataBroker> living(this);
    Q_EMIT group->removed(group);
    if (living)
        Q_EMIT groupRemoved(name);
    return DataBrokerGroup::Success;
}
