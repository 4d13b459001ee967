#include "machine.h"

#include "Backend/prescriptionbackend.h"
#include "activemap.h"
#include "dbgroupbin.h"
#include "dbgroupgpssolution.h"
#include "dbgroupquillspan.h"
#include "suggestedproducts.h"

#include "Framework/binmanager.h"
#include "Framework/databroker.h"
#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/productlineitem.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QFileInfo>
#include <QMap>

#include <algorithm>
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

DbGroupProductGroupInfo::RateKind rateKindOf(const Product &product)
{
    switch (product.rateKind()) {
    case Product::Kind::Count:
        return DbGroupProductGroupInfo::CountRate;
    case Product::Kind::Ratio:
        return DbGroupProductGroupInfo::RatioRate;
    case Product::Kind::Injection:
        return DbGroupProductGroupInfo::InjectionRate;
    case Product::Kind::Volume:
        return DbGroupProductGroupInfo::VolumeRate;
    case Product::Kind::Weight:
        return DbGroupProductGroupInfo::WeightRate;
    case Product::Kind::Pressure:
        return DbGroupProductGroupInfo::PressureRate;
    case Product::Kind::Unknown:
        break;
    }
    return DbGroupProductGroupInfo::UnknownRate;
}

bool isSame(const Product &one, const Product &other)
{
    return one.name == other.name && one.kind == other.kind;
}

/// The products that columns make of those that there are. There are never fewer, and one that stays what it was keeps
/// all that the operator set.
Products remade(const QList<ColumnProduct> &columns, const Products &present)
{
    Products products = SuggestedProducts::of(columns, present.size());
    for (int i = 0; i < present.size(); ++i) {
        if (isSame(products.at(i), present.at(i)))
            products[i] = present.at(i);
    }
    return products;
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
    connect(backend, &PrescriptionBackend::mapsChanged, this, &Machine::followMaps);
    connect(backend, &PrescriptionBackend::productsMade, this, &Machine::takeProducts);
    announceActiveProduct();
}

void Machine::listProducts()
{
    QList<QObject *> items;
    for (int number = 1; number <= allProducts.size(); ++number) {
        const Product &product = allProducts.at(number - 1);
        auto *item = new ProductLineItem(basisOf(product.kind));
        item->setPrimaryProductNodeGroup(broker->getGroup(numbered("system.productNode.", number), false));
        RxMapLoader *loader = prescriptions->loader(number - 1);
        loader->defaultRate = product.defaultRate;
        item->setRxMapLoader(loader);
        items.append(item);
    }
    BinManager::instance(broker)->setLoadedProducts(items);
}

void Machine::takeProducts(const QList<ColumnProduct> &columns)
{
    const Products made = remade(columns, productsInUse());
    const int before = allProducts.size();
    if (!areProductsOpen || std::equal(made.begin(), made.end(), allProducts.begin(), allProducts.end(), isSame))
        return;
    allProducts = made;
    for (int number = 1; number <= before; ++number)
        describeProduct(number);
    for (int number = before + 1; number <= allProducts.size(); ++number)
        publishProduct(number);
    listProducts();
    Q_EMIT productsChanged();
}

void Machine::leaveProductsOpen()
{
    takesProductsFromFiles = true;
    areProductsOpen = true;
}

void Machine::settleProducts()
{
    areProductsOpen = areProductsOpen && prescriptions->maps().isEmpty();
}

Products Machine::productsInUse() const
{
    Products products = allProducts;
    for (int i = 0; i < products.size(); ++i)
        products[i].defaultRate = prescriptions->loader(i)->defaultRate;
    return products;
}

void Machine::enterProducts(LoadRequest &request) const
{
    request.products = loadedProducts();
    if (areProductsOpen)
        request.makeProducts = maker();
}

void Machine::offerProducts(LoadRequest &request) const
{
    request.products = loadedProducts();
    if (!takesProductsFromFiles || (keepsProducts && keepsProducts()))
        return;
    request.makeProducts = maker();
    const QList<LoadReport> maps = prescriptions->maps();
    for (const LoadReport &map : maps) {
        const QList<int> fed = columnsOf(map.group).keys();
        for (const int number : fed)
            request.products[number - 1].isInUse = QFileInfo(map.path) != QFileInfo(request.path);
    }
}

Machine::ProductMaker Machine::maker() const
{
    // Called in another thread, which may not ask the broker.
    const auto *converter =
        qobject_cast<DbGroupQmlUnitsConverter *>(broker->getGroup(QStringLiteral("QmlUnitsConverter"), false));
    const QMap<DbGroupProductGroupInfo::RateKind, double> factors{
        {DbGroupProductGroupInfo::CountRate, converter->getCountRateToDisplay()},
        {DbGroupProductGroupInfo::VolumeRate, converter->getVolumeRateToDisplay()},
        {DbGroupProductGroupInfo::WeightRate, converter->getWeightRateToDisplay()}};
    const Products present = productsInUse();
    return [factors, present](const QList<ColumnProduct> &columns) {
        QList<MachineProduct> made;
        const Products products = remade(columns, present);
        for (const Product &product : products)
            made.append({product.name, productGroupName(made.size() + 1), rateKindOf(product), product.defaultRate,
                         product.underVra, false, factors.value(rateKindOf(product), 1.0)});
        return made;
    };
}

Products Machine::productsFor(const QList<ColumnProduct> &columns) const
{
    return columns.isEmpty() ? allProducts : remade(columns, productsInUse());
}

QList<MachineProduct> Machine::loadedProductsFor(const QList<ColumnProduct> &columns) const
{
    return columns.isEmpty() ? loadedProducts() : maker()(columns);
}

QList<MachineProduct> Machine::loadedProducts() const
{
    QList<MachineProduct> loaded;
    for (int number = 1; number <= allProducts.size(); ++number) {
        const Product &product = allProducts.at(number - 1);
        auto *info = qobject_cast<DbGroupProductGroupInfo *>(broker->getGroup(productGroupName(number), false));
        loaded.append({product.name, productGroupName(number), rateKindOf(product),
                       prescriptions->loader(number - 1)->defaultRate, product.underVra, false,
                       getRateConversion(info)});
    }
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
    groups.info->internalSetRateKind(rateKindOf(product));
    groups.node->internalSetOperationalSettings(
        OrvikTypes::SPN_OperationalSetStruct(product.kind == Product::Kind::Ratio));
    groups.node->internalSetSwitchByteCalSettings(
        OrvikTypes::SPN_SwitchByteCalSettingsStruct(product.kind == Product::Kind::Injection));
    groups.node->internalSetIsCarrier(product.isCarrier);
    groups.bin->internalSetCompositionShortName(product.shortName);
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
    settleProducts();
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
