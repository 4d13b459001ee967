#include "displaystates.h"
#include "fieldview.h"
#include "guidancepage.h"
#include "mapoverlay.h"
#include "openwindow.h"
#include "paintedtexts.h"
#include "simulation.h"
#include "terminaltest.h"
#include "terminalwindow.h"
#include "vehicle.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QSet>
#include <QTimer>

Q_DECLARE_METATYPE(Qt::Key)

/// The terminal without a finger: by keyboard, and as a screen reader describes it.
class TestKeyboard : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theTabulatorReachesEveryControl_data();
    void theTabulatorReachesEveryControl();
    void whatHasTheKeyboardIsSeen_data();
    void whatHasTheKeyboardIsSeen();
    void aFingerHasNoUseForTheMark();
    void enterTouchesAButton();
    void arrowsMoveTheMap_data();
    void arrowsMoveTheMap();
    void arrowsMoveTheMapWhileTheMachineDrivesByItself();
    void arrowsSteerByHand();
    void plusAndMinusZoom();
    void enterTouchesTheMapsMiddle();
    void enterHeldOnTheOptionsButtonOpensTheSettings();
    void escapeLeavesTheFindings();
    void everyControlHasAName_data();
    void everyControlHasAName();

private:
    void addStates();
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// The controls that the Tab key goes through until it is back where it began.
    QList<QWidget *> round();
    QWidget *find(const char *name);
    const Camera &camera() { return terminal().window()->fieldView()->camera(); }
};

void TestKeyboard::init()
{
    TerminalTest::init();
    QApplication::setActiveWindow(terminal().window());
}

void TestKeyboard::addStates()
{
    QTest::addColumn<QString>("state");
    for (const QString &state : DisplayStates::names())
        QTest::newRow(qPrintable(state)) << state;
}

void TestKeyboard::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // As the window system does: the key goes to the widget with the keyboard, else to the window.
    QWidget *receiver = QApplication::focusWidget();
    QTest::keyClick(receiver != nullptr ? receiver : terminal().window(), key, modifiers);
}

QList<QWidget *> TestKeyboard::round()
{
    constexpr int most = 100;
    QList<QWidget *> visited;
    for (int i = 0; i < most; ++i) {
        press(Qt::Key_Tab);
        QWidget *now = QApplication::focusWidget();
        if (visited.contains(now))
            break;
        visited.append(now);
    }
    return visited;
}

QWidget *TestKeyboard::find(const char *name)
{
    return terminal().window()->findChild<QWidget *>(QLatin1String(name));
}

void TestKeyboard::theTabulatorReachesEveryControl_data()
{
    addStates();
}

void TestKeyboard::theTabulatorReachesEveryControl()
{
    QFETCH(QString, state);
    DisplayStates display(*host);
    QVERIFY(display.bring(state));
    const QList<QWidget *> visited = round();
    const QWidget *within =
        terminal().openWindow()->isVisible() ? static_cast<QWidget *>(terminal().openWindow()) : terminal().window();
    int controls = 0;
    const QList<QAbstractButton *> buttons = within->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        const QWidget *seen = terminal().window()->childAt(button->mapTo(terminal().window(), button->rect().center()));
        if (!button->isVisible() || !button->isEnabled() || seen != button)
            continue;
        ++controls;
        QVERIFY2(visited.contains(button), qPrintable(button->objectName()));
    }
    QVERIFY(controls > 0);
    const bool isMapSeen = QStringList({"no map", "map", "driving", "by hand", "greeting"}).contains(state);
    QCOMPARE(visited.contains(terminal().window()->fieldView()), isMapSeen);
    // And back again.
    press(Qt::Key_Tab);
    const QWidget *here = QApplication::focusWidget();
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), here);
}

void TestKeyboard::whatHasTheKeyboardIsSeen_data()
{
    addStates();
}

void TestKeyboard::whatHasTheKeyboardIsSeen()
{
    QFETCH(QString, state);
    DisplayStates display(*host);
    QVERIFY(display.bring(state));
    const QList<QWidget *> visited = round();
    for (QWidget *control : visited) {
        // The overlay draws the map's focus mark.
        QWidget *painter = control == terminal().window()->fieldView()
            ? static_cast<QWidget *>(terminal().window()->overlay())
            : control;
        control->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        const QImage with = painter->grab().toImage();
        control->clearFocus();
        QCoreApplication::processEvents();
        QVERIFY2(with != painter->grab().toImage(), qPrintable(control->objectName()));
    }
}

void TestKeyboard::aFingerHasNoUseForTheMark()
{
    FieldView *view = terminal().window()->fieldView();
    QWidget *overlay = terminal().window()->overlay();
    view->setFocus(Qt::ActiveWindowFocusReason);
    QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(2, 2));
    const QImage touched = overlay->grab().toImage();
    press(Qt::Key_Tab);
    view->setFocus(Qt::TabFocusReason);
    QVERIFY(overlay->grab().toImage() != touched);
    QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(overlay->grab().toImage(), touched);
}

