#pragma once

#include "Framework/groupproperty.h"
#include "Framework/xyz.h"

/// Where the vehicle is and how it moves, published as "mainGpsSolution".
class DbGroupGpsSolution : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(bool, vehicleIsStopped, VehicleIsStopped)
    /// Metres of the local plane.
    ORVIK_GROUP_PROPERTY(OrvikTypes::XYZ, position, Position)
    /// Metres per second, from 0.
    ORVIK_GROUP_PROPERTY(double, speed, Speed)
    /// Degrees clockwise from north, 0 up to 360.
    ORVIK_GROUP_PROPERTY(double, heading, Heading)

public:
    explicit DbGroupGpsSolution(const QString &name, QObject *parent = nullptr);

private:
    bool storedVehicleIsStopped = true;
    OrvikTypes::XYZ storedPosition;
    double storedSpeed = 0.0;
    double storedHeading = 0.0;
};
