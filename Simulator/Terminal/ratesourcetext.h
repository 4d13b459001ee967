#pragma once

#include "Backend/ratesource.h"

/// The unit of a column and what told it: "lb/ac, from the name".
QString unitTextOf(const RateSource &source);
