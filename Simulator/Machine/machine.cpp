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
#include <cmath>
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

/// The default rates of new products, of which there are never fewer than before. A product that stays the same keeps
/// the rate in use if the operator set it: if that is neither the rate that the product was made with nor one that a
/// file gave since.
QList<double> ratesToUse(const Products &products, const Products &before, const QList<double> &ratesInUse)
{
    QList<double> rates;
    for (int i = 0; i < products.size(); ++i) {
        const bool isKept =
            i < before.size() && isSame(products.at(i), before.at(i)) && ratesInUse.at(i) != before.at(i).defaultRate;
        rates.append(isKept ? ratesInUse.at(i) : products.at(i).defaultRate);
    }
    return rates;
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
    useRates(ratesToUse(allProducts, {}, {}));
    connect(backend, &PrescriptionBackend::mapsChanged, this, &Machine::followMaps);
    connect(backend, &PrescriptionBackend::productsMade, this, &Machine::takeProducts);
    connect(backend, &PrescriptionBackend::finished, this, &Machine::noteGivenRates);
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

void Machine::useRates(const QList<double> &rates)
{
    for (int i = 0; i < rates.size(); ++i)
        prescriptions->loader(i)->defaultRate = rates.at(i);
}

void Machine::takeProducts(const QList<ColumnProduct> &columns)
{
    if (!areProductsOpen)
        return;
    const QList<double> inUse = ratesInUse();
    const Products before = std::exchange(allProducts, SuggestedProducts::of(columns, allProducts.size()));
    useRates(ratesToUse(allProducts, before, inUse));
    if (std::equal(before.begin(), before.end(), allProducts.begin(), allProducts.end(), isSame))
        return;
    for (int number = 1; number <= before.size(); ++number)
        describeProduct(number);
    for (int number = before.size() + 1; number <= allProducts.size(); ++number)
        publishProduct(number);
    listProducts();
    Q_EMIT productsChanged();
}

void Machine::noteGivenRates(const LoadReport &report)
{
    for (const RateSource &source : report.sources) {
        const double given = source.placeRates.defaultRate();
        // A request may name products that the machine does not have.
        if (report.isOk() && !std::isnan(given) && source.product <= allProducts.size())
            allProducts[source.product - 1].defaultRate = given;
    }
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

QList<double> Machine::ratesInUse() const
{
    QList<double> rates;
    for (int i = 0; i < allProducts.size(); ++i)
        rates.append(prescriptions->loader(i)->defaultRate);
    return rates;
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
        if (QFileInfo(map.path) == QFileInfo(request.path))
            continue;
        const QList<int> fed = columnsOf(map.group).keys();
        for (const int number : fed)
            request.products[number - 1].inUseAt = map.origin;
    }
}

Machine::ProductMaker Machine::maker() const
{
    // What is returned runs in the loading thread, which may not ask the broker.
    const auto *converter =
        qobject_cast<DbGroupQmlUnitsConverter *>(broker->getGroup(QStringLiteral("QmlUnitsConverter"), false));
    const QMap<DbGroupProductGroupInfo::RateKind, double> factors{
        {DbGroupProductGroupInfo::CountRate, converter->getCountRateToDisplay()},
        {DbGroupProductGroupInfo::VolumeRate, converter->getVolumeRateToDisplay()},
        {DbGroupProductGroupInfo::WeightRate, converter->getWeightRateToDisplay()}};
    return [factors, before = allProducts, inUse = ratesInUse()](const QList<ColumnProduct> &columns) {
        QList<MachineProduct> made;
        const Products products = SuggestedProducts::of(columns, before.size());
        const QList<double> rates = ratesToUse(products, before, inUse);
        for (const Product &product : products)
            made.append({product.name, productGroupName(made.size() + 1), rateKindOf(product), rates.at(made.size()),
                         product.underVra, false, factors.value(rateKindOf(product), 1.0)});
        return made;
    };
}

Products Machine::productsFor(const QList<ColumnProduct> &columns) const
{
    return columns.isEmpty() ? allProducts : SuggestedProducts::of(columns, allProducts.size());
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
