#include "testbase.h"

#include "Framework/databroker.h"
#include "Framework/uigwidget.h"

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QSignalSpy>

namespace {

class PageWidget : public UiGWidget {
public:
    explicit PageWidget(DataBroker *broker)
        : UiGWidget(QStringLiteral("UiPlugin"), QStringLiteral("Widget"), 2, 3, QDir(QStringLiteral("/images")),
                    QPointF(11.5, 7.0), broker, true)
    {
    }

    using UiGWidget::dataBroker;
    using UiGWidget::imageDir;
    using UiGWidget::popupIsActive;
};

class PressableItem : public QGraphicsRectItem {
public:
    using QGraphicsRectItem::QGraphicsRectItem;
    int presses = 0;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *) override { ++presses; }
};

} // namespace

class TestUiGWidget : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void itKeepsWhatItIsGiven();
    void thePopupStateIsAnnouncedWhenItChanges();
    void withoutNeedsNoGroupIsMissing();
    void aTouchBesideItsControlsDoesNotFallThrough();
};

void TestUiGWidget::itKeepsWhatItIsGiven()
{
    DataBroker broker;
    const PageWidget widget(&broker);
    QCOMPARE(widget.pluginName(), QStringLiteral("UiPlugin"));
    QCOMPARE(widget.widgetName(), QStringLiteral("Widget"));
    QCOMPARE(widget.gridPosition(), QPoint(2, 3));
    QCOMPARE(widget.pos(), QPointF(11.5, 7.0));
    QCOMPARE(widget.imageDir(), QDir(QStringLiteral("/images")));
    QCOMPARE(widget.dataBroker(), &broker);
    QVERIFY(widget.requiresDbGroups());
    QVERIFY(!widget.isPopupActive());
}

void TestUiGWidget::thePopupStateIsAnnouncedWhenItChanges()
{
    PageWidget widget(nullptr);
    QSignalSpy changed(&widget, &UiGWidget::popupActiveChanged);
    widget.popupIsActive(false);
    QCOMPARE(changed.count(), 0);
    widget.popupIsActive(true);
    QVERIFY(widget.isPopupActive());
    widget.popupIsActive(true);
    widget.popupIsActive(false);
    QVERIFY(!widget.isPopupActive());
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).first().toBool(), true);
    QCOMPARE(changed.at(1).first().toBool(), false);
}

void TestUiGWidget::withoutNeedsNoGroupIsMissing()
{
    PageWidget widget(nullptr);
    QVERIFY(widget.checkForRequiredDbGroups(true));
    widget.pageShown();
    widget.userHasLongTouchedThisWidget();
    QVERIFY(messages().debugLines().isEmpty());
}

void TestUiGWidget::aTouchBesideItsControlsDoesNotFallThrough()
{
    QGraphicsScene scene(0, 0, 100, 100);
    auto *const below = new PressableItem(0, 0, 100, 100);
    scene.addItem(below);
    auto *const widget = new PageWidget(nullptr);
    scene.addItem(widget);
    widget->setGeometry(0, 0, 50, 50);

    const auto press = [&scene](const QPointF &at) {
        QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
        event.setScenePos(at);
        event.setButton(Qt::LeftButton);
        event.setButtons(Qt::LeftButton);
        QCoreApplication::sendEvent(&scene, &event);
        QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
        release.setScenePos(at);
        release.setButton(Qt::LeftButton);
        QCoreApplication::sendEvent(&scene, &release);
    };
    press(QPointF(25, 25));
    QCOMPARE(below->presses, 0);
    press(QPointF(75, 75));
    QCOMPARE(below->presses, 1);
}

RXMAP_TEST(TestUiGWidget, Widgets)
#include "tst_uigwidget.moc"
