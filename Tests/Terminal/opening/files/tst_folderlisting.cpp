#include "folderlisting.h"
#include "testbase.h"

/// What can be opened in a folder.
class TestFolderListing : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void foldersComeBeforeFilesThatMayBePrescriptions();
    void aFolderWithTaskDataIsOpenedNotEntered();
    void filesAreJudgedWithoutBeingRead();
    void tracksAreListedByNameAndFirstLine();
    void filesThatAreGoneAreSaidToBe();
    void datesAndSizesAreWrittenInTheLanguage_data();
    void datesAndSizesAreWrittenInTheLanguage();

private:
    void touch(const QString &name, const QByteArray &content = "content");

    QTemporaryDir folder;
};

void TestFolderListing::touch(const QString &name, const QByteArray &content)
{
    QVERIFY(QFileInfo(folder.filePath(name)).dir().mkpath(QStringLiteral(".")));
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void TestFolderListing::foldersComeBeforeFilesThatMayBePrescriptions()
{
    for (const char *name :
         {"list/z10.shp", "list/z10.dbf", "list/Z9.GeoJSON", "list/notes.txt", "list/b/x", "list/a/x"})
        touch(QLatin1String(name));
    QStringList names;
    const QList<FileEntry> entries = FolderListing::of(folder.filePath(QStringLiteral("list")));
    for (const FileEntry &entry : entries)
        names.append(entry.name + (entry.isFolder ? QStringLiteral("/") : QString()));
    QCOMPARE(names, QStringList({"a/", "b/", "Z9.GeoJSON", "z10.shp"}));
}

void TestFolderListing::aFolderWithTaskDataIsOpenedNotEntered()
{
    touch(QStringLiteral("tasks/field/taskdata.xml"));
    const QList<FileEntry> entries = FolderListing::of(folder.filePath(QStringLiteral("tasks")));
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().name, QStringLiteral("field"));
    QVERIFY(!entries.first().isFolder);
}

void TestFolderListing::filesAreJudgedWithoutBeingRead()
{
    // The content does not count: an empty file may be one of the system's files, and reading those may never end.
    touch(QStringLiteral("judged/archive"), "PK\x03\x04");
    touch(QStringLiteral("judged/text.zip"), "no archive");
    touch(QStringLiteral("judged/tasks.xml"), "no task data");
    touch(QStringLiteral("judged/empty.shp"), {});
    QStringList names;
    const QList<FileEntry> entries = FolderListing::of(folder.filePath(QStringLiteral("judged")));
    for (const FileEntry &entry : entries)
        names.append(entry.name);
    QCOMPARE(names, QStringList({"tasks.xml", "text.zip"}));
}

void TestFolderListing::tracksAreListedByNameAndFirstLine()
{
    touch(QStringLiteral("tracks/drive.csv"), "time,x,y\n0,0,0\n");
    touch(QStringLiteral("tracks/receiver.TXT"), "$GPGGA,120000,,,,,0\n");
    touch(QStringLiteral("tracks/receiver.cpp"), "$GPGGA,120000,,,,,0\n");
    touch(QStringLiteral("tracks/prices.csv"), "name,price\nurea,1\n");
    touch(QStringLiteral("tracks/map.shp"));
    QStringList tracks;
    const QList<FileEntry> entries = FolderListing::of(folder.filePath(QStringLiteral("tracks")));
    for (const FileEntry &entry : entries) {
        if (entry.note.startsWith(QStringLiteral("Track  \u00b7  ")))
            tracks.append(entry.name);
    }
    QCOMPARE(tracks, QStringList({"drive.csv", "receiver.TXT"}));
    QCOMPARE(entries.size(), 3);
    // Whatever its name is, what was dropped is a track.
    QVERIFY(FolderListing::isTrack(folder.filePath(QStringLiteral("tracks/receiver.cpp"))));
    QVERIFY(!FolderListing::isTrack(folder.filePath(QStringLiteral("tracks/map.shp"))));
}

void TestFolderListing::filesThatAreGoneAreSaidToBe()
{
    touch(QStringLiteral("there.shp"));
    const QList<FileEntry> entries =
        FolderListing::ofFiles({folder.filePath(QStringLiteral("there.shp")), QStringLiteral("/no/such.shp")});
    QVERIFY(entries.at(0).isThere);
    QVERIFY(!entries.at(1).isThere);
    QCOMPARE(entries.at(1).note, QStringLiteral("/no"));
}

void TestFolderListing::datesAndSizesAreWrittenInTheLanguage_data()
{
    QTest::addColumn<QLocale>("language");
    QTest::addColumn<QString>("note");
    QTest::newRow("English") << QLocale(QLocale::English) << "1.5 KiB  \u00b7  4 Mar 2026, 6:07 PM";
    QTest::newRow("German") << QLocale(QLocale::German) << QStringLiteral("1,5 KiB  \u00b7  4 M\u00e4rz 2026, 18:07");
}

void TestFolderListing::datesAndSizesAreWrittenInTheLanguage()
{
    QFETCH(QLocale, language);
    const auto restore = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
    QLocale::setDefault(language);
    touch(QStringLiteral("dated/a.shp"), QByteArray(1536, 'x'));
    QFile file(folder.filePath(QStringLiteral("dated/a.shp")));
    QVERIFY(file.open(QIODevice::Append));
    QVERIFY(file.setFileTime(QDateTime(QDate(2026, 3, 4), QTime(18, 7)), QFileDevice::FileModificationTime));
    QTEST(FolderListing::of(folder.filePath(QStringLiteral("dated"))).first().note, "note");
}

RXMAP_TEST(TestFolderListing, Core)
#include "tst_folderlisting.moc"
