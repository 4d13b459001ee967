#include "dialoggroups.h"

ORVIK_GROUP_PROPERTY_ACCESSORS(BinGroup, QString, compositionShortName, CompositionShortName, d->compositionShortName)
ORVIK_GROUP_PROPERTY_ACCESSORS(BinGroup, QString, rxMapGroupName, RxMapGroupName, d->rxMapGroupName)
ORVIK_GROUP_PROPERTY_ACCESSORS(NamelessBinGroup, QString, rxMapGroupName, RxMapGroupName, d->rxMapGroupName)
ORVIK_GROUP_PROPERTY_ACCESSORS(UnmappedBinGroup, QString, compositionShortName, CompositionShortName,
                               d->compositionShortName)
ORVIK_GROUP_PROPERTY_ACCESSORS(NumberGpsGroup, int, vehicleIsStopped, VehicleIsStopped, d->vehicleIsStopped)
ORVIK_GROUP_PROPERTY_ACCESSORS(GpsGroup, bool, vehicleIsStopped, VehicleIsStopped, d->vehicleIsStopped)
ORVIK_GROUP_PROPERTY_ACCESSORS(TextGpsGroup, QString, vehicleIsStopped, VehicleIsStopped, d->vehicleIsStopped)
ORVIK_GROUP_PROPERTY_ACCESSORS(ListGpsGroup, QVariantList, vehicleIsStopped, VehicleIsStopped, d->vehicleIsStopped)
ORVIK_GROUP_PROPERTY_ACCESSORS(NumberBinGroup, int, rxMapGroupName, RxMapGroupName, d->rxMapGroupName)
ORVIK_GROUP_PROPERTY_ACCESSORS(TextQuillSpanGroup, QString, reInit, ReInit, d->reInit)
ORVIK_GROUP_PROPERTY_ACCESSORS(QuillSpanGroup, bool, reInit, ReInit, d->reInit)
