#include "rxmap3d.h"
#include "testbase.h"

#include "Framework/basepluginprovides.h"
#include "Framework/object3d.h"
#include "Framework/uigraphicslist.h"
#include "Framework/uigwidget.h"
#include "Framework/uiplugininterface.h"

#include <cstddef>
#include <cstring>

/// Plug-ins and host are built separately: they agree on virtual operations only by their places in the table.
class TestVirtualSlots : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void thePluginInterfaceKeepsItsOrder_data();
    void thePluginInterfaceKeepsItsOrder();
    void thePluginInterfaceHasFortyOperations();
    void drawablesKeepTheirOrder();
    void theMapsOwnOperationsFollowThoseOfItsFirstBase();
    void graphicsListsKeepTheirOrder();
    void guidanceWidgetsKeepTheirOrder();
    void whatEveryPlugInTellsKeepsItsOrder();
};

namespace {

/// Place of a virtual operation in its class's table, read from how the Itanium C++ ABI represents member pointers: the
/// offset into the table plus one; on ARM the one is stored separately.
template <typename Operation> int slotOf(Operation operation)
{
    struct {
        std::ptrdiff_t offset;
        std::ptrdiff_t adjustment;
    } parts;
    static_assert(sizeof operation == sizeof parts, "member pointers are a pair");
    std::memcpy(&parts, &operation, sizeof parts);
    return static_cast<int>((parts.offset & ~std::ptrdiff_t(1)) / static_cast<std::ptrdiff_t>(sizeof(void *)));
}

/// metaObject, qt_metacast, qt_metacall, two for the destructor, event, eventFilter, timerEvent, childEvent,
/// customEvent, connectNotify, disconnectNotify.
constexpr int slotsOfQObject = 12;

/// One operation more than the interface has.
class LongerInterface : public UiPluginInterface {
public:
    virtual void afterTheLast() { }
};

/// One operation more than Qt's graphics widgets have.
class LongerGraphicsWidget : public QGraphicsWidget {
public:
    virtual void afterTheLast() { }
};

/// One operation more than the class in which every plug-in says what it provides.
class LongerProvides : public BasePlugInProvides {
public:
    virtual void afterTheLast() { }
};

} // namespace

void TestVirtualSlots::thePluginInterfaceKeepsItsOrder_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("expected");
    int place = 0;
    const auto next = [&place](const char *name, int slot) {
        QTest::newRow(name) << slot << slotsOfQObject + place;
        ++place;
    };
#define OPERATION(NAME) next(#NAME, slotOf(&UiPluginInterface::NAME))
    OPERATION(deleteAllWidgets);
    OPERATION(deleteGraphicsList);
    OPERATION(deleteGWidget);
    OPERATION(deleteQmlWidget);
    OPERATION(languageChanged);
    OPERATION(setView);
    OPERATION(init);
    OPERATION(close);
    OPERATION(getRequiredGroupNames);
    OPERATION(guidancePageChanged);
    OPERATION(getSettingsObject);
    OPERATION(hasSettings);
    OPERATION(jobStarted);
    OPERATION(jobStopped);
    OPERATION(screenLocked);
    OPERATION(screenUnlocked);
    OPERATION(getSettingsTitle);
    OPERATION(getHelpTopic);
    OPERATION(getAlarmNames);
    OPERATION(getShortcutNames);
    OPERATION(getShortcutSettings);
    OPERATION(getIcon);
    OPERATION(getDescription);
    OPERATION(getGuidancePageWidgetNames);
    OPERATION(getGuidancePageWidgetLibraryCategories);
    OPERATION(getGuidancePageWidgetLibraryImageNames);
    OPERATION(getGuidancePageWidgetLibraryPreviewNames);
    OPERATION(getGuidancePageWidgetLibraryDisplayNames);
    OPERATION(getFeatureNames);
    OPERATION(getFeatureDescriptions);
    OPERATION(getFeatureImageNames);
    OPERATION(getConfigPanelWidgetNames);
    OPERATION(getGraphicsListNames);
    OPERATION(createUiGraphicsList);
    OPERATION(createUiGWidget);
    OPERATION(createUiQmlWidget);
    OPERATION(getInterfaceVersion);
    OPERATION(getDbVersion);
    OPERATION(getPluginName);
    OPERATION(getPluginVersion);
#undef OPERATION
}

void TestVirtualSlots::thePluginInterfaceKeepsItsOrder()
{
    QFETCH(int, slot);
    QTEST(slot, "expected");
}

void TestVirtualSlots::thePluginInterfaceHasFortyOperations()
{
    QCOMPARE(slotOf(&LongerInterface::afterTheLast), slotsOfQObject + 40);
}

void TestVirtualSlots::drawablesKeepTheirOrder()
{
    // The destructor comes first and takes two places.
    QCOMPARE(slotOf(&Object3D::draw), 2);
    QCOMPARE(slotOf(&Object3D::init), 3);
    QCOMPARE(slotOf(&Object3D::drawingOrder), 4);
}

void TestVirtualSlots::theMapsOwnOperationsFollowThoseOfItsFirstBase()
{
    // Their order differs from that in Object3D.
    QCOMPARE(slotOf(&RxMap3D::init), slotsOfQObject);
    QCOMPARE(slotOf(&RxMap3D::draw), slotsOfQObject + 1);
    QCOMPARE(slotOf(&RxMap3D::drawingOrder), slotsOfQObject + 2);
}

void TestVirtualSlots::graphicsListsKeepTheirOrder()
{
    QCOMPARE(slotOf(&UiGraphicsList::getPointDescription), slotsOfQObject);
    QCOMPARE(slotOf(&UiGraphicsList::init), slotsOfQObject + 1);
    QCOMPARE(slotOf(&UiGraphicsList::drawables), slotsOfQObject + 2);
}

void TestVirtualSlots::guidanceWidgetsKeepTheirOrder()
{
    class Open : public UiGWidget {
    public:
        using UiGWidget::mousePressEvent;
        using UiGWidget::mouseReleaseEvent;
    };
    const int first = slotOf(&LongerGraphicsWidget::afterTheLast);
    QCOMPARE(slotOf(&UiGWidget::pageShown), first);
    QCOMPARE(slotOf(&Open::mousePressEvent), first + 1);
    QCOMPARE(slotOf(&Open::mouseReleaseEvent), first + 2);
    QCOMPARE(slotOf(&UiGWidget::checkForRequiredDbGroups), first + 3);
    QCOMPARE(slotOf(&UiGWidget::userHasLongTouchedThisWidget), first + 4);
}

void TestVirtualSlots::whatEveryPlugInTellsKeepsItsOrder()
{
    // The destructor comes first and takes two places.
    QCOMPARE(slotOf(&BasePlugInProvides::close), 2);
    QCOMPARE(slotOf(&BasePlugInProvides::getInterfaceVersion), 3);
    QCOMPARE(slotOf(&BasePlugInProvides::getDbVersion), 4);
    QCOMPARE(slotOf(&BasePlugInProvides::getPluginName), 5);
    QCOMPARE(slotOf(&BasePlugInProvides::getPluginVersion), 6);
    QCOMPARE(slotOf(&LongerProvides::afterTheLast), 7);
}

RXMAP_TEST(TestVirtualSlots, None)
#include "tst_virtualslots.moc"
