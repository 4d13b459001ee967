#pragma once

#include <array>
#include <cstddef>

/// Area by error. Bins are centred on whole multiples of their width, so that an error of nothing lies in the middle of
/// one; when an error comes that they do not reach, three of them become one. No range has to be known, and nothing is
/// lost.
class ErrorHistogram {
public:
    /// Bins on either side of the middle one.
    static constexpr int reach = 364;

    /// `area` (square metres) of ground with that error.
    void add(double error, double area);

    double binWidth() const { return width; }
    /// The area of the bin around `place` times the bins' width, from -reach to reach.
    double area(int place) const { return areas.at(std::size_t(place + reach)); }
    double totalArea() const;
    /// How many bins on either side of the middle one hold all but `rest` (0 to 1) of the area.
    int holding(double rest) const;
    /// Makes three bins one.
    void widen();

private:
    /// Less than any rate is metered to.
    double width = 1e-6;
    std::array<double, 2 * reach + 1> areas{};
};
