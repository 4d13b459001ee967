#include "actuator.h"
#include "testbase.h"

#include <cmath>

/// How the applied rate follows the commanded one.
class TestActuator : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aStepIsAnsweredAsTheClosedFormSays_data();
    void aStepIsAnsweredAsTheClosedFormSays();
    void ratesStayWithinWhatTheChannelCanDo();

private:
    static RateCommand on(double rate)
    {
        RateCommand command;
        command.commanded = rate;
        command.isOn = true;
        return command;
    }
};

void TestActuator::aStepIsAnsweredAsTheClosedFormSays_data()
{
    QTest::addColumn<double>("deadTime");
    QTest::addColumn<double>("timeConstant");
    QTest::newRow("at once") << 0.0 << 0.0;
    QTest::newRow("lag alone") << 0.0 << 0.8;
    QTest::newRow("dead time alone") << 0.6 << 0.0;
    QTest::newRow("both") << 0.6 << 0.8;
    QTest::newRow("dead time within a step") << 0.25 << 0.4;
    QTest::newRow("shorter than a step") << 0.04 << 0.05;
}

void TestActuator::aStepIsAnsweredAsTheClosedFormSays()
{
    QFETCH(double, deadTime);
    QFETCH(double, timeConstant);
    Actuator actuator({deadTime, timeConstant, 0.0, 1000.0});
    // The rate, and its integral, of a first-order lag after a dead time.
    const auto rateAt = [&](double time) {
        const double late = time - deadTime;
        if (late < -1e-9)
            return 0.0;
        return timeConstant > 0.0 ? 100.0 * (1.0 - std::exp(-std::max(0.0, late) / timeConstant)) : 100.0;
    };
    const auto amountAt = [&](double time) {
        const double late = std::max(0.0, time - deadTime);
        const double lag = timeConstant > 0.0 ? timeConstant * (1.0 - std::exp(-late / timeConstant)) : 0.0;
        return 100.0 * (late - lag);
    };
    double amount = 0.0;
    for (int step = 1; step <= 40; ++step) {
        amount += 0.1 * actuator.step(on(100.0), 0.1);
        const double time = 0.1 * step;
        // Where the dead time ends at a step, either side of the jump is right.
        if (timeConstant > 0.0 || std::fabs(time - deadTime) > 1e-9)
            QVERIFY2(std::fabs(actuator.applied() - rateAt(time)) < 1e-9, qPrintable(QString::number(time)));
        QVERIFY2(std::fabs(amount - amountAt(time)) < 1e-9, qPrintable(QString::number(time)));
    }
}

void TestActuator::ratesStayWithinWhatTheChannelCanDo()
{
    Actuator actuator({0.0, 0.0, 20.0, 80.0});
    actuator.step(on(100.0), 0.1);
    QCOMPARE(actuator.applied(), 80.0);
    actuator.step(on(0.0), 0.1);
    QCOMPARE(actuator.applied(), 20.0);
    actuator.step(RateCommand(), 0.1);
    QCOMPARE(actuator.applied(), 0.0);
}

RXMAP_TEST(TestActuator, None)
#include "tst_actuator.moc"
