// What the host itself does: groups, products, and what it asks the plug-in for.

#include "dialoggroups.h"
#include "foreignmapgroup.h"
#include "hostilehost.h"
#include "paths.h"
#include "randomcontent.h"

#include "Framework/binmanager.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/productlineitem.h"
#include "Framework/uigraphicslist.h"
#include "Framework/uigwidget.h"
#include "Framework/uiplugininterface.h"

#include <QApplication>

#include <random>

QList<DataBrokerGroup *> HostileHost::maps() const
{
    QList<DataBrokerGroup *> groups;
    for (const QString &name : broker.findGroup(QStringLiteral("rxMap.*"), true, false))
        groups.append(broker.getGroup(name, false));
    return groups;
}

void HostileHost::publish(DataBrokerGroup *group)
{
    if (broker.publishGroup(group) != DataBrokerGroup::Success)
        delete group;
}

void HostileHost::remove(const QString &name)
{
    broker.removeGroup(name);
}

void HostileHost::keep(DbGroupRxMap *group)
{
    const Quiet quiet(*this);
    Stored::Group &kept = stored.groups[group];
    kept = {group, group->getSettings(), group->getRateCalMappings(), kept.group == group && kept.isProtected};
}

void HostileHost::publishMap(int kind, int seed)
{
    QStringList names{"rxMap.field", "rxMap.other", "rxMap.%1", "rxMap.late"};
    for (const DataBrokerGroup *map : maps())
        names.removeOne(map->name());
    if (names.isEmpty())
        return;
    const QString name = names.at(seed % names.size());
    DataBrokerGroup *group = nullptr;
    if (kind % 10 == 9)
        group = new DataBrokerGroup(name);
    else if (kind % 10 == 8)
        group = new TextValidityMapGroup(name);
    else if (kind % 10 == 7)
        group = new ForeignMapGroup(name);
    else
        group = new DbGroupRxMap(name);
    chains.erase(group);
    invalidMaps.removeOne(group);
    setMappings(*group, seed);
    setSettings(*group, seed / 3);
    const QPointer<DataBrokerGroup> map(group);
    if (auto *real = qobject_cast<DbGroupRxMap *>(group))
        connect(real, &DbGroupRxMap::queryRatesAtXYZSet, this, [this, map] { answer(map); });
    publish(group);
    if (map)
        fill(*map, seed / 5);
}

void HostileHost::setMappings(DataBrokerGroup &group, int seed)
{
    const Mappings mappings = randomMappings(seed);
    const QPointer<DataBrokerGroup> map(&group);
    if (auto *real = qobject_cast<DbGroupRxMap *>(&group)) {
        real->internalSetRateCalMappings(mappings);
        if (map)
            keep(real);
    } else {
        write(map, "rateCalMappings", QVariant::fromValue(mappings));
    }
}

void HostileHost::setSettings(DataBrokerGroup &group, int seed)
{
    auto *real = qobject_cast<DbGroupRxMap *>(&group);
    const QPointer<DataBrokerGroup> map(real);
    if (real != nullptr)
        real->internalSetSettings(randomSettings(seed));
    if (map)
        keep(real);
}

void HostileHost::setProtected(DataBrokerGroup &group, bool isProtected)
{
    auto *real = qobject_cast<DbGroupRxMap *>(&group);
    if (real == nullptr)
        return;
    real->setWriteProtected("settings", isProtected);
    real->setWriteProtected("rateCalMappings", isProtected);
    stored.groups[real].isProtected = isProtected;
}

void HostileHost::toggleValidity(DataBrokerGroup &group)
{
    if (!invalidMaps.removeOne(&group))
        invalidMaps.append(&group);
}

void HostileHost::write(const QPointer<DataBrokerGroup> &group, const char *property, const QVariant &value)
{
    if (group)
        group->setProperty(property, value);
}

void HostileHost::setCount(const QPointer<DataBrokerGroup> &group, unsigned int count)
{
    write(group, "polygonCount", count);
    const Quiet quiet(*this);
    if (group)
        listModel.polygonCountSet(group);
}

void HostileHost::fill(DataBrokerGroup &group, int seed)
{
    std::mt19937 random(static_cast<unsigned int>(seed));
    const QPointer<DataBrokerGroup> map(&group);
    setCount(map, 0);
    if (map.isNull() || map->isRemoved())
        return;
    int mappings = 0;
    {
        const Quiet quiet(*this);
        mappings = valueOf<Mappings>(map, "rateCalMappings").size();
    }
    std::unique_ptr<HandMadeChain> chain = randomChain(mappings, random);
    void *first = random() % 12 == 0 ? nullptr : chain->first();
    const unsigned int count = chain->count() + (random() % 8 == 0 ? 2 : 0);
    std::unique_ptr<HandMadeChain> &place = chains[map];
    place.swap(chain);
    // If a hook filled the map meanwhile, its count may still be in force.
    if (springs > 0 && chain)
        formerChains.push_back(std::move(chain));
    write(map, "rateColors", QVariant::fromValue(randomLegends(mappings, random)));
    write(map, "polygonBuffer", QVariant::fromValue(first));
    setCount(map, count);
}

void HostileHost::removeMap(DataBrokerGroup &group, bool deletes)
{
    const QPointer<DataBrokerGroup> map(&group);
    setCount(map, 0);
    if (map)
        remove(map->name());
    // Not while one of the group's own calls may be in progress.
    if (map && deletes && springs == 0)
        delete map;
}

void HostileHost::answer(const QPointer<DataBrokerGroup> &group)
{
    const auto point = valueOf<OrvikTypes::XYZ>(group, "queryRatesAtXYZ");
    const QList<float> rates = ratesAt(group, QVector3D(float(point.x), float(point.y), float(point.z)));
    write(group, "ratesAtXYZ", QVariant::fromValue(rates));
    write(group, "ratesAtXYZValid", !invalidMaps.contains(group));
}

