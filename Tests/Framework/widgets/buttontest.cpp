#include "buttontest.h"

void ButtonTest::init()
{
    TestBase::init();
    files.reset(new TestImages);
    window.reset(new QWidget);
    window->resize(300, 200);
    const QStringList names{files->add(QStringLiteral("off.png"), buttonSize, Qt::lightGray),
                            files->add(QStringLiteral("on.png"), buttonSize, Qt::darkBlue)};
    button = new OrvikButton(42, files->directory(), names, QPoint(20, 30), window.data(), false);
    released.reset(new QSignalSpy(button, &OrvikButton::buttonReleased));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
}

void ButtonTest::cleanup()
{
    released.reset();
    window.reset();
    files.reset();
    TestBase::cleanup();
}
