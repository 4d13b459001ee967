#include "uipluginrxmap.h"

#include "rxmapgraphicslist.h"
#include "rxmapwidget.h"

#include <QCoreApplication>

namespace {

const QString pluginName = QStringLiteral("UiPluginRxMap");
const QString widgetName = QStringLiteral("RxMapWidget");
const QString graphicsListName = QStringLiteral("RxMapGraphicsList");
const QString majorVersion = QStringLiteral("1");
const QString minorVersion = QStringLiteral("0");

} // namespace

UiPluginRxMap::UiPluginRxMap() = default;

UiPluginRxMap::~UiPluginRxMap()
{
    deleteList();
}

void UiPluginRxMap::deleteList()
{
    const QPointer<UiPluginRxMap> self(this);
    UiGraphicsList *last = graphicsList;
    graphicsList.clear();
    isDeletingList = true;
    delete last;
    if (self)
        isDeletingList = false;
}

QStringList UiPluginRxMap::getGuidancePageWidgetNames()
{
    return {widgetName};
}

QMap<QString, QString> UiPluginRxMap::getGuidancePageWidgetLibraryCategories()
{
    return {{widgetName, QCoreApplication::translate("RxMapWidget", "Product Control")}};
}

QMap<QString, QString> UiPluginRxMap::getGuidancePageWidgetLibraryImageNames()
{
    return {{widgetName, QStringLiteral("RxOptionsLibrary_11_01.png")}};
}

QMap<QString, QString> UiPluginRxMap::getGuidancePageWidgetLibraryDisplayNames()
{
    return {{widgetName, QCoreApplication::translate("RxMapWidget", "Rx Map Settings")}};
}

QMap<QString, QString> UiPluginRxMap::getFeatureNames()
{
    QMap<QString, QString> names;
    names.insert(QStringLiteral("singleVra"), QCoreApplication::translate("UiPluginRxMap", "Single VRA"));
    names.insert(QStringLiteral("multiVra"), QCoreApplication::translate("UiPluginRxMap", "Multi VRA"));
    return names;
}

QStringList UiPluginRxMap::getConfigPanelWidgetNames()
{
    return {};
}

QStringList UiPluginRxMap::getGraphicsListNames()
{
    return {graphicsListName};
}

QPointer<UiGraphicsList> UiPluginRxMap::createUiGraphicsList(QString name, DataBroker *broker)
{
    // Ending a list and making one run the host's code, which may delete this or ask for a list meanwhile.
    const QPointer<UiPluginRxMap> self(this);
    if (isDeletingList)
        return {};
    // By design: before the name is looked at; any request ends the list that exists.
    deleteList();
    if (!self || name != graphicsListName)
        return {};
    QPointer<UiGraphicsList> made = new RxMapGraphicsList(broker, nullptr);
    if (self)
        deleteList();
    if (!self) {
        delete made;
        return {};
    }
    graphicsLists().insert(name, made);
    graphicsList = made;
    return made;
}

// By design: unlike graphics lists, earlier widgets stay; only the newest is in the map.
QPointer<UiGWidget> UiPluginRxMap::createUiGWidget(QString name, int x, int y, QPointF position, DataBroker *broker)
{
    if (name != widgetName)
        return {};
    QPointer<UiGWidget> widget = new RxMapWidget(pluginName, name, x, y, imageDir(), position, broker);
    graphicsWidgets().insert(name, widget);
    return widget;
}

QPointer<UiQmlWidget> UiPluginRxMap::createUiQmlWidget(QString /*name*/, QPointF /*position*/,
                                                       QDeclarativeView * /*view*/, DataBroker * /*broker*/)
{
    return {};
}

QString UiPluginRxMap::getPluginName()
{
    return pluginName;
}

void UiPluginRxMap::getPluginVersion(unsigned long &major, unsigned long &minor)
{
    major = majorVersion.toULong();
    minor = minorVersion.toULong();
}