QList<float> HostileHost::ratesAt(const DataBrokerGroup *group, const QVector3D &point) const
{
    QList<float> rates;
    if (qobject_cast<const DbGroupRxMap *>(group) == nullptr || invalidMaps.contains(group))
        return rates;
    for (int i = 0; i < 3; ++i)
        rates.append(10.0F * static_cast<float>(i) + point.x() + 0.5F * point.y());
    return rates;
}

void HostileHost::activate(const QString &name)
{
    auto *job = findGroup<DbGroupJob>(broker, QStringLiteral("system.current.job"));
    if (job == nullptr)
        return;
    job->setActiveAAMGroupName(name);
    const Quiet quiet(*this);
    if (job == listModel.followedJob())
        listModel.activeAamSet(broker, name);
}

void HostileHost::makeList(const QString &name)
{
    const int before = springs;
    const QPointer<UiGraphicsList> made = library.plugin(broker).createUiGraphicsList(name, &broker);
    const Quiet quiet(*this);
    if (made)
        list = made;
    isListCertain = springs == before && before == 0;
    listModel = ListModel(broker);
}

void HostileHost::initList()
{
    if (list == nullptr)
        return;
    list->init();
    const Quiet quiet(*this);
    listModel.inited(broker, view.isCurrent());
}

void HostileHost::makeWidget(const QString &name)
{
    const QPointer<UiGWidget> made = library.plugin(broker).createUiGWidget(name, 1, 2, QPointF(3, 4), &broker);
    for (Widget &entry : widgets) {
        if (widgets.size() < 4)
            break;
        if (made)
            delete entry.widget;
    }
    widgets.erase(std::remove_if(widgets.begin(), widgets.end(), [](const Widget &e) { return e.widget.isNull(); }),
                  widgets.end());
    if (made)
        widgets.push_back({made, !maps().isEmpty()});
}

void HostileHost::deleteWidget(int number, bool byPlugin)
{
    if (widgets.empty())
        return;
    const Widget &entry = widgets.at(static_cast<std::size_t>(number) % widgets.size());
    if (byPlugin)
        library.plugin(broker).deleteGWidget(entry.widget);
    else
        delete entry.widget;
}

void HostileHost::deleteEverything()
{
    library.plugin(broker).deleteAllWidgets();
}

void HostileHost::deletePlugin()
{
    library.deletePlugin();
}

void HostileHost::reloadLibrary()
{
    if (!dialogs.empty())
        return;
    delete list;
    for (const Widget &entry : widgets)
        delete entry.widget;
    widgets.clear();
    library.deletePlugin();
    const bool isGone = library.unload();
    compare({isGone ? "library gone" : "library still there"}, {"library gone"});
}

void HostileHost::loseContext()
{
    view.loseContext();
    listModel.contextLost();
}

void HostileHost::setLanguage(int number)
{
    const QStringList languages{"de", "es", "fr", "pt_BR", "en"};
    qApp->removeTranslator(&translator);
    const QString folder = buildPath("Plugins/uiPluginRxMap/translations");
    if (translator.load("uiPluginRxMap_" + languages.at(number % languages.size()), folder))
        qApp->installTranslator(&translator);
}

void HostileHost::setProducts(int count, int seed)
{
    static int nodes = 0;
    QList<QObject *> products;
    for (int i = 0; i < count; ++i) {
        auto *product = new ProductLineItem(static_cast<ProductLineItem::Basis>((seed + i) % 5));
        if ((seed + i) % 7 != 6) {
            auto *node = new DbGroupSingleProductNode(QStringLiteral("system.node.%1").arg(++nodes));
            node->setOperationalSettings(OrvikTypes::SPN_OperationalSetStruct(seed % 2 == 0));
            node->setSwitchByteCalSettings(OrvikTypes::SPN_SwitchByteCalSettingsStruct(seed % 3 == 0));
            node->setIsCarrier(seed % 4 == 0);
            publish(node);
            product->setPrimaryProductNodeGroup(node);
        }
        if ((seed + i) % 6 != 5)
            product->setRxMapLoader(&loaders.at(static_cast<std::size_t>(i)));
        products.append((seed + i) % 11 == 10 ? nullptr : product);
        if (products.last() == nullptr)
            delete product;
    }
    BinManager::instance(&broker)->setLoadedProducts(products);
    for (int i = 0; i < 6; ++i) {
        if (i < count)
            publishBin(i, 4);
        else
            remove(QStringLiteral("system.binGroup.%1").arg(i + 1));
    }
}

void HostileHost::publishBin(int index, int seed)
{
    const QString name = QStringLiteral("system.binGroup.%1").arg(index + 1);
    remove(name);
    DataBrokerGroup *group = nullptr;
    if (seed % 10 == 0)
        group = new UnmappedBinGroup(name);
    else if (seed % 10 == 1)
        group = new NamelessBinGroup(name);
    else if (seed % 10 == 2)
        group = new NumberBinGroup(name);
    else
        group = new BinGroup(name);
    const QPointer<DataBrokerGroup> bin(group);
    write(bin, "compositionShortName", QStringLiteral("Bin %1").arg(seed % 1000));
    write(bin, "rxMapGroupName", seed % 10 == 2 ? QVariant(7) : QVariant(seed % 10 == 3 ? "" : "rxMap.field"));
    publish(group);
}

void HostileHost::touchMap(int seed)
{
    if (list != nullptr)
        list->getPointDescription(QVector3D(static_cast<float>(seed % 100) - 50.0F, 3.0F, 0.0F));
}
