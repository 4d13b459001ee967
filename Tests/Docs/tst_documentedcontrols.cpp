#include "displaystates.h"
#include "documentpage.h"
#include "terminalhost.h"
#include "terminalwindow.h"
#include "testbase.h"

#include <QAbstractButton>
#include <QRegularExpression>

/// Scripts can find each button of the terminal by a name given in the reference.
class DocumentedControlsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyButtonIsNamedInTheReference_data();
    void everyButtonIsNamedInTheReference();
};

void DocumentedControlsTest::everyButtonIsNamedInTheReference_data()
{
    QTest::addColumn<QString>("state");
    for (const QString &state : DisplayStates::names())
        QTest::newRow(qPrintable(state)) << state;
}

void DocumentedControlsTest::everyButtonIsNamedInTheReference()
{
    QFETCH(QString, state);
    const DocumentPage reference(QStringLiteral("docs/simulator.md"));
    const QStringList told = DocumentPage::code(
        DocumentPage::cells(reference.section(QStringLiteral("Controls")), 1).join(QLatin1Char(' ')));
    static const QRegularExpression number(QStringLiteral("\\d+"));
    TerminalHost host;
    QVERIFY(DisplayStates(host).bring(state));
    const QList<QAbstractButton *> buttons = host.terminal().window()->findChildren<QAbstractButton *>();
    QVERIFY(!buttons.isEmpty());
    for (const QAbstractButton *button : buttons) {
        const QString name = button->objectName().replace(number, QStringLiteral("<n>"));
        QVERIFY2(told.contains(name), qPrintable(QStringLiteral("\"%1\"").arg(name)));
    }
}

RXMAP_TEST(DocumentedControlsTest, Widgets)
#include "tst_documentedcontrols.moc"
