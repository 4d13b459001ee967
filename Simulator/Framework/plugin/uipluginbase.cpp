#include "Framework/uipluginbase.h"

namespace {

// Versions of what plug-ins compile against: the interface of Framework/uiplugininterface.h and the groups and
// properties of the Framework/dbgroup*.h headers.
constexpr unsigned long interfaceMajor = 4;
constexpr unsigned long interfaceMinor = 0;
constexpr unsigned long dbMajor = 1;
constexpr unsigned long dbMinor = 0;

} // namespace

class UiPluginBasePrivate {
public:
    DataBroker *broker = nullptr;
    QDeclarativeView *view = nullptr;
    QDir pluginDir;
    QDir imageDir;
    QMap<QString, QPointer<UiGraphicsList>> graphicsLists;
    QMap<QString, QPointer<UiGWidget>> graphicsWidgets;
};

UiPluginBase::UiPluginBase(QObject *parent)
    : UiPluginInterface(parent)
    , d(new UiPluginBasePrivate)
{
}

UiPluginBase::~UiPluginBase() = default;

void UiPluginBase::deleteAllWidgets()
{
    // Copies of the guarded pointers: a destructor may reach the maps.
    const QList<QPointer<UiGraphicsList>> lists = d->graphicsLists.values();
    const QList<QPointer<UiGWidget>> widgets = d->graphicsWidgets.values();
    for (const QPointer<UiGraphicsList> &list : lists)
        deleteGraphicsList(list);
    for (const QPointer<UiGWidget> &widget : widgets)
        deleteGWidget(widget);
}

void UiPluginBase::deleteGraphicsList(QPointer<UiGraphicsList> list)
{
    delete list;
}

void UiPluginBase::deleteGWidget(QPointer<UiGWidget> widget)
{
    delete widget;
}

void UiPluginBase::deleteQmlWidget(QPointer<UiQmlWidget> widget)
{
    delete widget;
}

void UiPluginBase::setView(QDeclarativeView *view)
{
    d->view = view;
}

void UiPluginBase::init(DataBroker *broker, QDir pluginDir, QDir imageDir)
{
    d->broker = broker;
    d->pluginDir = pluginDir;
    d->imageDir = imageDir;
}

void UiPluginBase::close() { }

void UiPluginBase::getInterfaceVersion(unsigned long &major, unsigned long &minor)
{
    major = interfaceMajor;
    minor = interfaceMinor;
}

void UiPluginBase::getDbVersion(unsigned long &major, unsigned long &minor)
{
    major = dbMajor;
    minor = dbMinor;
}

QMap<QString, QPointer<UiGraphicsList>> &UiPluginBase::graphicsLists()
{
    return d->graphicsLists;
}

QMap<QString, QPointer<UiGWidget>> &UiPluginBase::graphicsWidgets()
{
    return d->graphicsWidgets;
}

DataBroker *UiPluginBase::dataBroker() const
{
    return d->broker;
}

QDir UiPluginBase::pluginDir() const
{
    return d->pluginDir;
}

QDir UiPluginBase::imageDir() const
{
    return d->imageDir;
}
