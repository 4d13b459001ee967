#pragma once

#include "Backend/machineproduct.h"
#include "product.h"
#include "unitsystem.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVector>

class DataBroker;
class DbGroupBin;
class DbGroupGpsSolution;
class DbGroupJob;
class DbGroupQuillSpan;
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
    /// The products as a load takes them, with the default rates in use, which the operator may have changed.
    QList<MachineProduct> loadedProducts() const;
    UnitSystem unitSystem() const { return units; }
    /// Also the product's rate channel (rate-cal name).
    static QString productGroupName(int number);
    static QString aamGroupName(int number);
    static QString binGroupName(int number);

    int activeProduct() const { return active; }
    /// False, and nothing changes, when there is no such product.
    bool setActiveProduct(int number);

    DbGroupGpsSolution *gpsSolution() const { return gps; }
    DbGroupQuillSpan *quillSpan() const { return span; }
    DataBroker *dataBroker() const { return broker; }
    PrescriptionBackend *backend() const { return prescriptions; }

Q_SIGNALS:
    void activeProductChanged(int number);
    /// A prescription map came, went or changed.
    void mapsChanged();

private:
    void publishTerminal();
    void publishProduct(int number);
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
    QVector<DbGroupBin *> bins;
};
