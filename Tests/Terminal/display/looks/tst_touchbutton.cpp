#include "paintedtexts.h"
#include "symbols.h"
#include "testbase.h"
#include "theme.h"
#include "touchbutton.h"

#include <QSignalSpy>

/// A flat button of the terminal's own panels.
class TestTouchButton : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void itIsBigEnoughForAGlove();
    void itShowsItsTextAndItsNote();
    void aTextThatIsTooLongTakesSeveralLines();
    void aWordIsWrittenSmallerRatherThanBroken();
    void colorsTellItsState();
    void theKeyboardReachesIt();
    void aSymbolStandsForTheText();
    void aFrameTellsWhoHasTheKeyboard();
};

namespace {

/// The colour of the button's background.
QColor ground(TouchButton &button)
{
    return button.grab().toImage().pixelColor(button.width() / 2, 6);
}

} // namespace

void TestTouchButton::itIsBigEnoughForAGlove()
{
    const QSize size = TouchButton(QStringLiteral("+")).sizeHint();
    QVERIFY(size.width() >= Theme::touchTarget && size.height() >= Theme::touchTarget);
}

void TestTouchButton::itShowsItsTextAndItsNote()
{
    TouchButton button(QStringLiteral("Seed"));
    button.resize(200, 88);
    QCOMPARE(paintedTexts(button), QStringList{"Seed"});
    button.setNote(QStringLiteral("Bin 1"));
    QCOMPARE(paintedTexts(button), (QStringList{"Seed", "Bin 1"}));
}

void TestTouchButton::aTextThatIsTooLongTakesSeveralLines()
{
    const QString longText = QStringLiteral("A product with a very long name indeed");
    TouchButton button(longText);
    button.setNote(longText);
    button.resize(140, 98);
    QStringList texts = paintedTexts(button);
    const QString note = texts.takeLast();
    QVERIFY2(note.endsWith(QChar(0x2026)) && longText.startsWith(note.chopped(1)), qPrintable(note));
    QVERIFY(texts.size() > 1);
    QCOMPARE(texts.join(QLatin1Char(' ')), longText);
    // Broken into lines, the text does not fit either.
    button.resize(100, 60);
    texts = paintedTexts(button);
    QVERIFY2(texts.at(texts.size() - 2).contains(QChar(0x2026)), qPrintable(texts.join(QLatin1Char('|'))));
    // A text that is only a little too long is written smaller instead.
    button.setText(QStringLiteral("Fertiliser"));
    QCOMPARE(paintedTexts(button).first(), QStringLiteral("Fertiliser"));
}

void TestTouchButton::aWordIsWrittenSmallerRatherThanBroken()
{
    TouchButton button(QStringLiteral("Parcelle"));
    button.resize(button.sizeHint());
    QCOMPARE(paintedTexts(button), QStringList{"Parcelle"});
}

void TestTouchButton::colorsTellItsState()
{
    TouchButton button(QStringLiteral("Seed"));
    button.resize(200, 88);
    QCOMPARE(ground(button).rgb(), Theme::colors().button.rgb());
    button.setCheckable(true);
    button.setChecked(true);
    QCOMPARE(ground(button).rgb(), Theme::colors().accent.rgb());
    button.setDown(true);
    QCOMPARE(ground(button).rgb(), Theme::colors().pressedButton.rgb());
    button.setDown(false);
    button.setChecked(false);
    QCOMPARE(ground(button).rgb(), Theme::colors().button.rgb());
}

void TestTouchButton::theKeyboardReachesIt()
{
    TouchButton button(QStringLiteral("+"));
    QCOMPARE(button.focusPolicy(), Qt::TabFocus);
    QSignalSpy clicked(&button, &TouchButton::clicked);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(&button, key);
    QCOMPARE(clicked.size(), 3);
    button.setEnabled(false);
    QTest::keyClick(&button, Qt::Key_Return);
    QCOMPARE(clicked.size(), 3);
}

void TestTouchButton::aSymbolStandsForTheText()
{
    TouchButton button(QStringLiteral("Open"));
    button.resize(72, 72);
    button.setSymbol(Symbols::folder());
    QCOMPARE(paintedTexts(button), QStringList());
    int lit = 0;
    const QImage picture = button.grab().toImage();
    for (int x = 0; x < picture.width(); ++x)
        lit += picture.pixelColor(x, 42) == Theme::colors().text ? 1 : 0;
    QVERIFY(lit > 10);
}

void TestTouchButton::aFrameTellsWhoHasTheKeyboard()
{
    TouchButton button(QStringLiteral("Open"));
    button.resize(200, 88);
    const auto edge = [&button] { return button.grab().toImage().pixelColor(100, 1); };
    button.show();
    QApplication::setActiveWindow(&button);
    button.clearFocus();
    QCOMPARE(edge().rgb(), Theme::colors().button.rgb());
    button.setFocus();
    QTRY_VERIFY(button.hasFocus());
    // The focus came here by a finger.
    QCOMPARE(edge().rgb(), Theme::colors().button.rgb());
    Theme::showFocus(true);
    QCOMPARE(edge().rgb(), Theme::colors().accent.rgb());
    Theme::showFocus(false);
}

RXMAP_TEST(TestTouchButton, Widgets)
#include "tst_touchbutton.moc"
