#include "paths.h"
#include "testbase.h"

#include "Framework/orvikbutton.h"
#include "Framework/orviklineedit.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QWindow>

class tst_OrvikLineEdit : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hasTheSizeOfItsBackgroundAtItsPosition();
    void showsTextWhateverTheLimitsAndReportsNothing();
    void drawsItsTextInItsFont();
    void aTouchOpensTheKeypad();
    void aTouchSlidOffTheFieldOpensNothing();
    void reportsEveryKeystrokeThatChangesTheText();
    void theFirstKeystrokeReplacesTheText_data();
    void theFirstKeystrokeReplacesTheText();
    void aKeypadOpenedAgainReplacesTheTextAgain();
    void refusesKeystrokesBeyondItsLimits();
    void takesAHardwareKeyboard();
    void keysThatItDoesNotUseGoToTheDialog();
    void anEntryEndsWhenTheKeyboardGoesElsewhere();
    void enterClosesTheKeypad();
    void aFingerBesideTheKeypadOnlyClosesIt();
    void aTouchHandedToAnotherFieldMovesTheKeypadThere();
    void textSetWhileEditingIsReplacedByTheNextKey();
    void hidingOrDisablingTheFieldClosesTheKeypad_data();
    void hidingOrDisablingTheFieldClosesTheKeypad();
    void aFieldDisabledUnderTheFingerOpensNothing();
    void aKeypadDoesNotOutliveItsField();
    void aDisabledFieldTakesNothing();
    void worksWhileAModalDialogIsOpen();
    void mayBeDeletedByASlot();
    void leavesNothingBehindWhenOpenedOften();

private:
    static QWidget *keypad();
    static void touchKeys(const QString &keys);
    OrvikLineEdit *addField(int id, const QPoint &position);

    QDir images = QDir(buildPath("Simulator/Resources/images"));
    QScopedPointer<QDialog> dialog;
    QPointer<OrvikLineEdit> field;
    QScopedPointer<QSignalSpy> changed;
};

/// The keypad that is open; null when none is.
QWidget *tst_OrvikLineEdit::keypad()
{
    QWidget *open = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("numericKeypad") && window->isVisible())
            open = window;
    }
    return open;
}

void tst_OrvikLineEdit::touchKeys(const QString &keys)
{
    for (const QChar character : keys) {
        const QString name = character == '.' ? QStringLiteral("Point")
            : character == '-'                ? QStringLiteral("Minus")
            : character == '<'                ? QStringLiteral("Backspace")
            : character == '\n'               ? QStringLiteral("Enter")
                                              : QString(character);
        QVERIFY(keypad() != nullptr);
        auto *key = keypad()->findChild<OrvikButton *>(QStringLiteral("keypad") + name);
        QVERIFY(key != nullptr);
        QTest::mouseClick(key, Qt::LeftButton);
    }
}

OrvikLineEdit *tst_OrvikLineEdit::addField(int id, const QPoint &position)
{
    auto *added = new OrvikLineEdit(id, images, position, dialog.data());
    added->setNumericSizeLimits(3, 1);
    added->setText(QStringLiteral("2.5"));
    return added;
}

void tst_OrvikLineEdit::init()
{
    TestBase::init();
    dialog.reset(new QDialog(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint));
    dialog->setGeometry(0, 0, 500, 400);
    field = addField(7, QPoint(100, 200));
    changed.reset(new QSignalSpy(field.data(), &OrvikLineEdit::textChanged));
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.data()));
}

void tst_OrvikLineEdit::cleanup()
{
    changed.reset();
    dialog.reset();
    TestBase::cleanup();
}

void tst_OrvikLineEdit::hasTheSizeOfItsBackgroundAtItsPosition()
{
    QCOMPARE(field->pos(), QPoint(100, 200));
    QCOMPARE(field->id(), 7);
    QCOMPARE(field->size(), QPixmap(images.filePath(QStringLiteral("lineEditBg.png"))).size());
    const OrvikLineEdit bare(1, QDir(QStringLiteral("/nonexistent")), QPoint(), nullptr);
    QVERIFY(!bare.size().isEmpty());
}

