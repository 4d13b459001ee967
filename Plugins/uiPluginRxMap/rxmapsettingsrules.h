#pragma once

#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxsettings.h"

#include <QList>
#include <QString>

/// The rules of the settings dialog, on its working copies alone. Settings hold one entry per product, by the product's
/// index from 0; an index without an entry changes nothing.
namespace RxMapSettingsRules {

using Settings = QList<OrvikTypes::RX_SETTINGS>;
using Mappings = QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>;

/// Whether one product's shut-off applies to all.
bool hasMaster(const Settings &settings);
Settings withoutMaster(Settings settings);
/// Makes `master` the only master and copies its shut-off to every product.
Settings withMaster(Settings settings, int master);
/// Switches the shut-off of `product`; of every product that follows the master instead, if it applies to all.
Settings withShutoff(Settings settings, int product, bool shutoff, bool appliesToAll);
/// Milliseconds of a time typed in seconds, truncated; 0 for what is not a number.
int lookAheadMs(const QString &seconds);
/// What a group that holds `held` is to hold: the entries of `working` from `first` on, as far as they reach, then its
/// own.
Mappings shareOf(const Mappings &working, int first, Mappings held);
/// Whether the rate controllers have to start again when `settings` replace `old`: a master or a shut-off changes.
bool needsReInit(const Settings &old, const Settings &settings);

} // namespace RxMapSettingsRules
