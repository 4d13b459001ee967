#include "layerwriter.h"
#include "machine.h"
#include "openwindow.h"
#include "paintedtexts.h"
#include "productadoption.h"
#include "simulation.h"
#include "statusbar.h"
#include "terminaltest.h"
#include "terminalwindow.h"
#include "theme.h"
#include "vehicle.h"
#include "wheelbar.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>

/// The ways in which a whole terminal opens its open window.
class TestFileOpening : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void theFolderButtonShowsAndHidesTheWindow();
    void theFolderButtonGoesBackAStep();
    void openFilesAreListedAndClosedByTouch();
    void aFileWhoseProductsWereTakenOverIsClosed();
    void aFileOpenedAgainReplacesItself();
    void oneBarShowsTheProgress();
    void theFolderButtonDoesNothingWhileADialogIsOpen();
    void aDroppedFileIsOpenedThroughTheWindow();
    void theFirstFileBringsItsProducts();
    void aFileThatReplacesAllBringsItsProducts();
    void aProductThatItsColumnLeavesStaysOnlyByAName_data();
    void aProductThatItsColumnLeavesStaysOnlyByAName();
    void productsStayWhereOneIsInUseOrTheMachineMoves();
    void filesWantedTogetherShareTheProducts();
    void aFieldFarFromTheOtherIsToldBeforeAndAfter_data();
    void aFieldFarFromTheOtherIsToldBeforeAndAfter();
    void aFieldFarFromTheOtherTakesItsPlaceUnlessBothAreWanted();
    void aFieldFarFromTheOtherBringsItsProducts();
    void whatWasGuessedIsToldAfterwards();
    void whatIsNoFileIsRefusedVisibly();
    void anotherButtonOfTheStatusBarLeavesTheWindow();
    void keysDoNotDriveUnderTheWindow();

private:
    /// As an operator does who changes nothing.
    void openByTouch(const QString &path)
    {
        Q_EMIT terminal().window()->dropped({path}, {});
        QTRY_VERIFY(button("openAccept") != nullptr);
        accept();
        QTRY_VERIFY(!terminal().openWindow()->isVisible());
    }
    /// Accepts the units assumed for unknown ones, and has maps of fields far away closed.
    void accept()
    {
        button("openAccept")->click();
        while (button("choice0") != nullptr)
            button("choice0")->click();
    }
    void openByTouch(const char *fixture) { openByTouch(TerminalHost::fixture(QLatin1String(fixture))); }
    /// Writes a prescription with these columns.
    QString write(const char *name, const QList<LayerField> &fields, double longitude = 10.0)
    {
        LayerSketch sketch;
        sketch.fields = fields;
        QList<QVariant> rates;
        for (int i = 0; i < fields.size(); ++i)
            rates.append(100.0 + i);
        sketch.rows = {{squareText(longitude, 50, 0.001), rates}};
        const QString path = folder.filePath(QLatin1String(name) + QStringLiteral(".shp"));
        return sketch.write(path) ? path : QString();
    }
    QStringList productNames()
    {
        QStringList names;
        for (const Product &product : terminal().machine()->products())
            names.append(product.name);
        return names;
    }
    QString remark() { return terminal().window()->findChild<QLabel *>(QStringLiteral("openRemark"))->text(); }
    QTemporaryDir folder;
    QString statusBar() { return paintedTexts(*terminal().window()->statusBar()).join(QLatin1Char('|')); }
    QAbstractButton *button(const char *name)
    {
        const QList<QAbstractButton *> all = terminal().window()->findChildren<QAbstractButton *>(QLatin1String(name));
        const auto seen = std::find_if(all.begin(), all.end(), [](QAbstractButton *any) { return any->isVisible(); });
        return seen == all.end() ? nullptr : *seen;
    }
};

void TestFileOpening::theFolderButtonShowsAndHidesTheWindow()
{
    OpenWindow *window = terminal().openWindow();
    QVERIFY(!window->isVisible());
    QTest::mouseClick(button("openButton"), Qt::LeftButton);
    QVERIFY(window->isVisible() && button("openButton")->isChecked());
    QCOMPARE(window->geometry(), TerminalWindow::pageArea());
    QTest::mouseClick(button("openCancel"), Qt::LeftButton);
    QVERIFY(!window->isVisible() && !button("openButton")->isChecked());
    QTest::mouseClick(button("openButton"), Qt::LeftButton);
    QTest::mouseClick(button("openButton"), Qt::LeftButton);
    QVERIFY(!window->isVisible() && !button("openButton")->isChecked());
}

