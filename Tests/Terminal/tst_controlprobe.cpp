#include "controlprobe.h"
#include "paths.h"
#include "testbase.h"

#include "Framework/orvikbutton.h"
#include "Framework/orvikbuttonqgw.h"
#include "Framework/orviklineedit.h"

#include <QDialog>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include <deque>

/// What a finger or an eye at the display tells of the controls.
class TestControlProbe : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingIsFoundUnderAnUnknownName();
    void aWindowIsFoundByItsOwnName();
    void theDialogOnTopIsSearchedFirst();
    void aVisibleControlComesBeforeAHiddenOne();
    void controlsTellTheirTextAndImage();
    void aNullControlHasNothingToTell();
    void visibilityAndLockAreThoseOfTheMoment();
    void placesAreThoseInTheParentAndItemsAreOnTheDisplay();
    void aFingerReachesTheMiddleOfAControl();
    void whatIsHiddenCannotBeTouched();
    void keysGoToTheFieldWhoseKeypadIsOpen();
    void typingNothingEmptiesTheField();

private:
    /// Opens the field's keypad as a touch does.
    void touchField();

    QDir images{buildPath("Simulator/Resources/images")};
    QScopedPointer<QWidget> window;
    OrvikButton *box = nullptr;
    OrvikLineEdit *field = nullptr;
    QLabel *label = nullptr;
    OrvikButtonQgw *item = nullptr;
};

void TestControlProbe::init()
{
    TestBase::init();
    window.reset(new QWidget);
    window->setObjectName(QStringLiteral("window"));
    window->resize(600, 400);
    box = new OrvikButton(7, images, {QStringLiteral("xBoxBg.png"), QStringLiteral("xBoxOn.png")}, QPoint(20, 30),
                          window.data(), false);
    box->setObjectName(QStringLiteral("box"));
    field = new OrvikLineEdit(1, images, QPoint(200, 30), window.data());
    field->setNumericRange(0.0, 5000.0, 1);
    field->setObjectName(QStringLiteral("field"));
    label = new QLabel(QStringLiteral("a caption"), window.data());
    label->setObjectName(QStringLiteral("label"));
    label->setGeometry(20, 120, 150, 24);
    auto *page = new QGraphicsView(window.data());
    page->setFrameShape(QFrame::NoFrame);
    page->setScene(new QGraphicsScene(0, 0, 200, 150, page));
    page->setGeometry(300, 200, 200, 150);
    item = new OrvikButtonQgw(3, images, {QStringLiteral("xBoxBg.png"), QStringLiteral("xBoxOn.png")}, QPointF(10, 20),
                              nullptr);
    item->setObjectName(QStringLiteral("item"));
    page->scene()->addItem(item);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
}

void TestControlProbe::cleanup()
{
    window.reset();
    TestBase::cleanup();
}

void TestControlProbe::touchField()
{
    const ControlProbe::Spot spot = ControlProbe::middle(field);
    ControlProbe::press(spot);
    ControlProbe::release(spot);
    QTRY_VERIFY(ControlProbe::hasKeyboard(field));
}

void TestControlProbe::nothingIsFoundUnderAnUnknownName()
{
    QVERIFY(ControlProbe::find(QStringLiteral("nobody")) == nullptr);
}

void TestControlProbe::aWindowIsFoundByItsOwnName()
{
    QCOMPARE(ControlProbe::find(QStringLiteral("window")), window.data());
    QCOMPARE(ControlProbe::find(QStringLiteral("box")), box);
    QCOMPARE(ControlProbe::find(QStringLiteral("item")), item);
}

void TestControlProbe::theDialogOnTopIsSearchedFirst()
{
    // The order of windows without a dialog is anybody's.
    std::deque<QLabel> others(20);
    for (QLabel &other : others) {
        other.setObjectName(QStringLiteral("label"));
        other.show();
    }
    QDialog dialog(window.data());
    auto *other = new QLabel(QStringLiteral("another caption"), &dialog);
    other->setObjectName(QStringLiteral("label"));
    dialog.open();
    QTRY_VERIFY(QApplication::activeModalWidget() == &dialog);
    QCOMPARE(ControlProbe::find(QStringLiteral("label")), other);
    dialog.close();
    others.clear();
    QCOMPARE(ControlProbe::find(QStringLiteral("label")), label);
}

void TestControlProbe::aVisibleControlComesBeforeAHiddenOne()
{
    auto *hidden = new QLabel(window.data());
    hidden->setObjectName(QStringLiteral("twice"));
    QCOMPARE(ControlProbe::find(QStringLiteral("twice")), hidden);
    auto *visible = new QLabel(window.data());
    visible->setObjectName(QStringLiteral("twice"));
    visible->show();
    QCOMPARE(ControlProbe::find(QStringLiteral("twice")), visible);
}

