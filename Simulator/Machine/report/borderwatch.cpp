#include "borderwatch.h"

#include <algorithm>
#include <cmath>

namespace {

double medianOf(std::vector<double> values)
{
    if (values.empty())
        return 0.0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    if (values.size() % 2 == 1)
        return *middle;
    return 0.5 * (*middle + *std::max_element(values.begin(), middle));
}

} // namespace

void BorderWatch::begin(double time, double way, double newTarget)
{
    end();
    samples.push_back({time, way, 0.0, 0.0});
    formerBorder = time - 2.0 * reach;
    target = newTarget;
    isFilling = false;
}

void BorderWatch::step(double time, double way, double mean)
{
    if (samples.empty())
        return;
    constexpr double nearly = 0.01;
    const bool isNothingYet = mean == 0.0 && samples.back().overTime == 0.0;
    isFilling = (isFilling || isNothingYet) && borders.empty() && mean < (1.0 - nearly) * target;
    if (isFilling) {
        samples = {{time, way, 0.0, 0.0}};
        return;
    }
    const Sample &last = samples.back();
    samples.push_back({time, way, last.overTime + mean * (time - last.time), last.overWay + mean * (way - last.way)});
    while (!borders.empty() && time - borders.front().time >= reach)
        settle(borders.front().time + reach);
    while (samples.size() > 2 && samples[1].time < time - 3.0 * reach)
        samples.pop_front();
}

void BorderWatch::border(double time, double way, const QPointF &place, double newTarget)
{
    // step() settles a border once it has been passed for long enough.
    borders.push_back({time, way, place, target, newTarget});
    target = newTarget;
}

void BorderWatch::end()
{
    while (!borders.empty())
        settle(samples.back().time);
    samples.clear();
}

BorderWatch::Sample BorderWatch::at(double time) const
{
    const auto isBefore = [](const Sample &sample, double moment) { return sample.time < moment; };
    const auto after = std::lower_bound(samples.begin(), samples.end(), time, isBefore);
    if (after == samples.begin())
        return samples.front();
    if (after == samples.end())
        return samples.back();
    const Sample &to = *after;
    const Sample &from = *(after - 1);
    const double part = (time - from.time) / (to.time - from.time);
    const auto between = [part](double a, double b) { return a + part * (b - a); };
    return {time, between(from.way, to.way), between(from.overTime, to.overTime), between(from.overWay, to.overWay)};
}

void BorderWatch::settle(double until)
{
    const Border border = borders.front();
    borders.pop_front();
    const double next = borders.empty() ? border.time + 2.0 * reach : borders.front().time;
    const Sample from = at(std::max(border.time - reach, 0.5 * (formerBorder + border.time)));
    const Sample to = at(std::min({until, border.time + reach, 0.5 * (border.time + next)}));
    formerBorder = border.time;
    const double jump = border.before - border.after;
    const auto moment = [&border, jump](double begin, double end, double amount) {
        return (amount - border.after * end + border.before * begin) / jump;
    };
    const Lateness late{moment(from.way, to.way, to.overWay - from.overWay) - border.way,
                        moment(from.time, to.time, to.overTime - from.overTime) - border.time};
    found.push_back({border.place, border.before, border.after, late});
}

BorderWatch::Lateness BorderWatch::median() const
{
    std::vector<double> metres;
    std::vector<double> seconds;
    for (const Change &change : found) {
        metres.push_back(change.late.metres);
        seconds.push_back(change.late.seconds);
    }
    return {medianOf(std::move(metres)), medianOf(std::move(seconds))};
}
