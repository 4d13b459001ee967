#include "projectionapproximation.h"

#include <algorithm>
#include <cmath>
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

/// `powers` times `values` times `powers` transposed, of which `size` rows and columns count.
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

} // namespace

ProjectionApproximation::Block ProjectionApproximation::values(const Coefficients &coefficients, const Block &us,
                                                               const Block &vs) const
{
    // Horner's method in both directions.
    Block result = {};
    for (std::size_t i = terms; i-- > 0;) {
        Block row;
        row.fill(coefficients[i][terms - 1]);
        for (std::size_t k = terms - 1; k-- > 0;)
            for (std::size_t n = 0; n < blockSize; ++n)
                row[n] = row[n] * vs[n] + coefficients[i][k];
        for (std::size_t n = 0; n < blockSize; ++n)
            result[n] = result[n] * us[n] + row[n];
    }
    return result;
}

void ProjectionApproximation::applyToBlock(double *xs, double *ys) const
{
    Block us;
    Block vs;
    for (std::size_t n = 0; n < blockSize; ++n) {
        us[n] = (xs[n] - middleX) / halfWidth;
        vs[n] = (ys[n] - middleY) / halfHeight;
    }
    const Block x = values(forX, us, vs);
    const Block y = values(forY, us, vs);
    std::copy(x.begin(), x.end(), xs);
    std::copy(y.begin(), y.end(), ys);
}

void ProjectionApproximation::apply(std::size_t count, double *xs, double *ys) const
{
    const std::size_t whole = count - count % blockSize;
    for (std::size_t i = 0; i < whole; i += blockSize)
        applyToBlock(xs + i, ys + i);
    if (whole == count)
        return;
    Block lastXs = {};
    Block lastYs = {};
    std::copy(xs + whole, xs + count, lastXs.begin());
    std::copy(ys + whole, ys + count, lastYs.begin());
    applyToBlock(lastXs.data(), lastYs.data());
    std::copy_n(lastXs.begin(), count - whole, xs + whole);
    std::copy_n(lastYs.begin(), count - whole, ys + whole);
}

bool ProjectionApproximation::fit(const Exact &exact, double minX, double maxX, double minY, double maxY)
{
    constexpr double minHalfWidth = 1e-9;
    middleX = 0.5 * (minX + maxX);
    middleY = 0.5 * (minY + maxY);
    halfWidth = std::max(minHalfWidth, 0.5 * (maxX - minX));
    halfHeight = std::max(minHalfWidth, 0.5 * (maxY - minY));
    // The lower degree does for a farm.
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
