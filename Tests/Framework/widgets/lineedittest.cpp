#include "lineedittest.h"

#include "paths.h"

#include "Framework/orvikbutton.h"

#include <QApplication>

void LineEditTest::init()
{
    TestBase::init();
    images.setPath(buildPath("Simulator/Resources/images"));
    dialog.reset(new QDialog(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint));
    dialog->setGeometry(0, 0, 500, 400);
    field = addField(7, QPoint(100, 200));
    changed.reset(new QSignalSpy(field.data(), &OrvikLineEdit::textChanged));
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.data()));
}

void LineEditTest::cleanup()
{
    changed.reset();
    dialog.reset();
    TestBase::cleanup();
}

QWidget *LineEditTest::keypad()
{
    QWidget *open = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("numericKeypad") && window->isVisible())
            open = window;
    }
    return open;
}

void LineEditTest::touchKeys(const QString &keys)
{
    for (const QChar character : keys) {
        const QString name = character == '.' ? QStringLiteral("Point")
            : character == '-'                ? QStringLiteral("Minus")
            : character == '<'                ? QStringLiteral("Backspace")
            : character == '\n'               ? QStringLiteral("Enter")
                                              : QString(character);
        QVERIFY(keypad() != nullptr);
        auto *key = keypad()->findChild<OrvikButton *>(QStringLiteral("keypad") + name);
        QVERIFY(key != nullptr);
        QTest::mouseClick(key, Qt::LeftButton);
    }
}

OrvikLineEdit *LineEditTest::addField(int id, const QPoint &position)
{
    auto *added = new OrvikLineEdit(id, images, position, dialog.data());
    added->setNumericSizeLimits(3, 1);
    added->setText(QStringLiteral("2.5"));
    return added;
}
