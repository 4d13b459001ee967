#pragma once

#include "Backend/prescriptionbackend.h"
#include "maphost.h"

#include <QString>

/// A host into which the back-end has loaded a whole prescription for product 1.
class WholePrescription {
public:
    explicit WholePrescription(const QString &path);

    /// Adds a test row with its `path` for every prescription below the folder.
    static void addRows(const QString &folder);
    /// Why the prescription could not be loaded; empty when it was.
    QString problem() const { return reason; }
    /// The published map; null when there is a problem.
    DbGroupRxMap *group() const { return published; }
    OrvikTypes::RX_POLYGON *chain() const;

    MapHost host;

private:
    PrescriptionBackend backend{&host.broker};
    DbGroupRxMap *published = nullptr;
    QString reason;
};
