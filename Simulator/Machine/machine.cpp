#include "machine.h"

#include "Backend/prescriptionbackend.h"
#include "activemap.h"
#include "dbgroupbin.h"
#include "dbgroupgpssolution.h"
#include "dbgroupquillspan.h"
#include "visibletext.h"

#include "Framework/binmanager.h"
#include "Framework/databroker.h"
#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/productlineitem.h"
#include "bePluginRxMap/rxmaploader.h"

#include <algorithm>
#include <utility>

namespace {

QString numbered(const char *prefix, int number)
{
    return QLatin1String(prefix) + QString::number(number);
}

ProductLineItem::Basis basisOf(Product::Kind kind)
{
    switch (kind) {
    case Product::Kind::Count:
        return ProductLineItem::Count;
    case Product::Kind::Ratio:
    case Product::Kind::Injection:
    case Product::Kind::Volume:
        return ProductLineItem::Volume;
    case Product::Kind::Weight:
        return ProductLineItem::Weight;
    case Product::Kind::Pressure:
        return ProductLineItem::Pressure;
    case Product::Kind::Unknown:
        break;
    }
    return ProductLineItem::None;
}

} // namespace

Machine::Machine(DataBroker *givenBroker, PrescriptionBackend *backend, const Products &products, UnitSystem givenUnits,
                 QObject *parent)
    : QObject(parent)
    , broker(givenBroker)
    , prescriptions(backend)
    , allProducts(products)
    , units(givenUnits)
{
    publishTerminal();
    for (int number = 1; number <= allProducts.size(); ++number)
        publishProduct(number);
    listProducts();
    useDefaultRates();
    connect(backend, &PrescriptionBackend::mapsChanged, this, &Machine::followMaps);
    announceActiveProduct();
}

void Machine::listProducts()
{
    QList<QObject *> items;
    for (int number = 1; number <= allProducts.size(); ++number) {
        const Product &product = allProducts.at(number - 1);
        auto *item = new ProductLineItem(basisOf(product.kind));
        item->setPrimaryProductNodeGroup(broker->getGroup(numbered("system.productNode.", number), false));
        item->setRxMapLoader(prescriptions->loader(number - 1));
        items.append(item);
    }
    BinManager::instance(broker)->setLoadedProducts(items);
}

void Machine::useDefaultRates()
{
    for (int i = 0; i < allProducts.size(); ++i)
        prescriptions->loader(i)->defaultRate = allProducts.at(i).defaultRate;
}

void Machine::setProducts(const Products &products)
{
    const Products before = std::exchange(allProducts, products);
    useDefaultRates();
    const auto isSame = [](const Product &one, const Product &other) { return one.isSameAs(other); };
    if (std::equal(before.begin(), before.end(), allProducts.begin(), allProducts.end(), isSame))
        return;
    for (int number = 1; number <= before.size(); ++number)
        describeProduct(number);
    for (int number = before.size() + 1; number <= allProducts.size(); ++number)
        publishProduct(number);
    listProducts();
    Q_EMIT productsChanged();
}

QList<MachineProduct> Machine::loadedProducts() const
{
    QList<MachineProduct> loaded = asLoaded(allProducts, displayFactors());
    for (int i = 0; i < loaded.size(); ++i)
        loaded[i].defaultRate = prescriptions->loader(i)->defaultRate;
    return loaded;
}

Machine::DisplayFactors Machine::displayFactors() const
{
    const auto *converter =
        qobject_cast<DbGroupQmlUnitsConverter *>(broker->getGroup(QStringLiteral("QmlUnitsConverter"), false));
    return {{DbGroupProductGroupInfo::CountRate, converter->getCountRateToDisplay()},
            {DbGroupProductGroupInfo::RatioRate, converter->getRatioRateToDisplay()},
            {DbGroupProductGroupInfo::InjectionRate, converter->getInjectionRateToDisplay()},
            {DbGroupProductGroupInfo::VolumeRate, converter->getVolumeRateToDisplay()},
            {DbGroupProductGroupInfo::WeightRate, converter->getWeightRateToDisplay()},
            {DbGroupProductGroupInfo::PressureRate, converter->getPressureToDisplay()}};
}

