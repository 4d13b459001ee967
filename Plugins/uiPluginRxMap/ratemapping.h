#pragma once

#include "Framework/rxdbfcolumntoratecalmapping.h"

#include <QList>
#include <QString>

/// Position of the first mapping whose rate channel is exactly `rateCalName`; -1 when there is none. It indexes the
/// rates of polygons and queried points, and the colour legends.
int findMapping(const QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> &mappings, const QString &rateCalName);
