#include "projectionapproximation.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr double maxError = 1e-5;

template <std::size_t size> using Square = std::array<std::array<double, size>, size>;

/// Chebyshev nodes: the zeros of the Chebyshev polynomial of that degree. A polynomial through a smooth function's
/// values there comes near the best one of its degree, without the swings near the ends that evenly spaced nodes give.
template <std::size_t size> std::array<double, size> chebyshevNodes()
{
    std::array<double, size> result;
    for (std::size_t i = 0; i < size; ++i)
        result[i] = std::cos(std::acos(-1.0) * (2.0 * static_cast<double>(i) + 1.0) / (2.0 * size));
    return result;
}

/// Turns values at the nodes into the coefficients of the powers: the inverse of the nodes' Vandermonde matrix, by
/// Gauss-Jordan elimination with partial pivoting.
template <std::size_t size> Square<size> powersFromValues()
{
    Square<size> left = {};
    Square<size> right = {};
    const std::array<double, size> places = chebyshevNodes<size>();
    for (std::size_t i = 0; i < size; ++i) {
        right[i][i] = 1.0;
        for (std::size_t k = 0; k < size; ++k)
            left[i][k] = std::pow(places[i], static_cast<double>(k));
    }
    for (std::size_t column = 0; column < size; ++column) {
        std::size_t pivot = column;
        for (std::size_t row = column + 1; row < size; ++row) {
            if (std::fabs(left[row][column]) > std::fabs(left[pivot][column]))
                pivot = row;
        }
        std::swap(left[column], left[pivot]);
        std::swap(right[column], right[pivot]);
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

/// `powers` times `values` times `powers` transposed.
template <std::size_t size> Square<size> coefficients(const Square<size> &powers, const Square<size> &values)
{
    Square<size> half = {};
    Square<size> result = {};
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
                                                               const Block &vs)
{
    // Horner's method in both directions.
    Block result = {};
    for (std::size_t i = size; i-- > 0;) {
        Block row;
        row.fill(coefficients[i][size - 1]);
        for (std::size_t k = size - 1; k-- > 0;)
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
    const std::array<double, size> places = chebyshevNodes<size>();
    Coefficients xs;
    Coefficients ys;
    for (std::size_t i = 0; i < size; ++i) {
        for (std::size_t k = 0; k < size; ++k) {
            xs[i][k] = middleX + places[i] * halfWidth;
            ys[i][k] = middleY + places[k] * halfHeight;
        }
    }
    exact(size * size, xs[0].data(), ys[0].data());
    const Square<size> powers = powersFromValues<size>();
    forX = coefficients(powers, xs);
    forY = coefficients(powers, ys);
    return isGoodEnough(exact);
}

bool ProjectionApproximation::isGoodEnough(const Exact &exact) const
{
    // Between the nodes and at the corners, where the error is greatest.
    constexpr std::size_t steps = 2 * size;
    std::vector<double> xs;
    std::vector<double> ys;
    for (std::size_t i = 0; i <= steps; ++i) {
        for (std::size_t k = 0; k <= steps; ++k) {
            xs.push_back(middleX + halfWidth * (2.0 * static_cast<double>(i) / steps - 1.0));
            ys.push_back(middleY + halfHeight * (2.0 * static_cast<double>(k) / steps - 1.0));
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
