#pragma once

#include <array>
#include <cstddef>
#include <functional>

/// Stands in for a map projection over the small piece of the earth that a prescription covers: two polynomials through
/// exactly projected places, which take a fraction of the projection's time for each vertex.
class SmoothProjection {
public:
    /// Projects `count` places in their arrays; the exact projection.
    using Exact = std::function<void(std::size_t count, double *xs, double *ys)>;

    /// Fits the polynomials to the extent. False when they would be off by more than a hundredth of a millimetre
    /// somewhere, which is judged at places between those that they go through; then they are not to be used.
    bool fit(const Exact &exact, double leastX, double greatestX, double leastY, double greatestY);
    /// Projects a place of the extent.
    void apply(double &x, double &y) const;

private:
    static constexpr std::size_t size = 6;
    using Coefficients = std::array<std::array<double, size>, size>;

    static double value(const Coefficients &coefficients, double u, double v);
    bool isGoodEnough(const Exact &exact) const;

    double middleX = 0.0;
    double middleY = 0.0;
    double halfWidth = 1.0;
    double halfHeight = 1.0;
    Coefficients forX = {};
    Coefficients forY = {};
};
