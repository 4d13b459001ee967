#pragma once

/// Ids by which the settings dialog tells its value controls apart.
enum ControlId { ApplyToAllId = 0, LookAheadId = 1, ZeroRateShutoffId = 2, DefaultRateId = 3 };
