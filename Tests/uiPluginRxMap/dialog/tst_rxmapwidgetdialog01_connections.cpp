#include "dialogtest.h"

/// What the dialog's controls are connected to.
class TestDialogConnections : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void buttonsReachTheirSlots_data();
    void buttonsReachTheirSlots();
    void editsReachTheirSlots_data();
    void editsReachTheirSlots();
    void everySignalIsConnectedOnce_data();
    void everySignalIsConnectedOnce();
    void aHeldButtonIsReleasedOnce_data();
    void aHeldButtonIsReleasedOnce();
};

namespace {

/// Lets a test count connections.
class Sender : public QObject {
public:
    using QObject::receivers;
};

int receiverCount(const QObject &sender, const char *signal)
{
    return (sender.*(&Sender::receivers))(signal);
}

} // namespace

void TestDialogConnections::buttonsReachTheirSlots_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("id");
    QTest::newRow("done") << "doneButton" << 0;
    QTest::newRow("apply to all") << "applyToAllBox" << 0;
    QTest::newRow("zero rate") << "zeroRateShutoffBox" << 2;
    QTest::newRow("product 1") << "productButton0" << 0;
    QTest::newRow("product 2") << "productButton1" << 1;
    QTest::newRow("product 3") << "productButton2" << 2;
}

void TestDialogConnections::buttonsReachTheirSlots()
{
    QFETCH(QString, control);
    QFETCH(int, id);
    open();
    auto *button = dialog->findChild<OrvikButton *>(control);
    QVERIFY(button);
    QCOMPARE(button->id(), id);
    const bool isProduct = control.startsWith(QLatin1String("productButton"));
    if (isProduct)
        dialog->productSelectionChanged(id == 2 ? 0 : 2);
    DialogProbe::release(button);
    QCOMPARE(dialog->result(), int(control == QLatin1String("doneButton") ? QDialog::Accepted : 0));
    QCOMPARE(probe->selectedProduct(), isProduct ? id : 0);
    QCOMPARE(probe->applyToAllBox()->currentImage(), control == QLatin1String("applyToAllBox") ? 1 : 0);
    QCOMPARE(probe->zeroRateShutoffBox()->currentImage(), control == QLatin1String("zeroRateShutoffBox") ? 1 : 0);
}

void TestDialogConnections::editsReachTheirSlots_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("lookAhead");
    QTest::addColumn<double>("rate");
    QTest::newRow("look-ahead") << "lookAheadEdit" << 1 << 7000 << 0.0;
    QTest::newRow("default rate") << "defaultRateEdit" << 3 << 1000 << 7.0;
}

void TestDialogConnections::editsReachTheirSlots()
{
    QFETCH(QString, control);
    open();
    auto *edit = dialog->findChild<OrvikLineEdit *>(control);
    QVERIFY(edit);
    QTEST(edit->id(), "id");
    DialogProbe::type(edit, QStringLiteral("7.0"));
    QTEST(probe->settings().at(0).onLookAheadMs, "lookAhead");
    QTEST(probe->mappings().at(0).defaultRate, "rate");
}

void TestDialogConnections::everySignalIsConnectedOnce_data()
{
    QTest::addColumn<QString>("control");
    for (const char *name : {"doneButton", "applyToAllBox", "zeroRateShutoffBox", "productButton0", "productButton1",
                             "productButton2", "lookAheadEdit", "defaultRateEdit"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestDialogConnections::everySignalIsConnectedOnce()
{
    QFETCH(QString, control);
    open();
    const auto *widget = dialog->findChild<QWidget *>(control);
    QVERIFY(widget);
    const bool isButton = qobject_cast<const OrvikButton *>(widget) != nullptr;
    QCOMPARE(receiverCount(*widget, isButton ? SIGNAL(buttonReleased(int)) : SIGNAL(textChanged(int))), 1);
}

void TestDialogConnections::aHeldButtonIsReleasedOnce_data()
{
    QTest::addColumn<QString>("control");
    for (const char *name : {"doneButton", "applyToAllBox", "zeroRateShutoffBox", "productButton1"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestDialogConnections::aHeldButtonIsReleasedOnce()
{
    QFETCH(QString, control);
    open();
    auto *button = dialog->findChild<OrvikButton *>(control);
    QVERIFY(button);
    const QSignalSpy released(button, &OrvikButton::buttonReleased);
    QTest::mousePress(button, Qt::LeftButton);
    // Longer than a repeating button takes to report again.
    QTest::qWait(700);
    QCOMPARE(released.count(), 0);
    QTest::mouseRelease(button, Qt::LeftButton);
    QCOMPARE(released.count(), 1);
}

RXMAP_TEST(TestDialogConnections, Widgets)
#include "tst_rxmapwidgetdialog01_connections.moc"
