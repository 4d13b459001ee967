#include "errorhistogram.h"

#include <algorithm>
#include <cmath>
#include <numeric>

void ErrorHistogram::add(double error, double area)
{
    if (!std::isfinite(error))
        return;
    while (std::fabs(error) >= (reach + 0.5) * width)
        widen();
    areas.at(size_t(std::clamp(int(std::lround(error / width)), -reach, reach) + reach)) += area;
}

void ErrorHistogram::widen()
{
    // Three bins around a multiple of three times the width make one around the same place.
    std::array<double, 2 * reach + 1> wider{};
    for (int place = -reach; place <= reach; ++place)
        wider.at(size_t(int(std::lround(place / 3.0)) + reach)) += area(place);
    areas = wider;
    width *= 3.0;
}

double ErrorHistogram::totalArea() const
{
    return std::accumulate(areas.begin(), areas.end(), 0.0);
}

int ErrorHistogram::holding(double rest) const
{
    double left = rest * totalArea();
    int place = reach;
    for (; place > 0; --place) {
        left -= area(place) + area(-place);
        if (left < 0.0)
            break;
    }
    return place;
}
