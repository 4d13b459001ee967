#include "filepage.h"
#include "files.h"
#include "openwindowtest.h"
#include "paintedtexts.h"
#include "removablevolumes.h"

#include <QAbstractButton>
#include <QRegularExpression>

/// How files are found and chosen in the open window.
class TestOpenWindowFiles : public OpenWindowTest {
    Q_OBJECT

private Q_SLOTS:
    void filesComeOneAfterTheOther();
    void openedFilesAreRecentAndGoneOnesCannotBeTouched();
    void foldersAreEntered();
    void theFolderUsedLastIsShownFirst();
    void aTrackLeavesTheFolderOfThePrescriptions();
    void aListIsLeftAndFoundAgainOnTheSamePage();
    void theSampleIsAPlaceWhereItIsThere();
    void volumesArePlacesWhileTheyAreThere();
    void volumesAreLookedForWheneverFilesAreShown();

private:
    /// The entry marked as the one chosen last.
    QString marked() const
    {
        const QList<QAbstractButton *> rows = window->findChildren<QAbstractButton *>(QRegularExpression("^fileRow"));
        for (const QAbstractButton *row : rows) {
            if (row->isVisible() && row->isChecked())
                return row->text();
        }
        return {};
    }
};

void TestOpenWindowFiles::filesComeOneAfterTheOther()
{
    window->preview({fixture("overlap.geojson"), QStringLiteral("/no/such.shp"), fixture("three-zones.geojson"),
                     fixture("two-strips.geojson")});
    QVERIFY(waitFor("openAccept"));
    QVERIFY(find(QStringLiteral("openSkip")) != nullptr);
    accept();
    QVERIFY(waitFor("openMessage"));
    touch(QStringLiteral("openBack"));
    QVERIFY(waitFor("columnRow2"));
    touch(QStringLiteral("openSkip"));
    QTRY_COMPARE(text(QStringLiteral("columnRow0")), QStringLiteral("A"));
    QVERIFY(find(QStringLiteral("openSkip")) == nullptr);
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(backend->maps().size(), 2);
}

void TestOpenWindowFiles::openedFilesAreRecentAndGoneOnesCannotBeTouched()
{
    const QString path = write({"UREA_KG_HA"});
    for (const QString &file : {path, fixture("overlap.geojson")}) {
        window->preview({file});
        QVERIFY(waitFor("openAccept"));
        accept();
        QTRY_VERIFY(!window->isVisible());
    }
    window->showFiles();
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("overlap.geojson"));
    QCOMPARE(text(QStringLiteral("fileRow1")), QStringLiteral("sketch.shp"));
    QVERIFY(find(QStringLiteral("fileRow1"))->isEnabled());
    QVERIFY(QFile::remove(path));
    window->showFiles();
    QVERIFY(!find(QStringLiteral("fileRow1"))->isEnabled());
    QVERIFY(paintedTexts(*find(QStringLiteral("fileRow1"))).contains(QStringLiteral("is no longer there")));
    touch(QStringLiteral("fileRow0"));
    QVERIFY(waitFor("openAccept"));
}

void TestOpenWindowFiles::foldersAreEntered()
{
    QVERIFY(QDir(folder->path()).mkpath(QStringLiteral("farm/field")));
    QVERIFY(QFile::copy(fixture("overlap.geojson"), folder->filePath(QStringLiteral("farm/field/map.geojson"))));
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder->path().toLocal8Bit());
    startWindow();
    window->showFiles();
    qputenv("HOME", home);
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("farm"));
    touch(QStringLiteral("fileRow0"));
    touch(QStringLiteral("fileRow0"));
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map.geojson"));
    touch(QStringLiteral("folderUp"));
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("field"));
    touch(QStringLiteral("placeRoot"));
    QVERIFY(!find(QStringLiteral("folderUp"))->isEnabled());
    touch(QStringLiteral("pageDown"));
    touch(QStringLiteral("openCancel"));
    QVERIFY(!window->isVisible());
}