void TestKeyboard::enterTouchesAButton()
{
    auto *button = qobject_cast<QAbstractButton *>(find("selectProduct2"));
    QVERIFY(button != nullptr && !button->isChecked());
    button->setFocus();
    press(Qt::Key_Return);
    QVERIFY(button->isChecked());
    button = qobject_cast<QAbstractButton *>(find("selectProduct3"));
    button->setFocus();
    press(Qt::Key_Enter);
    QVERIFY(button->isChecked());
}

void TestKeyboard::arrowsMoveTheMap_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QPointF>("way");
    QTest::newRow("right") << Qt::Key_Right << QPointF(1, 0);
    QTest::newRow("left") << Qt::Key_Left << QPointF(-1, 0);
    QTest::newRow("up") << Qt::Key_Up << QPointF(0, 1);
    QTest::newRow("down") << Qt::Key_Down << QPointF(0, -1);
}

void TestKeyboard::arrowsMoveTheMap()
{
    QFETCH(Qt::Key, key);
    QFETCH(QPointF, way);
    // They do so even while a button has the keyboard.
    find("selectProduct1")->setFocus();
    const QPointF before = camera().target();
    press(key);
    const QPointF moved = camera().target() - before;
    QVERIFY2(QPointF::dotProduct(moved, way) > 1.0, qPrintable(QStringLiteral("%1 %2").arg(moved.x()).arg(moved.y())));
    QVERIFY(find("selectProduct1")->hasFocus());
}

void TestKeyboard::arrowsMoveTheMapWhileTheMachineDrivesByItself()
{
    QVERIFY(DisplayStates(*host).bring(QStringLiteral("driving")));
    const QPointF before = camera().target();
    press(Qt::Key_Right);
    QVERIFY(camera().target().x() > before.x());
}

void TestKeyboard::arrowsSteerByHand()
{
    QVERIFY(DisplayStates(*host).bring(QStringLiteral("by hand")));
    const QPointF before = camera().target();
    press(Qt::Key_Right);
    QCOMPARE(camera().target(), before);
}

void TestKeyboard::plusAndMinusZoom()
{
    const double before = camera().distance();
    press(Qt::Key_Plus);
    QVERIFY(camera().distance() < before);
    press(Qt::Key_Minus);
    press(Qt::Key_Minus);
    QVERIFY(camera().distance() > before);
}

void TestKeyboard::enterTouchesTheMapsMiddle()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    const auto answers = [this] {
        return paintedTexts(*terminal().window()->overlay()).filter(QStringLiteral("Rx Rate"));
    };
    QCOMPARE(answers().size(), 0);
    terminal().window()->fieldView()->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QCOMPARE(answers().size(), 1);
}

void TestKeyboard::enterHeldOnTheOptionsButtonOpensTheSettings()
{
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA"}).isOk());
    GuidancePage *page = terminal().window()->guidancePage();
    page->setFocus(Qt::TabFocusReason);
    QString opened;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&opened] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        opened = dialog->objectName();
        dialog->reject();
    });
    poll.start(20);
    // A touch is too short.
    press(Qt::Key_Return);
    QTest::qWait(100);
    QCOMPARE(opened, QString());
    QTest::keyPress(page, Qt::Key_Return);
    QTRY_COMPARE(opened, QStringLiteral("rxMapSettings"));
    QTest::keyRelease(page, Qt::Key_Return);
}

void TestKeyboard::escapeLeavesTheFindings()
{
    QVERIFY(DisplayStates(*host).bring(QStringLiteral("findings")));
    QWidget *page = find("findingsPage");
    QTRY_VERIFY(page->isVisible());
    press(Qt::Key_Escape);
    QVERIFY(!page->isVisible());
}

void TestKeyboard::everyControlHasAName_data()
{
    addStates();
}

void TestKeyboard::everyControlHasAName()
{
    QFETCH(QString, state);
    DisplayStates display(*host);
    QVERIFY(display.bring(state));
    const QList<QWidget *> all = terminal().window()->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        const bool isControl = qobject_cast<QAbstractButton *>(widget) != nullptr
            || ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr)
            || widget->objectName() == QLatin1String("wheel");
        if (!isControl || !widget->isVisible())
            continue;
        const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
        const bool isSpoken =
            std::any_of(name.begin(), name.end(), [](QChar character) { return character.isLetterOrNumber(); });
        QVERIFY2(isSpoken, qPrintable(QStringLiteral("%1: \"%2\"").arg(widget->objectName(), name)));
    }
}

RXMAP_TEST(TestKeyboard, Widgets)
#include "tst_keyboard.moc"
