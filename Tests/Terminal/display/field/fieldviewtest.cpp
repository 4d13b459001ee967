#include "fieldviewtest.h"

void FieldViewTest::init()
{
    TestBase::init();
    view.reset(new FieldView);
    view->resize(800, 600);
    view->frame(QRectF(-200, -100, 400, 200));
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.data()));
    QVERIFY(view->isValid());
}

void FieldViewTest::cleanup()
{
    view.reset();
    TestBase::cleanup();
}
