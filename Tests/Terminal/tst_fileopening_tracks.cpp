#include "fieldview.h"
#include "fileopeningtest.h"
#include "paintedtexts.h"
#include "simulation.h"
#include "vehicle.h"

#include <QLabel>
#include <QLineF>
#include <QTemporaryDir>
#include <QTimer>

#include <utility>

/// Drives that are recorded, and tracks that are replayed, by touch.
class TestFileOpeningTracks : public FileOpeningTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aRecordedDriveIsReplayedByTouch();
    void theRecordBeingWrittenEndsWhereItIsReplayed();
    void whereNothingIsRecordedItSaysHow();
    void aDroppedTrackFollowsItsMap();
    void whatATrackLacksIsToldWhenTheOpenWindowIsGone();
    void aNoticeTakesThePlaceOfTheGreeting();
    void aLongTrackIsReadWithTheDisplayAlive();
    void aLongTrackIsGivenUp_data();
    void aLongTrackIsGivenUp();
    void whyATrackIsNotReplayedIsTold_data();
    void whyATrackIsNotReplayedIsTold();

private:
    void run(double seconds) { terminal().simulation()->run(seconds); }
    QString write(const QByteArray &track);
    /// Writes a track that takes about a second to read, drops it, and touches that button once it is being read.
    void dropLongTrack(const char *touched);
    QWidget *card(const char *name) { return terminal().window()->findChild<QWidget *>(QLatin1String(name)); }
    QWidget *notice() { return card("noticeCard"); }
    QString noticeText() { return notice()->accessibleName() + QLatin1Char('|') + notice()->accessibleDescription(); }
    Vehicle &vehicle() { return *terminal().vehicle(); }

    QByteArray realHome;
    QScopedPointer<QTemporaryDir> home;
};

void TestFileOpeningTracks::init()
{
    realHome = qgetenv("HOME");
    home.reset(new QTemporaryDir);
    qputenv("HOME", home->path().toLocal8Bit());
    FileOpeningTest::init();
    terminal().simulation()->setTimeFactor(0.0);
}

void TestFileOpeningTracks::cleanup()
{
    FileOpeningTest::cleanup();
    qputenv("HOME", realHome);
}

QString TestFileOpeningTracks::write(const QByteArray &track)
{
    QFile file(home->filePath(QStringLiteral("track.csv")));
    return file.open(QIODevice::WriteOnly) && file.write(track) == track.size() ? file.fileName() : QString();
}

void TestFileOpeningTracks::aRecordedDriveIsReplayedByTouch()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    for (const char *name : {"drive", "driveStart", "driveRecord"})
        button(name)->click();
    run(10.0);
    const QPointF reached = vehicle().position();
    button("driveRecord")->click();
    QVERIFY(notice()->isVisible());
    const QString folder = home->filePath(QStringLiteral("Documents"));
    QVERIFY2(noticeText().contains(QLatin1Char('|') + folder + QStringLiteral("/three-zones_")),
             qPrintable(noticeText()));
    run(20.0);
    button("driveReplay")->click();
    QVERIFY(!notice()->isVisible());
    QVERIFY(button("fileRow0")->text().startsWith(QLatin1String("three-zones_")));
    button("fileRow0")->click();
    QVERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(vehicle().mode(), Motion::Mode::Replay);
    run(5.0);
    button("driveByHand")->click();
    run(4.0);
    QCOMPARE(vehicle().currentSpeed(), 3.0);
    // It is among the recent files.
    button("openButton")->click();
    button("placeRecent")->click();
    button("fileRow0")->click();
    run(60.0);
    QVERIFY(vehicle().isOver());
    QVERIFY(QLineF(vehicle().position(), reached).length() < 0.01);
}

void TestFileOpeningTracks::theRecordBeingWrittenEndsWhereItIsReplayed()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    for (const char *name : {"drive", "driveStart", "driveRecord"})
        button(name)->click();
    run(10.0);
    button("driveReplay")->click();
    button("fileRow0")->click();
    QCOMPARE(vehicle().mode(), Motion::Mode::Replay);
    QTRY_VERIFY(!button("driveRecord")->isChecked());
    run(20.0);
    QVERIFY(vehicle().isOver());
}

void TestFileOpeningTracks::whereNothingIsRecordedItSaysHow()
{
    button("drive")->click();
    button("driveReplay")->click();
    const QStringList texts = paintedTexts(*terminal().openWindow()).filter(QStringLiteral("No drive was recorded"));
    QCOMPARE(texts.size(), 1);
}

