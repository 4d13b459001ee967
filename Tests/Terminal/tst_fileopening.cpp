#include "machine.h"
#include "openwindow.h"
#include "simulation.h"
#include "terminaltest.h"
#include "terminalwindow.h"
#include "wheelbar.h"

#include <QAbstractButton>
#include <QDialog>

/// The ways to the open window of a whole terminal.
class TestFileOpening : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void theFolderButtonShowsAndHidesTheWindow();
    void theFolderButtonDoesNothingWhileADialogIsOpen();
    void aDroppedFileIsOpenedThroughTheWindow();
    void theFirstFileBringsItsProducts();
    void whatWasGuessedIsToldAfterwards();
    void whatIsNoFileIsRefusedVisibly();
    void anotherButtonOfTheStatusBarLeavesTheWindow();
    void keysDoNotDriveUnderTheWindow();

private:
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
    button("openAccept")->click();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(terminal().backend()->maps().size(), 1);
    // What the file feeds is shown.
    QCOMPARE(terminal().machine()->activeProduct(), 2);
    QCOMPARE(terminal().activeColumn(), QStringLiteral("FERT_KG_HA"));
}

void TestFileOpening::theFirstFileBringsItsProducts()
{
    terminal().machine()->leaveProductsOpen();
    Q_EMIT terminal().window()->dropped({TerminalHost::fixture(QStringLiteral("three-zones.geojson"))}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QCOMPARE(button("columnRow1Product")->text(), QStringLiteral("Fert"));
    // Nothing is changed by looking.
    QCOMPARE(terminal().machine()->products().at(1).name, QStringLiteral("Fertiliser"));
    // Another product of those that the file brings.
    button("columnRow0Product")->click();
    button("choice0")->click();
    button("columnRow1Product")->click();
    QCOMPARE(button("choice3")->text(), QStringLiteral("3. Herb"));
    button("choice2")->click();
    button("openAccept")->click();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(terminal().machine()->products().at(1).name, QStringLiteral("Fert"));
    QCOMPARE(button("selectProduct2")->text(), QStringLiteral("Fert"));
    QCOMPARE(terminal().machine()->activeProduct(), 2);
    QCOMPARE(terminal().activeColumn(), QStringLiteral("FERT_KG_HA"));
}

void TestFileOpening::whatWasGuessedIsToldAfterwards()
{
    terminal().machine()->leaveProductsOpen();
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
    button("openAccept")->click();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(findings(), loadedUnasked);
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
    // A key that was held is let go of.
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
