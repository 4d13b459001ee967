#include "files.h"
#include "testbase.h"
#include "trackcheck.h"

#include <QTemporaryDir>

#include <atomic>

using namespace std::chrono_literals;

/// The check of a track in a thread of its own.
class TestTrackCheck : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void tellsItsEndAndItsOutcome();
    void endsOnceItIsGivenUp();
    void isGivenUpWhenItGoes();

private:
    /// Path of a track with that many entries.
    QString track(int entries) const;

    /// They take a good part of a second.
    static constexpr int manyEntries = 400000;

    QTemporaryDir folder;
    const QPointF origin{9.0, 50.0};
};

QString TestTrackCheck::track(int entries) const
{
    const QByteArray rows = QByteArray("0,9,50\n").repeated(entries);
    return writeFile(folder.filePath(QStringLiteral("track.csv")), "time,lon,lat\n" + rows);
}

void TestTrackCheck::tellsItsEndAndItsOutcome()
{
    TrackCheck check(track(20000), origin);
    double share = 0.0;
    bool hasEnded = false;
    connect(&check, &TrackCheck::progress, this, [&share](double fraction) { share = fraction; });
    connect(&check, &TrackCheck::ended, this, [&hasEnded] { hasEnded = true; });
    QTRY_VERIFY(hasEnded);
    QVERIFY(check.endsWithin(10s));
    QVERIFY2(share > 0.9, qPrintable(QString::number(share)));
    const auto outcome = check.takeOutcome();
    QVERIFY2(outcome.isOk(), qPrintable(outcome.error));
}

void TestTrackCheck::endsOnceItIsGivenUp()
{
    TrackCheck check(track(manyEntries), origin);
    check.giveUp();
    QVERIFY(check.isGivenUp());
    QVERIFY(check.endsWithin(10s));
    QVERIFY(!check.takeOutcome().isOk());
}

void TestTrackCheck::isGivenUpWhenItGoes()
{
    std::atomic<double> share{0.0};
    {
        TrackCheck check(track(manyEntries), origin);
        connect(
            &check, &TrackCheck::progress, this, [&share](double fraction) { share = fraction; }, Qt::DirectConnection);
    }
    QVERIFY2(share < 0.9, qPrintable(QString::number(share)));
}

RXMAP_TEST(TestTrackCheck, Core)
#include "tst_trackcheck.moc"
