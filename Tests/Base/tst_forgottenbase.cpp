#include "testbase.h"

/// A test class whose init() hides that of its base, so that nobody watches for warnings. It must not pass.
class TestForgottenBase : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { }
    void init() { }
    void anUnexpectedWarning() { qWarning("a warning that nobody expects"); }
};

RXMAP_TEST(TestForgottenBase, Core)
#include "tst_forgottenbase.moc"
