#include "dialoghost.h"
#include "rxmapwidget.h"
#include "rxmapwidgetdialog01.h"
#include "testbase.h"

#include "Framework/orvikbutton.h"
#include "Framework/orvikbuttonqgw.h"

#include <QApplication>
#include <QTimer>

/// The Rx options button.
class TestRxMapWidget : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void withAMapTheButtonIsEnabled();
    void withoutAMapTheButtonIsDisabledAndOpensNothing();
    void aMapPublishedLaterDoesNotEnableIt();
    void theWidgetHasTheButtonsSizeAndItsPosition();
    void aShortTouchDoesNothing();
    void aLongTouchRunsTheDialogModally();
    void theDialogIsGoneAfterwards();
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

void TestRxMapWidget::withoutAMapTheButtonIsDisabledAndOpensNothing()
{
    DialogHost host;
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    Page page(host);
    QCOMPARE(page.button->currentImage(), 1);
    bool active = false;
    connect(&page.widget, &UiGWidget::popupActiveChanged, this, [&active] { active = true; });
    Q_EMIT page.button->longTouch(0);
    QVERIFY(!active);
    QVERIFY(openDialog() == nullptr);
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
    Q_EMIT page.button->buttonReleased(0);
    QVERIFY(openDialog() == nullptr);
    QVERIFY(!page.widget.isPopupActive());
}

void TestRxMapWidget::aLongTouchRunsTheDialogModally()
{
    DialogHost host;
    Page page(host);
    QStringList order;
    connect(&page.widget, &UiGWidget::popupActiveChanged, this,
            [&order](bool active) { order.append(active ? QStringLiteral("active") : QStringLiteral("inactive")); });
    QTimer::singleShot(0, this, [&order, &page] {
        RxMapWidgetDialog01 *dialog = openDialog();
        QVERIFY(dialog);
        QVERIFY(dialog->isModal());
        QVERIFY(dialog->parentWidget() == nullptr);
        QVERIFY(page.widget.isPopupActive());
        order.append(QStringLiteral("dialog"));
        dialog->accept();
    });
    Q_EMIT page.button->longTouch(0);
    QCOMPARE(order, (QStringList{"active", "dialog", "inactive"}));
    QVERIFY(!page.widget.isPopupActive());
}

void TestRxMapWidget::theDialogIsGoneAfterwards()
{
    DialogHost host;
    Page page(host);
    QPointer<RxMapWidgetDialog01> dialog;
    QTimer::singleShot(0, this, [&dialog] {
        dialog = openDialog();
        dialog->accept();
    });
    page.widget.onLongTouch(0);
    QVERIFY(dialog.isNull());
}

void TestRxMapWidget::closingThePageWhileTheDialogRunsIsSafe()
{
    DialogHost host;
    auto *page = new Page(host);
    QTimer::singleShot(0, this, [&page] {
        delete page;
        openDialog()->accept();
    });
    page->widget.onLongTouch(0);
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
