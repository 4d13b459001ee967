#include "numerickeypad.h"
#include "paths.h"
#include "testbase.h"

#include "Framework/orvikbutton.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScopedPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QWindow>

Q_DECLARE_METATYPE(NumericKey)

class tst_NumericKeypad : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void reportsItsKeys_data();
    void reportsItsKeys();
    void reportsHardwareKeys();
    void repeatsTheBackspace();
    void keysThatTheFieldNeverTakesAreDisabled();
    void everyKeyIsLargeEnoughForAGlove();
    void everyKeyHasItsPlaceWithoutImages();
    void showsTextAndLimits();
    void leavesTheFieldFree_data();
    void leavesTheFieldFree();
    void staysWithinTheDisplay();
    void aTouchOutsideClosesIt_data();
    void aTouchOutsideClosesIt();
    void goesAwayWithItsField();

private:
    OrvikButton *key(const QString &name) const { return keypad->findChild<OrvikButton *>(name); }

    QDir images = QDir(buildPath("Simulator/Resources/images"));
    QScopedPointer<QWidget> window;
    QWidget *field = nullptr;
    QWidget *other = nullptr;
    QPointer<NumericKeypad> keypad;
};

void tst_NumericKeypad::initTestCase()
{
    qRegisterMetaType<NumericKey>("NumericKey");
}

void tst_NumericKeypad::init()
{
    TestBase::init();
    window.reset(new QWidget);
    window->setGeometry(100, 100, 400, 300);
    field = new QWidget(window.data());
    field->setGeometry(20, 20, 176, 56);
    other = new QWidget(window.data());
    other->setGeometry(20, 200, 176, 56);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
    keypad = new NumericKeypad(images, field);
    keypad->open();
    QVERIFY(QTest::qWaitForWindowExposed(keypad.data()));
}

void tst_NumericKeypad::cleanup()
{
    window.reset();
    TestBase::cleanup();
}

void tst_NumericKeypad::reportsItsKeys_data()
{
    using Action = NumericKey::Action;
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("action");
    QTest::addColumn<QChar>("character");
    for (int digit = 0; digit <= 9; ++digit)
        QTest::addRow("%d", digit) << QStringLiteral("keypad%1").arg(digit) << int(Action::Character)
                                   << QChar('0' + digit);
    QTest::newRow("point") << QStringLiteral("keypadPoint") << int(Action::Character) << QChar('.');
    QTest::newRow("minus") << QStringLiteral("keypadMinus") << int(Action::Character) << QChar('-');
    QTest::newRow("backspace") << QStringLiteral("keypadBackspace") << int(Action::EraseLast) << QChar();
    QTest::newRow("enter") << QStringLiteral("keypadEnter") << int(Action::Finish) << QChar();
}

void tst_NumericKeypad::reportsItsKeys()
{
    QFETCH(QString, name);
    QSignalSpy keyed(keypad.data(), &NumericKeypad::keyed);
    QVERIFY(key(name) != nullptr);
    // Through the window system, as a finger does.
    QTest::mouseClick(keypad->windowHandle(), Qt::LeftButton, {}, key(name)->geometry().center());
    QCOMPARE(keyed.count(), 1);
    const auto reported = keyed.first().first().value<NumericKey>();
    QTEST(int(reported.action), "action");
    QTEST(reported.character, "character");
}

void tst_NumericKeypad::reportsHardwareKeys()
{
    QSignalSpy keyed(keypad.data(), &NumericKeypad::keyed);
    QTest::keyClicks(keypad.data(), QStringLiteral("7.x"));
    QTest::keyClick(keypad.data(), Qt::Key_Backspace);
    QCOMPARE(keyed.count(), 3);
    QCOMPARE(keyed.at(0).first().value<NumericKey>().character, QChar('7'));
    QCOMPARE(keyed.at(1).first().value<NumericKey>().character, QChar('.'));
    QCOMPARE(int(keyed.at(2).first().value<NumericKey>().action), int(NumericKey::Action::EraseLast));
}

