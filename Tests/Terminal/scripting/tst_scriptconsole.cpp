#include "scriptconsole.h"
#include "streamcapture.h"
#include "testbase.h"

#include <QJSEngine>

/// Where the lines that a script prints go.
class TestScriptConsole : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aLineStandsOnStandardOutputAtOnce();
    void linesAreWrittenAsTheyAre_data();
    void linesAreWrittenAsTheyAre();
    void namesInLinesAreMadeHarmless();
    void scriptsCanCallIt();
};

void TestScriptConsole::aLineStandsOnStandardOutputAtOnce()
{
    const ScriptConsole console;
    StreamCapture output(stdout);
    console.writeLine(QStringLiteral("one"));
    const QString first = output.written();
    console.writeLine(QStringLiteral("two"));
    const QString both = output.written();
    QCOMPARE(first, QStringLiteral("one\n"));
    QCOMPARE(both, QStringLiteral("one\ntwo\n"));
}

void TestScriptConsole::linesAreWrittenAsTheyAre_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("nothing") << QString();
    QTest::newRow("other letters") << QString::fromUtf8("Düngung 50 % – 12 €");
    QTest::newRow("what formats would take") << QStringLiteral("%s %d %n %1");
    QTest::newRow("two lines") << QStringLiteral("one\ntwo");
}

void TestScriptConsole::linesAreWrittenAsTheyAre()
{
    QFETCH(QString, line);
    QString written;
    {
        StreamCapture output(stdout);
        ScriptConsole().writeLine(line);
        written = output.written();
    }
    QCOMPARE(written, line + QLatin1Char('\n'));
}

void TestScriptConsole::namesInLinesAreMadeHarmless()
{
    StreamCapture output(stdout);
    ScriptConsole().writeLine(QStringLiteral("a\tRA\x1b\u202eTE"));
    const QString written = output.written();
    QCOMPARE(written, QStringLiteral("a\tRA??TE\n"));
}

void TestScriptConsole::scriptsCanCallIt()
{
    QJSEngine engine;
    engine.globalObject().setProperty(QStringLiteral("console"), engine.newQObject(new ScriptConsole));
    QString written;
    {
        StreamCapture output(stdout);
        engine.evaluate(QStringLiteral("console.writeLine(6 * 7)"));
        written = output.written();
    }
    QCOMPARE(written, QStringLiteral("42\n"));
}

RXMAP_TEST(TestScriptConsole, Core)
#include "tst_scriptconsole.moc"
