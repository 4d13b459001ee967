#include "numerickey.h"
#include "testbase.h"

#include <QKeyEvent>

class tst_NumericKey : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void readsAHardwareKey_data();
    void readsAHardwareKey();
};

void tst_NumericKey::readsAHardwareKey_data()
{
    using Action = NumericKey::Action;
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("action");
    QTest::addColumn<QChar>("character");

    const auto row = [](const char *name, int key, Action action, QChar character = QChar(), int modifiers = 0) {
        QTest::newRow(name) << key << modifiers << int(action) << character;
    };
    row("zero", Qt::Key_0, Action::Character, '0');
    row("nine", Qt::Key_9, Action::Character, '9');
    row("number block", Qt::Key_5, Action::Character, '5', Qt::KeypadModifier);
    row("point", Qt::Key_Period, Action::Character, '.');
    row("comma", Qt::Key_Comma, Action::Character, '.');
    row("minus", Qt::Key_Minus, Action::Character, '-');
    row("backspace", Qt::Key_Backspace, Action::EraseLast);
    row("delete", Qt::Key_Delete, Action::Clear);
    row("return", Qt::Key_Return, Action::Finish);
    row("enter", Qt::Key_Enter, Action::Finish, QChar(), Qt::KeypadModifier);
    row("escape", Qt::Key_Escape, Action::Finish);
    row("letter", Qt::Key_E, Action::None);
    row("tabulator", Qt::Key_Tab, Action::None);
    row("shortcut", Qt::Key_0, Action::None, QChar(), Qt::ControlModifier);
}

void tst_NumericKey::readsAHardwareKey()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    const NumericKey read = NumericKey::of(QKeyEvent(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers)));
    QTEST(int(read.action), "action");
    QTEST(read.character, "character");
}

RXMAP_TEST(tst_NumericKey, None)
#include "tst_numerickey.moc"
