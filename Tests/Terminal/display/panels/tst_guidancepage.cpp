#include "guidancepage.h"
#include "leastplugin.h"
#include "testbase.h"

#include "Framework/databroker.h"

#include <QGraphicsScene>
#include <QSignalSpy>

namespace {

constexpr double widgetWidth = 100.0;
constexpr double widgetHeight = 60.0;

/// A widget of the page that can report an open popup.
class SampleWidget : public UiGWidget {
public:
    SampleWidget(const QString &name, int x, int y, QPointF position, DataBroker *broker)
        : UiGWidget(QStringLiteral("sample"), name, x, y, QDir(), position, broker, false)
    {
        resize(widgetWidth, widgetHeight);
        setPos(position);
    }

    void pageShown() override { ++timesShown; }
    void setPopup(bool active) { popupIsActive(active); }

    int timesShown = 0;
};

/// Makes whatever widget it is asked for, except those called "absent".
class SamplePlugin : public LeastPlugin {
public:
    explicit SamplePlugin(const QStringList &givenNames)
        : names(givenNames)
    {
    }

    QStringList getGuidancePageWidgetNames() override { return names; }
    QPointer<UiGWidget> createUiGWidget(QString name, int x, int y, QPointF position, DataBroker *broker) override
    {
        if (name == QLatin1String("absent"))
            return {};
        made.append(new SampleWidget(name, x, y, position, broker));
        return made.last().data();
    }
    void deleteGWidget(QPointer<UiGWidget> widget) override
    {
        ++deletions;
        UiPluginBase::deleteGWidget(widget);
    }

    QStringList names;
    QList<QPointer<SampleWidget>> made;
    int deletions = 0;
};

} // namespace

/// The strip of plug-in widgets over the map.
class TestGuidancePage : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void widgetsStandSideBySide();
    void aWidgetThatIsNotMadeTakesNoRoom();
    void eachWidgetIsToldOnceThatItIsShown();
    void rebuildingMakesEveryWidgetAnew();
    void aWidgetThatIsGoneAlreadyIsLeftAlone();
    void clearingLeavesAnEmptyPage();
    void thePageIsGreyWhileAPopupIsOpen();
    void clearingUnderAnOpenPopupLeavesThePageUsable();
    void aWidgetThatDiesUnderItsPopupLeavesThePageUsable();
    void aRebuildThatWaitedComesWhenThePopupsWidgetDies();
    void rebuildingWaitsForThePopup();
    void aPopupThatClosesWithNothingDueLeavesTheWidgets();
    void theFingerThatOpenedAPopupHoldsNothingAfterwards();

private:
    DataBroker broker{QString(), QSize(1280, 800)};
    QScopedPointer<SamplePlugin> first;
    QScopedPointer<SamplePlugin> second;
    QScopedPointer<GuidancePage> page;
};

void TestGuidancePage::init()
{
    TestBase::init();
    first.reset(new SamplePlugin({QStringLiteral("a"), QStringLiteral("absent"), QStringLiteral("b")}));
    second.reset(new SamplePlugin({QStringLiteral("c")}));
    page.reset(new GuidancePage);
    page->setPlugins({first.data(), second.data()}, &broker);
}

void TestGuidancePage::cleanup()
{
    page.reset();
    first.reset();
    second.reset();
    TestBase::cleanup();
}

void TestGuidancePage::widgetsStandSideBySide()
{
    QCOMPARE(first->made.size(), 2);
    QCOMPARE(second->made.size(), 1);
    const QList<SampleWidget *> widgets{first->made.at(0), first->made.at(1), second->made.at(0)};
    double right = 0.0;
    for (int i = 0; i < widgets.size(); ++i) {
        QCOMPARE(widgets.at(i)->gridPosition(), QPoint(i, 0));
        QCOMPARE(widgets.at(i)->scene(), page->scene());
        QVERIFY(i == 0 ? widgets.at(i)->x() == 0.0 : widgets.at(i)->x() > right);
        right = widgets.at(i)->x() + widgetWidth;
    }
    QCOMPARE(page->sizeHint(), QSize(int(right), int(widgetHeight)));
    QCOMPARE(page->sceneRect(), QRectF(0, 0, right, widgetHeight));
}

void TestGuidancePage::aWidgetThatIsNotMadeTakesNoRoom()
{
    const int withAbsent = page->sizeHint().width();
    first->names.removeAll(QStringLiteral("absent"));
    page->rebuild();
    QCOMPARE(page->sizeHint().width(), withAbsent);
}

