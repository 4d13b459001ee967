#pragma once

#include <vector>

/// The rate at which a map mostly puts its product out, as an operator would set it for places without a prescription:
/// the mean of the rates above zero by area, to three significant digits of the operator's unit.
class TypicalRate {
public:
    /// `rates` (base unit) and `areas` are by polygon; a rate that is not a number is ignored. `displayFactor` takes
    /// rates to the operator's unit. 0 where nothing is applied anywhere.
    static double of(const std::vector<float> &rates, const std::vector<double> &areas, double displayFactor);
};
