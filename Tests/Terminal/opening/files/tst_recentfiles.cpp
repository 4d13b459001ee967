#include "recentfiles.h"
#include "testbase.h"

/// The prescriptions opened last.
class TestRecentFiles : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theNewestComesFirstAndEachOnce();
    void tenAreKept();
    void theyOutliveTheProgram();

private:
    QTemporaryDir folder;
    QString file() const { return folder.filePath(QStringLiteral("settings.ini")); }
};

void TestRecentFiles::theNewestComesFirstAndEachOnce()
{
    QSettings settings(file(), QSettings::IniFormat);
    settings.clear();
    RecentFiles recent(settings);
    for (const char *path : {"/a.shp", "/b.shp", "/a.shp"})
        recent.add(QLatin1String(path));
    QCOMPARE(recent.paths(), QStringList({"/a.shp", "/b.shp"}));
}

void TestRecentFiles::tenAreKept()
{
    QSettings settings(file(), QSettings::IniFormat);
    settings.clear();
    RecentFiles recent(settings);
    for (int i = 0; i < 12; ++i)
        recent.add(QStringLiteral("/%1.shp").arg(i));
    QCOMPARE(recent.paths().size(), 10);
    QCOMPARE(recent.paths().first(), QStringLiteral("/11.shp"));
}

void TestRecentFiles::theyOutliveTheProgram()
{
    {
        QSettings settings(file(), QSettings::IniFormat);
        settings.clear();
        RecentFiles(settings).add(QStringLiteral("/Feld, groß.shp"));
    }
    QSettings settings(file(), QSettings::IniFormat);
    QCOMPARE(RecentFiles(settings).paths(), QStringList(QStringLiteral("/Feld, groß.shp")));
}

RXMAP_TEST(TestRecentFiles, Core)
#include "tst_recentfiles.moc"
