#pragma once

#include "Framework/sharedmetatype.h"

#include <QList>
#include <QString>

namespace OrvikTypes {

/// How the prescription drives one product. A "settings" list holds one entry per product, in product order.
struct RX_SETTINGS {
    QString name;                 ///< The back-end's text for the entry; carried, never shown.
    qint32 onLookAheadMs = 0;     ///< On look-ahead time, milliseconds.
    bool zeroRateShutoff = false; ///< A prescribed rate of zero shuts the product off.
    bool isMaster = false;        ///< This product's zero-rate shut-off is copied to the others; at most one entry.
    bool followsMaster = false;   ///< Takes the master's zero-rate shut-off when that is toggled.
};

inline bool operator==(const RX_SETTINGS &a, const RX_SETTINGS &b)
{
    return a.name == b.name && a.onLookAheadMs == b.onLookAheadMs && a.zeroRateShutoff == b.zeroRateShutoff
        && a.isMaster == b.isMaster && a.followsMaster == b.followsMaster;
}

inline bool operator!=(const RX_SETTINGS &a, const RX_SETTINGS &b)
{
    return !(a == b);
}

} // namespace OrvikTypes

ORVIK_DECLARE_SHARED_METATYPE(OrvikTypes::RX_SETTINGS)
ORVIK_DECLARE_SHARED_METATYPE(QList<OrvikTypes::RX_SETTINGS>)
