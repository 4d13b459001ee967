#pragma once

#include "loadedmap.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QObject>

#include <memory>

class DataBroker;

/// A loaded map and its group in the data broker. Answers the group's point queries while the map stands.
/// User-interface thread only.
class PublishedMap : public QObject {
    Q_OBJECT

public:
    /// `broker` is not owned.
    PublishedMap(DataBroker *broker, const QString &groupName, QObject *parent = nullptr);
    /// Takes the group out.
    ~PublishedMap() override;

    /// Publishes `map`, in place of what the group held before, whose memory is freed afterwards. `rateCalNames`: the
    /// rate channel of each mapping, empty where another map feeds it. Settings that the group already has are kept,
    /// `settings` are those of a new group. False when the group's name is taken.
    bool publish(std::unique_ptr<LoadedMap> map, const QStringList &rateCalNames,
                 const QList<OrvikTypes::RX_SETTINGS> &settings);
    /// Gives the mappings their rate channels, empty for those that feed none; notifies the group's readers if that
    /// changed anything.
    void feed(const QStringList &rateCalNames);

    const LoadReport &report() const { return content->report; }
    const LocalPlane &plane() const { return content->plane; }
    CheckInput checkInput() const { return content->checkInput(); }
    /// The rate channels that the map was loaded for, one per mapping.
    QStringList wantedRateCalNames() const { return content->rateCalNames; }
    QList<OrvikTypes::RX_SETTINGS> settings() const { return group->getSettings(); }
    QString groupName() const { return name; }

private:
    void answer(const OrvikTypes::XYZ &point);
    /// Place of the active product's mapping; -1 when the map does not feed it.
    int activeMapping() const;
    void fill(const LoadedMap &map, const QStringList &rateCalNames);

    DataBroker *broker;
    QString name;
    /// Owned by the broker once it is published.
    DbGroupRxMap *group;
    bool isPublished = false;
    std::unique_ptr<LoadedMap> content;
    /// The content's look-up, null while the map is being replaced.
    const RateLookup *lookup = nullptr;
};