void TestControlProbe::controlsTellTheirTextAndImage()
{
    box->addText(0, QStringLiteral("P01"), Qt::white, QFont());
    box->setCurrentImage(1);
    field->setText(QStringLiteral("2.5"));
    item->setCurrentImage(1);
    const QPushButton plain(QStringLiteral("Field"));
    QCOMPARE(ControlProbe::text(box), QStringLiteral("P01"));
    QCOMPARE(ControlProbe::text(field), QStringLiteral("2.5"));
    QCOMPARE(ControlProbe::text(label), QStringLiteral("a caption"));
    QCOMPARE(ControlProbe::text(&plain), QStringLiteral("Field"));
    QCOMPARE(ControlProbe::text(item), QString());
    QCOMPARE(ControlProbe::image(box), 1);
    QCOMPARE(ControlProbe::image(item), 1);
    QCOMPARE(ControlProbe::image(label), -1);
}

void TestControlProbe::aNullControlHasNothingToTell()
{
    QCOMPARE(ControlProbe::text(nullptr), QString());
    QCOMPARE(ControlProbe::image(nullptr), -1);
    QVERIFY(!ControlProbe::isVisible(nullptr));
    QVERIFY(!ControlProbe::isEnabled(nullptr));
    QCOMPARE(ControlProbe::geometry(nullptr), QRect());
    QVERIFY(ControlProbe::middle(nullptr).window.isNull());
    QVERIFY(!ControlProbe::hasKeyboard(nullptr));
}

void TestControlProbe::visibilityAndLockAreThoseOfTheMoment()
{
    for (const QObject *control : {static_cast<QObject *>(box), static_cast<QObject *>(item)}) {
        QVERIFY(ControlProbe::isVisible(control));
        QVERIFY(ControlProbe::isEnabled(control));
    }
    box->setEnabled(false);
    item->setEnabled(false);
    QVERIFY(!ControlProbe::isEnabled(box));
    QVERIFY(!ControlProbe::isEnabled(item));
    window->hide();
    QVERIFY(!ControlProbe::isVisible(box));
    QVERIFY(!ControlProbe::isVisible(item));
}

void TestControlProbe::placesAreThoseInTheParentAndItemsAreOnTheDisplay()
{
    QCOMPARE(ControlProbe::geometry(label), QRect(20, 120, 150, 24));
    QCOMPARE(ControlProbe::geometry(box).topLeft(), QPoint(20, 30));
    QCOMPARE(ControlProbe::geometry(item), QRect(QPoint(310, 220), item->size().toSize()));
}

void TestControlProbe::aFingerReachesTheMiddleOfAControl()
{
    QSignalSpy boxReleased(box, &OrvikButton::buttonReleased);
    QSignalSpy itemPressed(item, &OrvikButtonQgw::buttonPressed);
    QSignalSpy itemReleased(item, &OrvikButtonQgw::buttonReleased);
    const ControlProbe::Spot onBox = ControlProbe::middle(box);
    QCOMPARE(onBox.window.data(), window->windowHandle());
    QCOMPARE(onBox.place, QPointF(box->geometry().center()));
    ControlProbe::press(onBox);
    ControlProbe::release(onBox);
    QCOMPARE(boxReleased.size(), 0); // Posted, as a display sends it.
    QTRY_COMPARE(boxReleased.size(), 1);

    const ControlProbe::Spot onItem = ControlProbe::middle(item);
    ControlProbe::press(onItem);
    QTRY_COMPARE(itemPressed.size(), 1);
    QCOMPARE(itemReleased.size(), 0);
    ControlProbe::release(onItem);
    QTRY_COMPARE(itemReleased.size(), 1);
}

void TestControlProbe::whatIsHiddenCannotBeTouched()
{
    box->hide();
    QSignalSpy released(box, &OrvikButton::buttonReleased);
    const ControlProbe::Spot nowhere = ControlProbe::middle(box);
    QVERIFY(nowhere.window.isNull());
    ControlProbe::press(nowhere);
    ControlProbe::release(nowhere);
    QCoreApplication::processEvents();
    QVERIFY(released.isEmpty());
}

void TestControlProbe::keysGoToTheFieldWhoseKeypadIsOpen()
{
    auto *other = new OrvikLineEdit(2, images, QPoint(200, 100), window.data());
    other->show();
    QVERIFY(!ControlProbe::hasKeyboard(field));
    touchField();
    QVERIFY(!ControlProbe::hasKeyboard(other));
    QVERIFY(!ControlProbe::hasKeyboard(box));
    QSignalSpy changed(field, &OrvikLineEdit::textChanged);
    ControlProbe::type(field, QStringLiteral("12.5"));
    QTRY_COMPARE(field->getText(), QStringLiteral("12.5"));
    // At every keystroke.
    QCOMPARE(changed.size(), 4);
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(other->getText(), QString());
}

void TestControlProbe::typingNothingEmptiesTheField()
{
    field->setText(QStringLiteral("7"));
    touchField();
    ControlProbe::type(field, QString());
    QTRY_COMPARE(field->getText(), QString());
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
}

QTEST_MAIN(TestControlProbe)
#include "tst_controlprobe.moc"
