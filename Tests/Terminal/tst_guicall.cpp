#include "guicall.h"
#include "testbase.h"

#include <QDialog>
#include <QEventLoop>
#include <QThread>

/// Calls from a script's thread to that of the user interface.
class TestGuiCall : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theFunctionRunsOnTheOtherThreadAndItsResultComesBack();
    void theCallIsServedByTheEventLoopOfADialogThatACallOpened();
    void aFunctionWithoutAResultRunsToo();
    void aCallWhoseObjectGoesFirstGivesAnEmptyValue();
};

void TestGuiCall::theFunctionRunsOnTheOtherThreadAndItsResultComesBack()
{
    QObject gui;
    QEventLoop loop;
    QThread *ranOn = nullptr;
    QString result;
    const QScopedPointer<QThread> thread(QThread::create([&] {
        result = callOnGui(&gui, [&ranOn] {
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

void TestGuiCall::theCallIsServedByTheEventLoopOfADialogThatACallOpened()
{
    QObject gui;
    QEventLoop outer;
    QDialog dialog;
    bool wasServedInside = false;
    const QScopedPointer<QThread> thread(QThread::create([&] {
        QMetaObject::invokeMethod(
            &gui, [&dialog] { dialog.exec(); }, Qt::QueuedConnection);
        wasServedInside =
            callOnGui(&gui, [&] { return dialog.isVisible() && QThread::currentThread() == gui.thread(); });
        callOnGui(&gui, [&dialog] {
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

void TestGuiCall::aFunctionWithoutAResultRunsToo()
{
    QObject gui;
    QEventLoop loop;
    QThread *ranOn = nullptr;
    const QScopedPointer<QThread> thread(
        QThread::create([&] { callOnGui(&gui, [&ranOn] { ranOn = QThread::currentThread(); }); }));
    connect(thread.data(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    QCOMPARE(ranOn, QThread::currentThread());
}

void TestGuiCall::aCallWhoseObjectGoesFirstGivesAnEmptyValue()
{
    QObject gui;
    bool hasRun = false;
    QString result = QStringLiteral("nothing yet");
    const QScopedPointer<QThread> thread(QThread::create([&] {
        result = callOnGui(&gui, [&hasRun] {
            hasRun = true;
            return QStringLiteral("done");
        });
    }));
    thread->start();
    // Calls that wait for an object are dropped when it goes; here the object stays, since it may not go before the
    // thread has called.
    while (!thread->wait(1))
        QCoreApplication::removePostedEvents(&gui);
    QVERIFY(!hasRun);
    QCOMPARE(result, QString());
}

QTEST_MAIN(TestGuiCall)
#include "tst_guicall.moc"