void TestFileOpening::theFolderButtonGoesBackAStep()
{
    openByTouch("three-zones.geojson");
    Q_EMIT terminal().window()->dropped({TerminalHost::fixture(QStringLiteral("three-zones.geojson"))}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    button("columnRow0Product")->click();
    for (const char *seen : {"openAccept", "fileRow0"}) {
        button("openButton")->click();
        QVERIFY2(button(seen) != nullptr, seen);
        QVERIFY(button("openButton")->isChecked());
    }
    button("openButton")->click();
    QVERIFY(!terminal().openWindow()->isVisible() && !button("openButton")->isChecked());
}

void TestFileOpening::openFilesAreListedAndClosedByTouch()
{
    openByTouch("three-zones.geojson");
    openByTouch("overlap.geojson");
    QTRY_VERIFY(button("findingsButton") != nullptr);
    QVERIFY2(statusBar().contains(QStringLiteral("three-zones.geojson  \u00b7  overlap.geojson")),
             qPrintable(statusBar()));
    terminal().machine()->setActiveProduct(1);
    const QPointF inTheZones(-100, 0);
    button("openButton")->click();
    QVERIFY(button("fileClose0") == nullptr);
    QCOMPARE(button("openCancel")->text(), QStringLiteral("Cancel"));
    button("placeOpen")->click();
    QCOMPARE(button("openCancel")->text(), QStringLiteral("Done"));
    QCOMPARE(button("fileRow0")->text(), QStringLiteral("three-zones.geojson"));
    QVERIFY(paintedTexts(*button("fileRow0")).contains(QStringLiteral("feeds Fertiliser, Herbicide")));
    QVERIFY(paintedTexts(*button("fileRow1")).contains(QStringLiteral("feeds Seed")));
    QVERIFY(button("fileClose1")->height() >= Theme::touchTarget);
    button("fileClose1")->click();
    // The product goes back to the file that had it, also on the map, and the findings disappear.
    QVERIFY(paintedTexts(*button("fileRow0")).contains(QStringLiteral("feeds Seed, Fertiliser, Herbicide")));
    QVERIFY(button("fileRow1") == nullptr && button("findingsButton") == nullptr);
    QVERIFY(!statusBar().contains(QLatin1String("overlap")));
    QVERIFY(!terminal().touch(inTheZones).isEmpty());
    button("fileClose0")->click();
    QVERIFY(button("fileRow0") == nullptr);
    QVERIFY(terminal().backend()->maps().isEmpty());
    QCOMPARE(terminal().touch(inTheZones), QString());
}

void TestFileOpening::aFileWhoseProductsWereTakenOverIsClosed()
{
    openByTouch("overlap.geojson");
    QTRY_VERIFY(button("findingsButton") != nullptr);
    openByTouch("three-zones.geojson");
    QCOMPARE(terminal().backend()->maps().size(), 1);
    QVERIFY(!statusBar().contains(QLatin1String("overlap")));
    QVERIFY(button("findingsButton") == nullptr);
}

void TestFileOpening::aFileOpenedAgainReplacesItself()
{
    openByTouch("three-zones.geojson");
    button("openButton")->click();
    button("placeOpen")->click();
    button("fileRow0")->click();
    QTRY_VERIFY(button("openAccept") != nullptr);
    button("columnRow0Product")->click();
    button("choice0")->click();
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    const QList<LoadReport> maps = terminal().backend()->maps();
    QCOMPARE(maps.size(), 1);
    QCOMPARE(terminal().columnsOf(maps.first().group).keys(), QList<int>({2, 3}));
}

void TestFileOpening::oneBarShowsTheProgress()
{
    const QString loading = QStringLiteral("Loading three-zones.geojson");
    QStringList shownInBar;
    connect(terminal().backend(), &PrescriptionBackend::progress, &terminal(),
            [this, &shownInBar] { shownInBar.append(statusBar()); });
    openByTouch("three-zones.geojson");
    QVERIFY(!shownInBar.isEmpty());
    QVERIFY2(shownInBar.filter(loading).isEmpty(), qPrintable(shownInBar.join(QLatin1Char('\n'))));
    shownInBar.clear();
    QVERIFY(open("three-zones.geojson", {}).isOk());
    QVERIFY(!shownInBar.filter(loading).isEmpty());
}

void TestFileOpening::theFolderButtonDoesNothingWhileADialogIsOpen()
{
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    button("openButton")->click();
    QVERIFY(!terminal().openWindow()->isVisible() && !button("openButton")->isChecked());
}

void TestFileOpening::aDroppedFileIsOpenedThroughTheWindow()
{
    Q_EMIT terminal().window()->dropped({TerminalHost::fixture(QStringLiteral("three-zones.geojson"))}, {});
    QVERIFY(terminal().openWindow()->isVisible());
    QTRY_VERIFY(button("openAccept") != nullptr);
    button("columnRow0Product")->click();
    button("choice0")->click();
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(terminal().backend()->maps().size(), 1);
    // The map that the file feeds is shown.
    QCOMPARE(terminal().machine()->activeProduct(), 2);
    QCOMPARE(terminal().activeColumn(), QStringLiteral("FERT_KG_HA"));
}

void TestFileOpening::theFirstFileBringsItsProducts()
{
    terminal().adoption()->adoptFromNextFile();
    Q_EMIT terminal().window()->dropped({TerminalHost::fixture(QStringLiteral("three-zones.geojson"))}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QCOMPARE(button("columnRow1Product")->text(), QStringLiteral("Fert"));
    // Looking alone changes nothing.
    QCOMPARE(terminal().machine()->products().at(1).name, QStringLiteral("Fertiliser"));
    // Another of the products that the file brings.
    button("columnRow0Product")->click();
    button("choice0")->click();
    button("columnRow1Product")->click();
    QCOMPARE(button("choice3")->text(), QStringLiteral("3. Herb (L/ha)"));
    button("choice2")->click();
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(terminal().machine()->products().at(1).name, QStringLiteral("Fert"));
    QCOMPARE(button("selectProduct2")->text(), QStringLiteral("Fert"));
    QCOMPARE(terminal().machine()->activeProduct(), 2);
    QCOMPARE(terminal().activeColumn(), QStringLiteral("FERT_KG_HA"));
}

void TestFileOpening::aFileThatReplacesAllBringsItsProducts()
{
    terminal().adoption()->adoptFromNextFile();
    openByTouch(write("urea", {{"UREA_KG_HA", 1.0}}));
    QCOMPARE(productNames(), QStringList({"Urea", "Seed", "Herbicide"}));
    const QString lime = write("lime", {{"LIME_T_HA", 1.0}});
    Q_EMIT terminal().window()->dropped({lime}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QCOMPARE(button("columnRow0Product")->text(), QStringLiteral("Lime"));
    QVERIFY(remark().contains(QStringLiteral("Replaces urea.shp")));
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(productNames(), QStringList({"Lime", "Seed", "Herbicide"}));
    QCOMPARE(button("selectProduct1")->text(), QStringLiteral("Lime"));
    QCOMPARE(terminal().backend()->maps().size(), 1);
    // A script does not do this: its products stay as they were.
    QVERIFY(terminal().open({{write("urea", {{"UREA_KG_HA", 1.0}})}}).first().isOk());
    QCOMPARE(productNames().first(), QStringLiteral("Lime"));
}

void TestFileOpening::aProductThatItsColumnLeavesStaysOnlyByAName_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("Rate") << "Rate" << QStringList{"Fertiliser", "Seed", "Herbicide"};
    QTest::newRow("Urea") << "UREA_KG_HA" << QStringList{"Urea", "Seed", "Herbicide"};
}

void TestFileOpening::aProductThatItsColumnLeavesStaysOnlyByAName()
{
    QFETCH(QString, column);
    terminal().adoption()->adoptFromNextFile();
    Q_EMIT terminal().window()->dropped({write("left", {{column.toLatin1().constData(), 1.0}})}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    button("columnRow0Product")->click();
    QVERIFY(button("choice2")->text().startsWith(QStringLiteral("2. Seed")));
    button("choice2")->click();
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QTEST(productNames(), "names");
    // The chosen column feeds the product that it was shown with.
    QCOMPARE(terminal().columnsOf(terminal().backend()->maps().last().group).keys(), QList<int>{2});
}

void TestFileOpening::productsStayWhereOneIsInUseOrTheMachineMoves()
{
    terminal().adoption()->adoptFromNextFile();
    openByTouch(write("both", {{"UREA_KG_HA", 1.0}, {"UAN_L_HA", 1.0}}));
    const QStringList names = productNames();
    Q_EMIT terminal().window()->dropped({write("lime", {{"LIME_T_HA", 1.0}})}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    const auto number = names.indexOf(QStringLiteral("Urea")) + 1;
    QCOMPARE(button("columnRow0Product")->text(), QStringLiteral("Urea"));
    QVERIFY2(remark().contains(QStringLiteral("Takes Urea over from both.shp")), qPrintable(remark()));
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(productNames(), names);
    QCOMPARE(terminal().machine()->columnsOf(terminal().backend()->maps().last().group).keys(), QList<int>{number});
    QVERIFY(terminal().close(terminal().backend()->maps().first().group));
    terminal().vehicle()->drive(2.0);
    openByTouch(write("mop", {{"MOP_KG_HA", 1.0}}));
    QCOMPARE(productNames(), names);
}

void TestFileOpening::filesWantedTogetherShareTheProducts()
{
    terminal().adoption()->adoptFromNextFile();
    Q_EMIT terminal().window()->dropped({write("urea", {{"UREA_KG_HA", 1.0}}), write("rate", {{"RATE", 1.0}})}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    accept();
    QTRY_COMPARE(terminal().backend()->maps().size(), 1);
    QTRY_VERIFY(button("openAccept") != nullptr);
    QCOMPARE(button("columnRow0Product")->text(), QStringLiteral("Seed"));
    QCOMPARE(productNames().first(), QStringLiteral("Urea"));
}

void TestFileOpening::aFieldFarFromTheOtherIsToldBeforeAndAfter_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<QString>("distance");
    QTest::newRow("kilometres") << int(UnitSystem::Metric) << "1,989 km";
    QTest::newRow("miles") << int(UnitSystem::Us) << "1,236 mi";
}

void TestFileOpening::aFieldFarFromTheOtherIsToldBeforeAndAfter()
{
    QFETCH(int, units);
    QFETCH(QString, distance);
    host.reset();
    host.reset(new TerminalHost(UnitSystem(units)));
    QSignalSpy opened(terminal().openWindow(), &OpenWindow::opened);
    openByTouch(write("both", {{"UREA_KG_HA", 1.0}, {"UAN_L_HA", 1.0}}));
    Q_EMIT terminal().window()->dropped({write("beside", {{"SEED_K_HA", 1.0}}, 10.01)}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QVERIFY2(!remark().contains(QStringLiteral("Lies")), qPrintable(remark()));
    terminal().openWindow()->leave();
    Q_EMIT terminal().window()->dropped({write("far", {{"SEED_K_HA", 1.0}}, 38.0)}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QVERIFY2(remark().contains(QStringLiteral("Lies %1 from both.shp").arg(distance)), qPrintable(remark()));
    button("openAccept")->click();
    const QStringList asked = paintedTexts(*button("choice1")->parentWidget());
    QVERIFY2(asked.contains(QStringLiteral("%1 from both.shp, which stays open").arg(distance)),
             qPrintable(asked.join('\n')));
    QCOMPARE(button("choice1")->text(), QStringLiteral("Keep both.shp open"));
    button("choice1")->click();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(opened.size(), 2);
    const QStringList warnings = opened.last().first().value<LoadReport>().warnings;
    QVERIFY2(!warnings.filter(QStringLiteral("lies 1989 km")).isEmpty(), qPrintable(warnings.join('\n')));
    QTRY_VERIFY(button("findingsButton") != nullptr);
    const auto *finding = terminal().window()->findChild<QAbstractButton *>(QStringLiteral("finding0"));
    QCOMPARE(finding->text(), QStringLiteral("lies %1 from both.shp, which feeds products, too").arg(distance));
    QVERIFY(terminal().close(terminal().backend()->maps().first().group));
    QVERIFY(button("findingsButton") == nullptr);
}

void TestFileOpening::aFieldFarFromTheOtherTakesItsPlaceUnlessBothAreWanted()
{
    QSignalSpy opened(terminal().openWindow(), &OpenWindow::opened);
    openByTouch(write("both", {{"UREA_KG_HA", 1.0}, {"UAN_L_HA", 1.0}}));
    const QString far = write("far", {{"SEED_K_HA", 1.0}}, 38.0);
    Q_EMIT terminal().window()->dropped({far}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    button("openAccept")->click();
    QCOMPARE(terminal().backend()->maps().size(), 1);
    QCOMPARE(button("choice0")->text(), QStringLiteral("Close both.shp"));
    // Back leads back to the file.
    button("openBack")->click();
    button("openAccept")->click();
    button("choice0")->click();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(terminal().backend()->maps().size(), 1);
    QCOMPARE(QFileInfo(terminal().backend()->maps().first().path), QFileInfo(far));
    QCOMPARE(opened.last().first().value<LoadReport>().warnings, QStringList());
    QVERIFY(button("findingsButton") == nullptr);
}

void TestFileOpening::aFieldFarFromTheOtherBringsItsProducts()
{
    terminal().adoption()->adoptFromNextFile();
    QSignalSpy opened(terminal().openWindow(), &OpenWindow::opened);
    openByTouch(write("both", {{"UREA_KG_HA", 1.0}, {"UAN_L_HA", 1.0}}));
    Q_EMIT terminal().window()->dropped({write("far", {{"RYE_KG_HA", 1.0}}, 38.0)}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QVERIFY2(remark().contains(QStringLiteral("Replaces both.shp")), qPrintable(remark()));
    button("openAccept")->click();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(productNames().first(), QStringLiteral("RYE"));
    QCOMPARE(terminal().backend()->maps().size(), 1);
    // Only the plane of the new map is left.
    const QStringList warnings = opened.last().first().value<LoadReport>().warnings;
    QVERIFY2(warnings.filter(QStringLiteral("plane")).isEmpty(), qPrintable(warnings.join('\n')));
}

void TestFileOpening::whatWasGuessedIsToldAfterwards()
{
    terminal().adoption()->adoptFromNextFile();
    const QString file = TerminalHost::fixture(QStringLiteral("two-strips.geojson"));
    const auto findings = [this] {
        QStringList texts;
        const QList<MapFinding> all = terminal().backend()->maps().last().findings;
        for (const MapFinding &finding : all)
            texts.append(finding.text);
        return texts;
    };
    QVERIFY(terminal().open({{file}}).first().isOk());
    const QStringList loadedUnasked = findings();
    QCOMPARE(loadedUnasked.filter(QStringLiteral("is a guess")).size(), 2);
    QCOMPARE(loadedUnasked.filter(QStringLiteral("is not known, taken as kg/ha")).size(), 2);
    Q_EMIT terminal().window()->dropped({file}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    // The same findings, except those about the units, which were asked for.
    QCOMPARE(findings(), loadedUnasked.filter(QStringLiteral("is a guess")));
}

void TestFileOpening::whatIsNoFileIsRefusedVisibly()
{
    Q_EMIT terminal().window()->dropped({}, {QStringLiteral("http://example.org")});
    QVERIFY(terminal().openWindow()->isVisible());
    const auto *message = terminal().window()->findChild<QLabel *>(QStringLiteral("openMessage"));
    QVERIFY2(message->isVisible() && message->text().contains(QLatin1String("example.org")),
             qPrintable(message->text()));
}

void TestFileOpening::anotherButtonOfTheStatusBarLeavesTheWindow()
{
    const auto isDrivingSeen = [this] { return button("driveStart") != nullptr; };
    for (int time = 0; time < 2; ++time) {
        QTest::mouseClick(button("openButton"), Qt::LeftButton);
        QTest::mouseClick(button("drive"), Qt::LeftButton);
        QVERIFY(!terminal().openWindow()->isVisible());
        QVERIFY(isDrivingSeen());
    }
    QTest::mouseClick(button("drive"), Qt::LeftButton);
    QVERIFY(!isDrivingSeen());
}

void TestFileOpening::keysDoNotDriveUnderTheWindow()
{
    TerminalWindow *display = terminal().window();
    OpenWindow *window = terminal().openWindow();
    const auto *wheel = display->findChild<WheelBar *>();
    const double pace = terminal().simulation()->timeFactor();
    button("drive")->click();
    button("driveByHand")->click();
    QTest::keyPress(display, Qt::Key_Left);
    QVERIFY(wheel->turn() < 0.0);
    button("openButton")->click();
    QTest::keyClick(window, Qt::Key_PageUp);
    QCOMPARE(terminal().simulation()->timeFactor(), pace);
    // A key that was held counts as released.
    QTest::keyRelease(window, Qt::Key_Left);
    QCOMPARE(wheel->turn(), 0.0);
    QTest::keyPress(window, Qt::Key_Right);
    QCOMPARE(wheel->turn(), 0.0);
    button("openButton")->click();
    QTest::keyClick(display, Qt::Key_PageUp);
    QVERIFY(terminal().simulation()->timeFactor() > pace);
}

RXMAP_TEST(TestFileOpening, Widgets)
#include "tst_fileopening.moc"
