#include "fieldview.h"
#include "guidancepage.h"
#include "hints.h"
#include "paintedtexts.h"
#include "terminaltest.h"
#include "terminalwindow.h"

#include <QAbstractButton>
#include <QGraphicsItem>
#include <QSettings>
#include <QTemporaryDir>

/// What an operator who is new to the terminal is told.
class TestHints : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whoIsGreetedOnceIsNotGreetedAgain();
    void escapeTakesTheCardAway();
    void theKeyboardGoesBackToWhereItWas();
    void aTerminalThatDoesNotGreetTellsNothing();
    void aShortTouchOfTheOptionsButtonIsAnsweredOnce();
    void withoutAMapAShortTouchTellsNothing();
    void aFingerThatSlidesOffTellsNothing();

private:
    QWidget *card() { return terminal().window()->findChild<QWidget *>(QStringLiteral("hintCard")); }
    QAbstractButton *closeButton() { return card()->findChild<QAbstractButton *>(QStringLiteral("hintClose")); }
    /// A short touch of the options button; the finger is lifted `slid` pixels from where it came down.
    void touchOptions(int slid = 0);
    void restart();

    QScopedPointer<QTemporaryDir> folder;
    QScopedPointer<QSettings> settings;
    QScopedPointer<Hints> hints;
};

void TestHints::init()
{
    TerminalTest::init();
    folder.reset(new QTemporaryDir);
    restart();
}

void TestHints::restart()
{
    hints.reset();
    delete card();
    settings.reset(new QSettings(folder->filePath(QStringLiteral("settings.ini")), QSettings::IniFormat));
    hints.reset(new Hints(terminal().window(), terminal().backend(), settings.data()));
}

void TestHints::cleanup()
{
    hints.reset();
    TerminalTest::cleanup();
}

void TestHints::touchOptions(int slid)
{
    GuidancePage *page = terminal().window()->guidancePage();
    const QPoint at = page->viewport()->rect().center();
    QTest::mousePress(page->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseRelease(page->viewport(), Qt::LeftButton, {}, at + QPoint(slid, 0));
}

void TestHints::whoIsGreetedOnceIsNotGreetedAgain()
{
    QVERIFY(!card()->isVisible());
    hints->greet();
    QVERIFY(card()->isVisible());
    const QString told = paintedTexts(*card()).join(QLatin1Char(' '));
    for (const char *word : {"\u2022 Touch", "Drag", "\u2022 The folder", "hold it for a second", "Tab"})
        QVERIFY2(told.contains(QString::fromUtf8(word)), qPrintable(told));
    QVERIFY2(!told.contains(QLatin1Char('?')), qPrintable(told));
    // A greeting that was not closed may not have been read.
    restart();
    hints->greet();
    QVERIFY(card()->isVisible());
    closeButton()->click();
    QVERIFY(!card()->isVisible());
    restart();
    hints->greet();
    QVERIFY(!card()->isVisible());
}

void TestHints::escapeTakesTheCardAway()
{
    hints->greet();
    // All other keys go to the display.
    const double distance = terminal().window()->fieldView()->camera().distance();
    QTest::keyClick(terminal().window()->focusWidget(), Qt::Key_Plus);
    QVERIFY(terminal().window()->fieldView()->camera().distance() < distance);
    QTest::keyClick(terminal().window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(!card()->isVisible());
    QCOMPARE(terminal().window()->focusWidget(), terminal().window()->fieldView());
}

void TestHints::theKeyboardGoesBackToWhereItWas()
{
    TerminalWindow *window = terminal().window();
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    window->guidancePage()->setFocus(Qt::TabFocusReason);
    touchOptions();
    QVERIFY(closeButton()->isVisible());
    closeButton()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(closeButton(), Qt::Key_Return);
    QCOMPARE(window->focusWidget(), window->guidancePage());
}

void TestHints::aTerminalThatDoesNotGreetTellsNothing()
{
    hints.reset();
    delete card();
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    touchOptions();
    QVERIFY(card() == nullptr);
}

void TestHints::aShortTouchOfTheOptionsButtonIsAnsweredOnce()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    touchOptions();
    QVERIFY(card()->isVisible());
    QVERIFY(paintedTexts(*card()).join(QLatin1Char(' ')).contains(QStringLiteral("one second")));
    // The next touch closes the card.
    touchOptions();
    QVERIFY(!card()->isVisible());
    restart();
    touchOptions();
    QVERIFY(!card()->isVisible());
    // An operator who was told about the touch has not been greeted yet.
    hints->greet();
    QVERIFY(card()->isVisible());
}

void TestHints::withoutAMapAShortTouchTellsNothing()
{
    touchOptions();
    QVERIFY(!card()->isVisible());
}

void TestHints::aFingerThatSlidesOffTellsNothing()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    touchOptions(300);
    QVERIFY(!card()->isVisible());
}

RXMAP_TEST(TestHints, Widgets)
#include "tst_hints.moc"