QList<MachineProduct> Machine::asLoaded(const Products &products, const DisplayFactors &factors)
{
    QList<MachineProduct> loaded;
    for (const Product &product : products)
        loaded.append({product.name, productGroupName(loaded.size() + 1), product.rateKind(), product.defaultRate,
                       product.underVra, false, factors.value(product.rateKind(), 1.0)});
    return loaded;
}

QString Machine::productGroupName(int number)
{
    return numbered("system.productGroup.", number);
}

QString Machine::aamGroupName(int number)
{
    return numbered("system.aam.", number);
}

QString Machine::binGroupName(int number)
{
    return numbered("system.binGroup.", number);
}

void Machine::publishTerminal()
{
    auto *converter = new DbGroupQmlUnitsConverter(QStringLiteral("QmlUnitsConverter"));
    converter->internalSetAreaUnitSystem(areaUnitSystem(units));
    converter->internalSetPressureUnit(pressureUnit(units));
    broker->publishGroup(converter);

    job = new DbGroupJob(QStringLiteral("system.current.job"));
    broker->publishGroup(job);
    gps = new DbGroupGpsSolution(QStringLiteral("mainGpsSolution"));
    broker->publishGroup(gps);
    span = new DbGroupQuillSpan(QStringLiteral("quillSpan"));
    broker->publishGroup(span);
}

void Machine::publishProduct(int number)
{
    auto *info = new DbGroupProductGroupInfo(productGroupName(number));
    info->internalSetProductNumber(number);
    auto *aam = new DbGroupAAM(aamGroupName(number));
    aam->internalSetProductGroupName(productGroupName(number));
    auto *node = new DbGroupSingleProductNode(numbered("system.productNode.", number));
    auto *bin = new DbGroupBin(binGroupName(number));
    productGroups.append({info, node, bin});
    describeProduct(number);
    for (DataBrokerGroup *group : std::initializer_list<DataBrokerGroup *>{info, aam, node, bin})
        broker->publishGroup(group);
}

void Machine::describeProduct(int number)
{
    const Product &product = allProducts.at(number - 1);
    const ProductGroups &groups = productGroups.at(number - 1);
    groups.info->internalSetRateKind(product.rateKind());
    groups.node->internalSetOperationalSettings(
        OrvikTypes::SPN_OperationalSetStruct(product.kind == Product::Kind::Ratio));
    groups.node->internalSetSwitchByteCalSettings(
        OrvikTypes::SPN_SwitchByteCalSettingsStruct(product.kind == Product::Kind::Injection));
    groups.node->internalSetIsCarrier(product.isCarrier);
    groups.bin->internalSetCompositionShortName(VisibleText::of(product.shortName));
    groups.bin->internalSetBinNumber(product.bin);
}

QMap<int, QString> Machine::columnsOf(const QString &group) const
{
    QMap<int, QString> columns;
    for (int number = 1; number <= allProducts.size(); ++number) {
        const ActiveMap map = ActiveMap::find(*broker, productGroupName(number));
        if (map.isValid() && map.groupName == group)
            columns.insert(number, map.columnName);
    }
    return columns;
}

std::optional<QPointF> Machine::planeOrigin() const
{
    const QList<LoadReport> maps = prescriptions->maps();
    if (maps.isEmpty())
        return {};
    const QString fed = ActiveMap::find(*broker, productGroupName(active)).groupName;
    const auto shown =
        std::find_if(maps.begin(), maps.end(), [&fed](const LoadReport &map) { return map.group == fed; });
    return shown != maps.end() ? shown->origin : maps.last().origin;
}

bool Machine::setActiveProduct(int number)
{
    if (number < 1 || number > allProducts.size())
        return false;
    active = number;
    announceActiveProduct();
    Q_EMIT activeProductChanged(active);
    return true;
}

void Machine::announceActiveProduct()
{
    job->internalSetActiveAAMGroupName(aamGroupName(active));
}

void Machine::followMaps()
{
    for (int number = 1; number <= productGroups.size(); ++number) {
        const QString feeding = allProducts.at(number - 1).underVra
            ? ActiveMap::find(*broker, productGroupName(number)).groupName
            : QString();
        productGroups.at(number - 1).bin->internalSetRxMapGroupName(feeding);
    }
    // Plug-ins look for a product's map only when the job names its application map again.
    announceActiveProduct();
    Q_EMIT mapsChanged();
}
