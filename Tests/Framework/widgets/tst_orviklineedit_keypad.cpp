#include "lineedittest.h"
#include "paintedtexts.h"

#include "Framework/orvikbutton.h"

#include <QWindow>

/// When a line edit's keypad opens and closes.
class TestOrvikLineEditKeypad : public LineEditTest {
    Q_OBJECT

private Q_SLOTS:
    void aTouchOpensTheKeypad();
    void aTouchSlidOffTheFieldOpensNothing();
    void theKeypadSaysWhyAKeyIsNotTaken();
    void enterClosesTheKeypad();
    void aFingerBesideTheKeypadOnlyClosesIt();
    void aTouchHandedToAnotherFieldMovesTheKeypadThere();
    void hidingOrDisablingTheFieldClosesTheKeypad_data();
    void hidingOrDisablingTheFieldClosesTheKeypad();
    void aFieldDisabledUnderTheFingerOpensNothing();
    void aKeypadDoesNotOutliveItsField();
    void worksWhileAModalDialogIsOpen();
    void mayBeDeletedByASlot();
    void leavesNothingBehindWhenOpenedOften();
};

void TestOrvikLineEditKeypad::aTouchOpensTheKeypad()
{
    QTest::mousePress(field, Qt::LeftButton);
    QVERIFY(keypad() == nullptr);
    QTest::mouseRelease(field, Qt::LeftButton);
    QVERIFY(keypad() != nullptr);
    QVERIFY2(!keypad()->geometry().intersects(QRect(field->mapToGlobal(QPoint()), field->size())),
             "the keypad covers its field");
    QCOMPARE(field->getText(), QStringLiteral("2.5"));
    QCOMPARE(changed->count(), 0);
}

void TestOrvikLineEditKeypad::aTouchSlidOffTheFieldOpensNothing()
{
    QTest::mousePress(field, Qt::LeftButton);
    QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(-20, 10));
    QVERIFY(keypad() == nullptr);
}

void TestOrvikLineEditKeypad::theKeypadSaysWhyAKeyIsNotTaken()
{
    const QString decimals = QStringLiteral("Decimals: 1 at most");
    field->setNumericSizeLimits(3, 1);
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("2.5"));
    QVERIFY(!paintedTexts(*keypad()).contains(decimals));
    touchKeys(QStringLiteral("7"));
    QCOMPARE(field->getText(), QStringLiteral("2.5"));
    QVERIFY(paintedTexts(*keypad()).contains(decimals));
    QCOMPARE(keypad()->accessibleDescription(), decimals);
    // The number can still be read.
    QVERIFY(paintedTexts(*keypad()).contains(QStringLiteral("2.5")));
    touchKeys(QStringLiteral("<"));
    QVERIFY(!paintedTexts(*keypad()).contains(decimals));
    QCOMPARE(keypad()->accessibleDescription(), QString());
}

void TestOrvikLineEditKeypad::enterClosesTheKeypad()
{
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("8\n"));
    QVERIFY(keypad() == nullptr);
    QCOMPARE(field->getText(), QStringLiteral("8"));
    QCOMPARE(changed->count(), 1);
}

void TestOrvikLineEditKeypad::aFingerBesideTheKeypadOnlyClosesIt()
{
    OrvikLineEdit *other = addField(8, QPoint(100, 300));
    other->show();
    QTest::mouseClick(field, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowExposed(keypad()));
    QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {}, other->geometry().center());
    QVERIFY(keypad() == nullptr);
    QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {}, other->geometry().center());
    QVERIFY(keypad() != nullptr);
    touchKeys(QStringLiteral("9"));
    QCOMPARE(field->getText(), QStringLiteral("2.5"));
    QCOMPARE(other->getText(), QStringLiteral("9"));
}

void TestOrvikLineEditKeypad::aTouchHandedToAnotherFieldMovesTheKeypadThere()
{
    OrvikLineEdit *other = addField(8, QPoint(100, 300));
    other->show();
    QTest::mouseClick(field, Qt::LeftButton);
    QPointer<QWidget> first = keypad();
    QTest::mouseClick(other, Qt::LeftButton);
    QTRY_VERIFY(first.isNull());
    touchKeys(QStringLiteral("9"));
    QCOMPARE(field->getText(), QStringLiteral("2.5"));
    QCOMPARE(other->getText(), QStringLiteral("9"));
}

void TestOrvikLineEditKeypad::hidingOrDisablingTheFieldClosesTheKeypad_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"hide the field", "disable the field", "hide the dialog", "disable the dialog"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void TestOrvikLineEditKeypad::hidingOrDisablingTheFieldClosesTheKeypad()
{
    QFETCH(QString, what);
    QTest::mouseClick(field, Qt::LeftButton);
    QPointer<QWidget> open = keypad();
    QVERIFY(open);
    QWidget *target = what.endsWith(QLatin1String("field")) ? static_cast<QWidget *>(field) : dialog.data();
    if (what.startsWith(QLatin1String("hide")))
        target->hide();
    else
        target->setEnabled(false);
    QVERIFY(keypad() == nullptr);
    QTRY_VERIFY(open.isNull());
    QCOMPARE(field->getText(), QStringLiteral("2.5"));
    QCOMPARE(changed->count(), 0);
}

void TestOrvikLineEditKeypad::aFieldDisabledUnderTheFingerOpensNothing()
{
    QTest::mousePress(field, Qt::LeftButton);
    field->setEnabled(false);
    field->setEnabled(true);
    QTest::mouseRelease(field, Qt::LeftButton);
    QVERIFY(keypad() == nullptr);
}

void TestOrvikLineEditKeypad::aKeypadDoesNotOutliveItsField()
{
    QTest::mouseClick(field, Qt::LeftButton);
    QPointer<QWidget> open = keypad();
    QVERIFY(open);
    delete field;
    QVERIFY(open.isNull());
}

void TestOrvikLineEditKeypad::worksWhileAModalDialogIsOpen()
{
    dialog->hide();
    QWidget page;
    page.setGeometry(0, 0, 1000, 700);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    dialog->setModal(true);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.data()));

    // Through the window system, which blocks every window that does not belong to the dialog.
    QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {}, field->geometry().center());
    QVERIFY(keypad() != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(keypad()));
    const QWidget *six = keypad()->findChild<OrvikButton *>(QStringLiteral("keypad6"));
    QTest::mouseClick(keypad()->windowHandle(), Qt::LeftButton, {}, six->geometry().center());
    QCOMPARE(field->getText(), QStringLiteral("6"));
    QTest::mouseClick(page.windowHandle(), Qt::LeftButton, {}, QPoint(900, 650));
    QVERIFY2(keypad() == nullptr, "a touch beside the dialog closes the keypad");
    QVERIFY(dialog->isVisible());
}

void TestOrvikLineEditKeypad::mayBeDeletedByASlot()
{
    QTest::mouseClick(field, Qt::LeftButton);
    connect(field, &OrvikLineEdit::textChanged, this, [this] { delete field; });
    QTest::keyClick(field, Qt::Key_5);
    QVERIFY(field.isNull());
    QVERIFY(keypad() == nullptr);
}

void TestOrvikLineEditKeypad::leavesNothingBehindWhenOpenedOften()
{
    const int before = field->children().size();
    for (int i = 0; i < 100; ++i) {
        QTest::mouseClick(field, Qt::LeftButton);
        touchKeys(QStringLiteral("5\n"));
    }
    QTRY_COMPARE(field->children().size(), before);
}

RXMAP_TEST(TestOrvikLineEditKeypad, Widgets)
#include "tst_orviklineedit_keypad.moc"
