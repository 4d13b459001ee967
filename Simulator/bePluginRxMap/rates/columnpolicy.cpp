#include "columnpolicy.h"

#include "columncontent.h"
#include "columnname.h"
#include "ratecolumns.h"

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

/// Whether the column's name says that it is measured out as the product is.
bool suits(const SourceColumn &column, const MachineProduct &product)
{
    const ProductLineItem::Basis basis = ColumnName(column.name).basis();
    return basis != ProductLineItem::None && basis == basisOf(product.kind);
}

bool areEmpty(const QStringList &names)
{
    return names.join(QString()).isEmpty();
}

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

/// Places, in table order, of the columns that most likely hold rates.
std::vector<int> likelyColumns(const RawPrescription &source, const std::vector<double> &areas)
{
    std::vector<int> named;
    std::vector<int> possible;
    for (size_t i = 0; i < source.columns.size(); ++i) {
        const SourceColumn &column = source.columns[i];
        if (!RateColumns::isWorthReading(column) || !ColumnContent::hasRates(column))
            continue;
        if (ColumnName(column.name).namesRate())
            named.push_back(static_cast<int>(i));
        else if (ColumnContent::mayBeRates(column, source, areas))
            possible.push_back(static_cast<int>(i));
    }
    return named.empty() ? possible : named;
}

QString reasonForNone(const RawPrescription &source)
{
    QStringList empty;
    for (const SourceColumn &column : source.columns) {
        if (RateColumns::isWorthReading(column) && ColumnName(column.name).namesRate()
            && !ColumnContent::hasRates(column))
            empty.append(column.name);
    }
    if (!empty.isEmpty())
        return QStringLiteral("holds no rates: no record has one in %1").arg(empty.join(QStringLiteral(", ")));
    const QString columns =
        source.columnNames.isEmpty() ? QStringLiteral("none") : source.columnNames.join(QStringLiteral(", "));
    return QStringLiteral("has no column that looks like a rate; name one (its columns: %1)").arg(columns);
}

void checkRates(const SourceColumn &column, ColumnPolicy::Decision &decision)
{
    if (!ColumnContent::hasRates(column))
        decision.error = QStringLiteral("column \"%1\" holds no rates").arg(column.name);
    else if (column.unreadable == 1)
        decision.warnings.append(
            QStringLiteral("1 entry of column \"%1\" is no rate and was left out").arg(column.name));
    else if (column.unreadable > 1)
        decision.warnings.append(QStringLiteral("%1 entries of column \"%2\" are no rates and were left out")
                                     .arg(column.unreadable)
                                     .arg(column.name));
}

} // namespace

ColumnPolicy::ColumnPolicy(const QList<MachineProduct> &machineProducts, const QStringList &namedColumns)
    : products(machineProducts)
    , names(namedColumns)
{
    const bool isAnyDriven =
        std::any_of(products.begin(), products.end(), [](const MachineProduct &product) { return product.isDriven; });
    if (products.isEmpty() || (names.isEmpty() && !isAnyDriven))
        reason = QStringLiteral("there is no product to load it for");
    else if (names.size() > products.size())
        reason = QStringLiteral("%1 columns are named, but the machine has %2 products")
                     .arg(names.size())
                     .arg(products.size());
    else if (!names.isEmpty() && areEmpty(names))
        reason = QStringLiteral("no column is named for any product");
    else
        leaveOutUndriven();
}

void ColumnPolicy::leaveOutUndriven()
{
    for (int i = 0; i < names.size(); ++i) {
        const MachineProduct &product = products.at(i);
        if (product.isDriven || names.at(i).isEmpty())
            continue;
        remarks.append(QStringLiteral("column \"%1\" is left out, product %2 (%3) takes no prescription")
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
    decision.feeds = names.isEmpty() ? feedLikely(source, polygons) : feedNamed(source);
    if (decision.feeds.empty())
        decision.error = reasonForNone(source);
    for (size_t i = 0; i < decision.feeds.size() && decision.error.isEmpty(); ++i)
        checkRates(source.columns[static_cast<size_t>(decision.feeds[i].column)], decision);
    return decision;
}

std::vector<ColumnPolicy::Feed> ColumnPolicy::feedNamed(const RawPrescription &source) const
{
    QStringList read;
    for (const SourceColumn &column : source.columns)
        read.append(column.name);
    std::vector<Feed> feeds;
    for (int product = 0; product < names.size(); ++product) {
        if (names.at(product).isEmpty())
            continue;
        const int inTable = RateColumns::find(source.columnNames, names.at(product));
        feeds.push_back({product, read.indexOf(source.columnNames.value(inTable))});
    }
    return feeds;
}

std::vector<int> ColumnPolicy::waitingProducts() const
{
    std::vector<int> waiting;
    std::vector<int> driven;
    for (int i = 0; i < products.size(); ++i) {
        if (!products.at(i).isDriven)
            continue;
        driven.push_back(i);
        if (!products.at(i).isFed)
            waiting.push_back(i);
    }
    return waiting.empty() ? driven : waiting;
}

std::vector<ColumnPolicy::Feed> ColumnPolicy::feedLikely(const RawPrescription &source,
                                                         const std::vector<PlanePolygon> &polygons) const
{
    std::vector<int> columns = likelyColumns(source, recordAreas(source, polygons));
    std::vector<Feed> feeds;
    std::vector<int> left;
    for (const int product : waitingProducts()) {
        const auto suiting = std::find_if(columns.begin(), columns.end(), [&](int column) {
            return suits(source.columns[static_cast<size_t>(column)], products.at(product));
        });
        if (suiting == columns.end()) {
            left.push_back(product);
            continue;
        }
        feeds.push_back({product, *suiting});
        columns.erase(suiting);
    }
    for (size_t i = 0; i < std::min(left.size(), columns.size()); ++i)
        feeds.push_back({left[i], columns[i]});
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
            return RateColumns::find(candidate.columns, column) >= 0;
        });
        if (file == files.end()) {
            QStringList paths;
            for (const File &candidate : files)
                paths.append(candidate.path);
            shares.error =
                QStringLiteral("--columns: no column \"%1\" in %2").arg(column, paths.join(QStringLiteral(", ")));
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
