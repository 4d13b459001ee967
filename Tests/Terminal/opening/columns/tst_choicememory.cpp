#include "choicememory.h"
#include "testbase.h"

/// What the operator chose for each file.
class TestChoiceMemory : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void choicesOutliveTheProgram();
    void whatAnotherTerminalKeptStays();
    void theFilesOfLongAgoAreForgotten();
    void aFileIsTheSameHoweverItIsReached();

private:
    QScopedPointer<QTemporaryDir> folder;
    QScopedPointer<QSettings> settings;
    QString file() const { return folder->filePath(QStringLiteral("settings.ini")); }
};

void TestChoiceMemory::init()
{
    TestBase::init();
    settings.reset();
    folder.reset(new QTemporaryDir);
    settings.reset(new QSettings(file(), QSettings::IniFormat));
}

void TestChoiceMemory::choicesOutliveTheProgram()
{
    const FileChoices kept{"zones",
                           "Task 1",
                           {"Rate", "Gülle, m3"},
                           {{"Gülle, m3", true, 2, "Slurry", "m3/ha"}, {"Rate", false, 0, {}, "kg/ha"}}};
    ChoiceMemory(*settings).keep(QStringLiteral("/a.shp"), kept);
    settings.reset(new QSettings(file(), QSettings::IniFormat));
    const std::optional<FileChoices> found = ChoiceMemory(*settings).of(QStringLiteral("/a.shp"));
    QVERIFY(found);
    QCOMPARE(found->layer, kept.layer);
    QCOMPARE(found->task, kept.task);
    QCOMPARE(found->columnNames, kept.columnNames);
    QCOMPARE(found->columns.size(), 2);
    QCOMPARE(found->columns.first().column, QStringLiteral("Gülle, m3"));
    QVERIFY(found->columns.first().isProductChosen);
    QVERIFY(!found->columns.last().isProductChosen);
    QCOMPARE(found->columns.first().product, 2);
    QCOMPARE(found->columns.first().productName, QStringLiteral("Slurry"));
    QCOMPARE(found->columns.first().unit, QStringLiteral("m3/ha"));
    QVERIFY(!ChoiceMemory(*settings).of(QStringLiteral("/b.shp")));
}

void TestChoiceMemory::whatAnotherTerminalKeptStays()
{
    ChoiceMemory(*settings).keep(QStringLiteral("/a.shp"), {});
    settings->sync();
    // All QSettings of one file in a program share their values; so the other program's file is put in its place.
    const QString others = folder->filePath(QStringLiteral("others.ini"));
    QVERIFY(QFile::copy(file(), others));
    {
        QSettings other(others, QSettings::IniFormat);
        ChoiceMemory(other).keep(QStringLiteral("/b.shp"), {});
    }
    QVERIFY(QFile::remove(file()) && QFile::copy(others, file()));
    ChoiceMemory(*settings).keep(QStringLiteral("/c.shp"), {});
    for (const char *path : {"/a.shp", "/b.shp", "/c.shp"})
        QVERIFY2(ChoiceMemory(*settings).of(QLatin1String(path)), path);
}

void TestChoiceMemory::theFilesOfLongAgoAreForgotten()
{
    ChoiceMemory memory(*settings);
    for (int i = 0; i <= ChoiceMemory::mostFiles; ++i)
        memory.keep(QStringLiteral("/%1.shp").arg(i), {});
    QVERIFY(!memory.of(QStringLiteral("/0.shp")));
    QVERIFY(memory.of(QStringLiteral("/1.shp")));
}

void TestChoiceMemory::aFileIsTheSameHoweverItIsReached()
{
    QFile file(folder->filePath(QStringLiteral("a.shp")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString link = folder->filePath(QStringLiteral("b.shp"));
    QVERIFY(file.link(link));
    ChoiceMemory(*settings).keep(file.fileName(), {QStringLiteral("zones"), {}, {}, {}});
    QVERIFY(ChoiceMemory(*settings).of(link));
}

RXMAP_TEST(TestChoiceMemory, Core)
#include "tst_choicememory.moc"
