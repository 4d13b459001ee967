#include "regularfile.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <sys/stat.h>

/// Which paths can be read to their end.
class TestRegularFile : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void onlyPlainFilesPass_data();
    void onlyPlainFilesPass();

private:
    QTemporaryDir folder;
};

void TestRegularFile::onlyPlainFilesPass_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("problem");
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString link = folder.filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(file.fileName(), link));
    const QString dangling = folder.filePath(QStringLiteral("dangling"));
    QVERIFY(QFile::link(folder.filePath(QStringLiteral("gone")), dangling));
    QTest::newRow("file") << file.fileName() << QString();
    QTest::newRow("link to a file") << link << QString();
    QTest::newRow("link to nothing") << dangling << "there is no such file";
    QTest::newRow("nothing") << folder.filePath(QStringLiteral("nothing")) << "there is no such file";
    QTest::newRow("no name") << QString() << "there is no such file";
    QTest::newRow("folder") << folder.path() << "is a folder, not a file";
    QTest::newRow("pipe") << pipe << "is no plain file";
    QTest::newRow("device") << "/dev/null"
                            << "is no plain file";
}

void TestRegularFile::onlyPlainFilesPass()
{
    QFETCH(QString, path);
    QFETCH(QString, problem);
    QCOMPARE(regularFileProblem(path), problem);
}

RXMAP_TEST(TestRegularFile, None)
#include "tst_regularfile.moc"
