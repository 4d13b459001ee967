#include "scriptcontrol.h"
#include "testbase.h"

#include <QEventLoop>
#include <QJSEngine>
#include <QPushButton>
#include <QThread>

/// A control in a script's hands, with the script on a thread of its own.
class TestScriptControl : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itTellsWhatTheDisplayShows();
    void aControlThatWentAwayIsLookedUpAnew();
    void aTouchReachesTheControlAndIsAnnounced();
    void aControlThatIsNotOnTheDisplayThrows_data();
    void aControlThatIsNotOnTheDisplayThrows();

private:
    /// The result of the script, which knows the control as `box`.
    QString run(const QString &program);
    void addBox(const QString &text);

    QScopedPointer<QWidget> window;
    QPushButton *box = nullptr;
    int announcements = 0;
};

void TestScriptControl::init()
{
    TestBase::init();
    announcements = 0;
    window.reset(new QWidget);
    window->resize(300, 200);
    addBox(QStringLiteral("first"));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
}

void TestScriptControl::cleanup()
{
    window.reset();
    TestBase::cleanup();
}

void TestScriptControl::addBox(const QString &text)
{
    box = new QPushButton(text, window.data());
    box->setObjectName(QStringLiteral("box"));
    box->setGeometry(40, 50, 120, 60);
    box->show();
}

QString TestScriptControl::run(const QString &program)
{
    QString result;
    QEventLoop loop;
    const QScopedPointer<QThread> thread(QThread::create([&] {
        QJSEngine engine;
        auto *control = new ScriptControl(QStringLiteral("box"), window.data());
        connect(control, &ScriptControl::acted, control, [this] { ++announcements; });
        engine.globalObject().setProperty(QStringLiteral("box"), engine.newQObject(control));
        result = engine.evaluate(program).toString();
    }));
    connect(thread.data(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    return result;
}

void TestScriptControl::itTellsWhatTheDisplayShows()
{
    const QString all = QStringLiteral(
        "[box.text, box.image, box.visible, box.enabled, box.x, box.y, box.width, box.height].join(' ')");
    QCOMPARE(run(all), QStringLiteral("first -1 true true 40 50 120 60"));
    box->setEnabled(false);
    QCOMPARE(run(all), QStringLiteral("first -1 true false 40 50 120 60"));
    box->hide();
    QCOMPARE(run(all), QStringLiteral("first -1 false false 40 50 120 60"));
}

void TestScriptControl::aControlThatWentAwayIsLookedUpAnew()
{
    connect(box, &QPushButton::clicked, window.data(), [this] {
        box->setObjectName(QString());
        box->deleteLater();
        addBox(QStringLiteral("second"));
    });
    QCOMPARE(run(QStringLiteral("var before = box.text; box.touch(); before + ' ' + box.text")),
             QStringLiteral("first second"));
}

void TestScriptControl::aTouchReachesTheControlAndIsAnnounced()
{
    int touches = 0;
    connect(box, &QPushButton::clicked, window.data(), [&touches] { ++touches; });
    QCOMPARE(run(QStringLiteral("box.touch(); 'went on'")), QStringLiteral("went on"));
    QCOMPARE(touches, 1);
    QCOMPARE(announcements, 1);
}

void TestScriptControl::aControlThatIsNotOnTheDisplayThrows_data()
{
    QTest::addColumn<QString>("program");
    for (const char *program : {"box.touch()", "box.longTouch()", "box.enter('5')"})
        QTest::newRow(program) << QString::fromLatin1(program);
}

void TestScriptControl::aControlThatIsNotOnTheDisplayThrows()
{
    QFETCH(QString, program);
    box->hide();
    QCOMPARE(run(program), QStringLiteral("Error: control \"box\" is not on the display"));
}

RXMAP_TEST(TestScriptControl, Widgets)
#include "tst_scriptcontrol.moc"
