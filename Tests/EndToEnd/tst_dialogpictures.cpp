#include "files.h"
#include "picture.h"
#include "simulatorrun.h"
#include "testbase.h"

#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>

/// The settings dialog in each of its states, as an operator sees it, compared with stored pictures.
class TestDialogPictures : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void statesLookAsStored_data();
    void statesLookAsStored();
    void everyDesktopShowsTheSame_data();
    void everyDesktopShowsTheSame();

private:
    /// The most products that a machine may have: the product buttons overlap.
    void photographSixteenProducts();
    /// Both messages, next to a button that says Done.
    void photographNotUnderVraFromTheStart();
    void photographWith(const QStringList &products, const QString &columns, const QString &state);

    QTemporaryDir folder;
};

void TestDialogPictures::initTestCase()
{
    const QString script = QStringLiteral(R"js(
var folder = "%1";
terminal.open("%2", {columns: ["SEED_KS_HA", "FERT_KG_HA"]});
terminal.find("rxOptions").longTouch();
terminal.wait(100);
terminal.screenshot(folder + "/dialog-editable.png");
terminal.find("productButton2").touch();
terminal.wait(50);
terminal.screenshot(folder + "/dialog-not-under-vra.png");
terminal.find("productButton0").touch();
terminal.drive(3);
terminal.wait(700);
terminal.screenshot(folder + "/dialog-locked.png");
terminal.find("productButton2").touch();
terminal.wait(50);
terminal.screenshot(folder + "/dialog-not-under-vra-locked.png");
terminal.find("doneButton").touch();
)js");
    const SimulatorRun run = runScript(script.arg(folder.path(), sampleField()));
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    photographSixteenProducts();
    photographNotUnderVraFromTheStart();
}

void TestDialogPictures::photographSixteenProducts()
{
    QStringList products;
    for (int number = 1; number <= 16; ++number)
        products.append(
            QStringLiteral(R"({"name": "Product %1", "shortName": "Bin%1", "kind": "weight", "bin": %1})").arg(number));
    photographWith(products, QStringLiteral("\"FERT_KG_HA\""), QStringLiteral("dialog-sixteen-products"));
}

void TestDialogPictures::photographNotUnderVraFromTheStart()
{
    const QStringList products{
        QStringLiteral(R"({"name": "Seed", "shortName": "Seed", "kind": "weight", "bin": 1, "underVra": false})"),
        QStringLiteral(R"({"name": "Herbicide", "shortName": "Herb", "kind": "volume", "bin": 2})")};
    photographWith(products, QStringLiteral("\"\", \"HERB_L_HA\""),
                   QStringLiteral("dialog-not-under-vra-from-the-start"));
}

void TestDialogPictures::photographWith(const QStringList &products, const QString &columns, const QString &state)
{
    const QString file = writeFile(folder.filePath(state + QStringLiteral(".json")),
                                   QStringLiteral("[%1]").arg(products.join(QLatin1Char(','))).toUtf8());
    const QString script = QStringLiteral(R"js(
terminal.open("%1", {columns: [%2]});
terminal.find("rxOptions").longTouch();
terminal.wait(100);
terminal.screenshot("%3");
terminal.find("doneButton").touch();
)js");
    const QString picture = folder.filePath(state + QStringLiteral(".png"));
    const SimulatorRun run =
        runScript(script.arg(sampleField(), columns, picture), {QStringLiteral("--products"), file});
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
}

void TestDialogPictures::statesLookAsStored_data()
{
    QTest::addColumn<QString>("state");
    for (const char *state : {"dialog-editable", "dialog-not-under-vra", "dialog-locked", "dialog-sixteen-products",
                              "dialog-not-under-vra-locked", "dialog-not-under-vra-from-the-start"})
        QTest::newRow(state) << QString::fromLatin1(state);
}

void TestDialogPictures::statesLookAsStored()
{
    QFETCH(QString, state);
    const QImage window(folder.filePath(state + QStringLiteral(".png")));
    QCOMPARE(window.size(), QSize(1280, 800));
    // Only the dialog, without the map around it; not even a check mark may differ.
    const QString wrong = Picture::compare(window.copy(240, 0, 800, 800), state, 0.0003);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

void TestDialogPictures::everyDesktopShowsTheSame_data()
{
    QTest::addColumn<int>("dotsPerInch");
    QTest::addColumn<QStringList>("settings");
    QTest::newRow("120 dpi") << 120 << QStringList{};
    QTest::newRow("192 dpi") << 192 << QStringList{};
    QTest::newRow("large fonts") << 96 << QStringList{QStringLiteral("QT_FONT_DPI=144")};
    QTest::newRow("scaled") << 96
                            << QStringList{QStringLiteral("QT_SCALE_FACTOR=1.5"),
                                           QStringLiteral("QT_SCREEN_SCALE_FACTORS=2"),
                                           QStringLiteral("QT_AUTO_SCREEN_SCALE_FACTOR=1")};
    QTest::newRow("dark") << 96 << darkDesktop(folder.path());
}

void TestDialogPictures::everyDesktopShowsTheSame()
{
    QFETCH(int, dotsPerInch);
    QFETCH(QStringList, settings);
    QProcess display;
    display.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                   QStringLiteral("1400x1000x24"), QStringLiteral("-noreset"), QStringLiteral("-dpi"),
                   QString::number(dotsPerInch)});
    const auto end = qScopeGuard([&display] {
        display.terminate();
        display.waitForFinished();
    });
    QVERIFY(display.waitForReadyRead());
    settings.append(QStringLiteral("DISPLAY=:") + QString::fromLatin1(display.readLine().trimmed()));
    // A desktop's theme has a thread of its own, which would end just when the leak check looks for it.
    settings.append(QStringLiteral("ASAN_OPTIONS=detect_leaks=0"));
    const QString file = folder.filePath(QStringLiteral("desktop.png"));
    const QString script = QStringLiteral(R"js(
terminal.open("%1", {columns: ["SEED_KS_HA", "FERT_KG_HA"]});
terminal.find("rxOptions").longTouch();
terminal.wait(100);
terminal.screenshot("%2");
)js");
    const SimulatorRun run = runScript(script.arg(sampleField(), file), {}, settings);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const QImage window(file);
    QCOMPARE(window.size(), QSize(1280, 800));
    const QString wrong = Picture::compare(window.copy(240, 0, 800, 800), QStringLiteral("dialog-editable"), 0.0003);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

RXMAP_TEST(TestDialogPictures, Widgets)
#include "tst_dialogpictures.moc"
