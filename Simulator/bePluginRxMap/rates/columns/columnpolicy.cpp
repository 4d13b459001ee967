#include "columnpolicy.h"

#include "Backend/backendtext.h"
#include "columncontent.h"
#include "columnname.h"
#include "columnproducts.h"
#include "likelycolumns.h"
#include "tablecolumns.h"

#include <algorithm>
#include <cmath>

namespace {

ProductLineItem::Basis basisOf(DbGroupProductGroupInfo::RateKind kind)
{
    switch (kind) {
    case DbGroupProductGroupInfo::CountRate:
        return ProductLineItem::Count;
    case DbGroupProductGroupInfo::VolumeRate:
    case DbGroupProductGroupInfo::InjectionRate:
        return ProductLineItem::Volume;
    case DbGroupProductGroupInfo::WeightRate:
        return ProductLineItem::Weight;
    default:
        return ProductLineItem::None;
    }
}

/// Whether the column's name suggests that it is measured as the product is.
bool suits(const LikelyColumn &column, const MachineProduct &product)
{
    return column.basis != ProductLineItem::None && column.basis == basisOf(product.kind);
}

bool areEmpty(const QStringList &names)
{
    return names.join(QString()).isEmpty();
}

MapFinding finding(MapFinding::Kind kind, const QString &text)
{
    MapFinding result;
    result.kind = kind;
    result.text = text;
    return result;
}

/// Reports which of the column's entries are not rates, or may mean something else.
void tellEntries(const RawPrescription &source, const SourceColumn &column, ColumnPolicy::Decision &decision)
{
    int count = 0;
    for (const int record : column.unreadable)
        count += source.cellsOf(record);
    if (count > 0) {
        const QString text = count == 1 ? BackendText::tr("%1 entry of column \"%2\" is no rate and was left out")
                                        : BackendText::tr("%1 entries of column \"%2\" are no rates and were left out");
        MapFinding told = finding(MapFinding::Kind::NotANumber, text.arg(QString::number(count), column.name));
        for (size_t i = 0; i < std::min(column.unreadable.size(), size_t(MapFinding::mostRecords)); ++i)
            told.records.append(column.unreadable[i]);
        decision.findings.append(told);
    }
    if (!column.ambiguous.isEmpty())
        decision.findings.append(
            finding(MapFinding::Kind::NotANumber,
                    BackendText::tr("the comma in \"%1\" of column \"%2\" is taken to set off decimals")
                        .arg(column.ambiguous, column.name)));
}

/// How a unit is reported that another source contradicts.
QString contradictionText(const QString &column, const ColumnUnit &unit)
{
    if (unit.beside == nullptr)
        return BackendText::tr("the unit of column \"%1\" is %2 by its entries, which count, but %3 by its name")
            .arg(column, unit.unit.text(), unit.other.text());
    const QString text = unit.otherFrom == RateSource::UnitFrom::Text
        ? BackendText::tr("the unit of column \"%1\" is %2 by column \"%3\", which counts, but %4 by its entries")
        : BackendText::tr("the unit of column \"%1\" is %2 by column \"%3\", which counts, but %4 by its name");
    return text.arg(column, unit.unit.text(), unit.beside->name, unit.other.text());
}

} // namespace

ColumnPolicy::ColumnPolicy(const QList<MachineProduct> &machineProducts, const QStringList &namedColumns,
                           const QStringList &units)
    : products(machineProducts)
    , names(namedColumns)
    , operatorUnits(static_cast<size_t>(machineProducts.size()))
{
    const bool isAnyDriven =
        std::any_of(products.begin(), products.end(), [](const MachineProduct &product) { return product.isDriven; });
    if (products.isEmpty() || (names.isEmpty() && !isAnyDriven))
        reason = BackendText::tr("there is no product to load it for");
    else if (names.size() > products.size())
        reason = BackendText::tr("%1 columns are named, but the machine has %2 products")
                     .arg(names.size())
                     .arg(products.size());
    else if (!names.isEmpty() && areEmpty(names))
        reason = BackendText::tr("no column is named for any product");
    else
        leaveOutUndriven();
    if (reason.isEmpty())
        readUnits(units);
}

RateChance ColumnPolicy::chanceOf(const SourceColumn &column)
{
    const ColumnName name(column.name);
    if (name.namesOther())
        return RateChance::None;
    if (name.namesRate())
        return RateChance::Named;
    return column.isText ? RateChance::None : RateChance::Possible;
}

RateChance ColumnPolicy::chanceToChoose(const SourceColumn &column)
{
    return !column.isText && ColumnName(column.name).namesTotal() ? RateChance::Total : chanceOf(column);
}

