#pragma once

#include "Framework/frameworkglobal.h"

#include <QList>
#include <QObject>
#include <QScopedPointer>

class BinManager;
class BinManagerPrivate;
class DataBroker;

/// Which products are loaded in which bins. One per process while its broker lives.
class FRAMEWORK_EXPORT BinManager : public QObject {
    Q_OBJECT

public:
    /// The manager; made on the first call with a broker, which then owns it. With a null broker it returns the
    /// manager that exists, or an empty one that lists no product.
    static BinManager *instance(DataBroker *broker);
    ~BinManager() override;

    /// The loaded products in product order, each a ProductLineItem, or null where somebody deleted it; not owned by
    /// the caller, valid until the products change.
    QList<QObject *> loadedFilteredProducts() const;

    // For the host.

    /// Replaces the loaded products and takes ownership of them; the former ones are deleted.
    void setLoadedProducts(const QList<QObject *> &products);

private:
    explicit BinManager(QObject *parent);

    QScopedPointer<BinManagerPrivate> d;
};
