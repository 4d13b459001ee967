#include "files.h"
#include "scriptrunner.h"
#include "terminalhost.h"
#include "terminalwindow.h"
#include "testbase.h"

#include <QApplication>
#include <QTemporaryDir>

#include <sys/stat.h>

/// Whole scripts, from their first line to their end, on a terminal with the plug-in.
class TestScriptRunner : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void anUncaughtErrorNamesFileAndLine_data();
    void anUncaughtErrorNamesFileAndLine();
    void aMissingScriptIsNamed();
    void onlyAPlainFileIsRunAsScript();
    void whatIsNoScriptIsRefused();
    void aScriptGoesOnWhileADialogIsOpen();
    void aDialogThatWasLeftOpenIsClosedAtTheEnd();
    void theDialogsEditsComeThrough();
    void screenshotsShowTheOpenDialog();
    void aScriptThatNeverEndsCanBeInterrupted();
    void anInterruptBeforeTheScriptRunsEndsIt();
    void theProgramsEndInterruptsAScript_data();
    void theProgramsEndInterruptsAScript();
    void theProgramsEndClosesTheScriptsDialog();

private:
    QString run(const QString &program);

    QScopedPointer<TerminalHost> host;
    QScopedPointer<QTemporaryDir> folder;
};

void TestScriptRunner::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
    host.reset(new TerminalHost);
    QCOMPARE(host->problem(), QString());
}

void TestScriptRunner::cleanup()
{
    host.reset();
    TestBase::cleanup();
}

QString TestScriptRunner::run(const QString &program)
{
    return ScriptRunner(&host->terminal())
        .evaluate(TerminalHost::scriptStart(folder->path()) + program, QStringLiteral("test.js"));
}

void TestScriptRunner::anUncaughtErrorNamesFileAndLine_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *title, const QString &program, const char *error) {
        QTest::newRow(title) << program << error;
    };
    row("thrown error", "\n\nthrow new Error('broken');", "test.js:3: Error: broken");
    row("thrown text", "throw 'broken';", "test.js: Error: broken");
    row("unknown name", "var a = 1;\nnothing();", "test.js:2: ReferenceError: nothing is not defined");
    row("syntax", "\nvar = 3;", "test.js:2: SyntaxError: ");
    row("unknown property", "\nterminal.foo = 1;", "test.js:2: TypeError: the terminal has no \"foo\"");
    row("refused value", "\nterminal.activeProduct = 99;", "test.js:2: Error: no product 99");
    const QString endless = QStringLiteral("var list = [1]; list[1] = list;\n");
    row("endless list printed", endless + "print(list);", "test.js:2: RangeError: ");
    row("endless list thrown", endless + "throw list;", "test.js: Error: what was thrown has no text");
    row("endless message", "var e = new Error; e.message = e; throw e;", "test.js: Error: what was thrown has no text");
    row("long text printed", "\nprint('x'.repeat(17000000));", "test.js:2: RangeError: a text of more than");
    row("long list printed", "\nprint(new Array(1e9));", "test.js:2: RangeError: a text of more than");
    row("long text thrown", "throw 'x'.repeat(17000000);", "test.js: Error: xxx");
    row("long message", "\nthrow new Error('x'.repeat(17000000));", "test.js:2: Error: xxx");
}

void TestScriptRunner::anUncaughtErrorNamesFileAndLine()
{
    QFETCH(QString, program);
    QFETCH(QString, error);
    const QString result = ScriptRunner(&host->terminal()).evaluate(program, QStringLiteral("test.js"));
    QVERIFY2(result.startsWith(error), qPrintable(result.left(200)));
    QVERIFY2(result.size() < 1100, "longer than anybody reads");
}

void TestScriptRunner::aMissingScriptIsNamed()
{
    const QString error = ScriptRunner(&host->terminal()).run(QStringLiteral("/no/such.js"));
    QVERIFY2(error.startsWith(QLatin1String("/no/such.js: ")), qPrintable(error));
}

void TestScriptRunner::onlyAPlainFileIsRunAsScript()
{
    const QString pipe = folder->filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    ScriptRunner runner(&host->terminal());
    QCOMPARE(runner.run(QStringLiteral("/dev/null")), QStringLiteral("/dev/null: is no plain file"));
    QCOMPARE(runner.run(folder->path()), folder->path() + QStringLiteral(": is a folder, not a file"));
    QCOMPARE(runner.run(pipe), pipe + QStringLiteral(": is no plain file"));
}

void TestScriptRunner::whatIsNoScriptIsRefused()
{
    const QString path = folder->filePath(QStringLiteral("no-script%2.js"));
    ScriptRunner runner(&host->terminal());
    writeFile(path, QByteArray("print('a');\n\0\nthrow 1;", 21));
    QCOMPARE(runner.run(path), path + QStringLiteral(":2: holds a NUL byte, so it is no text"));
    writeFile(path, QByteArray((16 << 20) + 1, ' '));
    QCOMPARE(runner.run(path), path + QStringLiteral(": has more than 16 MB"));
}

