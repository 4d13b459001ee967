#include "columnproducts.h"

#include "columnname.h"
#include "likelycolumns.h"
#include "tablecolumns.h"

#include <algorithm>

namespace {

using RateKind = DbGroupProductGroupInfo::RateKind;

RateKind kindOf(ProductLineItem::Basis basis)
{
    switch (basis) {
    case ProductLineItem::Count:
        return DbGroupProductGroupInfo::CountRate;
    case ProductLineItem::Volume:
        return DbGroupProductGroupInfo::VolumeRate;
    default:
        return DbGroupProductGroupInfo::WeightRate;
    }
}

/// Whether the product's name has to be picked out of the column's.
bool isNamedFreely(const SourceColumn &column)
{
    return column.meaning == SourceColumn::Meaning::NotSaid && !ColumnName(column.name).namesTotal();
}

/// When the format says what a column is, the column's name is the product's own, unless it only says what is measured.
QString nameOf(const SourceColumn &column)
{
    if (!column.measured.isEmpty())
        return column.measured;
    return isNamedFreely(column) ? ColumnName(column.name).product() : column.name;
}

QString freeName(const SourceColumn &column, const QList<ColumnProduct> &products)
{
    const auto isTaken = [&products](const QString &name) {
        return std::any_of(products.begin(), products.end(), [&name](const ColumnProduct &product) {
            return product.name.compare(name, Qt::CaseInsensitive) == 0;
        });
    };
    const QString whole = column.measured.isEmpty() ? column.name : column.measured;
    QString name = isTaken(nameOf(column)) ? whole : nameOf(column);
    for (int i = 2; isTaken(name); ++i)
        name = QStringLiteral("%1 %2").arg(whole, QString::number(i));
    return name;
}

} // namespace

ColumnProducts::ColumnProducts(const QStringList &namedColumns, const QStringList &units)
    : names(namedColumns)
    , operatorUnits(units)
{
}

QList<ColumnProduct> ColumnProducts::expected() const
{
    QList<ColumnProduct> products;
    for (int number = 1; number <= std::max(names.size(), operatorUnits.size()); ++number)
        products.append({names.value(number - 1), DbGroupProductGroupInfo::WeightRate, number});
    return products;
}

QList<ColumnProduct> ColumnProducts::of(const RawPrescription &source, const std::vector<PlanePolygon> &polygons) const
{
    const ColumnUnits units(source);
    QList<ColumnProduct> products;
    const auto add = [&](int place, int number) {
        const SourceColumn &column = source.columns[static_cast<size_t>(place)];
        const RateUnit named = RateUnit::fromText(operatorUnits.value(number - 1));
        ColumnProduct product = ofColumn(column, named.isKnown() ? named : units.of(place).unit);
        product.name = freeName(column, products);
        product.number = number;
        products.append(product);
    };
    for (int i = 0; i < names.size(); ++i) {
        const int field = TableColumns::find(source.columnNames, names.at(i));
        const auto column = std::find_if(source.columns.begin(), source.columns.end(),
                                         [field](const SourceColumn &any) { return any.field == field; });
        if (!names.at(i).isEmpty() && column != source.columns.end())
            add(static_cast<int>(column - source.columns.begin()), i + 1);
    }
    if (!names.isEmpty())
        return products;
    int guesses = 0;
    const LikelyColumns likely(source, polygons, units);
    for (const LikelyColumn &column : likely.columns()) {
        const bool isSure = LikelyColumns::saysRates(source.columns[static_cast<size_t>(column.place)]);
        guesses += isSure ? 0 : 1;
        if (isSure || guesses <= mostGuesses)
            add(column.place, products.size() + 1);
    }
    return products;
}

ColumnProduct ColumnProducts::ofColumn(const SourceColumn &column, const RateUnit &unit)
{
    ColumnProduct product;
    product.name = nameOf(column);
    product.kind = kindOf(unit.isKnown() ? unit.basis() : ColumnName(column.name).basis());
    product.isNamed = isNamedFreely(column)
        ? ColumnName(column.name).namesProduct()
        : column.meaning != SourceColumn::Meaning::NotSaid && column.measured.isEmpty();
    return product;
}

bool ColumnProducts::isNamed(const SourceColumn &column, const QString &product)
{
    return nameOf(column).compare(product, Qt::CaseInsensitive) == 0
        || column.name.compare(product, Qt::CaseInsensitive) == 0;
}
