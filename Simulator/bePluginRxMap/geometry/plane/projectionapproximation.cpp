#include "projectionapproximation.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

constexpr double maxError = 1e-5;

using Square = ProjectionApproximation::Coefficients;
using Places = std::array<double, ProjectionApproximation::mostTerms>;

/// Chebyshev nodes: the zeros of the Chebyshev polynomial of that degree. A polynomial through a smooth function's
/// values there comes near the best one of its degree, without the swings near the ends that evenly spaced nodes give.
Places chebyshevNodes(std::size_t count)
{
    Places result = {};
    for (std::size_t i = 0; i < count; ++i)
        result[i] =
            std::cos(std::acos(-1.0) * (2.0 * static_cast<double>(i) + 1.0) / (2.0 * static_cast<double>(count)));
    return result;
}

/// Turns values at `size` nodes into the coefficients of the powers: the inverse of the nodes' Vandermonde matrix, by
/// Gauss-Jordan elimination; nodes that all differ leave no pivot zero.
Square powersFromValues(const Places &places, std::size_t size)
{
    Square left = {};
    Square right = {};
    for (std::size_t i = 0; i < size; ++i) {
        right[i][i] = 1.0;
        for (std::size_t k = 0; k < size; ++k)
            left[i][k] = std::pow(places[i], static_cast<double>(k));
    }
    for (std::size_t column = 0; column < size; ++column) {
        for (std::size_t row = 0; row < size; ++row) {
            const double factor = row == column ? 0.0 : left[row][column] / left[column][column];
            for (std::size_t k = 0; k < size; ++k) {
                left[row][k] -= factor * left[column][k];
                right[row][k] -= factor * right[column][k];
            }
        }
    }
    for (std::size_t row = 0; row < size; ++row) {
        for (double &entry : right[row])
            entry /= left[row][row];
    }
    return right;
}

/// `powers` times `values` times `powers` transposed; only the first `size` rows and columns are used.
Square coefficients(const Square &powers, const Square &values, std::size_t size)
{
    Square half = {};
    Square result = {};
    for (std::size_t i = 0; i < size; ++i)
        for (std::size_t k = 0; k < size; ++k)
            for (std::size_t n = 0; n < size; ++n)
                half[i][k] += powers[i][n] * values[n][k];
    for (std::size_t i = 0; i < size; ++i)
        for (std::size_t k = 0; k < size; ++k)
            for (std::size_t n = 0; n < size; ++n)
                result[i][k] += half[i][n] * powers[k][n];
    return result;
}

/// The polynomials on one parallel of latitude, where only powers of u remain.
struct Parallel {
    double y = std::numeric_limits<double>::quiet_NaN();
    Places forX = {};
    Places forY = {};
};

/// The coefficients of u where v is known, by Horner's method.
template <std::size_t count> void onParallel(const Square &coefficients, double v, Places &result)
{
    for (std::size_t i = 0; i < count; ++i) {
        double sum = coefficients[i][count - 1];
        for (std::size_t k = count - 1; k-- > 0;)
            sum = sum * v + coefficients[i][k];
        result[i] = sum;
    }
}

/// The same for u.
template <std::size_t count> double valueAt(const Places &coefficients, double u)
{
    double result = 0.0;
    for (std::size_t i = count; i-- > 0;)
        result = result * u + coefficients[i];
    return result;
}

} // namespace

template <std::size_t count> void ProjectionApproximation::applyTerms(std::size_t places, double *xs, double *ys) const
{
    // The two parallels used last: neighbours in a file share them, especially the cells of a grid.
    std::array<Parallel, 2> parallels;
    std::size_t at = 0;
    for (std::size_t i = 0; i < places; ++i) {
        if (parallels[at].y != ys[i])
            at = 1 - at;
        Parallel &parallel = parallels[at];
        if (parallel.y != ys[i]) {
            const double v = (ys[i] - middleY) / halfHeight;
            parallel.y = ys[i];
            onParallel<count>(forX, v, parallel.forX);
            onParallel<count>(forY, v, parallel.forY);
        }
        const double u = (xs[i] - middleX) / halfWidth;
        xs[i] = valueAt<count>(parallel.forX, u);
        ys[i] = valueAt<count>(parallel.forY, u);
    }
}

void ProjectionApproximation::apply(std::size_t count, double *xs, double *ys) const
{
    if (terms == fewTerms)
        applyTerms<fewTerms>(count, xs, ys);
    else
        applyTerms<mostTerms>(count, xs, ys);
}

bool ProjectionApproximation::fit(const Exact &exact, double minX, double maxX, double minY, double maxY)
{
    constexpr double minHalfWidth = 1e-9;
    middleX = 0.5 * (minX + maxX);
    middleY = 0.5 * (minY + maxY);
    halfWidth = std::max(minHalfWidth, 0.5 * (maxX - minX));
    halfHeight = std::max(minHalfWidth, 0.5 * (maxY - minY));
    // The lower degree is enough for a farm.
    for (const std::size_t count : {fewTerms, mostTerms}) {
        interpolate(exact, count);
        if (isGoodEnough(exact))
            return true;
    }
    return false;
}

void ProjectionApproximation::interpolate(const Exact &exact, std::size_t count)
{
    terms = count;
    const Places places = chebyshevNodes(terms);
    std::vector<double> xs;
    std::vector<double> ys;
    for (std::size_t i = 0; i < terms; ++i) {
        for (std::size_t k = 0; k < terms; ++k) {
            xs.push_back(middleX + places[i] * halfWidth);
            ys.push_back(middleY + places[k] * halfHeight);
        }
    }
    exact(xs.size(), xs.data(), ys.data());
    Square valuesX = {};
    Square valuesY = {};
    for (std::size_t i = 0; i < terms; ++i) {
        std::copy_n(xs.begin() + static_cast<std::ptrdiff_t>(i * terms), terms, valuesX[i].begin());
        std::copy_n(ys.begin() + static_cast<std::ptrdiff_t>(i * terms), terms, valuesY[i].begin());
    }
    const Square powers = powersFromValues(places, terms);
    forX = coefficients(powers, valuesX, terms);
    forY = coefficients(powers, valuesY, terms);
}

bool ProjectionApproximation::isGoodEnough(const Exact &exact) const
{
    // Between the nodes and at the corners, where the error is greatest.
    const std::size_t steps = 2 * terms;
    std::vector<double> xs;
    std::vector<double> ys;
    for (std::size_t i = 0; i <= steps; ++i) {
        for (std::size_t k = 0; k <= steps; ++k) {
            xs.push_back(middleX + halfWidth * (2.0 * static_cast<double>(i) / static_cast<double>(steps) - 1.0));
            ys.push_back(middleY + halfHeight * (2.0 * static_cast<double>(k) / static_cast<double>(steps) - 1.0));
        }
    }
    std::vector<double> exactXs = xs;
    std::vector<double> exactYs = ys;
    exact(xs.size(), exactXs.data(), exactYs.data());
    apply(xs.size(), xs.data(), ys.data());
    for (std::size_t i = 0; i < xs.size(); ++i) {
        const bool isNear = std::fabs(xs[i] - exactXs[i]) <= maxError && std::fabs(ys[i] - exactYs[i]) <= maxError;
        if (!isNear)
            return false;
    }
    return true;
}
