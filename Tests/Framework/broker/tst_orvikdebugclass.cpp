#include "testbase.h"

#include "Framework/orvikdebugclass.h"

#include <atomic>
#include <thread>

class TestOrvikDebugClass : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void thereIsOneObject();
    void theHolderMayTakeTheLockAgain();
    void linesUnderTheLockStayTogether();
};

void TestOrvikDebugClass::thereIsOneObject()
{
    ORVIK_DEBUG_CLASS *const object = ORVIK_DEBUG_CLASS::init();
    QVERIFY(object != nullptr);
    QCOMPARE(ORVIK_DEBUG_CLASS::init(), object);
}

void TestOrvikDebugClass::theHolderMayTakeTheLockAgain()
{
    ORVIK_DEBUG_CLASS::init()->lock();
    ORVIK_DEBUG_CLASS::init()->lock();
    ORVIK_DEBUG_CLASS::init()->unlock();
    std::atomic<bool> entered{false};
    std::thread other([&]() {
        ORVIK_DEBUG_CLASS::init()->lock();
        entered = true;
        ORVIK_DEBUG_CLASS::init()->unlock();
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    const bool enteredEarly = entered;
    ORVIK_DEBUG_CLASS::init()->unlock();
    other.join();
    QVERIFY(!enteredEarly);
    QVERIFY(entered);
}

void TestOrvikDebugClass::linesUnderTheLockStayTogether()
{
    std::string output;
    const auto write = [&output](char letter) {
        for (int i = 0; i < 200; ++i) {
            ORVIK_DEBUG_CLASS::init()->lock();
            output += letter;
            std::this_thread::yield();
            output += letter;
            ORVIK_DEBUG_CLASS::init()->unlock();
        }
    };
    std::thread first(write, 'a');
    std::thread second(write, 'b');
    first.join();
    second.join();
    QCOMPARE(int(output.size()), 800);
    for (std::size_t i = 0; i < output.size(); i += 2)
        QCOMPARE(output[i], output[i + 1]);
}

RXMAP_TEST(TestOrvikDebugClass, Core)
#include "tst_orvikdebugclass.moc"
