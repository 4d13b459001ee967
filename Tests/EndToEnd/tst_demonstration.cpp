#include "paths.h"
#include "picture.h"
#include "simulatorrun.h"
#include "testbase.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

/// The demonstration script, which takes an operator's place where there is no display.
class TestDemonstration : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void itPrintsRatesAndLeavesPictures();
    void itFailsWithoutTheOptionsButton();

private:
    static QString program();

    QString former;
    QTemporaryDir folder;
};

QString TestDemonstration::program()
{
    return sourcePath("Simulator/Resources/demo.js");
}

void TestDemonstration::initTestCase()
{
    // A project root of its own, so that it leaves nothing in the source folder.
    former = QDir::currentPath();
    QVERIFY(QFile::link(sourcePath("Simulator"), folder.filePath(QStringLiteral("Simulator"))));
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("build/demo")));
    QVERIFY(QDir::setCurrent(folder.path()));
}

void TestDemonstration::cleanupTestCase()
{
    QDir::setCurrent(former);
}

void TestDemonstration::itPrintsRatesAndLeavesPictures()
{
    const SimulatorRun run = runSimulator({QStringLiteral("--script"), program()});
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QCOMPARE(run.errors, QString());
    for (const char *column : {"SEED_KS_HA", "FERT_KG_HA", "HERB_L_HA"}) {
        const QRegularExpression line(
            QStringLiteral("^Product \\d \\(%1\\) at -?\\d+\\.\\d, -?\\d+\\.\\d m: Rx Rate: \\d+\\.\\d\\d$")
                .arg(QLatin1String(column)));
        QCOMPARE(run.output.filter(line).size(), 1);
    }
    QList<QImage> pictures;
    for (const char *name : {"map1.png", "map2.png", "map3.png", "settings.png"}) {
        pictures.append(QImage(folder.filePath(QStringLiteral("build/demo/") + QLatin1String(name))));
        QCOMPARE(pictures.last().size(), QSize(1280, 800));
        QVERIFY2(pictures.count(pictures.last()) == 1, name);
    }
}

void TestDemonstration::itFailsWithoutTheOptionsButton()
{
    QFile file(program());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString withoutButton =
        QStringLiteral("(function (real) { var terminal = {find: function () { return null; }};"
                       "['open', 'bounds', 'touchMap', 'screenshot'].forEach(function (name) {"
                       " terminal[name] = function () { return real[name].apply(real, arguments); }; });"
                       "%1\n})(terminal);")
            .arg(QString::fromUtf8(file.readAll()));
    const SimulatorRun run = runScript(withoutButton);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(QLatin1String("rxOptions")), qPrintable(run.errors));
}

RXMAP_TEST(TestDemonstration, Widgets)
#include "tst_demonstration.moc"
