#include "recursivegrouplock.h"
#include "testbase.h"

#include <atomic>
#include <chrono>
#include <thread>

class TestRecursiveGroupLock : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void anotherThreadWaitsForTheLastUnlock();
    void everyModeIsTheSameLock();
};

namespace {

/// Tries to take the lock in a thread of its own, releases it again, and remembers whether that thread got it.
class Visitor {
public:
    Visitor(GroupLock &lock, int mode)
        : thread([this, &lock, mode]() {
            isComing = true;
            lock.lock(mode);
            isIn = true;
            lock.unlock();
        })
    {
        while (!isComing)
            std::this_thread::yield();
        // Enough time to get the lock if it is free.
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }

    bool gotIn() const { return isIn; }
    void join() { thread.join(); }

private:
    std::atomic<bool> isComing{false};
    std::atomic<bool> isIn{false};
    std::thread thread; // Last: it uses the others.
};

} // namespace

void TestRecursiveGroupLock::anotherThreadWaitsForTheLastUnlock()
{
    RecursiveGroupLock lock;
    lock.lock(0);
    lock.lock(0);
    lock.unlock();
    Visitor visitor(lock, 0);
    const bool gotInEarly = visitor.gotIn();
    lock.unlock();
    visitor.join();
    QVERIFY(!gotInEarly);
    QVERIFY(visitor.gotIn());
}

void TestRecursiveGroupLock::everyModeIsTheSameLock()
{
    RecursiveGroupLock lock;
    lock.lock(0);
    Visitor visitor(lock, 1);
    const bool gotInEarly = visitor.gotIn();
    lock.unlock();
    visitor.join();
    QVERIFY(!gotInEarly);
}

RXMAP_TEST(TestRecursiveGroupLock, Core)
#include "tst_recursivegrouplock.moc"
