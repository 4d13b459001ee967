#include "displaystates.h"
#include "paths.h"
#include "terminaltest.h"
#include "terminalwindow.h"
#include "theme.h"
#include "wheelbar.h"

#include "Framework/orvikbutton.h"
#include "Framework/orviklineedit.h"

#include <QAbstractButton>
#include <QApplication>

/// Whether a gloved finger can hit what it should touch: 9 mm at the pixel pitch of the display.
class TestTouchTargets : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void thePitchIsThatOfTheDisplay();
    void whatIsTouchedIsBigEnough_data();
    void whatIsTouchedIsBigEnough();
    void theKeypadsKeysAreBigEnough();

private:
    static void check(const QWidget &control);
};

void TestTouchTargets::thePitchIsThatOfTheDisplay()
{
    constexpr double diagonal = 10.1 * 25.4; // mm
    const QSize pixels = TerminalWindow::displaySize;
    const double pitch = diagonal / std::hypot(pixels.width(), pixels.height());
    QVERIFY2(qAbs(pitch - Theme::millimetresPerPixel) < 0.0005, qPrintable(QString::number(pitch, 'g', 6)));
}

void TestTouchTargets::check(const QWidget &control)
{
    const double width = Theme::millimetresPerPixel * control.width();
    const double height = Theme::millimetresPerPixel * control.height();
    QVERIFY2(qMin(width, height) >= Theme::leastTouchTarget,
             qPrintable(QStringLiteral("%1: %2 mm × %3 mm").arg(control.objectName()).arg(width).arg(height)));
}

void TestTouchTargets::whatIsTouchedIsBigEnough_data()
{
    QTest::addColumn<QString>("state");
    for (const QString &state : DisplayStates::names())
        QTest::newRow(qPrintable(state)) << state;
}

void TestTouchTargets::whatIsTouchedIsBigEnough()
{
    QFETCH(QString, state);
    DisplayStates display(*host);
    QVERIFY(display.bring(state));
    int controls = 0;
    const QList<QWidget *> all = terminal().window()->findChildren<QWidget *>();
    for (const QWidget *widget : all) {
        const bool isTouched = qobject_cast<const QAbstractButton *>(widget) != nullptr
            || qobject_cast<const WheelBar *>(widget) != nullptr;
        if (!isTouched || !widget->isVisible())
            continue;
        ++controls;
        check(*widget);
    }
    QVERIFY2(controls >= 8, qPrintable(QString::number(controls)));
}

void TestTouchTargets::theKeypadsKeysAreBigEnough()
{
    OrvikLineEdit field(1, QDir(buildPath("Simulator/Resources/images")), QPoint(), nullptr);
    field.show();
    QTest::mouseClick(&field, Qt::LeftButton);
    const QWidget *keypad = QApplication::activePopupWidget();
    QVERIFY(keypad != nullptr);
    const QList<OrvikButton *> keys = keypad->findChildren<OrvikButton *>();
    QCOMPARE(keys.size(), 14);
    for (const OrvikButton *key : keys)
        check(*key);
}

RXMAP_TEST(TestTouchTargets, Widgets)
#include "tst_touchtargets.moc"
