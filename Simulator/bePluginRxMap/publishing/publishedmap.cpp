#include "publishedmap.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"

using OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING;
using OrvikTypes::RX_SETTINGS;

namespace {

/// As many settings as the machine has products: the known ones first, then new ones.
QList<RX_SETTINGS> settingsFor(const QStringList &products, const QList<RX_SETTINGS> &known)
{
    constexpr int usualLookAheadMs = 1000;
    QList<RX_SETTINGS> settings;
    for (int i = 0; i < products.size(); ++i) {
        RX_SETTINGS entry = known.value(i);
        if (i >= known.size()) {
            entry.onLookAheadMs = usualLookAheadMs;
            entry.followsMaster = true;
        }
        entry.name = products.at(i);
        settings.append(entry);
    }
    return settings;
}

} // namespace

PublishedMap::PublishedMap(DataBroker *dataBroker, const QString &groupName, QObject *parent)
    : QObject(parent)
    , broker(dataBroker)
    , name(groupName)
    , group(new DbGroupRxMap(groupName))
{
    // Within the write itself, so that the answer is there when the write returns.
    connect(group, &DbGroupRxMap::queryRatesAtXYZChanged, this, &PublishedMap::answer, Qt::DirectConnection);
}

PublishedMap::~PublishedMap()
{
    lookup = nullptr;
    if (!isPublished) {
        delete group;
        return;
    }
    group->internalSetPolygonCount(0);
    group->internalSetPolygonBuffer(nullptr);
    broker->removeGroup(name);
}

bool PublishedMap::publish(std::unique_ptr<LoadedMap> map, const QStringList &rateCalNames,
                           const QList<RX_SETTINGS> &settings)
{
    lookup = nullptr;
    group->internalSetPolygonCount(0);
    // Freed at the end, when nobody can reach the records any more.
    const std::unique_ptr<LoadedMap> former = std::move(content);
    content = std::move(map);
    fill(*content, rateCalNames);
    const QList<RX_SETTINGS> known = isPublished ? group->getSettings() : settings;
    group->internalSetSettings(settingsFor(content->productNames, known));
    if (!isPublished && broker->publishGroup(group) != DataBrokerGroup::Success)
        return false;
    isPublished = true;
    lookup = content->lookup.get();
    group->internalSetPolygonCount(content->chain->size());
    return true;
}

void PublishedMap::fill(const LoadedMap &map, const QStringList &rateCalNames)
{
    QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING> mappings;
    for (int i = 0; i < map.report.columns.size(); ++i) {
        RX_DBFCOLUMN_TO_RATECAL_MAPPING mapping;
        mapping.rateCalName = rateCalNames.value(i);
        mapping.dbfColumnName = map.report.columns.at(i);
        mapping.defaultRate = map.defaultRates.value(i);
        mappings.append(mapping);
    }
    group->internalSetPolygonBuffer(map.chain->first());
    group->internalSetRateCalMappings(mappings);
    group->internalSetRateColors(map.report.legends);
    group->internalSetRatesAtXYZValid(false);
    group->internalSetRatesAtXYZ({});
}

void PublishedMap::feed(const QStringList &rateCalNames)
{
    QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING> mappings = group->getRateCalMappings();
    bool hasChanged = false;
    for (int i = 0; i < mappings.size(); ++i) {
        if (mappings.at(i).rateCalName == rateCalNames.value(i))
            continue;
        mappings[i].rateCalName = rateCalNames.value(i);
        hasChanged = true;
    }
    if (!hasChanged)
        return;
    group->internalSetRateCalMappings(mappings);
    // Makes those who draw the map read the mappings again.
    group->internalSetPolygonCount(group->getPolygonCount());
}

int PublishedMap::activeMapping() const
{
    const auto *job = qobject_cast<DbGroupJob *>(broker->getGroup(QStringLiteral("system.current.job"), false));
    const auto *aam =
        job == nullptr ? nullptr : qobject_cast<DbGroupAAM *>(broker->getGroup(job->getActiveAAMGroupName(), false));
    if (aam == nullptr)
        return -1;
    const QString product = aam->productGroupName();
    const QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING> mappings = group->getRateCalMappings();
    for (int i = 0; i < mappings.size(); ++i) {
        if (mappings.at(i).rateCalName == product)
            return i;
    }
    return -1;
}

void PublishedMap::answer(const OrvikTypes::XYZ &point)
{
    RateLookup::Answer found;
    if (lookup != nullptr)
        found = lookup->ratesAt(point.x, point.y);
    // The list has one flag for all its entries. It speaks for the active product, which is the one that is asked
    // about; where the map does not feed that, a rate in any column makes the answer valid.
    const int active = found.rates.isEmpty() ? -1 : activeMapping();
    const bool isValid = active >= 0 ? found.hasRate(active) : !found.rates.isEmpty();
    group->internalSetRatesAtXYZ(found.rates);
    group->internalSetRatesAtXYZValid(isValid);
}
