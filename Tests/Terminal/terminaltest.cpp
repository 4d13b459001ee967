#include "terminaltest.h"

void TerminalTest::init()
{
    TestBase::init();
    host.reset(new TerminalHost);
    QCOMPARE(host->problem(), QString());
}

void TerminalTest::cleanup()
{
    host.reset();
    TestBase::cleanup();
}

LoadReport TerminalTest::open(const QString &file, const QStringList &columns)
{
    return terminal().open({{TerminalHost::fixture(file)}, columns}).first();
}
