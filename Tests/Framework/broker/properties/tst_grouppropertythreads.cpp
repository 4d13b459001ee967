#include "samplegroup.h"
#include "testbase.h"

#include <atomic>
#include <thread>
#include <vector>

namespace {

constexpr int writers = 3;
constexpr int readers = 3;
constexpr int rounds = 6000;

/// Each list ever stored has as many entries as its tag says, and every entry carries the tag.
bool isWhole(const QList<OrvikTypes::RX_SETTINGS> &settings)
{
    for (const OrvikTypes::RX_SETTINGS &entry : settings) {
        if (entry.onLookAheadMs != settings.size() || entry.name != QString::number(settings.size()))
            return false;
    }
    return true;
}

/// Counts how often two threads are in a hook or validator at once; each stays there long enough to be met.
struct Visitors {
    static void visit(void *argument)
    {
        auto *const self = static_cast<Visitors *>(argument);
        ++self->visits;
        if (self->inside.fetch_add(1) > 0)
            ++self->meetings;
        std::this_thread::sleep_for(std::chrono::microseconds(50));
        self->inside.fetch_sub(1);
    }

    static int accept(QVariant, void *argument)
    {
        visit(argument);
        return 0;
    }

    std::atomic<int> visits{0};
    std::atomic<int> inside{0};
    std::atomic<int> meetings{0};
};

int refuseLongLists(QVariant value, void *)
{
    return value.value<QList<OrvikTypes::RX_SETTINGS>>().size() > 8 ? 5 : 0;
}

} // namespace

/// A thread-safe group that several threads write and read, by type and by name.
class TestGroupPropertyThreads : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void readersSeeWholeListsOnly();
    void everyWriterLearnsItsOwnOutcome();
    void readHooksAndValidatorsRunOneAtATime();
};

void TestGroupPropertyThreads::readersSeeWholeListsOnly()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setThreadSafe(true);
    std::atomic<int> broken{0};
    std::atomic<int> announced{0};
    connect(
        &group, &SampleGroup::settingsChanged, this,
        [&](const QList<OrvikTypes::RX_SETTINGS> &settings) {
            ++announced;
            broken += isWhole(settings) && isWhole(group.getSettings()) ? 0 : 1;
        },
        Qt::DirectConnection);
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer) {
        threads.emplace_back([&group, writer]() {
            for (int round = 0; round < rounds; ++round) {
                const int size = 1 + (writer + round) % 7;
                group.setSettings(taggedSettings(size, size));
            }
        });
    }
    for (int reader = 0; reader < readers; ++reader) {
        threads.emplace_back([&group, &broken]() {
            for (int round = 0; round < rounds; ++round) {
                QVariant value;
                group.getProperty("settings", value);
                broken += isWhole(value.value<QList<OrvikTypes::RX_SETTINGS>>()) ? 0 : 1;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(broken.load(), 0);
    QCOMPARE(announced.load(), writers * rounds);
}

void TestGroupPropertyThreads::everyWriterLearnsItsOwnOutcome()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setThreadSafe(true);
    group.setWriteValidator("settings", refuseLongLists, nullptr);
    const int refusals = 50;
    for (int i = 0; i < refusals; ++i)
        messages().expectWarning(QStringLiteral("set rxMap.a::settings failed: 5"));
    std::atomic<int> wrong{0};
    std::thread refused([&]() {
        for (int i = 0; i < refusals; ++i)
            wrong += group.setProperty("settings", QVariant::fromValue(taggedSettings(9, 9))) == 5 ? 0 : 1;
    });
    std::thread accepted([&]() {
        for (int i = 0; i < 40 * refusals; ++i)
            wrong += group.setProperty("settings", QVariant::fromValue(taggedSettings(2, 2))) == 0 ? 0 : 1;
    });
    refused.join();
    accepted.join();
    QCOMPARE(wrong.load(), 0);
    QCOMPARE(group.getSettings(), taggedSettings(2, 2));
}

void TestGroupPropertyThreads::readHooksAndValidatorsRunOneAtATime()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setThreadSafe(true);
    Visitors visitors;
    group.setBeforeReadHook("level", Visitors::visit, &visitors);
    group.setWriteValidator("level", Visitors::accept, &visitors);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&group, thread]() {
            for (int round = 0; round < 200; ++round) {
                if (thread % 2 == 0)
                    group.getLevel();
                else
                    group.setLevel(round);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(visitors.visits.load(), 4 * 200);
    QCOMPARE(visitors.meetings.load(), 0);
}

RXMAP_TEST(TestGroupPropertyThreads, Core)
#include "tst_grouppropertythreads.moc"
