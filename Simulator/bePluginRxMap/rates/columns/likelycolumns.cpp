#include "likelycolumns.h"

#include "Backend/backendtext.h"
#include "columncontent.h"
#include "columnname.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

/// Square metres of each record.
std::vector<double> recordAreas(const RawPrescription &source, const std::vector<PlanePolygon> &polygons)
{
    std::vector<double> areas(static_cast<size_t>(source.records), 0.0);
    for (const PlanePolygon &polygon : polygons) {
        double &area = areas[static_cast<size_t>(polygon.record)];
        area += ringArea(polygon.outer);
        for (const PlaneRing &hole : polygon.holes)
            area -= ringArea(hole);
    }
    return areas;
}

/// The same for columns of equal values. Goes by the first ones only, which differ where columns do but for rare ones.
uint contentHash(const SourceColumn &column)
{
    constexpr size_t most = 64;
    const auto count = static_cast<std::ptrdiff_t>(std::min(most, column.values.size()));
    return qHashRange(column.values.begin(), column.values.begin() + count);
}

/// Whether the column's format or name says that it holds no rates.
bool saysNoRates(const SourceColumn &column)
{
    return column.meaning == SourceColumn::Meaning::NoRates
        || (column.meaning == SourceColumn::Meaning::NotSaid && ColumnName(column.name).namesOther());
}

/// What is measured out: by the unit that the format gives, else by the name.
ProductLineItem::Basis basisOf(const ColumnName &name, const ColumnUnit &unit)
{
    return unit.from == RateSource::UnitFrom::Format ? unit.unit.basis() : name.basis();
}

bool mayBeOne(const RateUnit &one, const RateUnit &other)
{
    return !one.isKnown() || !other.isKnown() || one.text() == other.text();
}

} // namespace

LikelyColumns::LikelyColumns(const RawPrescription &rawPrescription, const std::vector<PlanePolygon> &polygons,
                             const ColumnUnits &units)
    : source(rawPrescription)
{
    std::vector<int> places = candidates(polygons);
    // Targets go before what was applied.
    std::stable_partition(places.begin(), places.end(),
                          [this](int place) { return !ColumnName(column(place).name).namesApplied(); });
    QSet<QString> subjects;
    QMultiHash<uint, LikelyColumn> byContent;
    for (const int place : places) {
        const ColumnName name(column(place).name);
        const ColumnUnit unit = units.of(place);
        const LikelyColumn candidate{place, unit, basisOf(name, unit)};
        // When the format says that a column holds rates, the column counts even if its rates equal another's.
        if (column(place).meaning == SourceColumn::Meaning::Rates) {
            likely.push_back(candidate);
            continue;
        }
        const uint content = contentHash(column(place));
        const QList<LikelyColumn> alike = byContent.values(content);
        const bool isRepetition = (name.namesApplied() && subjects.contains(name.subject()))
            || std::any_of(alike.begin(), alike.end(), [&](const LikelyColumn &before) {
                                      return mayBeOne(before.unit.unit, candidate.unit.unit)
                                          && ColumnContent::areEqual(column(before.place), column(place));
                                  });
        if (isRepetition)
            continue;
        likely.push_back(candidate);
        subjects.insert(name.subject());
        byContent.insert(content, candidate);
    }
    std::sort(likely.begin(), likely.end(),
              [](const LikelyColumn &a, const LikelyColumn &b) { return a.place < b.place; });
}

bool LikelyColumns::saysRates(const SourceColumn &column)
{
    return column.meaning == SourceColumn::Meaning::Rates || ColumnName(column.name).namesRate();
}

bool LikelyColumns::saysTotal(const SourceColumn &column)
{
    return column.meaning == SourceColumn::Meaning::NotSaid && ColumnName(column.name).namesTotal();
}

std::vector<int> LikelyColumns::candidates(const std::vector<PlanePolygon> &polygons) const
{
    std::vector<double> areas;
    std::vector<int> named;
    std::vector<int> real;
    std::vector<int> whole;
    for (int place = 0; place < static_cast<int>(source.columns.size()); ++place) {
        if (saysNoRates(column(place)) || !ColumnContent::hasRates(column(place)))
            continue;
        if (saysRates(column(place))) {
            named.push_back(place);
            continue;
        }
        if (areas.empty())
            areas = recordAreas(source, polygons);
        if (ColumnContent::mayBeRates(column(place), source, areas))
            (column(place).isInteger ? whole : real).push_back(place);
    }
    if (!named.empty())
        return named;
    return real.empty() ? whole : real;
}

QString LikelyColumns::reasonForNone() const
{
    QStringList empty;
    for (const SourceColumn &candidate : source.columns) {
        if (!saysNoRates(candidate) && saysRates(candidate) && !ColumnContent::hasRates(candidate))
            empty.append(candidate.name);
    }
    if (!empty.isEmpty())
        return BackendText::tr("holds no rates: no record has one in %1").arg(empty.join(QStringLiteral(", ")));
    const QString columns =
        source.columnNames.isEmpty() ? BackendText::tr("none") : source.columnNames.join(QStringLiteral(", "));
    return BackendText::tr("has no column that looks like a rate; name one (its columns: %1)").arg(columns);
}
