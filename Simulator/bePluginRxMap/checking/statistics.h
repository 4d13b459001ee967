#pragma once

#include <vector>

/// Robust statistics of plain numbers, none of them empty.
namespace Statistics {

double median(std::vector<double> values);
/// Median of the distances from the median.
double medianAbsoluteDeviation(const std::vector<double> &values);
/// Spearman's rank correlation of pairs, -1 to 1; equal values share the mean of their ranks. 0 where all values of a
/// side are the same.
double rankCorrelation(const std::vector<double> &a, const std::vector<double> &b);

} // namespace Statistics
