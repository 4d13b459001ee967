#include "machine.h"

#include "Backend/prescriptionbackend.h"
#include "activemap.h"
#include "dbgroupbin.h"
#include "dbgroupgpssolution.h"
#include "dbgroupquillspan.h"

#include "Framework/binmanager.h"
#include "Framework/databroker.h"
#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/productlineitem.h"
#include "bePluginRxMap/rxmaploader.h"

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

} // namespace

Machine::Machine(DataBroker *broker, PrescriptionBackend *backend, const Products &products, UnitSystem units,
                 QObject *parent)
    : QObject(parent)
    , broker(broker)
    , prescriptions(backend)
    , allProducts(products)
    , units(units)
{
    publishTerminal();
    QList<QObject *> items;
    for (int number = 1; number <= allProducts.size(); ++number) {
        publishProduct(number);
        const Product &product = allProducts.at(number - 1);
        auto *item = new ProductLineItem(basisOf(product.kind));
        item->setPrimaryProductNodeGroup(broker->getGroup(numbered("system.productNode.", number), false));
        RxMapLoader *loader = backend->loader(number - 1);
        loader->defaultRate = product.defaultRate;
        item->setRxMapLoader(loader);
        items.append(item);
    }
    BinManager::instance(broker)->setLoadedProducts(items);
    connect(backend, &PrescriptionBackend::mapsChanged, this, &Machine::followMaps);
    announceActiveProduct();
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
    const Product &product = allProducts.at(number - 1);
    auto *info = new DbGroupProductGroupInfo(productGroupName(number));
    info->internalSetProductNumber(number);
    info->internalSetRateKind(rateKindOf(product));
    broker->publishGroup(info);

    auto *aam = new DbGroupAAM(aamGroupName(number));
    aam->internalSetProductGroupName(productGroupName(number));
    broker->publishGroup(aam);

    auto *node = new DbGroupSingleProductNode(numbered("system.productNode.", number));
    node->internalSetOperationalSettings(OrvikTypes::SPN_OperationalSetStruct(product.kind == Product::Kind::Ratio));
    node->internalSetSwitchByteCalSettings(
        OrvikTypes::SPN_SwitchByteCalSettingsStruct(product.kind == Product::Kind::Injection));
    node->internalSetIsCarrier(product.isCarrier);
    broker->publishGroup(node);

    auto *bin = new DbGroupBin(binGroupName(number));
    bin->internalSetCompositionShortName(product.shortName);
    bin->internalSetBinNumber(product.bin);
    broker->publishGroup(bin);
    bins.append(bin);
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
    for (int number = 1; number <= bins.size(); ++number) {
        const QString feeding = allProducts.at(number - 1).underVra
            ? ActiveMap::find(*broker, productGroupName(number)).groupName
            : QString();
        bins.at(number - 1)->internalSetRxMapGroupName(feeding);
    }
    // Plug-ins look for a product's map only when the job names its application map again.
    announceActiveProduct();
    Q_EMIT mapsChanged();
}
