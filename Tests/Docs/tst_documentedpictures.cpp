#include "paths.h"
#include "picture.h"
#include "testbase.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

/// The pictures of the documentation show what the program shows today.
class DocumentedPicturesTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void allAreMadeByTheScript();
    void eachShowsWhatIsSeen_data();
    void eachShowsWhatIsSeen();

private:
    QTemporaryDir made;
};

namespace {

QStringList picturesIn(const QString &folder)
{
    return QDir(folder).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
}

} // namespace

void DocumentedPicturesTest::initTestCase()
{
    constexpr int longestMs = 280000;
    QProcess script;
    // Qt's platform for no display, on which reports are made, keeps its screen to the end.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    script.setProcessEnvironment(environment);
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start(QStringLiteral("bash"),
                 {sourcePath("scripts/make-pictures.sh"), made.path(), QStringLiteral(RXMAP_SIMULATOR)});
    QVERIFY(script.waitForFinished(longestMs));
    QVERIFY2(script.exitCode() == 0, script.readAll().constData());
}

void DocumentedPicturesTest::allAreMadeByTheScript()
{
    QCOMPARE(picturesIn(sourcePath("docs/pictures")), picturesIn(made.path()));
    QVERIFY(picturesIn(sourcePath("docs")).isEmpty());
}

void DocumentedPicturesTest::eachShowsWhatIsSeen_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : picturesIn(made.path()))
        QTest::newRow(qPrintable(name)) << name;
}

void DocumentedPicturesTest::eachShowsWhatIsSeen()
{
    QFETCH(QString, name);
    // Not even a word on a button may differ.
    constexpr double pixelShare = 0.0003;
    const QString wrong = Picture::compare(QImage(made.filePath(name)), sourcePath("docs/pictures/") + name,
                                           buildPath("Tests/Docs/pictures/") + name, pixelShare);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

RXMAP_TEST(DocumentedPicturesTest, None)
#include "tst_documentedpictures.moc"
