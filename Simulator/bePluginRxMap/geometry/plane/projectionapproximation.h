#pragma once

#include <array>
#include <cstddef>
#include <functional>

/// Stands in for a map projection over the small piece of the earth that a prescription covers: two polynomials through
/// exactly projected Chebyshev nodes, of degree three in either direction, or five where three is not good enough. For
/// each vertex they take a fraction of the projection's time.
class ProjectionApproximation {
public:
    /// Terms of a polynomial, in either direction.
    static constexpr std::size_t fewTerms = 4;
    static constexpr std::size_t mostTerms = 6;
    /// The factors of u to the power of the row times v to the power of the column.
    using Coefficients = std::array<std::array<double, mostTerms>, mostTerms>;
    /// The exact projection of `count` places, in place.
    using Exact = std::function<void(std::size_t count, double *xs, double *ys)>;

    /// Fits the polynomials to the extent. False when they are off by more than a hundredth of a millimetre somewhere,
    /// judged at places between the nodes; they must not be used then.
    bool fit(const Exact &exact, double minX, double maxX, double minY, double maxY);
    /// Projects a place of the extent.
    void apply(double &x, double &y) const { apply(1, &x, &y); }
    /// Projects `count` places of the extent, in place.
    void apply(std::size_t count, double *xs, double *ys) const;

private:
    void interpolate(const Exact &exact, std::size_t count);
    template <std::size_t count> void applyTerms(std::size_t places, double *xs, double *ys) const;
    bool isGoodEnough(const Exact &exact) const;

    double middleX = 0.0;
    double middleY = 0.0;
    double halfWidth = 1.0;
    double halfHeight = 1.0;
    std::size_t terms = fewTerms;
    Coefficients forX = {};
    Coefficients forY = {};
};
