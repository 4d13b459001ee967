#include "runonuithread.h"
#include "testbase.h"

#include <QDialog>
#include <QEventLoop>
#include <QThread>

/// Calls from a script's thread into the user-interface thread.
class TestRunOnUiThread : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theFunctionRunsOnTheOtherThreadAndItsResultComesBack();
    void theCallIsServedByTheEventLoopOfADialogThatACallOpened();
    void aFunctionWithoutAResultRunsToo();
    void aCallWhoseObjectGoesFirstGivesAnEmptyValue();
};

void TestRunOnUiThread::theFunctionRunsOnTheOtherThreadAndItsResultComesBack()
{
    QObject gui;
    QEventLoop loop;
    QThread *ranOn = nullptr;
    QString result;
    const QScopedPointer<QThread> thread(QThread::create([&] {
        result = runOnUiThread(&gui, [&ranOn] {
            ranOn = QThread::currentThread();
            return QStringLiteral("done");
        });
    }));
    connect(thread.data(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    QCOMPARE(ranOn, QThread::currentThread());
    QCOMPARE(result, QStringLiteral("done"));
}

void TestRunOnUiThread::theCallIsServedByTheEventLoopOfADialogThatACallOpened()
{
    QObject gui;
    QEventLoop outer;
    QDialog dialog;
    bool wasServedInside = false;
    const QScopedPointer<QThread> thread(QThread::create([&] {
        QMetaObject::invokeMethod(
            &gui, [&dialog] { dialog.exec(); }, Qt::QueuedConnection);
        wasServedInside =
            runOnUiThread(&gui, [&] { return dialog.isVisible() && QThread::currentThread() == gui.thread(); });
        runOnUiThread(&gui, [&dialog] {
            dialog.accept();
            return true;
        });
    }));
    connect(thread.data(), &QThread::finished, &outer, &QEventLoop::quit);
    thread->start();
    outer.exec();
    thread->wait();
    QVERIFY(wasServedInside);
}

void TestRunOnUiThread::aFunctionWithoutAResultRunsToo()
{
    QObject gui;
    QEventLoop loop;
    QThread *ranOn = nullptr;
    const QScopedPointer<QThread> thread(
        QThread::create([&] { runOnUiThread(&gui, [&ranOn] { ranOn = QThread::currentThread(); }); }));
    connect(thread.data(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    QCOMPARE(ranOn, QThread::currentThread());
}

void TestRunOnUiThread::aCallWhoseObjectGoesFirstGivesAnEmptyValue()
{
    QObject gui;
    bool hasRun = false;
    QString result = QStringLiteral("nothing yet");
    const QScopedPointer<QThread> thread(QThread::create([&] {
        result = runOnUiThread(&gui, [&hasRun] {
            hasRun = true;
            return QStringLiteral("done");
        });
    }));
    thread->start();
    // Calls that wait for an object are dropped when it is deleted; here the object stays, since it must not be deleted
    // before the thread has called.
    while (!thread->wait(1))
        QCoreApplication::removePostedEvents(&gui);
    QVERIFY(!hasRun);
    QCOMPARE(result, QString());
}

RXMAP_TEST(TestRunOnUiThread, Widgets)
#include "tst_runonuithread.moc"
