#include "longtouchwatch.h"
#include "paths.h"
#include "testbase.h"

#include "Framework/orvikbuttonqgw.h"

#include <QDialog>

/// When a button that is held has taken the long touch.
class TestLongTouchWatch : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aLongTouchEndsTheHold();
    void aDialogThatOpensEndsTheHold();
    void aDialogThatWasOpenBeforeDoesNot();
    void aControlWithoutLongTouchesIsHeldOn();
    void aControlThatGoesEndsNothing();
};

namespace {

struct Button : OrvikButtonQgw {
    Button()
        : OrvikButtonQgw(3, QDir(buildPath("Simulator/Resources/images")), {QStringLiteral("xBoxBg.png")}, QPointF(),
                         nullptr)
    {
    }
};

} // namespace

void TestLongTouchWatch::aLongTouchEndsTheHold()
{
    Button button;
    const LongTouchWatch watch(&button);
    Q_EMIT button.buttonPressed(3);
    QVERIFY(!watch.isOver());
    Q_EMIT button.longTouch(3);
    QVERIFY(watch.isOver());
}

void TestLongTouchWatch::aDialogThatOpensEndsTheHold()
{
    Button button;
    const LongTouchWatch watch(&button);
    QDialog dialog;
    dialog.open();
    QVERIFY(watch.isOver());
}

void TestLongTouchWatch::aDialogThatWasOpenBeforeDoesNot()
{
    QDialog before;
    before.open();
    Button button;
    const LongTouchWatch watch(&button);
    QVERIFY(!watch.isOver());
    QDialog another(&before);
    another.open();
    QVERIFY(watch.isOver());
}

void TestLongTouchWatch::aControlWithoutLongTouchesIsHeldOn()
{
    QWidget plain;
    QVERIFY(!LongTouchWatch(&plain).isOver());
    QVERIFY(!LongTouchWatch(nullptr).isOver());
}

void TestLongTouchWatch::aControlThatGoesEndsNothing()
{
    QScopedPointer<Button> button(new Button);
    const LongTouchWatch watch(button.data());
    button.reset();
    QVERIFY(!watch.isOver());
}

RXMAP_TEST(TestLongTouchWatch, Widgets)
#include "tst_longtouchwatch.moc"