void TestOpenWindowFiles::theFolderUsedLastIsShownFirst()
{
    const QString stick = folder->filePath(QStringLiteral("stick"));
    QVERIFY(QDir().mkpath(stick));
    QVERIFY(QFile::copy(fixture("overlap.geojson"), stick + QStringLiteral("/map.geojson")));
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder->path().toLocal8Bit());
    startWindow();
    window->showFiles();
    qputenv("HOME", home);
    touch(QStringLiteral("fileRow0"));
    touch(QStringLiteral("fileRow0"));
    QVERIFY(waitFor("openAccept"));
    accept();
    QTRY_VERIFY(!window->isVisible());
    startWindow();
    window->showFiles();
    QVERIFY(find(QStringLiteral("folderUp"))->isEnabled());
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map.geojson"));
    // After a recent file, Back leads to the recent files.
    touch(QStringLiteral("placeRecent"));
    touch(QStringLiteral("fileRow0"));
    QVERIFY(waitFor("openAccept"));
    touch(QStringLiteral("openBack"));
    QVERIFY(!find(QStringLiteral("folderUp"))->isEnabled());
    QVERIFY(QDir(stick).removeRecursively());
    window->showFiles();
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map.geojson"));
    QVERIFY(!find(QStringLiteral("fileRow0"))->isEnabled());
}

void TestOpenWindowFiles::aTrackLeavesTheFolderOfThePrescriptions()
{
    const QDir files(folder->path());
    QVERIFY(files.mkdir(QStringLiteral("maps")) && files.mkdir(QStringLiteral("drives")));
    QVERIFY(QFile::copy(fixture("overlap.geojson"), files.filePath(QStringLiteral("maps/map.geojson"))));
    QVERIFY(!writeFile(files.filePath(QStringLiteral("drives/track.csv")), "time,x,y\n0,0,0\n").isEmpty());
    RecentFiles(*settings).setFolder(files.filePath(QStringLiteral("maps")));
    QSignalSpy wanted(window.data(), &OpenWindow::trackWanted);
    window->showRecords(files.filePath(QStringLiteral("drives")));
    touch(QStringLiteral("fileRow0"));
    QCOMPARE(wanted.size(), 1);
    window->showFiles();
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map.geojson"));
}

void TestOpenWindowFiles::aListIsLeftAndFoundAgainOnTheSamePage()
{
    for (int i = 10; i < 30; ++i)
        QVERIFY(QFile::copy(fixture("overlap.geojson"), folder->filePath(QStringLiteral("map%1.geojson").arg(i))));
    QVERIFY(QDir(folder->path()).mkpath(QStringLiteral("zones/field")));
    QVERIFY(QFile::copy(fixture("overlap.geojson"), folder->filePath(QStringLiteral("zones/field/map.geojson"))));
    RecentFiles(*settings).setFolder(folder->path());
    window->showFiles();
    QCOMPARE(marked(), QString());
    touch(QStringLiteral("pageDown"));
    touch(QStringLiteral("fileRow3"));
    QVERIFY(waitFor("openAccept"));
    // Back, and then out of the window.
    touch(QStringLiteral("openBack"));
    QCOMPARE(text(QStringLiteral("fileRow3")), QStringLiteral("map19.geojson"));
    QCOMPARE(marked(), QStringLiteral("map19.geojson"));
    touch(QStringLiteral("openCancel"));
    window->showFiles();
    QCOMPARE(marked(), QStringLiteral("map19.geojson"));
    // A page that was only looked at is remembered as well.
    touch(QStringLiteral("pageDown"));
    touch(QStringLiteral("openCancel"));
    window->showFiles();
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map23.geojson"));
    // The page follows its file when others have come or gone; when that file is gone, the nearest page is shown.
    for (const char *gone : {"map10", "map11", "map12", "map13", "map14", "map15", "map16"})
        QVERIFY(QFile::remove(folder->filePath(QLatin1String(gone) + QStringLiteral(".geojson"))));
    window->showFiles();
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map23.geojson"));
    QVERIFY(QFile::remove(folder->filePath(QStringLiteral("map23.geojson"))));
    window->showFiles();
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map24.geojson"));
    // On the way up, the folder just left is marked.
    RecentFiles(*settings).setFolder(folder->filePath(QStringLiteral("zones/field")));
    window->showFiles();
    touch(QStringLiteral("folderUp"));
    touch(QStringLiteral("folderUp"));
    QCOMPARE(marked(), QStringLiteral("zones"));
}

