#include "ratemapping.h"

#include <limits>

int findMapping(const QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> &mappings, const QString &rateCalName)
{
    for (int i = 0; i < mappings.size(); ++i) {
        if (mappings.at(i).rateCalName == rateCalName)
            return i;
    }
    return -1;
}

int findProductMapping(const QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> &mappings, int product)
{
    if (product < 0 || product == std::numeric_limits<int>::max())
        return -1;
    const QString number = QString::number(product + 1);
    for (int i = 0; i < mappings.size(); ++i) {
        if (mappings.at(i).rateCalName.contains(number))
            return i;
    }
    return -1;
}
