#include "dbgroupgpssolution.h"

ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupGpsSolution, bool, vehicleIsStopped, VehicleIsStopped, storedVehicleIsStopped)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupGpsSolution, OrvikTypes::XYZ, position, Position, storedPosition)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupGpsSolution, double, speed, Speed, storedSpeed)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupGpsSolution, double, heading, Heading, storedHeading)

DbGroupGpsSolution::DbGroupGpsSolution(const QString &name, QObject *parent)
    : DataBrokerGroup(name, parent)
{
}
