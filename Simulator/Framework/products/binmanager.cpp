#include "Framework/binmanager.h"

#include "Framework/databroker.h"

#include <QPointer>
#include <QSet>

class BinManagerPrivate {
public:
    /// Guarded, so that a product deleted by somebody else leaves a null at its place and the others at theirs.
    QList<QPointer<QObject>> products;
};

BinManager::BinManager(QObject *parent)
    : QObject(parent)
    , d(new BinManagerPrivate)
{
}

BinManager::~BinManager() = default;

BinManager *BinManager::instance(DataBroker *broker)
{
    // One for the process: the dialogs of plug-ins ask for it without a broker.
    static QPointer<BinManager> manager;
    if (manager.isNull() && broker != nullptr)
        manager = new BinManager(broker);
    if (!manager.isNull())
        return manager;
    static BinManager *const empty = new BinManager(nullptr);
    return empty;
}

QList<QObject *> BinManager::loadedFilteredProducts() const
{
    QList<QObject *> products;
    for (const QPointer<QObject> &product : qAsConst(d->products))
        products.append(product);
    return products;
}

void BinManager::setLoadedProducts(const QList<QObject *> &products)
{
    if (parent() == nullptr) {
        // The manager without a broker lists no product; it deletes what it is given, as its owner.
        qDeleteAll(QSet<QObject *>(products.begin(), products.end()));
        return;
    }
    const QList<QPointer<QObject>> former = d->products;
    d->products.clear();
    for (QObject *product : products) {
        if (product != nullptr)
            product->setParent(this);
        d->products.append(product);
    }
    for (const QPointer<QObject> &product : former) {
        if (!d->products.contains(product))
            delete product;
    }
}