void tst_NumericKeypad::repeatsTheBackspace()
{
    QSignalSpy keyed(keypad.data(), &NumericKeypad::keyed);
    QTest::mousePress(key(QStringLiteral("keypadBackspace")), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(keyed.count() >= 2, 2000);
    QTest::mouseRelease(key(QStringLiteral("keypadBackspace")), Qt::LeftButton);
}

void tst_NumericKeypad::keysThatTheFieldNeverTakesAreDisabled()
{
    keypad->setLimits(QString(), true, false);
    QVERIFY(key(QStringLiteral("keypadPoint"))->isEnabled());
    QVERIFY(!key(QStringLiteral("keypadMinus"))->isEnabled());
    keypad->setLimits(QString(), false, true);
    QVERIFY(!key(QStringLiteral("keypadPoint"))->isEnabled());
    QVERIFY(key(QStringLiteral("keypadMinus"))->isEnabled());
}

void tst_NumericKeypad::everyKeyIsLargeEnoughForAGlove()
{
    const QList<OrvikButton *> keys = keypad->findChildren<OrvikButton *>();
    QCOMPARE(keys.size(), 14);
    for (const OrvikButton *one : keys) {
        QVERIFY2(one->width() >= 72 && one->height() >= 72, qPrintable(one->objectName()));
        QVERIFY2(keypad->rect().contains(one->geometry()), qPrintable(one->objectName()));
        for (const OrvikButton *another : keys)
            QVERIFY(one == another || !one->geometry().intersects(another->geometry()));
    }
}

void tst_NumericKeypad::everyKeyHasItsPlaceWithoutImages()
{
    const NumericKeypad bare(QDir(QStringLiteral("/nonexistent")), field);
    for (const OrvikButton *one : keypad->findChildren<OrvikButton *>())
        QCOMPARE(bare.findChild<OrvikButton *>(one->objectName())->geometry(), one->geometry());
}

void tst_NumericKeypad::showsTextAndLimits()
{
    const QImage empty = keypad->grab().toImage();
    keypad->showText(QStringLiteral("2.5"), true);
    const QImage selected = keypad->grab().toImage();
    keypad->showText(QStringLiteral("2.5"), false);
    const QImage plain = keypad->grab().toImage();
    keypad->setLimits(QStringLiteral("0 \u2013 999.9"), true, true);
    const QImage withLimits = keypad->grab().toImage();
    QVERIFY(empty != selected);
    QVERIFY(selected != plain);
    QVERIFY(plain != withLimits);
}

void tst_NumericKeypad::leavesTheFieldFree_data()
{
    QTest::addColumn<QRect>("fieldPlace");
    QTest::addColumn<QPoint>("place");
    const QRect fieldShape(0, 0, 176, 56);
    // A keypad of 400 × 420 on a display of 1280 × 800.
    QTest::newRow("right, level with the field") << fieldShape.translated(400, 300) << QPoint(584, 117);
    QTest::newRow("right, kept below the upper edge") << fieldShape.translated(400, 10) << QPoint(584, 0);
    QTest::newRow("right, kept above the lower edge") << fieldShape.translated(400, 740) << QPoint(584, 380);
    QTest::newRow("left") << fieldShape.translated(900, 300) << QPoint(492, 117);
    QTest::newRow("below a wide field") << QRect(300, 100, 900, 56) << QPoint(549, 164);
    QTest::newRow("above a wide field") << QRect(300, 600, 900, 56) << QPoint(549, 172);
    QTest::newRow("where there is no room") << QRect(300, 300, 900, 200) << QPoint(549, 0);
}

void tst_NumericKeypad::leavesTheFieldFree()
{
    QFETCH(QRect, fieldPlace);
    const QRect screen(0, 0, 1280, 800);
    QTEST(NumericKeypad::placeBeside(fieldPlace, QSize(400, 420), screen), "place");
}

void tst_NumericKeypad::staysWithinTheDisplay()
{
    keypad->close();
    const QRect display = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QPoint corner : {display.topLeft(), display.topRight() - QPoint(60, 0), display.bottomRight(),
                                display.bottomLeft() - QPoint(100, 0)}) {
        window->move(corner);
        auto *opened = new NumericKeypad(images, field);
        opened->open();
        QVERIFY2(display.contains(opened->geometry()),
                 qPrintable(QStringLiteral("window at %1, %2").arg(corner.x()).arg(corner.y())));
        opened->close();
    }
}

void tst_NumericKeypad::aTouchOutsideClosesIt_data()
{
    QTest::addColumn<bool>("throughTheWindowSystem");
    QTest::newRow("of a finger") << true;
    QTest::newRow("handed to a control") << false;
}

void tst_NumericKeypad::aTouchOutsideClosesIt()
{
    QFETCH(bool, throughTheWindowSystem);
    QSignalSpy closed(keypad.data(), &NumericKeypad::closed);
    if (throughTheWindowSystem)
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, other->geometry().center());
    else
        QTest::mouseClick(other, Qt::LeftButton);
    QCOMPARE(closed.count(), 1);
    QTRY_VERIFY(keypad.isNull());
}

void tst_NumericKeypad::goesAwayWithItsField()
{
    delete field;
    QVERIFY(keypad.isNull());
}

RXMAP_TEST(tst_NumericKeypad, Widgets)
#include "tst_numerickeypad.moc"
