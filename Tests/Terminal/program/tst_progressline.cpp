#include "progressline.h"
#include "testbase.h"

/// When the program tells how far a drive is.
class TestProgressLine : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aLineComesAtTenthsAndAtMostOnceASecond_data();
    void aLineComesAtTenthsAndAtMostOnceASecond();
};

void TestProgressLine::aLineComesAtTenthsAndAtMostOnceASecond_data()
{
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("half a second") << qint64(500) << QStringList{"driving: 10 %, about 0 s left"};
    QTest::newRow("two seconds") << qint64(2000)
                                 << QStringList{"driving: 10 %, about 2 s left", "driving: 60 %, about 1 s left"};
    QTest::newRow("six seconds") << qint64(6000)
                                 << QStringList{"driving: 10 %, about 5 s left", "driving: 30 %, about 4 s left",
                                                "driving: 50 %, about 3 s left", "driving: 70 %, about 2 s left",
                                                "driving: 90 %, about 1 s left"};
    QTest::newRow("a minute and a half") << qint64(
        90000) << QStringList{"driving: 10 %, about 81 s left", "driving: 20 %, about 72 s left",
                              "driving: 30 %, about 63 s left", "driving: 40 %, about 54 s left",
                              "driving: 50 %, about 45 s left", "driving: 60 %, about 36 s left",
                              "driving: 70 %, about 27 s left", "driving: 80 %, about 18 s left",
                              "driving: 90 %, about 9 s left"};
}

void TestProgressLine::aLineComesAtTenthsAndAtMostOnceASecond()
{
    QFETCH(qint64, duration);
    ProgressLine progress(QStringLiteral("driving"));
    QStringList lines;
    constexpr int steps = 100;
    for (int step = 0; step < steps; ++step) {
        const QString line = progress.at(double(step) / steps, duration * step / steps);
        if (!line.isEmpty())
            lines.append(line);
    }
    QTEST(lines, "lines");
}

RXMAP_TEST(TestProgressLine, Core)
#include "tst_progressline.moc"
