#pragma once

#include "Backend/machineproduct.h"
#include "product.h"
#include "unitsystem.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointF>
#include <QString>
#include <QVector>

#include <optional>

class DataBroker;
class DbGroupBin;
class DbGroupGpsSolution;
class DbGroupJob;
class DbGroupQuillSpan;
class DbGroupSingleProductNode;
class PrescriptionBackend;

/// The machine as the broker shows it: units, job, products with their bins, nodes and application maps, position and
/// rate controller. It keeps the groups that depend on the loaded prescriptions current. Products are numbered from 1.
class Machine : public QObject {
    Q_OBJECT

public:
    /// Publishes everything, with product 1 active. `broker` and `backend` are not owned and outlive the machine.
    Machine(DataBroker *broker, PrescriptionBackend *backend, const Products &products, UnitSystem units,
            QObject *parent = nullptr);

    const Products &products() const { return allProducts; }
    /// Never fewer than before. Their default rates come into use.
    void setProducts(const Products &products);
    /// The products as a load takes them, with the default rates in use, which the operator may have changed.
    QList<MachineProduct> loadedProducts() const;
    /// Factors that convert rates from base units to the operator's, by kind; there is none for an unknown kind.
    using DisplayFactors = QMap<DbGroupProductGroupInfo::RateKind, double>;
    DisplayFactors displayFactors() const;
    /// Products as a load takes them. May be called in any thread.
    static QList<MachineProduct> asLoaded(const Products &products, const DisplayFactors &factors);
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

    /// Puts the products' default rates into use.
    void useDefaultRates();
    void publishTerminal();
    void publishProduct(int number);
    /// Writes what the product is into its groups.
    void describeProduct(int number);
    void listProducts();
    void announceActiveProduct();
    void followMaps();

    DataBroker *broker;
    PrescriptionBackend *prescriptions;
    Products allProducts;
    UnitSystem units;
    int active = 1;
    DbGroupJob *job = nullptr;
    DbGroupGpsSolution *gps = nullptr;
    DbGroupQuillSpan *span = nullptr;
    /// By product.
    QVector<ProductGroups> productGroups;
};