void TestScriptRunner::aScriptGoesOnWhileADialogIsOpen()
{
    QCOMPARE(run("terminal.open(zones, {columns: ['SEED_K_HA']}); terminal.find('rxOptions').longTouch();"
                 "var d = terminal.find('rxMapSettings'); same([d.visible, d.x, d.y, d.width, d.height], [true, 240, "
                 "0, 800, 800]);"
                 "same(terminal.find('doneButton').x, 715);"
                 "terminal.drive(2); terminal.wait(700); same(terminal.find('lookAheadEdit').enabled, false);"
                 "same(terminal.find('doneButton').image, 1); terminal.stop(); terminal.wait(700);"
                 "same(terminal.find('lookAheadEdit').enabled, true);"
                 "same(terminal.touchMap(0, 0), 'Rx Rate: 80.00');"
                 "terminal.find('productButton1').touch(); same(terminal.find('notUnderVraLabel').visible, true);"
                 "terminal.find('productButton0').touch(); var hidden = '';"
                 "try { terminal.find('notUnderVraLabel').touch(); } catch (e) { hidden = e.message; }"
                 "same(hidden, 'control \"notUnderVraLabel\" is not on the display');"
                 "terminal.find('doneButton').touch(); same(terminal.find('rxMapSettings'), null);"
                 "terminal.find('rxOptions').longTouch(); same(terminal.find('rxMapSettings').visible, true);"
                 "terminal.find('doneButton').touch();"),
             QString());
}

void TestScriptRunner::aDialogThatWasLeftOpenIsClosedAtTheEnd()
{
    QCOMPARE(run("terminal.open(zones); terminal.find('rxOptions').longTouch();"), QString());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(run("terminal.find('rxOptions').longTouch(); throw new Error('left');").contains(QLatin1String("left")));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestScriptRunner::theDialogsEditsComeThrough()
{
    QCOMPARE(run("var m = terminal.open(zones, {columns: ['SEED_K_HA']}); terminal.find('rxOptions').longTouch();"
                 "var e = terminal.find('lookAheadEdit'); e.enter('2.5'); same(e.text, '2.5');"
                 "e.enter('3'); same(e.text, '3'); terminal.find('zeroRateShutoffBox').touch();"
                 "same(terminal.find('zeroRateShutoffBox').image, 1);"
                 "terminal.find('doneButton').touch(); var s = terminal.get(m.group, 'settings')[0];"
                 "same([s.onLookAheadMs, s.zeroRateShutoff], [3000, true]);"
                 "same(terminal.get('quillSpan', 'reInitCount'), 1);"),
             QString());
}

void TestScriptRunner::screenshotsShowTheOpenDialog()
{
    QCOMPARE(run("terminal.open(zones); terminal.find('rxOptions').longTouch();"
                 "terminal.screenshot(folder + '/open.png'); terminal.find('doneButton').touch();"
                 "terminal.screenshot(folder + '/closed.png');"),
             QString());
    const QImage open(folder->filePath("open.png"));
    const QImage closed(folder->filePath("closed.png"));
    QCOMPARE(open.size(), TerminalWindow::displaySize);
    QVERIFY(open.copy(240, 0, 800, 800) != closed.copy(240, 0, 800, 800));
    // The map beside the dialog looks the same; the controls there look out of reach.
    QCOMPARE(open.copy(0, 420, 240, 380), closed.copy(0, 420, 240, 380));
    QVERIFY(open.copy(0, 72, 240, 348) != closed.copy(0, 72, 240, 348));
}

void TestScriptRunner::aScriptThatNeverEndsCanBeInterrupted()
{
    for (const QString &program : {QStringLiteral("for (;;) {}"), QStringLiteral("terminal.wait(1e9);")}) {
        ScriptRunner runner(&host->terminal());
        QTimer::singleShot(200, &runner, &ScriptRunner::interrupt);
        QCOMPARE(runner.evaluate(program, QStringLiteral("endless.js")), QStringLiteral("endless.js: interrupted"));
    }
}

void TestScriptRunner::anInterruptBeforeTheScriptRunsEndsIt()
{
    ScriptRunner runner(&host->terminal());
    runner.interrupt();
    QCOMPARE(runner.evaluate(QStringLiteral("for (;;) {}"), QStringLiteral("endless.js")),
             QStringLiteral("endless.js: interrupted"));
}

void TestScriptRunner::theProgramsEndInterruptsAScript_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("that computes") << QStringLiteral("for (;;) {}");
    QTest::newRow("that waits") << QStringLiteral("terminal.wait(1e9);");
    QTest::newRow("that calls the terminal") << QStringLiteral("for (;;) terminal.activeProduct;");
}

void TestScriptRunner::theProgramsEndInterruptsAScript()
{
    QFETCH(QString, program);
    ScriptRunner runner(&host->terminal());
    QString error;
    QTimer::singleShot(0, this, [&] {
        QTimer::singleShot(100, qApp, &QCoreApplication::quit);
        error = runner.evaluate(program, QStringLiteral("endless.js"));
    });
    QApplication::exec();
    QCOMPARE(error, QStringLiteral("endless.js: interrupted"));
}

void TestScriptRunner::theProgramsEndClosesTheScriptsDialog()
{
    QString error;
    QTimer whenOpen;
    connect(&whenOpen, &QTimer::timeout, qApp, [] {
        if (QApplication::activeModalWidget() != nullptr)
            QCoreApplication::quit();
    });
    QTimer::singleShot(0, this, [&] {
        whenOpen.start(0);
        error = run("terminal.open(zones); terminal.find('rxOptions').longTouch(); for (;;) terminal.activeProduct;");
        whenOpen.stop();
    });
    QApplication::exec();
    QCOMPARE(error, QStringLiteral("test.js: interrupted"));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

RXMAP_TEST(TestScriptRunner, Widgets)
#include "tst_scriptrunner.moc"