void TestOpenWindowFiles::theSampleIsAPlaceWhereItIsThere()
{
    const QString place = QStringLiteral("placeSample");
    window->showFiles();
    QVERIFY(find(place) == nullptr);
    window->offerSample(folder->filePath(QStringLiteral("none.shp")));
    QVERIFY(find(place) == nullptr);
    window->offerSample(fixture("three-zones.geojson"));
    touch(place);
    QVERIFY(waitFor("openAccept"));
    accept();
    QTRY_VERIFY(!window->isVisible());
    QCOMPARE(backend->maps().size(), 1);
    // Nobody looked for a file in its folder, so that is not remembered.
    QCOMPARE(RecentFiles(*settings).folder(), QString());
}

void TestOpenWindowFiles::volumesArePlacesWhileTheyAreThere()
{
    auto *page = window->findChild<FilePage *>();
    window->showFiles();
    window->offerSample(fixture("three-zones.geojson"));
    const QDir files(folder->path());
    for (const char *name : {"a", "b", "c", "d"})
        QVERIFY(files.mkdir(QLatin1String(name)));
    page->offerVolumes({files.filePath("a"), files.filePath("b")});
    QCOMPARE(text(QStringLiteral("placeVolume0")), QStringLiteral("a"));
    QCOMPARE(text(QStringLiteral("placeVolume1")), QStringLiteral("b"));
    QVERIFY(find(QStringLiteral("placeVolume2")) == nullptr);
    QVERIFY(find(QStringLiteral("placeSample")) != nullptr);
    // The one that was plugged in last is the one that is wanted.
    page->offerVolumes({files.filePath("a"), files.filePath("b"), files.filePath("c"), files.filePath("d")});
    QCOMPARE(text(QStringLiteral("placeVolume2")), QStringLiteral("d"));
    QVERIFY(find(QStringLiteral("placeSample")) == nullptr);
    QVERIFY(QFile::copy(fixture("overlap.geojson"), files.filePath(QStringLiteral("c/map.geojson"))));
    touch(QStringLiteral("placeVolume1"));
    QCOMPARE(text(QStringLiteral("fileRow0")), QStringLiteral("map.geojson"));
}

void TestOpenWindowFiles::volumesAreLookedForWheneverFilesAreShown()
{
    auto *page = window->findChild<FilePage *>();
    const auto offered = [this] {
        int count = 0;
        for (int place = 0; find(QStringLiteral("placeVolume%1").arg(place)) != nullptr; ++place)
            ++count;
        return count;
    };
    const int there = qMin(RemovableVolumes::mounted().size(), 3);
    const QStringList others = there > 0 ? QStringList() : QStringList(folder->path());
    window->showFiles();
    page->offerVolumes(others);
    QVERIFY(offered() != there);
    window->showFiles();
    QCOMPARE(offered(), there);
    page->offerVolumes(others);
    window->preview({fixture("overlap.geojson")});
    QVERIFY(waitFor("openAccept"));
    touch(QStringLiteral("openBack"));
    QCOMPARE(offered(), there);
}

RXMAP_TEST(TestOpenWindowFiles, Widgets)
#include "tst_openwindow_files.moc"
