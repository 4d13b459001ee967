#include "dialogwatch.h"
#include "testbase.h"
#include "widgetpage.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPixmap>

/// When the Rx options button opens the settings dialog, and what happens around it.
class TestRxMapWidgetDialog : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void withoutAMapTheButtonIsDisabledAndOpensNothing();
    void aMapPublishedLaterDoesNotEnableIt();
    void aShortTouchDoesNothing();
    void onlyAFingerHeldOnTheButtonOpensTheDialog_data();
    void onlyAFingerHeldOnTheButtonOpensTheDialog();
    void aLongTouchRunsTheDialogModally();
    void theFlagIsClearedAfterTheDialogAndBeforeTheRepaint();
    void theWholeWidgetIsRepaintedAfterTheDialog();
    void closingThePageWhileTheDialogRunsIsSafe();
    void aDialogThatIsDeletedWhileItRunsIsSafe();
    void closingThePageOverThePopupsFlagIsSafe_data();
    void closingThePageOverThePopupsFlagIsSafe();
    void withoutABrokerNothingOpens();
    void aMapTakenOutLaterDoesNotDisableIt();
};

namespace {

/// Collects the areas of `widget` that are painted, in its coordinates.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

    QRegion painted;
};

} // namespace

void TestRxMapWidgetDialog::withoutAMapTheButtonIsDisabledAndOpensNothing()
{
    DialogHost host;
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    WidgetPage page(host);
    QCOMPARE(page.button->currentImage(), 1);
    bool active = false;
    connect(&page.widget, &UiGWidget::popupActiveChanged, this, [&active] { active = true; });
    const DialogWatch watch;
    Q_EMIT page.button->longTouch(0);
    QVERIFY(!active);
    QCoreApplication::processEvents();
    QVERIFY(!watch.hasOpened);
}

void TestRxMapWidgetDialog::aMapPublishedLaterDoesNotEnableIt()
{
    DialogHost host;
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    WidgetPage page(host);
    host.host.addMap(QStringLiteral("later"), {1});
    QCOMPARE(page.button->currentImage(), 1);
    const DialogWatch watch;
    Q_EMIT page.button->longTouch(0);
    QCOMPARE(page.button->currentImage(), 1);
    QVERIFY(!watch.hasOpened);
}

void TestRxMapWidgetDialog::aShortTouchDoesNothing()
{
    DialogHost host;
    WidgetPage page(host);
    const DialogWatch watch;
    Q_EMIT page.button->buttonReleased(0);
    QCoreApplication::processEvents();
    QVERIFY(!watch.hasOpened);
    QVERIFY(!page.widget.isPopupActive());
}

void TestRxMapWidgetDialog::onlyAFingerHeldOnTheButtonOpensTheDialog_data()
{
    QTest::addColumn<bool>("slidesOff");
    QTest::addColumn<bool>("isHeld");
    QTest::addColumn<bool>("opens");
    QTest::newRow("lifted at once") << false << false << false;
    QTest::newRow("lifted beside it") << true << false << false;
    QTest::newRow("held beside it") << true << true << false;
    QTest::newRow("held on it") << false << true << true;
}

void TestRxMapWidgetDialog::onlyAFingerHeldOnTheButtonOpensTheDialog()
{
    QFETCH(bool, slidesOff);
    QFETCH(bool, isHeld);
    constexpr int longerThanAnyHoldMs = 1000;
    DialogHost host;
    WidgetPage page(host);
    QGraphicsScene scene(0, 0, 400, 300);
    scene.addItem(&page.widget);
    const auto takeOut = qScopeGuard([&] { scene.removeItem(&page.widget); });
    QGraphicsView view(&scene);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QPoint onIt = view.mapFromScene(page.widget.sceneBoundingRect().center());
    const QPoint besideIt = view.mapFromScene(page.widget.sceneBoundingRect().bottomRight() + QPointF(20, 20));
    const DialogWatch watch;

    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, onIt);
    if (slidesOff) {
        QMouseEvent slide(QEvent::MouseMove, besideIt, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &slide);
    }
    if (isHeld)
        QTest::qWait(longerThanAnyHoldMs);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, slidesOff ? besideIt : onIt);
    QCoreApplication::processEvents();
    QTEST(watch.hasOpened, "opens");
    QVERIFY(!page.widget.isPopupActive());
}

void TestRxMapWidgetDialog::aLongTouchRunsTheDialogModally()
{
    DialogHost host;
    WidgetPage page(host);
    QStringList order;
    connect(&page.widget, &UiGWidget::popupActiveChanged, this, [&order](bool active) {
        QVERIFY(openDialog() == nullptr);
        order.append(active ? QStringLiteral("active") : QStringLiteral("inactive"));
    });
    // The dialog gets its size from a picture of the image folder.
    const QSize size = QPixmap(host.images.filePath(QStringLiteral("RxOptionsPopup.png"))).size();
    const DialogWatch watch([&](RxMapWidgetDialog01 *dialog) {
        order.append(QStringLiteral("dialog"));
        QVERIFY(!size.isEmpty());
        QCOMPARE(dialog->size(), size);
        QVERIFY(dialog->isModal());
        QVERIFY(dialog->parentWidget() == nullptr);
        QVERIFY(page.widget.isPopupActive());
    });
    Q_EMIT page.button->longTouch(0);
    QCOMPARE(order, (QStringList{"active", "dialog", "inactive"}));
    QVERIFY(!page.widget.isPopupActive());
}

