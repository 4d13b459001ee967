// Rates far from the rest: the modified z-score of Iglewicz and Hoaglin (1993), which is 0.6745 times the distance from
// the median over the median absolute deviation, is above 3.5. It is taken over the different rates, since a map has
// few of them and half of a field may have the same one; and only a rate that is set apart from the others by a jump is
// far from them, as the ends of a skewed distribution are not.
//
// Totals: amounts per polygon instead of per hectare grow with the polygon. Their rank correlation with the area
// (Spearman 1904) is at least 0.9, and over the area they are at least twice as even as they are themselves.

#include "ratecheck.h"

#include "Backend/backendtext.h"
#include "planeshape.h"
#include "statistics.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double farScore = 3.5;
constexpr size_t fewestRates = 3;
/// At most one record in this many may have a rate far from the rest.
constexpr size_t shareOfFar = 4;

constexpr size_t fewestAreas = 6;
constexpr double leastRatioOfAreas = 1.5;
constexpr double leastCorrelation = 0.9;

QString numberText(double value)
{
    return BackendText::number(value, 'g', 6);
}

/// The different rates, ascending, without zero, which says that nothing is wanted.
std::vector<double> differentRates(const std::vector<RateCheck::Entry> &entries)
{
    std::vector<double> rates;
    for (const RateCheck::Entry &entry : entries) {
        if (entry.rate > 0.0)
            rates.push_back(entry.rate);
    }
    std::sort(rates.begin(), rates.end());
    rates.erase(std::unique(rates.begin(), rates.end()), rates.end());
    return rates;
}

struct Range {
    double least;
    double greatest;
};

/// The range of the ascending rates without those that are far from the rest.
Range usualRange(const std::vector<double> &rates)
{
    const double centre = Statistics::median(rates);
    const double limit = farScore * Statistics::medianAbsoluteDeviation(rates) / 0.6745;
    const auto isApart = [&](double rate, double inner) {
        const double distance = std::fabs(rate - centre);
        return distance > limit && 2.0 * std::fabs(rate - inner) > distance;
    };
    size_t first = rates.size() / 2;
    size_t last = first;
    while (first > 0 && !isApart(rates[first - 1], rates[first]))
        --first;
    while (last + 1 < rates.size() && !isApart(rates[last + 1], rates[last]))
        ++last;
    return {rates[first], rates[last]};
}

double relativeSpread(const std::vector<double> &values)
{
    return Statistics::medianAbsoluteDeviation(values) / Statistics::median(values);
}

} // namespace

RateCheck::RateCheck(const MapView &map, size_t mapping, const Column &columnOfFile)
    : column(columnOfFile)
{
    for (const MapView::Polygon &polygon : map.polygons()) {
        const double rate = static_cast<double>(polygon.outer->rates[mapping]) / column.factor;
        if (std::isnan(rate))
            continue;
        // The parts of a record follow each other.
        if (entries.empty() || entries.back().record != polygon.record)
            entries.push_back({polygon.record, rate, 0.0, {}});
        Entry &entry = entries.back();
        entry.area += MapView::area(polygon);
        entry.extent.include(polygon.extent);
    }
}

void RateCheck::run(FindingList &findings) const
{
    tellFar(entries, findings);
    tellTotals(entries, findings);
}

void RateCheck::tellFar(std::vector<Entry> sorted, FindingList &findings) const
{
    const std::vector<double> rates = differentRates(sorted);
    if (rates.size() < fewestRates)
        return;
    const Range usual = usualRange(rates);
    sorted.erase(std::remove_if(sorted.begin(), sorted.end(),
                                [&usual](const Entry &entry) {
                                    return entry.rate == 0.0
                                        || (entry.rate >= usual.least && entry.rate <= usual.greatest);
                                }),
                 sorted.end());
    if (sorted.size() * shareOfFar > entries.size())
        return;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Entry &a, const Entry &b) { return a.rate < b.rate; });
    for (auto entry = sorted.cbegin(); entry != sorted.cend();) {
        const double rate = entry->rate;
        MapFinding finding;
        finding.kind = MapFinding::Kind::Outlier;
        finding.column = column.name;
        finding.area = 0.0;
        RingExtent extent;
        finding.place =
            QPointF(0.5 * (entry->extent.minX + entry->extent.maxX), 0.5 * (entry->extent.minY + entry->extent.maxY));
        for (; entry != sorted.cend() && entry->rate == rate; ++entry) {
            if (finding.records.size() < MapFinding::mostRecords)
                finding.records.append(entry->record);
            *finding.area += entry->area;
            extent.include(entry->extent);
        }
        finding.extent = PlaneShape::rectangle(extent);
        finding.text =
            BackendText::tr("%1 in column \"%2\" (%3) is far from the other rates, %4 to %5")
                .arg(numberText(rate), column.name, column.unit, numberText(usual.least), numberText(usual.greatest));
        findings.add(finding, std::fabs(rate - usual.greatest));
    }
}

void RateCheck::tellTotals(const std::vector<Entry> &all, FindingList &findings) const
{
    std::vector<double> areas;
    std::vector<double> rates;
    std::vector<double> quotients;
    for (const Entry &entry : all) {
        if (entry.rate <= 0.0 || entry.area <= 0.0)
            continue;
        areas.push_back(entry.area);
        rates.push_back(entry.rate);
        quotients.push_back(entry.rate / entry.area);
    }
    if (areas.size() < fewestAreas)
        return;
    const auto [least, greatest] = std::minmax_element(areas.begin(), areas.end());
    if (*greatest < leastRatioOfAreas * *least)
        return;
    const double correlation = Statistics::rankCorrelation(areas, rates);
    if (correlation < leastCorrelation || 2.0 * relativeSpread(quotients) > relativeSpread(rates))
        return;
    MapFinding finding;
    finding.kind = MapFinding::Kind::Total;
    finding.text =
        BackendText::tr("column \"%1\" looks like totals, not rates: its numbers grow with the area of the polygons")
            .arg(column.name);
    findings.add(finding, correlation);
}
