#include "columnunits.h"

#include "columnname.h"

#include <algorithm>

namespace {

/// Enters what sources that count less than the unit's say to the contrary.
void compare(const SourceColumn &column, ColumnUnit &unit)
{
    const RateUnit behind = RateUnit::fromText(column.unit);
    const ColumnName name(column.name);
    if (unit.from == RateSource::UnitFrom::Column && behind.differsFrom(unit.unit)) {
        unit.other = behind;
        unit.otherFrom = RateSource::UnitFrom::Text;
    } else if (name.contradicts(unit.unit)) {
        unit.other = name.unit();
        unit.otherFrom = RateSource::UnitFrom::Name;
    }
}

} // namespace

ColumnUnits::ColumnUnits(const RawPrescription &rawPrescription)
    : source(rawPrescription)
{
    for (const TextColumn &column : source.texts) {
        if (column.text.isEmpty())
            continue;
        const ColumnName name(column.name);
        // The unit of a yield is not a unit of the rates beside it.
        const bool areUnits = RateUnit::fromText(column.text).isKnown()
            && (!column.isMixed || RateUnit::fromText(column.other).isKnown());
        if (name.namesUnit() || (!name.namesOther() && areUnits))
            units.push_back(&column);
    }
    // Considers all fields, not only the columns read: a load of one column must find the same unit beside it as a
    // survey of all.
    for (const int field : source.numberFields) {
        if (!ColumnName(source.columnNames.at(field)).namesOther())
            rateFields.push_back(field);
    }
    for (const TextColumn &column : source.texts) {
        const ColumnName name(column.name);
        if (name.namesRate() && !name.namesOther() && !name.namesUnit())
            rateFields.push_back(column.field);
    }
    std::sort(rateFields.begin(), rateFields.end());
}

const TextColumn *ColumnUnits::unitsBeside(int field) const
{
    const auto isBefore = [](const TextColumn *unit, int place) { return unit->field < place; };
    const auto behind = std::lower_bound(units.begin(), units.end(), field, isBefore);
    const auto next = std::upper_bound(rateFields.begin(), rateFields.end(), field);
    if (behind != units.end() && (next == rateFields.end() || (*behind)->field < *next))
        return *behind;
    const auto last = std::lower_bound(rateFields.begin(), rateFields.end(), field);
    if (behind != units.begin() && (last == rateFields.begin() || (*std::prev(behind))->field > *std::prev(last)))
        return *std::prev(behind);
    return units.size() == 1 ? units.front() : nullptr;
}

ColumnUnit ColumnUnits::of(int place) const
{
    const SourceColumn &column = source.columns[static_cast<size_t>(place)];
    ColumnUnit result;
    const auto take = [&result](const RateUnit &unit, RateSource::UnitFrom from) {
        result.unit = unit;
        result.from = unit.isKnown() ? from : RateSource::UnitFrom::Assumed;
        return unit.isKnown();
    };
    // A unit that the format gives overrides all others.
    if (!column.formatUnit.isEmpty()) {
        if (!take(RateUnit::fromText(column.formatUnit), RateSource::UnitFrom::Format))
            result.unknownText = column.formatUnit;
        return result;
    }
    if (const TextColumn *beside = unitsBeside(column.field)) {
        if (beside->isMixed)
            result.mixed = beside;
        else if (take(RateUnit::fromText(beside->text), RateSource::UnitFrom::Column)) {
            result.beside = beside;
            compare(column, result);
            return result;
        } else
            result.unknownText = beside->text;
    }
    if (!column.unit.isEmpty()) {
        if (take(RateUnit::fromText(column.unit), RateSource::UnitFrom::Text)) {
            compare(column, result);
            return result;
        }
        result.unknownText = column.unit;
    }
    take(ColumnName(column.name).unit(), RateSource::UnitFrom::Name);
    return result;
}
