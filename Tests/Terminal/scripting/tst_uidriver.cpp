#include "paths.h"
#include "testbase.h"
#include "uidriver.h"

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

/// What can be seen and touched of the controls on the display.
class TestUiDriver : public TestBase {
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
    /// Opens the field's keypad as a touch would.
    void touchField();

    QDir images{buildPath("Simulator/Resources/images")};
    QScopedPointer<QWidget> window;
    OrvikButton *box = nullptr;
    OrvikLineEdit *field = nullptr;
    QLabel *label = nullptr;
    OrvikButtonQgw *item = nullptr;
};

void TestUiDriver::init()
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

void TestUiDriver::cleanup()
{
    window.reset();
    TestBase::cleanup();
}

void TestUiDriver::touchField()
{
    const UiDriver::Spot spot = UiDriver::middle(field);
    UiDriver::press(spot);
    UiDriver::release(spot);
    QTRY_VERIFY(UiDriver::hasKeyboard(field));
}

void TestUiDriver::nothingIsFoundUnderAnUnknownName()
{
    QVERIFY(UiDriver::find(QStringLiteral("nobody")) == nullptr);
}

void TestUiDriver::aWindowIsFoundByItsOwnName()
{
    QCOMPARE(UiDriver::find(QStringLiteral("window")), window.data());
    QCOMPARE(UiDriver::find(QStringLiteral("box")), box);
    QCOMPARE(UiDriver::find(QStringLiteral("item")), item);
}

void TestUiDriver::theDialogOnTopIsSearchedFirst()
{
    // Without a dialog, the order of windows is arbitrary.
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
    QCOMPARE(UiDriver::find(QStringLiteral("label")), other);
    dialog.close();
    others.clear();
    QCOMPARE(UiDriver::find(QStringLiteral("label")), label);
}

void TestUiDriver::aVisibleControlComesBeforeAHiddenOne()
{
    auto *hidden = new QLabel(window.data());
    hidden->setObjectName(QStringLiteral("twice"));
    QCOMPARE(UiDriver::find(QStringLiteral("twice")), hidden);
    auto *visible = new QLabel(window.data());
    visible->setObjectName(QStringLiteral("twice"));
    visible->show();
    QCOMPARE(UiDriver::find(QStringLiteral("twice")), visible);
}

void TestUiDriver::controlsTellTheirTextAndImage()
{
    box->addText(0, QStringLiteral("P01"), Qt::white, QFont());
    box->setCurrentImage(1);
    field->setText(QStringLiteral("2.5"));
    item->setCurrentImage(1);
    const QPushButton plain(QStringLiteral("Field"));
    QCOMPARE(UiDriver::text(box), QStringLiteral("P01"));
    QCOMPARE(UiDriver::text(field), QStringLiteral("2.5"));
    QCOMPARE(UiDriver::text(label), QStringLiteral("a caption"));
    QCOMPARE(UiDriver::text(&plain), QStringLiteral("Field"));
    QCOMPARE(UiDriver::text(item), QString());
    QCOMPARE(UiDriver::image(box), 1);
    QCOMPARE(UiDriver::image(item), 1);
    QCOMPARE(UiDriver::image(label), -1);
}

void TestUiDriver::aNullControlHasNothingToTell()
{
    QCOMPARE(UiDriver::text(nullptr), QString());
    QCOMPARE(UiDriver::image(nullptr), -1);
    QVERIFY(!UiDriver::isVisible(nullptr));
    QVERIFY(!UiDriver::isEnabled(nullptr));
    QCOMPARE(UiDriver::geometry(nullptr), QRect());
    QVERIFY(UiDriver::middle(nullptr).window.isNull());
    QVERIFY(!UiDriver::hasKeyboard(nullptr));
}

void TestUiDriver::visibilityAndLockAreThoseOfTheMoment()
{
    for (const QObject *control : {static_cast<QObject *>(box), static_cast<QObject *>(item)}) {
        QVERIFY(UiDriver::isVisible(control));
        QVERIFY(UiDriver::isEnabled(control));
    }
    box->setEnabled(false);
    item->setEnabled(false);
    QVERIFY(!UiDriver::isEnabled(box));
    QVERIFY(!UiDriver::isEnabled(item));
    window->hide();
    QVERIFY(!UiDriver::isVisible(box));
    QVERIFY(!UiDriver::isVisible(item));
}

void TestUiDriver::placesAreThoseInTheParentAndItemsAreOnTheDisplay()
{
    QCOMPARE(UiDriver::geometry(label), QRect(20, 120, 150, 24));
    QCOMPARE(UiDriver::geometry(box).topLeft(), QPoint(20, 30));
    QCOMPARE(UiDriver::geometry(item), QRect(QPoint(310, 220), item->size().toSize()));
}

void TestUiDriver::aFingerReachesTheMiddleOfAControl()
{
    QSignalSpy boxReleased(box, &OrvikButton::buttonReleased);
    QSignalSpy itemPressed(item, &OrvikButtonQgw::buttonPressed);
    QSignalSpy itemReleased(item, &OrvikButtonQgw::buttonReleased);
    const UiDriver::Spot onBox = UiDriver::middle(box);
    QCOMPARE(onBox.window.data(), window->windowHandle());
    QCOMPARE(onBox.place, QPointF(box->geometry().center()));
    UiDriver::press(onBox);
    UiDriver::release(onBox);
    QCOMPARE(boxReleased.size(), 0); // Not yet: it is posted, as a display sends it.
    QTRY_COMPARE(boxReleased.size(), 1);

    const UiDriver::Spot onItem = UiDriver::middle(item);
    UiDriver::press(onItem);
    QTRY_COMPARE(itemPressed.size(), 1);
    QCOMPARE(itemReleased.size(), 0);
    UiDriver::release(onItem);
    QTRY_COMPARE(itemReleased.size(), 1);
}

void TestUiDriver::whatIsHiddenCannotBeTouched()
{
    box->hide();
    QSignalSpy released(box, &OrvikButton::buttonReleased);
    const UiDriver::Spot nowhere = UiDriver::middle(box);
    QVERIFY(nowhere.window.isNull());
    UiDriver::press(nowhere);
    UiDriver::release(nowhere);
    QCoreApplication::processEvents();
    QVERIFY(released.isEmpty());
}

void TestUiDriver::keysGoToTheFieldWhoseKeypadIsOpen()
{
    auto *other = new OrvikLineEdit(2, images, QPoint(200, 100), window.data());
    other->show();
    QVERIFY(!UiDriver::hasKeyboard(field));
    touchField();
    QVERIFY(!UiDriver::hasKeyboard(other));
    QVERIFY(!UiDriver::hasKeyboard(box));
    QSignalSpy changed(field, &OrvikLineEdit::textChanged);
    UiDriver::type(field, QStringLiteral("12.5"));
    QTRY_COMPARE(field->getText(), QStringLiteral("12.5"));
    // Reported at every keystroke.
    QCOMPARE(changed.size(), 4);
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(other->getText(), QString());
}

void TestUiDriver::typingNothingEmptiesTheField()
{
    field->setText(QStringLiteral("7"));
    touchField();
    UiDriver::type(field, QString());
    QTRY_COMPARE(field->getText(), QString());
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
}

RXMAP_TEST(TestUiDriver, Widgets)
#include "tst_uidriver.moc"