void tst_OrvikLineEdit::showsTextWhateverTheLimitsAndReportsNothing()
{
    for (const char *text : {"????", "1.23457e+06", "-5", "", "2.57"}) {
        field->setText(QLatin1String(text));
        QCOMPARE(field->getText(), QLatin1String(text));
    }
    QCOMPARE(changed->count(), 0);
}

void tst_OrvikLineEdit::drawsItsTextInItsFont()
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(12);
    field->setTextFont(font);
    const QImage small = field->grab().toImage();
    font.setPixelSize(30);
    field->setTextFont(font);
    const QImage large = field->grab().toImage();
    QVERIFY(small != large);
    field->setText(QStringLiteral("3.5"));
    QVERIFY(field->grab().toImage() != large);
}

void tst_OrvikLineEdit::aTouchOpensTheKeypad()
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

void tst_OrvikLineEdit::aTouchSlidOffTheFieldOpensNothing()
{
    QTest::mousePress(field, Qt::LeftButton);
    QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(-20, 10));
    QVERIFY(keypad() == nullptr);
}

void tst_OrvikLineEdit::reportsEveryKeystrokeThatChangesTheText()
{
    QStringList texts;
    connect(field, &OrvikLineEdit::textChanged, this, [this, &texts] { texts.append(field->getText()); });
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("12.57<<<"));
    QCOMPARE(texts.join(QLatin1Char(' ')), QStringLiteral("1 12 12. 12.5 12. 12 1"));
    QCOMPARE(changed->first().first().toInt(), 7);
}

void tst_OrvikLineEdit::theFirstKeystrokeReplacesTheText_data()
{
    QTest::addColumn<QString>("shown");
    QTest::newRow("a number") << "2.5";
    QTest::newRow("no number") << "????";
    QTest::newRow("beyond the limits") << "1.23457e+06";
}

void tst_OrvikLineEdit::theFirstKeystrokeReplacesTheText()
{
    QFETCH(QString, shown);
    field->setText(shown);
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("4"));
    QCOMPARE(field->getText(), QStringLiteral("4"));
    touchKeys(QStringLiteral("0"));
    QCOMPARE(field->getText(), QStringLiteral("40"));
}

void tst_OrvikLineEdit::aKeypadOpenedAgainReplacesTheTextAgain()
{
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("12\n"));
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("3"));
    QCOMPARE(field->getText(), QStringLiteral("3"));
}

void tst_OrvikLineEdit::refusesKeystrokesBeyondItsLimits()
{
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("1234.56"));
    QCOMPARE(field->getText(), QStringLiteral("123.5"));
    QCOMPARE(changed->count(), 5);

    field->setNumericRange(0.0, 5000.0, 1);
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("50010"));
    QCOMPARE(field->getText(), QStringLiteral("5000"));
}

void tst_OrvikLineEdit::takesAHardwareKeyboard()
{
    field->setFocus();
    QTest::keyClicks(field, QStringLiteral("18,57"));
    QCOMPARE(field->getText(), QStringLiteral("18.5"));
    QCOMPARE(changed->count(), 4);
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(field->getText(), QStringLiteral("18."));
    QVERIFY(keypad() == nullptr);

    QTest::keyClick(field, Qt::Key_Return); // ends the entry: the next key replaces the text
    QTest::keyClick(field, Qt::Key_6);
    QCOMPARE(field->getText(), QStringLiteral("6"));

    QTest::mouseClick(field, Qt::LeftButton);
    QVERIFY(keypad() != nullptr);
    QTest::keyClicks(keypad(), QStringLiteral("71"));
    QCOMPARE(field->getText(), QStringLiteral("71"));
    QTest::keyClick(keypad(), Qt::Key_Escape);
    QVERIFY(keypad() == nullptr);
    QVERIFY(dialog->isVisible());
}

