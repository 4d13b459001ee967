#include "Backend/loadreport.h"

#include "localplane.h"

double LoadReport::distanceTo(const QPointF &other) const
{
    return LocalPlane(origin.x(), origin.y()).distanceTo(other.x(), other.y());
}