void ColumnPolicy::readUnits(const QStringList &texts)
{
    if (texts.size() > products.size())
        reason = BackendText::tr("%1 units are named, but the machine has %2 products")
                     .arg(texts.size())
                     .arg(products.size());
    for (int i = 0; i < texts.size() && reason.isEmpty(); ++i) {
        RateUnit &unit = operatorUnits[static_cast<size_t>(i)];
        unit = RateUnit::fromText(texts.at(i));
        if (!unit.isKnown() && !texts.at(i).isEmpty())
            reason = BackendText::tr("\"%1\" is no unit of a rate").arg(texts.at(i));
    }
}

void ColumnPolicy::leaveOutUndriven()
{
    for (int i = 0; i < names.size(); ++i) {
        const MachineProduct &product = products.at(i);
        if (product.isDriven || names.at(i).isEmpty())
            continue;
        remarks.append(BackendText::tr("column \"%1\" is left out, product %2 (%3) takes no prescription")
                           .arg(names.at(i), QString::number(i + 1), product.name));
        names[i].clear();
    }
    if (!remarks.isEmpty() && areEmpty(names))
        reason = remarks.first();
}

ColumnPolicy::Decision ColumnPolicy::decide(const RawPrescription &source,
                                            const std::vector<PlanePolygon> &polygons) const
{
    Decision decision;
    const ColumnUnits units(source);
    if (names.isEmpty())
        decideLikely(source, LikelyColumns(source, polygons, units), decision);
    else
        decision.feeds = feedNamed(source);
    for (Feed &feed : decision.feeds) {
        const SourceColumn &column = source.columns[static_cast<size_t>(feed.column)];
        if (!ColumnContent::hasRates(column)) {
            decision.error = BackendText::tr("column \"%1\" holds no rates").arg(column.name);
            break;
        }
        tellEntries(source, column, decision);
        describe(column, units.of(feed.column), feed, decision);
    }
    return decision;
}

void ColumnPolicy::decideLikely(const RawPrescription &source, const LikelyColumns &likely, Decision &decision) const
{
    std::vector<int> driven;
    std::vector<int> waiting;
    for (int product = 0; product < products.size(); ++product) {
        if (!products.at(product).isDriven)
            continue;
        driven.push_back(product);
        if (!products.at(product).isFed)
            waiting.push_back(product);
    }
    decision.feeds = feedLikely(source, likely.columns(), waiting);
    if (decision.feeds.empty())
        decision.feeds = feedLikely(source, likely.columns(), driven);
    tellUnfed(source, likely, driven, decision);
}

void ColumnPolicy::tellUnfed(const RawPrescription &source, const LikelyColumns &likely, const std::vector<int> &driven,
                             Decision &decision) const
{
    QStringList unfit;
    QStringList unfed;
    for (const LikelyColumn &column : likely.columns()) {
        const SourceColumn &named = source.columns[static_cast<size_t>(column.place)];
        const bool isFed = std::any_of(decision.feeds.begin(), decision.feeds.end(),
                                       [&](const Feed &feed) { return feed.column == column.place; });
        const bool fitsAny =
            std::any_of(driven.begin(), driven.end(), [&](int product) { return fits(column, product); });
        if (!fitsAny)
            unfit.append(QStringLiteral("\"%1\" (%2)").arg(named.name, column.unit.unit.text()));
        else if (!isFed && LikelyColumns::saysRates(named))
            unfed.append(QStringLiteral("\"%1\"").arg(named.name));
    }
    const QString line =
        BackendText::tr("no product that a prescription may drive fits the unit of %1").arg(TableColumns::list(unfit));
    if (likely.columns().empty())
        decision.error = likely.reasonForNone();
    else if (decision.feeds.empty())
        decision.error = line;
    else if (!unfit.isEmpty())
        decision.findings.append(finding(MapFinding::Kind::UnitMismatch, line));
    if (!unfed.isEmpty()) {
        const QString text = unfed.size() == 1 ? BackendText::tr("column %1 feeds no product")
                                               : BackendText::tr("columns %1 feed no product");
        decision.warnings.append(text.arg(TableColumns::list(unfed)));
    }
}

bool ColumnPolicy::fits(const LikelyColumn &column, int product) const
{
    // An operator who names a unit wants the column, whatever its unit.
    return operatorUnits[static_cast<size_t>(product)].isKnown() || column.unit.unit.fits(products.at(product).kind);
}

