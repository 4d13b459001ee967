#pragma once

#include "Framework/sharedmetatype.h"

#include <QList>
#include <QString>

namespace OrvikTypes {

/// Maps one column of the prescription file (a DBF attribute table) to a product's rate channel.
/// The position in its list indexes the rates of a polygon and of a queried point, so a list is never reordered
/// or filtered. Fields named `aux...` belong to the back-end that fills the list; everybody else copies them.
struct RX_DBFCOLUMN_TO_RATECAL_MAPPING {
    bool auxFlag = false;
    QString rateCalName;   ///< Rate channel: equals the product-group name and contains the product's number from 1.
    QString dbfColumnName; ///< The prescription-file column.
    qint32 auxNumber = 0;
    double auxValue1 = 0.0;
    double auxValue2 = 0.0;
    double auxValue3 = 0.0;
    double defaultRate = 0.0; ///< Rate outside the prescription, base units.
    QList<int> auxIndices;
    qint32 auxNumber2 = 0;
};

inline bool operator==(const RX_DBFCOLUMN_TO_RATECAL_MAPPING &a, const RX_DBFCOLUMN_TO_RATECAL_MAPPING &b)
{
    return a.auxFlag == b.auxFlag && a.rateCalName == b.rateCalName && a.dbfColumnName == b.dbfColumnName
        && a.auxNumber == b.auxNumber && a.auxValue1 == b.auxValue1 && a.auxValue2 == b.auxValue2
        && a.auxValue3 == b.auxValue3 && a.defaultRate == b.defaultRate && a.auxIndices == b.auxIndices
        && a.auxNumber2 == b.auxNumber2;
}

inline bool operator!=(const RX_DBFCOLUMN_TO_RATECAL_MAPPING &a, const RX_DBFCOLUMN_TO_RATECAL_MAPPING &b)
{
    return !(a == b);
}

} // namespace OrvikTypes

ORVIK_DECLARE_SHARED_METATYPE(OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING)
ORVIK_DECLARE_SHARED_METATYPE(QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>)
