#include "files.h"
#include "operatorsettings.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <functional>
#include <sys/stat.h>

using Make = std::function<void(const QString &)>;
Q_DECLARE_METATYPE(Make)

/// What the terminal remembers, read from broken files.
class TestOperatorSettings : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void whatIsKeptIsThereAtTheNextStart();
    void whatCannotBeUsedIsPutAside_data();
    void whatCannotBeUsedIsPutAside();
    void whatCannotBePutAsideStaysAsItIs();
    void whatCannotBeKeptIsTold();
};

void TestOperatorSettings::whatIsKeptIsThereAtTheNextStart()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("new/settings.ini"));
    const QStringList kept{QStringLiteral("/a,@Variant(.shp"), QStringLiteral("=\"@Variant(\"")};
    {
        OperatorSettings settings(path);
        settings.values().setValue(QStringLiteral("files"), kept);
        QCOMPARE(settings.keep(), QString());
    }
    OperatorSettings settings(path);
    QCOMPARE(settings.complaint(), QString());
    QCOMPARE(settings.values().value(QStringLiteral("files")).toStringList(), kept);
}

void TestOperatorSettings::whatCannotBeUsedIsPutAside_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("reason");
    const auto text = [](const QByteArray &content) {
        return Make([content](const QString &path) { writeFile(path, content); });
    };
    QTest::newRow("a list of any length")
        << text("[General]\nlist=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff\\0\\0\\0\\x2)\n") << "is damaged";
    QTest::newRow("a list in a list") << text("[General]\nlist=\"a\", \"@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\"\n")
                                      << "is damaged";
    QTest::newRow("lists in lists") << text("list=@Variant(" + QByteArray("\\0\\0\\0\\t\\0\\0\\0\\x1").repeated(100000)
                                            + ")\n")
                                    << "is damaged";
    QTest::newRow("more than anybody keeps") << text(QByteArray(5 << 20, '\n')) << "has more than 4 MB";
    QTest::newRow("a folder") << Make([](const QString &path) { QDir().mkdir(path); }) << "is a folder, not a file";
    QTest::newRow("a pipe") << Make([](const QString &path) { mkfifo(QFile::encodeName(path).constData(), 0600); })
                            << "is no plain file";
    QTest::newRow("a device") << Make([](const QString &path) { QFile::link(QStringLiteral("/dev/full"), path); })
                              << "is no plain file";
}

void TestOperatorSettings::whatCannotBeUsedIsPutAside()
{
    QFETCH(const Make, make);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("settings.ini"));
    make(path);
    OperatorSettings settings(path);
    QCOMPARE(settings.complaint(),
             QStringLiteral("%1: %2; what the terminal remembers is not used, the file is now %1.damaged")
                 .arg(path, reason));
    QVERIFY(settings.values().value(QStringLiteral("list")).isNull());
    settings.values().setValue(QStringLiteral("new"), 1);
    QCOMPARE(settings.keep(), QString());
    QCOMPARE(OperatorSettings(path).values().value(QStringLiteral("new")).toInt(), 1);
}

void TestOperatorSettings::whatCannotBePutAsideStaysAsItIs()
{
    const QTemporaryDir folder;
    const QString path = writeFile(folder.filePath(QStringLiteral("settings.ini")), "list=@Variant(\\0)\n");
    QVERIFY(QDir().mkdir(path + QStringLiteral(".damaged")));
    OperatorSettings settings(path);
    QCOMPARE(settings.complaint(),
             path + QStringLiteral(": is damaged; what the terminal remembers is not used, and nothing new is kept"));
    settings.values().setValue(QStringLiteral("new"), 1);
    QCOMPARE(settings.keep(), QString());
    QCOMPARE(readFile(path), QByteArray("list=@Variant(\\0)\n"));
}

void TestOperatorSettings::whatCannotBeKeptIsTold()
{
    const QTemporaryDir folder;
    const QString path = writeFile(folder.filePath(QStringLiteral("file")), "") + QStringLiteral("/settings.ini");
    OperatorSettings settings(path);
    QCOMPARE(settings.complaint(), QString());
    QCOMPARE(settings.keep(), QString());
    settings.values().setValue(QStringLiteral("new"), 1);
    QCOMPARE(settings.keep(), path + QStringLiteral(": cannot be written; nothing new is remembered"));
}

RXMAP_TEST(TestOperatorSettings, Core)
#include "tst_operatorsettings.moc"
