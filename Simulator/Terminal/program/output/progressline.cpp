#include "progressline.h"

namespace {

/// Milliseconds between two lines, at least.
constexpr qint64 pause = 1000;

} // namespace

ProgressLine::ProgressLine(const QString &givenWhat)
    : what(givenWhat)
{
}

QString ProgressLine::at(double fraction, qint64 passed)
{
    const int tenths = int(10.0 * fraction);
    if (tenths <= reachedTenths)
        return {};
    reachedTenths = tenths;
    if (toldAt && passed - *toldAt < pause)
        return {};
    toldAt = passed;
    const double left = double(passed) / 1000.0 * (1.0 - fraction) / fraction;
    return QStringLiteral("%1: %2 %, about %3 s left").arg(what).arg(10 * tenths).arg(left, 0, 'f', 0);
}
