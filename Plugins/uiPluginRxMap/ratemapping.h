#pragma once

#include "Framework/rxdbfcolumntoratecalmapping.h"

#include <QList>
#include <QString>

/// Position of the first mapping whose rate channel is exactly `rateCalName`; -1 when there is none. It indexes the
/// rates of polygons and queried points, and the colour legends.
int findMapping(const QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> &mappings, const QString &rateCalName);

/// Position of the mapping of a product (index from 0): the first whose rate channel contains the product's number from
/// 1 as text; -1 when there is none, or no such product.
/// By design: the match is that loose; product 1 also finds a channel with "10" or "11" that comes first.
int findProductMapping(const QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> &mappings, int product);
