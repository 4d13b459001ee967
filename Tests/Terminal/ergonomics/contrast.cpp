#include "contrast.h"

#include <algorithm>
#include <cmath>

namespace {

/// WCAG 2.1 puts the threshold between the two branches at 0.03928; no eight-bit channel lies between that and sRGB's
/// own threshold.
double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const auto ends = std::minmax({luminance(one), luminance(other)});
    return (ends.second + 0.05) / (ends.first + 0.05);
}

QColor blended(const QColor &color, const QColor &ground)
{
    const double share = color.alphaF();
    const auto mix = [share](double own, double below) { return share * own + (1.0 - share) * below; };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}