void tst_OrvikLineEdit::keysThatItDoesNotUseGoToTheDialog()
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), int(QDialog::Rejected));
}

void tst_OrvikLineEdit::anEntryEndsWhenTheKeyboardGoesElsewhere()
{
    OrvikLineEdit *other = addField(8, QPoint(100, 300));
    other->show();
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog.data()));
    field->setFocus();
    QTest::keyClick(field, Qt::Key_1);
    other->setFocus();
    field->setFocus();
    QTest::keyClick(field, Qt::Key_2);
    QCOMPARE(field->getText(), QStringLiteral("2"));
}

void tst_OrvikLineEdit::enterClosesTheKeypad()
{
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("8\n"));
    QVERIFY(keypad() == nullptr);
    QCOMPARE(field->getText(), QStringLiteral("8"));
    QCOMPARE(changed->count(), 1);
}

void tst_OrvikLineEdit::aFingerBesideTheKeypadOnlyClosesIt()
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

void tst_OrvikLineEdit::aTouchHandedToAnotherFieldMovesTheKeypadThere()
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

void tst_OrvikLineEdit::textSetWhileEditingIsReplacedByTheNextKey()
{
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("1"));
    const QImage before = keypad()->grab().toImage();
    field->setText(QStringLiteral("30.0"));
    QVERIFY2(keypad()->grab().toImage() != before, "the keypad shows the old text");
    touchKeys(QStringLiteral("4"));
    QCOMPARE(field->getText(), QStringLiteral("4"));
}

void tst_OrvikLineEdit::hidingOrDisablingTheFieldClosesTheKeypad_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"hide the field", "disable the field", "hide the dialog", "disable the dialog"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void tst_OrvikLineEdit::hidingOrDisablingTheFieldClosesTheKeypad()
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

void tst_OrvikLineEdit::aFieldDisabledUnderTheFingerOpensNothing()
{
    QTest::mousePress(field, Qt::LeftButton);
    field->setEnabled(false);
    field->setEnabled(true);
    QTest::mouseRelease(field, Qt::LeftButton);
    QVERIFY(keypad() == nullptr);
}

void tst_OrvikLineEdit::aKeypadDoesNotOutliveItsField()
{
    QTest::mouseClick(field, Qt::LeftButton);
    QPointer<QWidget> open = keypad();
    QVERIFY(open);
    delete field;
    QVERIFY(open.isNull());
}

void tst_OrvikLineEdit::aDisabledFieldTakesNothing()
{
    const QImage enabled = field->grab().toImage();
    field->setEnabled(false);
    QVERIFY(field->grab().toImage() != enabled);
    QTest::mouseClick(field, Qt::LeftButton);
    QVERIFY(keypad() == nullptr);
    QTest::keyClick(field, Qt::Key_5);
    QCOMPARE(field->getText(), QStringLiteral("2.5"));
}

void tst_OrvikLineEdit::worksWhileAModalDialogIsOpen()
{
    dialog->hide();
    QWidget page;
    page.setGeometry(0, 0, 1000, 700);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    dialog->setModal(true);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.data()));

    // Through the window system, which blocks every window that is not the dialog's.
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

void tst_OrvikLineEdit::mayBeDeletedByASlot()
{
    QTest::mouseClick(field, Qt::LeftButton);
    connect(field, &OrvikLineEdit::textChanged, this, [this] { delete field; });
    QTest::keyClick(field, Qt::Key_5);
    QVERIFY(field.isNull());
    QVERIFY(keypad() == nullptr);
}

void tst_OrvikLineEdit::leavesNothingBehindWhenOpenedOften()
{
    const int before = field->children().size();
    for (int i = 0; i < 100; ++i) {
        QTest::mouseClick(field, Qt::LeftButton);
        touchKeys(QStringLiteral("5\n"));
    }
    QTRY_COMPARE(field->children().size(), before);
}

QTEST_MAIN(tst_OrvikLineEdit)
#include "tst_orviklineedit.moc"
