#include "dialogtest.h"

void DialogTest::init()
{
    TestBase::init();
    host.reset(new DialogHost);
}

void DialogTest::cleanup()
{
    probe.reset();
    dialog.reset();
    host.reset();
    TestBase::cleanup();
}

void DialogTest::open()
{
    dialog.reset(new RxMapWidgetDialog01(&host->broker, host->images, nullptr));
    probe.reset(new DialogProbe(*dialog));
    dialog->show();
}

void DialogTest::done()
{
    DialogProbe::release(probe->doneButton());
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
}
