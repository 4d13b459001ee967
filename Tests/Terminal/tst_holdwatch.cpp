#include "holdwatch.h"
#include "paths.h"
#include "testbase.h"

#include "Framework/orvikbuttonqgw.h"

#include <QDialog>

/// When a finger's hold has been taken.
class TestHoldWatch : public TestBase {
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

void TestHoldWatch::aLongTouchEndsTheHold()
{
    Button button;
    const HoldWatch watch(&button);
    Q_EMIT button.buttonPressed(3);
    QVERIFY(!watch.isOver());
    Q_EMIT button.longTouch(3);
    QVERIFY(watch.isOver());
}

void TestHoldWatch::aDialogThatOpensEndsTheHold()
{
    Button button;
    const HoldWatch watch(&button);
    QDialog dialog;
    dialog.open();
    QVERIFY(watch.isOver());
}

void TestHoldWatch::aDialogThatWasOpenBeforeDoesNot()
{
    QDialog before;
    before.open();
    Button button;
    const HoldWatch watch(&button);
    QVERIFY(!watch.isOver());
    QDialog another(&before);
    another.open();
    QVERIFY(watch.isOver());
}

void TestHoldWatch::aControlWithoutLongTouchesIsHeldOn()
{
    QWidget plain;
    QVERIFY(!HoldWatch(&plain).isOver());
    QVERIFY(!HoldWatch(nullptr).isOver());
}

void TestHoldWatch::aControlThatGoesEndsNothing()
{
    QScopedPointer<Button> button(new Button);
    const HoldWatch watch(button.data());
    button.reset();
    QVERIFY(!watch.isOver());
}

QTEST_MAIN(TestHoldWatch)
#include "tst_holdwatch.moc"
