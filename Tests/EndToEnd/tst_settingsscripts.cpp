#include "simulatorrun.h"
#include "testbase.h"

#include <QFile>
#include <QTemporaryDir>

/// What an operator does in the settings dialog, from the outside: scripts of this folder drive the built simulator.
class TestSettingsScripts : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void whatTheOperatorSetsIsShownAndWritten_data();
    void whatTheOperatorSetsIsShownAndWritten();
};

void TestSettingsScripts::whatTheOperatorSetsIsShownAndWritten_data()
{
    QTest::addColumn<QByteArray>("products");
    const QByteArray firstUnderControl = R"([{"name":"Seed","kind":"weight","bin":1},)"
                                         R"({"name":"Water","kind":"volume","bin":2,"underVra":false}])";
    const QByteArray secondUnderControl = R"([{"name":"Seed","kind":"weight","bin":1,"underVra":false},)"
                                          R"({"name":"Water","kind":"volume","bin":2}])";
    QTest::newRow("settings-round-trip") << QByteArray();
    QTest::newRow("cancel-while-moving") << QByteArray();
    QTest::newRow("lock-under-the-keypad") << QByteArray();
    QTest::newRow("not-under-control") << firstUnderControl;
    QTest::newRow("not-under-control-from-the-start") << secondUnderControl;
}

void TestSettingsScripts::whatTheOperatorSetsIsShownAndWritten()
{
    QFETCH(QByteArray, products);
    QTemporaryDir folder;
    QStringList arguments;
    if (!products.isEmpty()) {
        QFile file(folder.filePath(QStringLiteral("products.json")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(products);
        file.close();
        arguments = QStringList{QStringLiteral("--products"), file.fileName()};
    }
    const QString script = scriptText(QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(".js"));
    const SimulatorRun run = runOperatorScript(script, arguments);
    const QString output = run.output.join(QLatin1Char('\n'));
    QVERIFY2(run.exitCode == 0, qPrintable(output + run.errors));
    QVERIFY2(run.output.contains(QStringLiteral("finished")), qPrintable(output));
}

QTEST_MAIN(TestSettingsScripts)
#include "tst_settingsscripts.moc"
