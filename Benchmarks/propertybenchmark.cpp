// A typed property beside a plain member under the same lock, and its subscription beside a direct signal.

#include "plainsettings.h"
#include "sidebyside.h"

#include "Framework/databroker.h"
#include "bePluginRxMap/dbgrouprxmap.h"

namespace {

constexpr int repetitions = 20000;

using Settings = QList<OrvikTypes::RX_SETTINGS>;

Settings someSettings(int lookAhead)
{
    OrvikTypes::RX_SETTINGS entry;
    entry.name = QStringLiteral("product");
    entry.onLookAheadMs = lookAhead;
    return {entry, entry, entry};
}

/// The same settings as a property of a published, thread-safe group and as a plain member.
struct Both {
    Both()
        : group(new DbGroupRxMap(QStringLiteral("rxMap.benchmark")))
    {
        group->setThreadSafe(true);
        broker.publishGroup(group);
        group->setSettings(values[0]);
        plain.set(values[0]);
    }

    const Settings values[2] = {someSettings(100), someSettings(200)};
    DataBroker broker;
    DbGroupRxMap *group;
    PlainSettings plain;
};

void nanosecondsPerCall(benchmark::State &state)
{
    state.counters["nanoseconds"] = state.counters["seconds"] * 1e9 / repetitions;
    state.counters["baseline_nanoseconds"] = state.counters["baseline_seconds"] * 1e9 / repetitions;
}

void readProperty(benchmark::State &state)
{
    Both both;
    compareSideBySide(
        state, "over_plain",
        [&both] {
            for (int i = 0; i < repetitions; ++i)
                benchmark::DoNotOptimize(both.group->getSettings());
        },
        [&both] {
            for (int i = 0; i < repetitions; ++i)
                benchmark::DoNotOptimize(both.plain.get());
        });
    nanosecondsPerCall(state);
}

void writeBoth(benchmark::State &state, Both &both)
{
    compareSideBySide(
        state, "over_plain",
        [&both] {
            for (int i = 0; i < repetitions; ++i)
                both.group->setSettings(both.values[i % 2]);
        },
        [&both] {
            for (int i = 0; i < repetitions; ++i)
                both.plain.set(both.values[i % 2]);
        });
    nanosecondsPerCall(state);
}

void writeProperty(benchmark::State &state)
{
    Both both;
    writeBoth(state, both);
}

void writeToSubscriber(benchmark::State &state)
{
    Both both;
    SettingsListener listener;
    both.group->connectPropertySetSlot("settings", &listener, SLOT(take(QList<OrvikTypes::RX_SETTINGS>)),
                                       Qt::UniqueConnection, true);
    QObject::connect(&both.plain, &PlainSettings::changed, &listener, &SettingsListener::take);
    writeBoth(state, both);
    state.counters["notifications"] = listener.taken();
}

} // namespace

BENCHMARK(readProperty)->Name("Property/read")->UseManualTime()->Iterations(21);
BENCHMARK(writeProperty)->Name("Property/write")->UseManualTime()->Iterations(21);
BENCHMARK(writeToSubscriber)->Name("Property/write-subscribed")->UseManualTime()->Iterations(21);
