#include "Framework/productlineitem.h"

#include "Framework/databrokergroup.h"

#include <QPointer>

class ProductLineItemPrivate {
public:
    ProductLineItem::Basis basis = ProductLineItem::None;
    QPointer<DataBrokerGroup> nodeGroup;
    RxMapLoader *loader = nullptr;
};

ProductLineItem::ProductLineItem(Basis basis, QObject *parent)
    : QObject(parent)
    , d(new ProductLineItemPrivate)
{
    d->basis = basis;
}

ProductLineItem::~ProductLineItem() = default;

bool ProductLineItem::isCountBasedProduct() const
{
    return d->basis == Count;
}

bool ProductLineItem::isVolumeBasedProduct() const
{
    return d->basis == Volume;
}

bool ProductLineItem::isWeightBasedProduct() const
{
    return d->basis == Weight;
}

bool ProductLineItem::isPressureBasedProduct() const
{
    return d->basis == Pressure;
}

DataBrokerGroup *ProductLineItem::primaryProductNodeGroup() const
{
    return d->nodeGroup;
}

RxMapLoader *ProductLineItem::rxMapLoader() const
{
    return d->loader;
}

void ProductLineItem::setPrimaryProductNodeGroup(DataBrokerGroup *group)
{
    d->nodeGroup = group;
}

void ProductLineItem::setRxMapLoader(RxMapLoader *loader)
{
    d->loader = loader;
}