void TestRxMapWidgetDialog::theFlagIsClearedAfterTheDialogAndBeforeTheRepaint()
{
    DialogHost host;
    auto *page = new WidgetPage(host);
    const QScopedPointer<WidgetPage> owner(page);
    QStringList order;
    QGraphicsScene scene;
    scene.addItem(&page->widget);
    const auto takeOut = qScopeGuard([&] { scene.removeItem(&page->widget); });
    connect(&scene, &QGraphicsScene::changed, this, [&order] { order.append(QStringLiteral("repaint")); });
    connect(&page->widget, &UiGWidget::popupActiveChanged, this, [&order](bool active) {
        // Repaints that are already requested take place now.
        QCoreApplication::sendPostedEvents();
        order.append(active ? QStringLiteral("active") : QStringLiteral("inactive"));
    });
    QCoreApplication::processEvents();
    order.clear();
    const DialogWatch watch([this, &order](RxMapWidgetDialog01 *dialog) {
        connect(dialog, &QObject::destroyed, this, [&order] { order.append(QStringLiteral("destroyed")); });
    });
    page->widget.onLongTouch(0);
    QVERIFY(watch.hasOpened);
    QCOMPARE(order, (QStringList{"active", "destroyed", "inactive"}));
    QTRY_VERIFY(order.size() > 3);
    QCOMPARE(order.at(3), QStringLiteral("repaint"));
}

void TestRxMapWidgetDialog::theWholeWidgetIsRepaintedAfterTheDialog()
{
    DialogHost host;
    WidgetPage page(host);
    QGraphicsScene scene(0, 0, 160, 170);
    scene.addItem(&page.widget);
    const auto takeOut = qScopeGuard([&] { scene.removeItem(&page.widget); });
    QGraphicsView view(&scene);
    // Away from the dialog, which opens in the middle of the display.
    view.move(0, 0);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    PaintWatch watch(*view.viewport());
    connect(&page.widget, &UiGWidget::popupActiveChanged, this, [&watch] {
        QCoreApplication::processEvents();
        watch.painted = QRegion();
    });
    const DialogWatch dialog;
    page.widget.onLongTouch(0);
    QVERIFY(dialog.hasOpened);
    const QRect whole = view.mapFromScene(page.widget.sceneBoundingRect()).boundingRect();
    QTRY_COMPARE(watch.painted.intersected(whole), QRegion(whole));
}

void TestRxMapWidgetDialog::closingThePageWhileTheDialogRunsIsSafe()
{
    DialogHost host;
    auto *page = new WidgetPage(host);
    const DialogWatch watch([&page](RxMapWidgetDialog01 *) {
        delete page;
        page = nullptr;
    });
    page->widget.onLongTouch(0);
    delete page;
    QVERIFY(watch.hasOpened);
    QVERIFY(openDialog() == nullptr);
}

void TestRxMapWidgetDialog::aDialogThatIsDeletedWhileItRunsIsSafe()
{
    DialogHost host;
    WidgetPage page(host);
    const DialogWatch watch([](RxMapWidgetDialog01 *dialog) { delete dialog; });
    page.widget.onLongTouch(0);
    QVERIFY(watch.hasOpened);
    QVERIFY(!page.widget.isPopupActive());
}

void TestRxMapWidgetDialog::closingThePageOverThePopupsFlagIsSafe_data()
{
    QTest::addColumn<bool>("closesWhenActive");
    QTest::addColumn<bool>("opens");
    QTest::newRow("as the popup opens") << true << false;
    QTest::newRow("as the popup has closed") << false << true;
}

void TestRxMapWidgetDialog::closingThePageOverThePopupsFlagIsSafe()
{
    QFETCH(bool, closesWhenActive);
    DialogHost host;
    QPointer<RxMapWidget> widget = newWidget(host, &host.broker);
    const DialogWatch watch;
    connect(widget.data(), &UiGWidget::popupActiveChanged, this, [&widget, closesWhenActive](bool active) {
        if (active == closesWhenActive)
            delete widget;
    });
    widget->onLongTouch(0);
    QVERIFY(widget.isNull());
    QVERIFY(openDialog() == nullptr);
    QTEST(watch.hasOpened, "opens");
}

void TestRxMapWidgetDialog::withoutABrokerNothingOpens()
{
    DialogHost host;
    const QScopedPointer<RxMapWidget> widget(newWidget(host, nullptr));
    QVERIFY(rxOptionsOf(*widget));
    const DialogWatch watch;
    Q_EMIT rxOptionsOf(*widget)->longTouch(0);
    QVERIFY(!watch.hasOpened);
}

void TestRxMapWidgetDialog::aMapTakenOutLaterDoesNotDisableIt()
{
    DialogHost host;
    WidgetPage page(host);
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    const DialogWatch watch;
    Q_EMIT page.button->longTouch(0);
    QVERIFY(watch.hasOpened);
    QCOMPARE(page.button->currentImage(), 0);
}

RXMAP_TEST(TestRxMapWidgetDialog, Widgets)
#include "tst_rxmapwidget_dialog.moc"
