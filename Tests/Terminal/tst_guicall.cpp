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

QTEST_MAIN(TestGuiCall)
#include "tst_guicall.moc"
