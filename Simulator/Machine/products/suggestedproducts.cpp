#include "suggestedproducts.h"

#include "productfile.h"

#include <algorithm>
#include <cmath>

namespace {

Product::Kind kindOf(const ColumnProduct &column)
{
    switch (column.kind) {
    case DbGroupProductGroupInfo::CountRate:
        return Product::Kind::Count;
    case DbGroupProductGroupInfo::VolumeRate:
        return Product::Kind::Volume;
    default:
        return Product::Kind::Weight;
    }
}

/// The limits, widened where needed to hold the rate divided by `reach` and multiplied by it.
ActuatorSettings reaching(ActuatorSettings actuator, double rate, double reach)
{
    if (rate > 0.0) {
        actuator.minRate = std::min(actuator.minRate, rate / reach);
        actuator.maxRate = std::max(actuator.maxRate, rate * reach);
    }
    return actuator;
}

/// The standard product of the column's kind, with the column's name and limits that suit its rates.
Product productOf(const ColumnProduct &column)
{
    const Products standard = ProductFile::standard();
    Product product = *std::find_if(standard.begin(), standard.end(),
                                    [&column](const Product &any) { return any.kind == kindOf(column); });
    product.name = column.name;
    product.shortName = ProductFile::shortNameOf(column.name);
    constexpr double aroundTheMean = 10.0;
    product.actuator = reaching(product.actuator, column.typicalRate, aroundTheMean);
    product.actuator = reaching(product.actuator, column.givenRate, 1.0);
    if (!std::isnan(column.defaultRate()))
        product.defaultRate = column.defaultRate();
    return product;
}

/// The standard products that no column is named after, first those of a kind that no column has.
Products spareProducts(const QList<ColumnProduct> &columns)
{
    Products spare = ProductFile::standard();
    const auto isCalled = [&columns](const Product &product) {
        return std::any_of(columns.begin(), columns.end(), [&product](const ColumnProduct &column) {
            return column.name.compare(product.name, Qt::CaseInsensitive) == 0;
        });
    };
    spare.erase(std::remove_if(spare.begin(), spare.end(), isCalled), spare.end());
    std::stable_partition(spare.begin(), spare.end(), [&columns](const Product &product) {
        return std::none_of(columns.begin(), columns.end(),
                            [&product](const ColumnProduct &column) { return kindOf(column) == product.kind; });
    });
    return spare;
}

/// The next remaining standard product; when none is left, a product named by its number.
Product nextSpare(Products &spare, int number)
{
    const QString name = ProductFile::tr("Product %1").arg(number);
    return spare.isEmpty() ? productOf({name, DbGroupProductGroupInfo::WeightRate, number}) : spare.takeFirst();
}

/// Writes a product's number into its short name where another one has the same; those of columns keep theirs before
/// the others do.
void tellApart(Products &products, const QList<ColumnProduct> &columns)
{
    QStringList taken;
    QList<int> others;
    const auto take = [&products, &taken](int number) {
        QString &shortName = products[number - 1].shortName;
        const QString end = QString::number(number);
        if (taken.contains(shortName))
            shortName = shortName.left(ProductFile::shortNameLength - end.size()) + end;
        taken.append(shortName);
    };
    for (int number = 1; number <= products.size(); ++number) {
        const bool isMade = std::any_of(columns.begin(), columns.end(),
                                        [number](const ColumnProduct &column) { return column.number == number; });
        if (isMade)
            take(number);
        else
            others.append(number);
    }
    std::for_each(others.cbegin(), others.cend(), take);
}

} // namespace

Products SuggestedProducts::of(const QList<ColumnProduct> &columns, int least)
{
    int count = std::max(least, ProductFile::standard().size());
    for (const ColumnProduct &column : columns)
        count = std::max(count, column.number);
    count = std::min(count, ProductFile::maxProducts);
    Products spare = spareProducts(columns);
    Products products;
    QList<int> left;
    for (int number = 1; number <= count; ++number) {
        const auto column = std::find_if(columns.begin(), columns.end(),
                                         [number](const ColumnProduct &any) { return any.number == number; });
        if (column == columns.end())
            products.append(nextSpare(spare, number));
        else
            products.append(productOf(*column));
        if (column != columns.end() && column->name.isEmpty())
            left.append(number);
        products.last().bin = number;
    }
    // The others stay as they were offered.
    for (const int number : qAsConst(left)) {
        products[number - 1] = nextSpare(spare, number);
        products[number - 1].bin = number;
    }
    tellApart(products, columns);
    return products;
}
