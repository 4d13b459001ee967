#include "contrast.h"
#include "displaystates.h"
#include "paintedcontrasts.h"
#include "paths.h"
#include "terminaltest.h"
#include "terminalwindow.h"

#include "Framework/orviklineedit.h"

#include <QAbstractButton>
#include <QLabel>

/// Whether every text of the display can be read, by day and by night: each text is checked as it is painted.
class TestContrast : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyTextStandsOutFromWhatItIsWrittenOn_data();
    void everyTextStandsOutFromWhatItIsWrittenOn();
    void theKeypadsTextsStandOut();
    void aPaleTextIsNoticed();

private:
    /// The texts of the widget that do not stand out, each with its colours.
    static QStringList faint(QWidget &widget);
    /// The same for a button, in every state that it can be in.
    static QStringList faintOfButton(QAbstractButton &button);
};

void TestContrast::cleanup()
{
    TerminalTest::cleanup();
    Theme::use(Theme::Kind::Day);
}

void TestContrast::everyTextStandsOutFromWhatItIsWrittenOn_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("isNight");
    for (const QString &state : DisplayStates::names()) {
        QTest::newRow(qPrintable(state + QStringLiteral(" by day"))) << state << false;
        QTest::newRow(qPrintable(state + QStringLiteral(" by night"))) << state << true;
    }
}

QStringList TestContrast::faint(QWidget &widget)
{
    QStringList found;
    // The map shows through and may have any colour.
    for (const QColor &backdrop : {QColor(Qt::black), QColor(Qt::white)}) {
        const QList<PaintedText> texts = paintedContrasts(widget, backdrop);
        for (const PaintedText &text : texts) {
            if (text.contrast() < leastContrast)
                found.append(QStringLiteral("\"%1\" of %2: %3 on %4 is %5")
                                 .arg(text.text, widget.objectName(), text.color.name(), text.ground.name(),
                                      QString::number(text.contrast())));
        }
    }
    return found;
}

QStringList TestContrast::faintOfButton(QAbstractButton &button)
{
    const bool wasEnabled = button.isEnabled();
    QStringList found;
    button.setEnabled(false);
    found += faint(button);
    button.setEnabled(true);
    button.setDown(true);
    found += faint(button);
    button.setDown(false);
    button.setEnabled(wasEnabled);
    return found;
}

void TestContrast::everyTextStandsOutFromWhatItIsWrittenOn()
{
    QFETCH(QString, state);
    QFETCH(bool, isNight);
    DisplayStates display(*host);
    QVERIFY(display.bring(state));
    terminal().window()->setTheme(isNight ? Theme::Kind::Night : Theme::Kind::Day);
    QStringList found;
    int texts = 0;
    const QList<QWidget *> pieces = display.pieces();
    for (QWidget *piece : pieces) {
        found += faint(*piece);
        texts += paintedContrasts(*piece, Qt::black).size();
        const QList<QAbstractButton *> buttons = piece->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (button->isVisible())
                found += faintOfButton(*button);
        }
    }
    QVERIFY2(texts > 10, qPrintable(QString::number(texts)));
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void TestContrast::theKeypadsTextsStandOut()
{
    OrvikLineEdit field(1, QDir(buildPath("Simulator/Resources/images")), QPoint(), nullptr);
    field.setNumericRange(-5.0, 50.0, 1);
    field.setText(QStringLiteral("2.5"));
    field.show();
    QTest::mouseClick(&field, Qt::LeftButton);
    QWidget *keypad = QApplication::activePopupWidget();
    QVERIFY(keypad != nullptr);
    QCOMPARE(faint(*keypad), QStringList());
    // The reason why a key was refused must stand out, too.
    for (const Qt::Key key : {Qt::Key_7, Qt::Key_7})
        QTest::keyClick(keypad, key);
    QCOMPARE(faint(*keypad), QStringList());
}

void TestContrast::aPaleTextIsNoticed()
{
    QLabel label(QStringLiteral("pale"));
    label.setAutoFillBackground(true);
    QPalette palette(QColor(140, 140, 140), Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, QColor(120, 120, 120));
    label.setPalette(palette);
    label.resize(label.sizeHint());
    QCOMPARE(faint(label).size(), 2);
    palette.setColor(QPalette::WindowText, QColor(110, 110, 110));
    label.setPalette(palette);
    QCOMPARE(faint(label), QStringList());
}

RXMAP_TEST(TestContrast, Widgets)
#include "tst_contrast.moc"
