// The ramp is a path through the Oklab colour space (Björn Ottosson, "A perceptual color space for image processing",
// 2020), in which equal steps look equal: lightness and hue change evenly from one end to the other.
#include "rateramp.h"

#include <algorithm>
#include <cmath>

namespace {

struct Lch {
    double lightness;
    double chroma;
    double hueDegrees;
};

constexpr Lch minRate = {0.34, 0.15, 275.0};
constexpr Lch maxRate = {0.90, 0.16, 103.0};

/// The transfer function of sRGB (IEC 61966-2-1).
double gammaEncoded(double linear)
{
    const double clipped = std::min(1.0, std::max(0.0, linear));
    return clipped <= 0.0031308 ? 12.92 * clipped : 1.055 * std::pow(clipped, 1.0 / 2.4) - 0.055;
}

double cube(double value)
{
    return value * value * value;
}

/// From Oklab by the inverse matrices that Ottosson gives: to cone responses, cubed, then to linear sRGB.
QColor fromOklab(const Lch &color)
{
    const double hue = color.hueDegrees * std::acos(-1.0) / 180.0;
    const double a = color.chroma * std::cos(hue);
    const double b = color.chroma * std::sin(hue);
    const double l = cube(color.lightness + 0.3963377774 * a + 0.2158037573 * b);
    const double m = cube(color.lightness - 0.1055613458 * a - 0.0638541728 * b);
    const double s = cube(color.lightness - 0.0894841775 * a - 1.2914855480 * b);
    return QColor::fromRgbF(gammaEncoded(4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s),
                            gammaEncoded(-1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s),
                            gammaEncoded(-0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s));
}

} // namespace

QColor RateRamp::color(double position)
{
    const double t = std::min(1.0, std::max(0.0, position));
    const auto between = [t](double from, double to) { return from + t * (to - from); };
    // Screens show less chroma in the teal middle than at either end.
    const double chroma = between(minRate.chroma, maxRate.chroma) - 0.05 * std::sin(t * std::acos(-1.0));
    return fromOklab(
        {between(minRate.lightness, maxRate.lightness), chroma, between(minRate.hueDegrees, maxRate.hueDegrees)});
}

QColor RateRamp::zeroColor()
{
    return QColor(0xc8, 0x3c, 0x28);
}

QColor RateRamp::noRateColor()
{
    return QColor(0, 0, 0, 0);
}