void TestGuidancePage::eachWidgetIsToldOnceThatItIsShown()
{
    for (const QPointer<SampleWidget> &widget : qAsConst(first->made))
        QCOMPARE(widget->timesShown, 1);
}

void TestGuidancePage::rebuildingMakesEveryWidgetAnew()
{
    QSignalSpy rebuilt(page.data(), &GuidancePage::rebuilt);
    page->rebuild();
    QCOMPARE(rebuilt.size(), 1);
    QCOMPARE(first->deletions, 2);
    QCOMPARE(first->made.size(), 4);
    QVERIFY(first->made.at(0).isNull() && first->made.at(1).isNull());
    QCOMPARE(page->scene()->items().size(), 3);
}

void TestGuidancePage::aWidgetThatIsGoneAlreadyIsLeftAlone()
{
    delete first->made.at(0).data();
    second->made.at(0)->setPopup(true);
    second->made.at(0)->setPopup(false);
    page->clear();
    QCOMPARE(first->deletions, 1);
    QVERIFY(page->scene()->items().isEmpty());
}

void TestGuidancePage::clearingLeavesAnEmptyPage()
{
    page->clear();
    QVERIFY(first->made.at(0).isNull());
    QVERIFY(second->made.at(0).isNull());
    QVERIFY(page->sizeHint().isEmpty());
}

void TestGuidancePage::thePageIsGreyWhileAPopupIsOpen()
{
    second->made.at(0)->setPopup(true);
    for (const QPointer<SampleWidget> &widget : first->made + second->made)
        QVERIFY(widget->opacity() < 0.5);
    second->made.at(0)->setPopup(false);
    for (const QPointer<SampleWidget> &widget : first->made + second->made)
        QCOMPARE(widget->opacity(), 1.0);
}

void TestGuidancePage::clearingUnderAnOpenPopupLeavesThePageUsable()
{
    first->made.at(0)->setPopup(true);
    page->rebuild();
    page->clear();
    page->rebuild();
    QCOMPARE(first->made.size(), 4);
    QCOMPARE(first->made.last()->opacity(), 1.0);
    QCoreApplication::processEvents();
    QCOMPARE(first->made.size(), 4);
}

void TestGuidancePage::aWidgetThatDiesUnderItsPopupLeavesThePageUsable()
{
    first->made.at(0)->setPopup(true);
    delete first->made.at(1).data();
    QVERIFY(second->made.at(0)->opacity() < 0.5);
    delete first->made.at(0).data();
    QCOMPARE(second->made.at(0)->opacity(), 1.0);
    page->rebuild();
    QCOMPARE(first->made.size(), 4);
}

void TestGuidancePage::aRebuildThatWaitedComesWhenThePopupsWidgetDies()
{
    first->made.at(0)->setPopup(true);
    page->rebuild();
    delete first->made.at(0).data();
    QTRY_COMPARE(first->made.size(), 4);
}

void TestGuidancePage::rebuildingWaitsForThePopup()
{
    const QPointer<SampleWidget> widget = first->made.at(0);
    widget->setPopup(true);
    page->rebuild();
    QVERIFY(widget);
    QCOMPARE(first->made.size(), 2);
    // The widget itself sends the signal, so it must outlive it.
    widget->setPopup(false);
    QVERIFY(widget);
    QTRY_COMPARE(first->made.size(), 4);
    QVERIFY(!widget);
    QCoreApplication::processEvents();
    QCOMPARE(first->made.size(), 4);
}

void TestGuidancePage::aPopupThatClosesWithNothingDueLeavesTheWidgets()
{
    const QPointer<SampleWidget> widget = first->made.at(0);
    widget->setPopup(true);
    widget->setPopup(false);
    QCoreApplication::processEvents();
    QVERIFY(widget);
}

void TestGuidancePage::theFingerThatOpenedAPopupHoldsNothingAfterwards()
{
    first->made.at(0)->setPopup(true);
    first->made.at(0)->grabMouse();
    QVERIFY(page->scene()->mouseGrabberItem() != nullptr);
    first->made.at(0)->setPopup(false);
    QVERIFY(page->scene()->mouseGrabberItem() == nullptr);
}

RXMAP_TEST(TestGuidancePage, Widgets)
#include "tst_guidancepage.moc"
