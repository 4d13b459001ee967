#pragma once

#include "Framework/frameworkglobal.h"

#include <QObject>
#include <QScopedPointer>

class DataBrokerGroup;
class ProductLineItemPrivate;
class RxMapLoader;

/// One loaded product.
class FRAMEWORK_EXPORT ProductLineItem : public QObject {
    Q_OBJECT

public:
    /// How the product is measured; None for a product of no known kind.
    enum Basis { None, Count, Volume, Weight, Pressure };

    explicit ProductLineItem(Basis basis, QObject *parent = nullptr);
    ~ProductLineItem() override;

    bool isCountBasedProduct() const;
    bool isVolumeBasedProduct() const;
    bool isWeightBasedProduct() const;
    bool isPressureBasedProduct() const;
    /// The group of the controller node that meters the product (a DbGroupSingleProductNode); null without a node.
    /// The broker owns it.
    DataBrokerGroup *primaryProductNodeGroup() const;
    /// The loader that feeds the product from the prescription; null when it has none. The back-end owns it.
    RxMapLoader *rxMapLoader() const;

    // For the host.

    void setPrimaryProductNodeGroup(DataBrokerGroup *group);
    void setRxMapLoader(RxMapLoader *loader);

private:
    QScopedPointer<ProductLineItemPrivate> d;
};
