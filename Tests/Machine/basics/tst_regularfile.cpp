#include "regularfile.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// Which files can be read to their end.
class TestRegularFile : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void onlyPlainFilesPass_data();
    void onlyPlainFilesPass();
    void anOutputWaitsForNobody();

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

void TestRegularFile::anOutputWaitsForNobody()
{
    QFile plain(folder.filePath(QStringLiteral("new")));
    QCOMPARE(openOutput(plain), QString());
    QFile none(folder.path());
    QVERIFY(!openOutput(none).isEmpty());
    const QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("output")));
    QCOMPARE(mkfifo(path.constData(), 0600), 0);
    QFile pipe(QFile::decodeName(path));
    QCOMPARE(openOutput(pipe), QStringLiteral("is a pipe that nobody reads"));
    const int reader = open(path.constData(), O_RDONLY | O_NONBLOCK);
    QCOMPARE(openOutput(pipe), QString());
    QCOMPARE(pipe.write("a"), qint64(1));
    char byte = 0;
    QCOMPARE(read(reader, &byte, 1), ssize_t(1));
    QCOMPARE(byte, 'a');
    close(reader);
}

RXMAP_TEST(TestRegularFile, None)
#include "tst_regularfile.moc"
