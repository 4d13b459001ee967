#pragma once

#include "Backend/ratesource.h"

/// Unit of the file, "lb/ac"; where that is not known, the unit that it is taken as.
QString fileUnitText(const RateSource &source);
/// The unit of a column and what told it: "lb/ac, from the name".
QString unitTextOf(const RateSource &source);
