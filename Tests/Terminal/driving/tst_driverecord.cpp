#include "driverecord.h"
#include "files.h"
#include "machinebench.h"
#include "recorder.h"
#include "smalldisk.h"
#include "testbase.h"

#include <QDir>
#include <QRegularExpression>

/// The record that the operator makes of a drive by touch.
class TestDriveRecord : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itIsANewFileNamedAfterFieldAndMoment();
    void whereItIsIsToldInTheEnd();
    void aScriptsRecordCounts();
    void onlyWhatCanBeReplayedIsKept();
    void whyThereIsNoneIsTold_data();
    void whyThereIsNoneIsTold();
    void aFullDiskIsTold_data();
    void aFullDiskIsTold();

private:
    QDir records() const { return QDir(folder->filePath(QStringLiteral("of/drives"))); }
    QStringList names() const { return records().entryList(QDir::Files); }
    void makeRecord(const QString &path);

    QScopedPointer<QTemporaryDir> folder;
    QScopedPointer<MachineBench> bench;
    QScopedPointer<Recorder> recorder;
    QScopedPointer<DriveRecord> record;
    QStringList told;
};

void TestDriveRecord::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
    bench.reset(new MachineBench);
    recorder.reset(new Recorder(&bench->simulation));
    makeRecord(records().path());
}

void TestDriveRecord::cleanup()
{
    record.reset();
    recorder.reset();
    bench.reset();
    TestBase::cleanup();
}

void TestDriveRecord::makeRecord(const QString &path)
{
    told.clear();
    record.reset(new DriveRecord(&bench->simulation, recorder.data(), path));
    connect(record.data(), &DriveRecord::told, this,
            [this](const QString &title, const QString &line) { told.append(title + QStringLiteral(": ") + line); });
}

void TestDriveRecord::itIsANewFileNamedAfterFieldAndMoment()
{
    record->setOn(true);
    record->setOn(false);
    QVERIFY(bench->loadZones({{-100, 0, 50.0}, {0, 100, 80.0}}).isOk());
    // Within one second, so that some would have the same name.
    for (int i = 0; i < 4; ++i) {
        record->setOn(true);
        bench->simulation.run(i);
        record->setOn(false);
    }
    const QStringList all = names();
    QCOMPARE(all.size(), 5);
    static const QRegularExpression form(
        QStringLiteral("^(zones|drive)_\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d(_\\d)?\\.csv$"));
    QSet<int> lengths;
    for (const QString &name : all) {
        QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
        if (name.startsWith(QLatin1String("zones")))
            lengths.insert(readFile(records().filePath(name)).count('\n'));
    }
    QCOMPARE(lengths, (QSet<int>{1, 11, 21, 31}));
    QCOMPARE(all.filter(QStringLiteral("zones")).size(), 4);
}

void TestDriveRecord::whereItIsIsToldInTheEnd()
{
    QSignalSpy kept(record.data(), &DriveRecord::kept);
    record->setOn(true);
    QVERIFY(record->isOn());
    QCOMPARE(told, QStringList());
    bench->simulation.run(3599.0);
    QCOMPARE(record->elapsed(), QStringLiteral("59:59"));
    record->setOn(false);
    QVERIFY(!record->isOn());
    const QString path = records().filePath(names().constFirst());
    QCOMPARE(told, QStringList{"The drive is recorded: " + path});
    QCOMPARE(kept, QList<QVariantList>{{path}});
}

void TestDriveRecord::aScriptsRecordCounts()
{
    QSignalSpy changed(record.data(), &DriveRecord::changed);
    const QString path = folder->filePath(QStringLiteral("own.csv"));
    QCOMPARE(recorder->start(path), QString());
    QVERIFY(record->isOn() && changed.size() == 1);
    bench->simulation.run(2.0);
    QCOMPARE(record->elapsed(), QStringLiteral("0:02"));
    QVERIFY(changed.size() > 1);
    record->setOn(false);
    QCOMPARE(told, QStringList{"The drive is recorded: " + path});
    // A record begins at nothing.
    record->setOn(true);
    QCOMPARE(record->elapsed(), QStringLiteral("0:00"));
}

void TestDriveRecord::onlyWhatCanBeReplayedIsKept()
{
    QSignalSpy kept(record.data(), &DriveRecord::kept);
    for (const char *name : {"own.gpkg", "own.csv"}) {
        QCOMPARE(recorder->start(folder->filePath(QLatin1String(name))), QString());
        bench->simulation.run(2.0);
        record->setOn(false);
    }
    QCOMPARE(told.size(), 2);
    QCOMPARE(kept, QList<QVariantList>{{folder->filePath(QStringLiteral("own.csv"))}});
}

void TestDriveRecord::whyThereIsNoneIsTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a folder that cannot be made") << "/proc/none"
                                                  << "^The drive cannot be recorded: /proc/none: this ";
    QTest::newRow("a folder that cannot be written")
        << "/proc"
        << "^The drive cannot be recorded: /proc/drive_.*\\.csv: No such file or directory$";
}

void TestDriveRecord::whyThereIsNoneIsTold()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    makeRecord(path);
    record->setOn(true);
    QVERIFY(!record->isOn());
    QCOMPARE(told.size(), 1);
    QVERIFY2(QRegularExpression(reason).match(told.constFirst()).hasMatch(), qPrintable(told.constFirst()));
}

void TestDriveRecord::aFullDiskIsTold_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<QString>("line");
    QTest::newRow("at once") << 0 << "The drive cannot be recorded: %1: File too large";
    QTest::newRow("on the way") << 5000 << "The drive is no longer recorded: %1: the record ends early: ";
}

void TestDriveRecord::aFullDiskIsTold()
{
    QFETCH(int, bytes);
    QFETCH(QString, line);
    {
        const SmallDisk disk{rlim_t(bytes)};
        record->setOn(true);
        QCOMPARE(record->isOn(), bytes > 0);
        bench->simulation.run(60.0);
    }
    QVERIFY(!record->isOn());
    QCOMPARE(told.size(), 1);
    QCOMPARE(names().size(), bytes > 0 ? 1 : 0);
    const QString name = line.section(QStringLiteral("%1"), 0, 0) + records().path();
    QVERIFY2(told.constFirst().startsWith(name) && told.constFirst().contains(line.section(QStringLiteral("%1"), 1)),
             qPrintable(told.constFirst()));
    // The next one is not blamed for it.
    record->setOn(true);
    QVERIFY(record->isOn());
    QCOMPARE(told.size(), 1);
}

RXMAP_TEST(TestDriveRecord, Core)
#include "tst_driverecord.moc"
