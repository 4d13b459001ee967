#include "lineedittest.h"

#include <QImage>

/// A line edit's text: how it looks, and how it follows keys of the keypad or of a keyboard.
class TestOrvikLineEditEntry : public LineEditTest {
    Q_OBJECT

private Q_SLOTS:
    void hasTheSizeOfItsBackgroundAtItsPosition();
    void showsTextWhateverTheLimitsAndReportsNothing();
    void drawsItsTextInItsFont();
    void reportsEveryKeystrokeThatChangesTheText();
    void theFirstKeystrokeReplacesTheText_data();
    void theFirstKeystrokeReplacesTheText();
    void aKeypadOpenedAgainReplacesTheTextAgain();
    void refusesKeystrokesBeyondItsLimits();
    void takesAHardwareKeyboard();
    void keysThatItDoesNotUseGoToTheDialog();
    void anEntryEndsWhenTheKeyboardGoesElsewhere();
    void textSetWhileEditingIsReplacedByTheNextKey();
    void aDisabledFieldTakesNothing();
};

void TestOrvikLineEditEntry::hasTheSizeOfItsBackgroundAtItsPosition()
{
    QCOMPARE(field->pos(), QPoint(100, 200));
    QCOMPARE(field->id(), 7);
    QCOMPARE(field->size(), QPixmap(images.filePath(QStringLiteral("lineEditBg.png"))).size());
    const OrvikLineEdit bare(1, QDir(QStringLiteral("/nonexistent")), QPoint(), nullptr);
    QVERIFY(!bare.size().isEmpty());
}

void TestOrvikLineEditEntry::showsTextWhateverTheLimitsAndReportsNothing()
{
    for (const char *text : {"????", "1.23457e+06", "-5", "", "2.57"}) {
        field->setText(QLatin1String(text));
        QCOMPARE(field->getText(), QLatin1String(text));
    }
    QCOMPARE(changed->count(), 0);
}

void TestOrvikLineEditEntry::drawsItsTextInItsFont()
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

void TestOrvikLineEditEntry::reportsEveryKeystrokeThatChangesTheText()
{
    QStringList texts;
    connect(field, &OrvikLineEdit::textChanged, this, [this, &texts] { texts.append(field->getText()); });
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("12.57<<<"));
    QCOMPARE(texts.join(QLatin1Char(' ')), QStringLiteral("1 12 12. 12.5 12. 12 1"));
    QCOMPARE(changed->first().first().toInt(), 7);
}

void TestOrvikLineEditEntry::theFirstKeystrokeReplacesTheText_data()
{
    QTest::addColumn<QString>("shown");
    QTest::newRow("a number") << "2.5";
    QTest::newRow("no number") << "????";
    QTest::newRow("beyond the limits") << "1.23457e+06";
}

void TestOrvikLineEditEntry::theFirstKeystrokeReplacesTheText()
{
    QFETCH(QString, shown);
    field->setText(shown);
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("4"));
    QCOMPARE(field->getText(), QStringLiteral("4"));
    touchKeys(QStringLiteral("0"));
    QCOMPARE(field->getText(), QStringLiteral("40"));
}

void TestOrvikLineEditEntry::aKeypadOpenedAgainReplacesTheTextAgain()
{
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("12\n"));
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("3"));
    QCOMPARE(field->getText(), QStringLiteral("3"));
}

void TestOrvikLineEditEntry::refusesKeystrokesBeyondItsLimits()
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

void TestOrvikLineEditEntry::takesAHardwareKeyboard()
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

void TestOrvikLineEditEntry::keysThatItDoesNotUseGoToTheDialog()
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), int(QDialog::Rejected));
}

void TestOrvikLineEditEntry::anEntryEndsWhenTheKeyboardGoesElsewhere()
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

void TestOrvikLineEditEntry::textSetWhileEditingIsReplacedByTheNextKey()
{
    QTest::mouseClick(field, Qt::LeftButton);
    touchKeys(QStringLiteral("1"));
    const QImage before = keypad()->grab().toImage();
    field->setText(QStringLiteral("30.0"));
    QVERIFY2(keypad()->grab().toImage() != before, "the keypad shows the old text");
    touchKeys(QStringLiteral("4"));
    QCOMPARE(field->getText(), QStringLiteral("4"));
}

void TestOrvikLineEditEntry::aDisabledFieldTakesNothing()
{
    const QImage enabled = field->grab().toImage();
    field->setEnabled(false);
    QVERIFY(field->grab().toImage() != enabled);
    QTest::mouseClick(field, Qt::LeftButton);
    QVERIFY(keypad() == nullptr);
    QTest::keyClick(field, Qt::Key_5);
    QCOMPARE(field->getText(), QStringLiteral("2.5"));
}

RXMAP_TEST(TestOrvikLineEditEntry, Widgets)
#include "tst_orviklineedit_entry.moc"