void TestFileOpeningTracks::aDroppedTrackFollowsItsMap()
{
    const QString track = write("time,x,y\n0,0,0\nnothing\n9,9,0\n");
    Q_EMIT terminal().window()->dropped({TerminalHost::fixture(QStringLiteral("three-zones.geojson")), track}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(vehicle().mode(), Motion::Mode::Replay);
    // What drives is seen, and what was left out.
    QVERIFY(button("driveReplay") != nullptr);
    QVERIFY(notice()->isVisible());
    QVERIFY2(noticeText().contains(QStringLiteral("track.csv left out: 1|line 3: its time is none")),
             qPrintable(noticeText()));
    button("noticeClose")->click();
    QVERIFY(!notice()->isVisible());
}

void TestFileOpeningTracks::whatATrackLacksIsToldWhenTheOpenWindowIsGone()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    const QString track = write("time,x,y\n0,0,0\nnothing\n9,9,0\n");
    Q_EMIT terminal().window()->dropped({track, TerminalHost::fixture(QStringLiteral("three-zones.geojson"))}, {});
    QVERIFY(terminal().openWindow()->isVisible());
    QVERIFY(!notice()->isVisible());
    QTRY_VERIFY(button("openAccept") != nullptr);
    button("openAccept")->click();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QVERIFY(notice()->isVisible());
    QVERIFY2(noticeText().contains(QStringLiteral("track.csv left out: 1")), qPrintable(noticeText()));
    button("noticeClose")->click();
    // What was read does not come again.
    button("openButton")->click();
    button("openButton")->click();
    QVERIFY(!notice()->isVisible());
}

void TestFileOpeningTracks::aNoticeTakesThePlaceOfTheGreeting()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    terminal().greet();
    QVERIFY(card("hintCard")->isVisible());
    Q_EMIT terminal().window()->dropped({write("time,x,y\n0,0,0\nnothing\n9,9,0\n")}, {});
    QVERIFY(notice()->isVisible());
    QVERIFY(!card("hintCard")->isVisible());
    QTest::keyClick(terminal().window()->focusWidget(), Qt::Key_Escape);
    QCOMPARE(terminal().window()->focusWidget(), terminal().window()->fieldView());
}

void TestFileOpeningTracks::dropLongTrack(const char *touched)
{
    QByteArray track("time,lon,lat\n");
    for (int second = 0; second < 400000; ++second)
        track += QByteArray::number(second) + ",9,49.6500\n";
    QTimer timer;
    timer.start(0);
    bool wasSeen = false;
    connect(&timer, &QTimer::timeout, this, [this, touched, &wasSeen] {
        if (!terminal().openWindow()->isBusy() || std::exchange(wasSeen, true))
            return;
        if (QAbstractButton *touch = button(touched))
            QTest::mouseClick(touch, Qt::LeftButton);
    });
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    Q_EMIT terminal().window()->dropped({write(track)}, {});
    QVERIFY(wasSeen);
    QVERIFY(!terminal().openWindow()->isBusy());
}

void TestFileOpeningTracks::aLongTrackIsReadWithTheDisplayAlive()
{
    dropLongTrack("");
    QVERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(vehicle().mode(), Motion::Mode::Replay);
}

void TestFileOpeningTracks::aLongTrackIsGivenUp_data()
{
    QTest::addColumn<QByteArray>("touched");
    QTest::addColumn<QByteArray>("seen");
    QTest::newRow("cancelled") << QByteArray("openCancel") << QByteArray("fileRow0");
    QTest::newRow("left for the drive") << QByteArray("drive") << QByteArray("driveStart");
}

void TestFileOpeningTracks::aLongTrackIsGivenUp()
{
    QFETCH(QByteArray, touched);
    QFETCH(QByteArray, seen);
    dropLongTrack(touched.constData());
    QCOMPARE(vehicle().mode(), Motion::Mode::Shuttle);
    QVERIFY(button(seen.constData()) != nullptr);
    QCOMPARE(terminal().openWindow()->isVisible(), touched == "openCancel");
}

void TestFileOpeningTracks::whyATrackIsNotReplayedIsTold_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<QByteArray>("track");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no map") << false << QByteArray("time,x,y\n0,0,0\n9,9,0\n")
                            << "track.csv is a track: open the prescription of its field first";
    QTest::newRow("no position") << true << QByteArray("time,x,y\n") << "track.csv: holds no position";
}

void TestFileOpeningTracks::whyATrackIsNotReplayedIsTold()
{
    QFETCH(bool, hasMap);
    QFETCH(QByteArray, track);
    QFETCH(QString, reason);
    QVERIFY(!hasMap || open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    Q_EMIT terminal().window()->dropped({write(track)}, {});
    auto *message = terminal().window()->findChild<QLabel *>(QStringLiteral("openMessage"));
    QVERIFY(message->isVisible());
    QVERIFY2(message->text().remove(QChar(0x200b)).endsWith(reason), qPrintable(message->text()));
    QCOMPARE(vehicle().mode(), Motion::Mode::Shuttle);
    button("openBack")->click();
    QVERIFY(button("fileRow0") != nullptr);
}

RXMAP_TEST(TestFileOpeningTracks, Widgets)
#include "tst_fileopening_tracks.moc"
