#include "dialoghost.h"
#include "rxmapwidget.h"
#include "rxmapwidgetdialog01.h"
#include "testbase.h"

#include "Framework/orvikbutton.h"
#include "Framework/orvikbuttonqgw.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

/// The Rx options button.
class TestRxMapWidget : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void withAMapTheButtonIsEnabled();
    void theButtonShowsItsImages_data();
    void theButtonShowsItsImages();
    void onlyAPrescriptionsNameEnablesIt();
    void theFontIsTheTerminals_data();
    void theFontIsTheTerminals();
    void bothSignalsOfTheButtonAreConnected();
    void withoutAMapTheButtonIsDisabledAndOpensNothing();
    void aMapPublishedLaterDoesNotEnableIt();
    void theWidgetHasTheButtonsSizeAndItsPosition();
    void aShortTouchDoesNothing();
    void onlyAFingerHeldOnTheButtonOpensTheDialog_data();
    void onlyAFingerHeldOnTheButtonOpensTheDialog();
    void aLongTouchRunsTheDialogModally();
    void theFlagIsClearedAfterTheDialogAndBeforeTheRepaint();
    void closingThePageWhileTheDialogRunsIsSafe();
    void slotsComeInTheirOrder();
    void pageShownLeavesTheButtonAlone();
};

namespace {

struct Page {
    explicit Page(DialogHost &host)
        : widget(QStringLiteral("UiPluginRxMap"), QStringLiteral("RxMapWidget"), 1, 2, host.images, QPointF(30, 40),
                 &host.broker)
    {
        for (QGraphicsItem *item : widget.childItems()) {
            auto *candidate = qobject_cast<OrvikButtonQgw *>(item->toGraphicsObject());
            if (candidate != nullptr && candidate->objectName() == QLatin1String("rxOptions"))
                button = candidate;
        }
    }

    RxMapWidget widget;
    OrvikButtonQgw *button = nullptr;
};

RxMapWidgetDialog01 *openDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<RxMapWidgetDialog01 *>(widget))
            return dialog;
    }
    return nullptr;
}

/// Acts inside the modal loop of the dialog that is to open while this lives, and closes that dialog in any case, so
/// that a test that fails in there ends all the same.
class DialogWatch {
public:
    explicit DialogWatch(std::function<void(RxMapWidgetDialog01 *)> action = nullptr)
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this, action] {
            QPointer<RxMapWidgetDialog01> dialog = openDialog();
            if (dialog.isNull())
                return;
            const auto close = qScopeGuard([&dialog] {
                if (dialog)
                    dialog->accept();
            });
            timer.stop();
            hasOpened = true;
            if (action)
                action(dialog);
        });
        timer.start(0);
    }

    bool hasOpened = false;

private:
    Q_DISABLE_COPY(DialogWatch)

    QTimer timer;
};

/// The widget's font is set up and drawn with by nobody: the only way to see it is past its access. Explicit
/// instantiation may name a private member.
template <QFont RxMapWidget::*member> struct FontAccess {
    friend const QFont &widgetFont(const RxMapWidget &widget) { return widget.*member; }
};
const QFont &widgetFont(const RxMapWidget &widget);
template struct FontAccess<&RxMapWidget::font>;

QColor shownColor(OrvikButtonQgw &button)
{
    QImage image(button.size().toSize(), QImage::Format_ARGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    button.paint(&painter, nullptr, nullptr);
    return image.pixelColor(2, 2);
}

} // namespace

void TestRxMapWidget::withAMapTheButtonIsEnabled()
{
    DialogHost host;
    Page page(host);
    QVERIFY(page.button);
    QCOMPARE(page.button->currentImage(), 0);
    QCOMPARE(page.button->id(), 0);
    QCOMPARE(page.button->parentItem(), &page.widget);
}

void TestRxMapWidget::theButtonShowsItsImages_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<QColor>("color");
    QTest::newRow("enabled") << true << QColor(0, 128, 0);
    QTest::newRow("disabled") << false << QColor(128, 0, 0);
}

void TestRxMapWidget::theButtonShowsItsImages()
{
    QFETCH(bool, hasMap);
    const QTemporaryDir images;
    QPixmap image(60, 60);
    image.fill(QColor(0, 128, 0));
    image.save(images.filePath(QStringLiteral("RxOptions_11_01.png")));
    image.fill(QColor(128, 0, 0));
    image.save(images.filePath(QStringLiteral("RxOptionsDisable_11_01.png")));
    DialogHost host;
    host.images = QDir(images.path());
    if (!hasMap)
        host.broker.removeGroup(QStringLiteral("rxMap.field"));
    Page page(host);
    QTEST(shownColor(*page.button), "color");
}

void TestRxMapWidget::onlyAPrescriptionsNameEnablesIt()
{
    DialogHost host;
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    host.broker.publishGroup(new DbGroupRxMap(QStringLiteral("rxMapper")));
    Page page(host);
    QCOMPARE(page.button->currentImage(), 1);
}

void TestRxMapWidget::theFontIsTheTerminals_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("family");
    QTest::newRow("not set") << QByteArray() << "Liberation Sans";
    QTest::newRow("set") << QByteArray("[main.general]\nfont=Liberation Mono\n") << "Liberation Mono";
}

void TestRxMapWidget::theFontIsTheTerminals()
{
    QFETCH(QByteArray, settings);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("terminal.ini")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(settings);
    file.close();
    DialogHost host(3, file.fileName());
    Page page(host);
    QTEST(widgetFont(page.widget).family(), "family");
    QCOMPARE(widgetFont(page.widget).weight(), 50);
    QCOMPARE(widgetFont(page.widget).pointSize(), 15);
}

