#include "samplegroup.h"
#include "testbase.h"

#include <atomic>
#include <thread>
#include <vector>

namespace {

constexpr int writers = 3;
constexpr int readers = 3;
constexpr int rounds = 2000;

/// Each list that is ever stored has as many entries as its tag says, and every entry carries the tag.
bool isWhole(const QList<OrvikTypes::RX_SETTINGS> &settings)
{
    for (const OrvikTypes::RX_SETTINGS &entry : settings) {
        if (entry.onLookAheadMs != settings.size() || entry.name != QString::number(settings.size()))
            return false;
    }
    return true;
}

int refuseLongLists(QVariant value, void *)
{
    return value.value<QList<OrvikTypes::RX_SETTINGS>>().size() > 8 ? 5 : 0;
}

} // namespace

/// A group in thread-safe mode that several threads write and read, by type and by name.
class TestGroupPropertyThreads : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void readersSeeWholeListsOnly();
    void everyWriterLearnsItsOwnOutcome();
    void readHooksAndWritesExcludeEachOther();
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

void TestGroupPropertyThreads::readHooksAndWritesExcludeEachOther()
{
    SampleGroup group(QStringLiteral("rxMap.a"));
    group.setThreadSafe(true);
    // Both the validator and the hook add to a plain number under the group's lock: no addition may get lost.
    int additions = 0;
    const auto hook = [](void *number) { ++*static_cast<int *>(number); };
    const auto validator = [](QVariant, void *number) {
        ++*static_cast<int *>(number);
        return 0;
    };
    group.setBeforeReadHook("level", hook, &additions);
    group.setWriteValidator("level", validator, &additions);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&group, thread]() {
            for (int round = 0; round < 5 * rounds; ++round) {
                if (thread % 2 == 0)
                    group.getLevel();
                else
                    group.setLevel(round);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(additions, 4 * 5 * rounds);
}

QTEST_GUILESS_MAIN(TestGroupPropertyThreads)
#include "tst_grouppropertythreads.moc"
