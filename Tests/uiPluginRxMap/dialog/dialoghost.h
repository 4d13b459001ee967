#pragma once

#include "dialoggroups.h"
#include "maphost.h"
#include "paths.h"

#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/productlineitem.h"
#include "bePluginRxMap/dbgrouprxmap.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QDir>

#include <deque>

/// A host with bins, products and a vehicle, as the settings dialog sees it. Products are weight products under
/// prescription control; the vehicle stands.
class DialogHost {
public:
    /// One bin, product, loader and settings entry each; one prescription group "rxMap.field" that maps all of them.
    /// `iniFile`: the terminal's settings; empty: none.
    explicit DialogHost(int products = 3, const QString &iniFile = QString());

    OrvikTypes::RX_SETTINGS entry(int index) const { return map->getSettings().at(index); }
    void editSettings(int index, const OrvikTypes::RX_SETTINGS &entry);
    /// Replaces the product, and its node, at that index.
    ProductLineItem *replaceProduct(int index, ProductLineItem::Basis basis);
    void setLoaded();

    MapHost host;
    DataBroker &broker = host.broker;
    QDir images{buildPath("Simulator/Resources/images")};
    GpsGroup *gps;
    QuillSpanGroup *quillSpan;
    DbGroupRxMap *map;
    QList<BinGroup *> bins;
    QList<ProductLineItem *> products;
    QList<DbGroupSingleProductNode *> nodes;
    std::deque<RxMapLoader> loaders;
    int reInitialisations = 0;
};
