#include "files.h"
#include "pluginscanner.h"
#include "testbase.h"

#include "Framework/uiplugininterface.h"

#include <QTemporaryDir>

/// Plug-ins found in a folder, good and broken; each is a real file.
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
};

bool TestPluginScanner::put(const QString &module, const QTemporaryDir &folder, const QString &name)
{
    return QFile::copy(QStringLiteral(RXMAP_MODULES "/") + module, folder.filePath(name));
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
    const auto row = [](const char *title, const char *file, const char *reason) {
        QTest::newRow(title) << file << reason;
    };
    row("text", "text.so", "is no shared library");
    row("empty", "empty.so", "is no shared library");
    row("cut off", "cutoff.so", "is no Qt plug-in");
    row("library", "plainlibrary.so", "is no Qt plug-in");
    row("other identifier", "otheridentifier.so", "has the identifier \"com.example.ImageFormat/1.0\"");
    row("missing symbol", "missingsymbol.so", "rxmapFunctionThatNobodyHas");
    row("lacks the interface", "lacksinterface.so", "lacks the interface \"com.orvik.UiPluginInterface/4\"");
}

void TestPluginScanner::brokenFilesAreReportedByNameAndReason()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    QTemporaryDir folder;
    if (file == QLatin1String("text.so"))
        QVERIFY(!writeFile(folder.filePath(file), "not a library\n").isEmpty());
    else if (file == QLatin1String("empty.so"))
        QVERIFY(!writeFile(folder.filePath(file), "").isEmpty());
    else if (file == QLatin1String("cutoff.so"))
        QVERIFY(!writeFile(folder.filePath(file),
                           QByteArray("\x7f"
                                      "ELF\x02\x01\x01",
                                      7))
                     .isEmpty());
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
    QVERIFY(!writeFile(folder.filePath(QStringLiteral("readme.txt")), "readme").isEmpty());
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
