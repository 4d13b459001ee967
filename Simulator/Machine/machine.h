#pragma once

#include "Backend/loadrequest.h"
#include "product.h"
#include "unitsystem.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointF>
#include <QString>
#include <QVector>

#include <functional>
#include <optional>

class DataBroker;
class DbGroupBin;
class DbGroupGpsSolution;
class DbGroupJob;
class DbGroupProductGroupInfo;
class DbGroupQuillSpan;
class DbGroupSingleProductNode;
class PrescriptionBackend;
struct LoadReport;

/// The machine as the broker shows it: units, job, products with their bins, nodes and application maps, position and
/// rate controller. It keeps the groups that depend on the loaded prescriptions current. Products are numbered from 1.
class Machine : public QObject {
    Q_OBJECT

public:
    /// Publishes everything, with product 1 active. `broker` and `backend` are not owned and outlive the machine.
    Machine(DataBroker *broker, PrescriptionBackend *backend, const Products &products, UnitSystem units,
            QObject *parent = nullptr);

    /// The next prescription loaded defines the products; until then the present ones are placeholders.
    void leaveProductsOpen();
    /// Ends that if a map is loaded: the next prescription then defines no products.
    void settleProducts();
    /// `condition` says when an offer (offerProducts()) leaves the products as they are, whatever a prescription
    /// brings.
    void keepProductsWhile(const std::function<bool()> &condition) { keepsProducts = condition; }
    /// Enters the products that a prescription is to be loaded for: the machine's, or those made from its columns while
    /// the products are open.
    void enterProducts(LoadRequest &request) const;
    /// The same for an operator who sees the result beforehand. Where the machine takes its products from
    /// prescriptions, a file that takes over all products in use on its plane brings its own, as the first one did.
    void offerProducts(LoadRequest &request) const;
    /// The products for a surveyed file: made from its columns, or the machine's if `columns` is empty.
    Products productsFor(const QList<ColumnProduct> &columns) const;
    QList<MachineProduct> loadedProductsFor(const QList<ColumnProduct> &columns) const;

    const Products &products() const { return allProducts; }
    /// The products as a load takes them, with the default rates in use, which the operator may have changed.
    QList<MachineProduct> loadedProducts() const;
    UnitSystem unitSystem() const { return units; }
    /// Also the product's rate channel (rate-cal name).
    static QString productGroupName(int number);
    static QString aamGroupName(int number);
    static QString binGroupName(int number);

    /// The columns of a map that feed products now, by product number.
    QMap<int, QString> columnsOf(const QString &group) const;

    /// Where the plane that counts touches the earth, degrees of longitude and latitude: that of the map that feeds the
    /// active product, or of the newest map where none does; nothing when no map is loaded.
    std::optional<QPointF> planeOrigin() const;

    int activeProduct() const { return active; }
    /// False, and nothing changes, when there is no such product.
    bool setActiveProduct(int number);

    DbGroupGpsSolution *gpsSolution() const { return gps; }
    DbGroupQuillSpan *quillSpan() const { return span; }
    DataBroker *dataBroker() const { return broker; }
    PrescriptionBackend *backend() const { return prescriptions; }

Q_SIGNALS:
    /// There may be more products than before, never fewer.
    void productsChanged();
    void activeProductChanged(int number);
    /// A prescription map came, went or changed.
    void mapsChanged();

private:
    /// What the broker shows of a product. Owned by the broker.
    struct ProductGroups {
        DbGroupProductGroupInfo *info;
        DbGroupSingleProductNode *node;
        DbGroupBin *bin;
    };

    using ProductMaker = std::function<QList<MachineProduct>(const QList<ColumnProduct> &)>;

    /// Makes products from a file's columns, see LoadRequest.
    ProductMaker maker() const;
    /// The default rates in use, which the operator or a file may have changed, by product.
    QList<double> ratesInUse() const;
    void useRates(const QList<double> &rates);
    /// Notes that the default rates that a file gave are now in use, not ones that the operator set.
    void noteGivenRates(const LoadReport &report);
    void publishTerminal();
    void publishProduct(int number);
    /// Writes what the product is into its groups.
    void describeProduct(int number);
    void listProducts();
    void takeProducts(const QList<ColumnProduct> &columns);
    void announceActiveProduct();
    void followMaps();

    DataBroker *broker;
    PrescriptionBackend *prescriptions;
    Products allProducts;
    UnitSystem units;
    bool areProductsOpen = false;
    bool takesProductsFromFiles = false;
    std::function<bool()> keepsProducts;
    int active = 1;
    DbGroupJob *job = nullptr;
    DbGroupGpsSolution *gps = nullptr;
    DbGroupQuillSpan *span = nullptr;
    /// By product.
    QVector<ProductGroups> productGroups;
};