void TestRxMapWidget::bothSignalsOfTheButtonAreConnected()
{
    DialogHost host;
    Page page(host);
    // Breaking a connection succeeds only where there is one.
    QVERIFY(disconnect(page.button, SIGNAL(longTouch(int)), &page.widget, SLOT(onLongTouch(int))));
    QVERIFY(disconnect(page.button, SIGNAL(buttonReleased(int)), &page.widget, SLOT(onButtonReleased(int))));
}

void TestRxMapWidget::withoutAMapTheButtonIsDisabledAndOpensNothing()
{
    DialogHost host;
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    Page page(host);
    QCOMPARE(page.button->currentImage(), 1);
    bool active = false;
    connect(&page.widget, &UiGWidget::popupActiveChanged, this, [&active] { active = true; });
    const DialogWatch watch;
    Q_EMIT page.button->longTouch(0);
    QVERIFY(!active);
    QCoreApplication::processEvents();
    QVERIFY(!watch.hasOpened);
}

void TestRxMapWidget::aMapPublishedLaterDoesNotEnableIt()
{
    DialogHost host;
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    Page page(host);
    host.host.addMap(QStringLiteral("later"), {1});
    QCOMPARE(page.button->currentImage(), 1);
}

void TestRxMapWidget::theWidgetHasTheButtonsSizeAndItsPosition()
{
    DialogHost host;
    Page page(host);
    QVERIFY(!page.button->size().isEmpty());
    QCOMPARE(page.widget.size(), page.button->size());
    QCOMPARE(page.widget.pos(), QPointF(30, 40));
    QCOMPARE(page.button->pos(), QPointF(0, 0));
    QCOMPARE(page.widget.gridPosition(), QPoint(1, 2));
}

void TestRxMapWidget::aShortTouchDoesNothing()
{
    DialogHost host;
    Page page(host);
    const DialogWatch watch;
    Q_EMIT page.button->buttonReleased(0);
    QCoreApplication::processEvents();
    QVERIFY(!watch.hasOpened);
    QVERIFY(!page.widget.isPopupActive());
}

void TestRxMapWidget::onlyAFingerHeldOnTheButtonOpensTheDialog_data()
{
    QTest::addColumn<bool>("slidesOff");
    QTest::addColumn<bool>("isHeld");
    QTest::addColumn<bool>("opens");
    QTest::newRow("lifted at once") << false << false << false;
    QTest::newRow("lifted beside it") << true << false << false;
    QTest::newRow("held beside it") << true << true << false;
    QTest::newRow("held on it") << false << true << true;
}

void TestRxMapWidget::onlyAFingerHeldOnTheButtonOpensTheDialog()
{
    QFETCH(bool, slidesOff);
    QFETCH(bool, isHeld);
    constexpr int longerThanAnyHoldMs = 1000;
    DialogHost host;
    Page page(host);
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

void TestRxMapWidget::aLongTouchRunsTheDialogModally()
{
    DialogHost host;
    Page page(host);
    QStringList order;
    connect(&page.widget, &UiGWidget::popupActiveChanged, this,
            [&order](bool active) { order.append(active ? QStringLiteral("active") : QStringLiteral("inactive")); });
    const DialogWatch watch([&order, &page](RxMapWidgetDialog01 *dialog) {
        order.append(QStringLiteral("dialog"));
        QVERIFY(dialog->isModal());
        QVERIFY(dialog->parentWidget() == nullptr);
        QVERIFY(page.widget.isPopupActive());
    });
    Q_EMIT page.button->longTouch(0);
    QCOMPARE(order, (QStringList{"active", "dialog", "inactive"}));
    QVERIFY(!page.widget.isPopupActive());
}

void TestRxMapWidget::theFlagIsClearedAfterTheDialogAndBeforeTheRepaint()
{
    DialogHost host;
    auto *page = new Page(host);
    const QScopedPointer<Page> owner(page);
    QStringList order;
    QGraphicsScene scene;
    scene.addItem(&page->widget);
    const auto takeOut = qScopeGuard([&] { scene.removeItem(&page->widget); });
    connect(&scene, &QGraphicsScene::changed, this, [&order] { order.append(QStringLiteral("repaint")); });
    connect(&page->widget, &UiGWidget::popupActiveChanged, this, [&order](bool active) {
        // Repaints that were asked for so far take place now.
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

void TestRxMapWidget::closingThePageWhileTheDialogRunsIsSafe()
{
    DialogHost host;
    auto *page = new Page(host);
    const DialogWatch watch([&page](RxMapWidgetDialog01 *) {
        delete page;
        page = nullptr;
    });
    page->widget.onLongTouch(0);
    delete page;
    QVERIFY(watch.hasOpened);
    QVERIFY(openDialog() == nullptr);
}

void TestRxMapWidget::slotsComeInTheirOrder()
{
    const QMetaObject &meta = RxMapWidget::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(signatures, (QStringList{"onLongTouch(int)", "onButtonReleased(int)"}));
}

void TestRxMapWidget::pageShownLeavesTheButtonAlone()
{
    DialogHost host;
    Page page(host);
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    page.widget.pageShown();
    QCOMPARE(page.button->currentImage(), 0);
}

QTEST_MAIN(TestRxMapWidget)
#include "tst_rxmapwidget.moc"
