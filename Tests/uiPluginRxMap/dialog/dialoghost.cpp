#include "dialoghost.h"

#include "Framework/binmanager.h"

DialogHost::DialogHost(int productCount, const QString &iniFile)
    : host(iniFile)
    , gps(new GpsGroup(QStringLiteral("mainGpsSolution")))
    , quillSpan(new QuillSpanGroup(QStringLiteral("quillSpan")))
{
    broker.publishGroup(gps);
    gps->setVehicleIsStopped(true);
    broker.publishGroup(quillSpan);
    QObject::connect(quillSpan, &QuillSpanGroup::reInitChanged, quillSpan,
                     [this](bool value) { reInitialisations += value ? 1 : 0; });
    QList<int> numbers;
    QList<OrvikTypes::RX_SETTINGS> settings;
    for (int i = 0; i < productCount; ++i) {
        auto *bin = new BinGroup(QStringLiteral("system.binGroup.%1").arg(i + 1));
        bin->setCompositionShortName(QStringLiteral("Bin%1").arg(i + 1));
        bin->setRxMapGroupName(QStringLiteral("rxMap.field"));
        broker.publishGroup(bin);
        bins.append(bin);
        loaders.emplace_back();
        products.append(nullptr);
        nodes.append(nullptr);
        replaceProduct(i, ProductLineItem::Weight);
        numbers.append(i + 1);
        OrvikTypes::RX_SETTINGS entry;
        entry.name = QStringLiteral("entry %1").arg(i + 1);
        entry.onLookAheadMs = 1000 * (i + 1);
        entry.followsMaster = true;
        settings.append(entry);
    }
    setLoaded();
    map = host.addMap(QStringLiteral("field"), numbers);
    map->setSettings(settings);
}

void DialogHost::editSettings(int index, const OrvikTypes::RX_SETTINGS &entry)
{
    QList<OrvikTypes::RX_SETTINGS> settings = map->getSettings();
    settings[index] = entry;
    map->setSettings(settings);
}

ProductLineItem *DialogHost::replaceProduct(int index, ProductLineItem::Basis basis)
{
    static int nodeNumber = 0;
    auto *node = new DbGroupSingleProductNode(QStringLiteral("system.node.%1").arg(++nodeNumber));
    broker.publishGroup(node);
    nodes[index] = node;
    auto *product = new ProductLineItem(basis);
    product->setPrimaryProductNodeGroup(node);
    product->setRxMapLoader(&loaders[static_cast<std::size_t>(index)]);
    products[index] = product;
    return product;
}

void DialogHost::setLoaded()
{
    QList<QObject *> objects;
    for (ProductLineItem *product : qAsConst(products))
        objects.append(product);
    BinManager::instance(&broker)->setLoadedProducts(objects);
}
