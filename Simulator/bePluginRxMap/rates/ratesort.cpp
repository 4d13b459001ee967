#include "ratesort.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>

namespace {

static_assert(std::numeric_limits<float>::is_iec559, "the order of the bits is that of IEEE 754");

/// Up to this many, comparing is quicker.
constexpr size_t fewRates = 512;
constexpr unsigned digitBits = 11;
constexpr size_t digits = 3;
constexpr std::uint32_t signBit = 0x80000000U;

/// Whole numbers in the order of the rates.
std::uint32_t keyOf(float rate)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &rate, sizeof bits);
    return (bits & signBit) != 0 ? ~bits : bits | signBit;
}

float rateOf(std::uint32_t key)
{
    const std::uint32_t bits = (key & signBit) != 0 ? key & ~signBit : ~key;
    float rate = 0.0F;
    std::memcpy(&rate, &bits, sizeof rate);
    return rate;
}

size_t digitOf(std::uint32_t key, size_t digit)
{
    return (key >> (digit * digitBits)) & ((1U << digitBits) - 1U);
}

/// Sorts by one digit and keeps the order of equal ones.
void sortByDigit(const std::vector<std::uint32_t> &from, std::vector<std::uint32_t> &to, size_t digit)
{
    std::array<size_t, 1U << digitBits> places = {};
    for (const std::uint32_t key : from)
        ++places[digitOf(key, digit)];
    size_t next = 0;
    for (size_t &place : places)
        next += std::exchange(place, next);
    for (const std::uint32_t key : from)
        to[places[digitOf(key, digit)]++] = key;
}

} // namespace

void RateSort::sort(std::vector<float> &rates)
{
    if (rates.size() <= fewRates) {
        std::sort(rates.begin(), rates.end());
        return;
    }
    std::vector<std::uint32_t> keys(rates.size());
    std::vector<std::uint32_t> sorted(rates.size());
    std::transform(rates.begin(), rates.end(), keys.begin(), keyOf);
    for (size_t digit = 0; digit < digits; ++digit) {
        sortByDigit(keys, sorted, digit);
        keys.swap(sorted);
    }
    std::transform(keys.begin(), keys.end(), rates.begin(), rateOf);
}
