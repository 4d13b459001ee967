#include "pluginscanner.h"
#include "testbase.h"

#include "Framework/uiplugininterface.h"

#include <QTemporaryDir>

/// Plug-ins found in a folder, good and broken ones, each a real file.
class TestPluginScanner : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aGoodPluginIsFound();
    void brokenFilesAreReportedByNameAndReason_data();
    void brokenFilesAreReportedByNameAndReason();
    void brokenFilesDoNotHideAGoodOne();
    void aSecondCopyIsReportedAndNotLoaded();
    void aBrokenPluginDoesNotStandForAGoodOne();
    void ofAPluginOfAnotherKindNoCodeRuns();
    void anEmptyFolderHasNone();

private:
    /// Copies a built module into `folder`.
    static bool put(const QString &module, const QTemporaryDir &folder) { return put(module, folder, module); }
    static bool put(const QString &module, const QTemporaryDir &folder, const QString &name);
    static bool write(const QByteArray &content, const QString &name, const QTemporaryDir &folder);
};

bool TestPluginScanner::put(const QString &module, const QTemporaryDir &folder, const QString &name)
{
    return QFile::copy(QStringLiteral(RXMAP_MODULES "/") + module, folder.filePath(name));
}

bool TestPluginScanner::write(const QByteArray &content, const QString &name, const QTemporaryDir &folder)
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

void TestPluginScanner::aGoodPluginIsFound()
{
    QTemporaryDir folder;
    QVERIFY(put(QStringLiteral("goodplugin.so"), folder));
    const PluginScanner::Findings findings = PluginScanner::scan(QDir(folder.path()));
    QCOMPARE(findings.complaints, QStringList());
    QCOMPARE(findings.plugins.size(), 1);
    QCOMPARE(findings.plugins.first().instance->getPluginName(), QStringLiteral("GoodPlugin"));
    delete findings.plugins.first().instance;
}

void TestPluginScanner::brokenFilesAreReportedByNameAndReason_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("text") << "text.so"
                          << "is no shared library";
    QTest::newRow("empty") << "empty.so"
                           << "is no shared library";
    QTest::newRow("cut off") << "cutoff.so"
                             << "is no Qt plug-in";
    QTest::newRow("library") << "plainlibrary.so"
                             << "is no Qt plug-in";
    QTest::newRow("other identifier") << "otheridentifier.so"
                                      << "has the identifier \"com.example.ImageFormat/1.0\"";
    QTest::newRow("missing symbol") << "missingsymbol.so"
                                    << "rxmapFunctionThatNobodyHas";
    QTest::newRow("lacks the interface") << "lacksinterface.so"
                                         << "lacks the interface \"com.orvik.UiPluginInterface/4\"";
}

void TestPluginScanner::brokenFilesAreReportedByNameAndReason()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    QTemporaryDir folder;
    if (file == QLatin1String("text.so"))
        QVERIFY(write("not a library\n", file, folder));
    else if (file == QLatin1String("empty.so"))
        QVERIFY(write("", file, folder));
    else if (file == QLatin1String("cutoff.so"))
        QVERIFY(write(QByteArray("\x7f"
                                 "ELF\x02\x01\x01",
                                 7),
                      file, folder));
    else
        QVERIFY(put(file, folder));
    const PluginScanner::Findings findings = PluginScanner::scan(QDir(folder.path()));
    QVERIFY(findings.plugins.isEmpty());
    QCOMPARE(findings.complaints.size(), 1);
    const QString complaint = findings.complaints.first();
    QVERIFY2(complaint.startsWith(file + QLatin1String(": ")), qPrintable(complaint));
    QVERIFY2(complaint.contains(reason), qPrintable(complaint));
    QVERIFY2(!complaint.contains(QLatin1Char('\n')), qPrintable(complaint));
}

void TestPluginScanner::brokenFilesDoNotHideAGoodOne()
{
    QTemporaryDir folder;
    QVERIFY(put(QStringLiteral("lacksinterface.so"), folder));
    QVERIFY(put(QStringLiteral("goodplugin.so"), folder));
    QVERIFY(put(QStringLiteral("plainlibrary.so"), folder));
    QVERIFY(write("readme", QStringLiteral("readme.txt"), folder));
    const PluginScanner::Findings findings = PluginScanner::scan(QDir(folder.path()));
    QCOMPARE(findings.plugins.size(), 1);
    QCOMPARE(findings.complaints.size(), 2);
    QVERIFY(findings.complaints.at(0).startsWith(QLatin1String("lacksinterface.so")));
    QVERIFY(findings.complaints.at(1).startsWith(QLatin1String("plainlibrary.so")));
    delete findings.plugins.first().instance;
}

void TestPluginScanner::aSecondCopyIsReportedAndNotLoaded()
{
    QTemporaryDir folder;
    const QString module = QStringLiteral("goodplugin.so");
    QVERIFY(put(module, folder));
    QVERIFY(put(module, folder, QStringLiteral("zcopy.so")));
    QVERIFY(QFile::link(folder.filePath(module), folder.filePath(QStringLiteral("zlink.so"))));
    const PluginScanner::Findings findings = PluginScanner::scan(QDir(folder.path()));
    QCOMPARE(findings.plugins.size(), 1);
    QCOMPARE(findings.plugins.first().path, folder.filePath(module));
    const QString reason = QStringLiteral(": is the same plug-in as goodplugin.so, \"com.orvik.uiPluginGood\"");
    QCOMPARE(findings.complaints,
             QStringList({QStringLiteral("zcopy.so") + reason, QStringLiteral("zlink.so") + reason}));
    delete findings.plugins.first().instance;
}

void TestPluginScanner::aBrokenPluginDoesNotStandForAGoodOne()
{
    QTemporaryDir folder;
    QVERIFY(put(QStringLiteral("lacksinterface.so"), folder));
    QVERIFY(put(QStringLiteral("lacksinterface.so"), folder, QStringLiteral("lacksinterface2.so")));
    const PluginScanner::Findings findings = PluginScanner::scan(QDir(folder.path()));
    QVERIFY(findings.plugins.isEmpty());
    QCOMPARE(findings.complaints.size(), 2);
    QVERIFY2(findings.complaints.last().contains(QLatin1String("lacks the interface")),
             qPrintable(findings.complaints.last()));
}

void TestPluginScanner::ofAPluginOfAnotherKindNoCodeRuns()
{
    QTemporaryDir folder;
    QVERIFY(put(QStringLiteral("otheridentifier.so"), folder));
    PluginScanner::scan(QDir(folder.path()));
    QVERIFY(!qEnvironmentVariableIsSet("RXMAP_TEST_OTHER_IDENTIFIER_RAN"));
}

void TestPluginScanner::anEmptyFolderHasNone()
{
    QTemporaryDir folder;
    const PluginScanner::Findings findings = PluginScanner::scan(QDir(folder.path()));
    QVERIFY(findings.plugins.isEmpty());
    QVERIFY(findings.complaints.isEmpty());
}

RXMAP_TEST(TestPluginScanner, Core)
#include "tst_pluginscanner.moc"