void ColumnPolicy::describe(const SourceColumn &column, ColumnUnit unit, Feed &feed, Decision &decision) const
{
    const MachineProduct &product = products.at(feed.product);
    const RateUnit &named = operatorUnits[static_cast<size_t>(feed.product)];
    if (named.isKnown())
        unit = {named, RateSource::UnitFrom::Operator, {}, nullptr};
    unit.unit = unit.unit.of(product.kind);
    const QString base = RateUnit::baseText(product.kind);
    feed.factor = unit.unit.factorTo(product.kind);
    feed.displayFactor = product.displayFactor;
    RateSource told{column.name, unit.unit.isKnown() ? unit.unit.text() : base, unit.from, feed.product + 1, true};
    told.isSure = (!names.isEmpty() && !tellsGuesses) || LikelyColumns::saysRates(column);
    told.baseUnit = base;
    for (double PlaceRates::*rate : {&PlaceRates::outOfField, &PlaceRates::elsewhere, &PlaceRates::positionLost})
        told.placeRates.*rate = feed.factor * column.placeRates.*rate;
    decision.sources.append(told);
    using Kind = MapFinding::Kind;
    const auto tell = [&decision](Kind kind, const QString &text) { decision.findings.append(finding(kind, text)); };
    if (tellsGuesses && LikelyColumns::saysTotal(column))
        tell(Kind::Total,
             BackendText::tr("column \"%1\" is called a total, and its numbers are taken as rates").arg(column.name));
    else if (!told.isSure)
        tell(
            Kind::GuessedColumn,
            BackendText::tr("column \"%1\" is a guess: nothing in its name says that it holds rates").arg(column.name));
    if (unit.mixed != nullptr)
        tell(Kind::UnitUnknown,
             BackendText::tr("column \"%1\" gives different units (\"%2\", \"%3\") and is not used for column \"%4\"")
                 .arg(unit.mixed->name, unit.mixed->text, unit.mixed->other, column.name));
    if (!unit.unknownText.isEmpty())
        tell(Kind::UnitUnknown,
             BackendText::tr("\"%1\", given for column \"%2\", is no unit of a rate")
                 .arg(unit.unknownText, column.name));
    if (unit.other.isKnown())
        tell(Kind::UnitMismatch, contradictionText(column.name, unit));
    if (!unit.unit.isKnown() && !base.isEmpty())
        tell(Kind::UnitUnknown,
             BackendText::tr("the unit of column \"%1\" is not known, taken as %2").arg(column.name, base));
    else if (!unit.unit.fits(product.kind))
        tell(Kind::UnitMismatch,
             BackendText::tr("column \"%1\" is in %2, which does not fit product %3 (%4); taken as %5")
                 .arg(column.name, unit.unit.text(), QString::number(told.product), product.name, base));
}

std::vector<ColumnPolicy::Feed> ColumnPolicy::feedNamed(const RawPrescription &source) const
{
    std::vector<Feed> feeds;
    for (int product = 0; product < names.size(); ++product) {
        if (names.at(product).isEmpty())
            continue;
        const int field = TableColumns::find(source.columnNames, names.at(product));
        const auto column = std::find_if(source.columns.begin(), source.columns.end(),
                                         [field](const SourceColumn &candidate) { return candidate.field == field; });
        feeds.push_back({product, static_cast<int>(column - source.columns.begin())});
    }
    return feeds;
}

std::vector<ColumnPolicy::Feed> ColumnPolicy::feedLikely(const RawPrescription &source,
                                                         std::vector<LikelyColumn> columns,
                                                         const std::vector<int> &candidates) const
{
    std::vector<Feed> feeds;
    const auto feedFirst = [&](int product, const auto &isWanted) {
        const auto column = std::find_if(columns.begin(), columns.end(), [&](const LikelyColumn &candidate) {
            return fits(candidate, product) && isWanted(candidate);
        });
        if (column == columns.end())
            return false;
        feeds.push_back({product, column->place});
        columns.erase(column);
        return true;
    };
    std::vector<int> unnamed;
    for (const int product : candidates) {
        const QString &name = products.at(product).name;
        if (!feedFirst(product, [&](const LikelyColumn &column) {
                return ColumnProducts::isNamed(source.columns[static_cast<size_t>(column.place)], name);
            }))
            unnamed.push_back(product);
    }
    std::vector<int> left;
    for (const int product : unnamed) {
        if (!feedFirst(product, [&](const LikelyColumn &column) { return suits(column, products.at(product)); }))
            left.push_back(product);
    }
    for (const int product : left)
        feedFirst(product, [](const LikelyColumn &) { return true; });
    std::sort(feeds.begin(), feeds.end(), [](const Feed &a, const Feed &b) { return a.product < b.product; });
    return feeds;
}

ColumnShares ColumnPolicy::share(const QList<File> &files, const QStringList &named)
{
    ColumnShares shares;
    for (int i = 0; i < files.size(); ++i)
        shares.columns.append(QStringList());
    for (int product = 0; product < named.size(); ++product) {
        const QString &column = named.at(product);
        if (column.isEmpty())
            continue;
        const auto file = std::find_if(files.begin(), files.end(), [&column](const File &candidate) {
            return TableColumns::find(candidate.columns, column) >= 0;
        });
        if (file == files.end()) {
            QStringList paths;
            for (const File &candidate : files)
                paths.append(candidate.path);
            shares.error = BackendText::tr("no column \"%1\" in %2").arg(column, paths.join(QStringLiteral(", ")));
            shares.columns.clear();
            return shares;
        }
        QStringList &columns = shares.columns[static_cast<int>(file - files.begin())];
        while (columns.size() < product)
            columns.append(QString());
        columns.append(column);
    }
    return shares;
}
