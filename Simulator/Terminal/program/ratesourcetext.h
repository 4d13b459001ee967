#pragma once

#include "Backend/ratesource.h"

/// Unit of the file, "lb/ac"; what it is taken as where it is not known.
QString fileUnitText(const RateSource &source);
/// The unit of a column and what told it: "lb/ac, from the name".
QString unitTextOf(const RateSource &source);
