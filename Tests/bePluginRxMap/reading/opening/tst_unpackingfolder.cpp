#include "testbase.h"
#include "unpackingfolder.h"

#include <QDir>
#include <QSet>
#include <QTemporaryDir>

#include <cerrno>
#include <ctime>
#include <memory>
#include <sys/resource.h>
#include <utime.h>

class UnpackingFolderTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void onlyWhatWasLeftBehindGoes();
    void isOfNoUseWhereItCannotBeKeptFromOthers();

private:
    /// A folder with a file in it, last changed two hours ago.
    static bool makeOld(const QString &folder)
    {
        QFile file(folder + QStringLiteral("/a.shp"));
        const utimbuf then{std::time(nullptr) - 7200, std::time(nullptr) - 7200};
        return QDir().mkpath(folder) && file.open(QIODevice::WriteOnly)
            && utime(folder.toLocal8Bit().constData(), &then) == 0;
    }

    QTemporaryDir temporary;
    QByteArray before;
};

void UnpackingFolderTest::initTestCase()
{
    before = qgetenv("TMPDIR");
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
}

void UnpackingFolderTest::cleanupTestCase()
{
    before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
}

void UnpackingFolderTest::onlyWhatWasLeftBehindGoes()
{
    const QString prefix = temporary.filePath(QLatin1String(UnpackingFolder::prefix));
    auto used = std::make_unique<UnpackingFolder>();
    QVERIFY2(used->isValid(), qPrintable(used->error()));
    QVERIFY(used->path().startsWith(prefix));
    QVERIFY(makeOld(used->path()));
    QVERIFY(makeOld(prefix + QStringLiteral("abcdef")));
    QVERIFY(makeOld(temporary.filePath(QStringLiteral("somebody-elses"))));
    QVERIFY(QDir().mkpath(prefix + QStringLiteral("fresh1")));
    {
        const UnpackingFolder next;
        const QStringList kept = {QFileInfo(next.path()).fileName(), QFileInfo(used->path()).fileName(),
                                  QLatin1String(UnpackingFolder::prefix) + QStringLiteral("fresh1"),
                                  QStringLiteral("somebody-elses")};
        const QStringList found = QDir(temporary.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(QSet<QString>(found.begin(), found.end()), QSet<QString>(kept.begin(), kept.end()));
    }
    QVERIFY(QFile::exists(used->path() + QStringLiteral("/a.shp")));
    const QString path = used->path();
    used.reset();
    QVERIFY(!QFile::exists(path));
}

void UnpackingFolderTest::isOfNoUseWhereItCannotBeKeptFromOthers()
{
    rlimit files{};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &files), 0);
    const rlimit none{0, files.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &none), 0);
    const UnpackingFolder folder;
    setrlimit(RLIMIT_NOFILE, &files);
    QVERIFY(!folder.isValid());
    QCOMPARE(folder.error(), qt_error_string(EMFILE));
}

RXMAP_TEST(UnpackingFolderTest, Core)
#include "tst_unpackingfolder.moc"
