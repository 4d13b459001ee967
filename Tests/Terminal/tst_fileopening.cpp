#include "fileopeningtest.h"
#include "heardtexts.h"
#include "layerwriter.h"
#include "machine.h"
#include "operatorsettings.h"
#include "paintedtexts.h"
#include "productadoption.h"
#include "recentfiles.h"
#include "simulation.h"
#include "statusbar.h"
#include "theme.h"
#include "wheelbar.h"

#include <QDialog>
#include <QLabel>
#include <QTemporaryDir>

/// The ways in which a whole terminal opens its open window.
class TestFileOpening : public FileOpeningTest {
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
    void whatWasGuessedIsToldAfterwards();
    void whatIsNoFileIsRefusedVisibly();
    void namesCannotTurnTheTextsAroundThem();
    void anotherButtonOfTheStatusBarLeavesTheWindow();
    void keysDoNotDriveUnderTheWindow();

private:
    QString statusBar() { return paintedTexts(*terminal().window()->statusBar()).join(QLatin1Char('|')); }
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

void TestFileOpening::namesCannotTurnTheTextsAroundThem()
{
    const QString name = QStringLiteral("left\u202eright\n.geojson");
    const auto texts = [this] {
        return (paintedTexts(*terminal().window()) + heardTexts(*terminal().window())).join(QLatin1Char('|'));
    };
    const auto harmful = [](const QString &text) { return text.contains(QChar(0x202e)) || text.contains(QChar(0x85)); };
    LayerSketch sketch;
    sketch.driver = "GeoJSON";
    sketch.fields = {{"RA\u202eTE\u0085", 1.0}, {"Total\u202e", 1.0}};
    sketch.rows = {{squareText(10, 50, 0.001), {1.0, 2.0}}, {squareText(10.0005, 50, 0.001), {2.0, 2.0}}};
    const QTemporaryDir folder;
    QVERIFY(sketch.write(folder.filePath(name)));
    terminal().adoption()->adoptFromNextFile();
    RecentFiles(terminal().remembered()->values()).setFolder(folder.path());
    button("openButton")->click();
    QVERIFY2(!harmful(texts()), qPrintable(texts()));
    button("fileRow0")->click();
    QTRY_VERIFY(button("openAccept") != nullptr);
    button("columnRow1Product")->click();
    QVERIFY2(!harmful(texts()), qPrintable(texts()));
    button("choice2")->click();
    QVERIFY2(!harmful(texts()), qPrintable(texts()));
    for (const char *shown : {"left?right?.geojson", "RA?TE?", "Total? is called a total, not a rate"})
        QVERIFY2(texts().contains(QLatin1String(shown)), qPrintable(texts()));
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QTRY_VERIFY(button("findingsButton") != nullptr);
    button("findingsButton")->click();
    QVERIFY2(!harmful(texts()), qPrintable(texts()));
    QVERIFY2(texts().contains(QStringLiteral("RA?TE?")), qPrintable(texts()));
    button("drive")->click();
    QVERIFY2(!harmful(texts()), qPrintable(texts()));
    terminal().tell(name, name);
    QVERIFY2(!harmful(texts()), qPrintable(texts()));
    QCOMPARE(heardTexts(*terminal().window()).filter(QStringLiteral("left?right?.geojson")).size(), 4);
    button("openButton")->click();
    button("placeOpen")->click();
    QVERIFY2(!harmful(texts()), qPrintable(texts()));
    terminal().openWindow()->refuse(name);
    QVERIFY2(!harmful(texts()), qPrintable(texts()));
    QVERIFY2(texts().remove(QChar(0x200b)).contains(QStringLiteral("left?right?.geojson")), qPrintable(texts()));
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
