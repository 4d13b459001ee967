#include "openselection.h"

#include "Backend/rateunits.h"

#include <algorithm>
#include <iterator>

namespace {

ColumnProduct *find(QList<ColumnProduct> &products, int number)
{
    const auto found = std::find_if(products.begin(), products.end(),
                                    [number](const ColumnProduct &any) { return any.number == number; });
    return found == products.end() ? nullptr : &*found;
}

/// Whether another product than that of the number has the name.
bool isTaken(const QString &name, const QList<ColumnProduct> &products, int number)
{
    return std::any_of(products.begin(), products.end(), [&name, number](const ColumnProduct &any) {
        return any.number != number && any.name.compare(name, Qt::CaseInsensitive) == 0;
    });
}

/// What a column of a file may measure.
constexpr DbGroupProductGroupInfo::RateKind columnKinds[] = {
    DbGroupProductGroupInfo::WeightRate, DbGroupProductGroupInfo::VolumeRate, DbGroupProductGroupInfo::CountRate};

/// The kind of product that has such a unit: the given one if it may, or if none has.
DbGroupProductGroupInfo::RateKind kindFor(const QString &unit, DbGroupProductGroupInfo::RateKind given)
{
    const auto fits = [&unit](auto kind) { return RateUnits::factor(unit, kind) > 0.0; };
    const auto other = std::find_if(std::begin(columnKinds), std::end(columnKinds), fits);
    return fits(given) || other == std::end(columnKinds) ? given : *other;
}

} // namespace

OpenSelection::OpenSelection(const SurveyReport &survey, const ProductMaker &maker)
    : report(survey)
    , makeProducts(maker)
    , products(maker(survey.columnProducts))
    , offered(products)
{
    for (const SurveyedColumn &column : qAsConst(report.columns))
        entries.append({column.product, {}, false});
}

const MachineProduct *OpenSelection::fed(int index) const
{
    const int number = product(index);
    return number >= 1 && number <= products.size() ? &products.at(number - 1) : nullptr;
}

void OpenSelection::setProduct(int index, int number)
{
    feed(index, number);
    dropUnfitUnits();
}

void OpenSelection::feed(int index, int number)
{
    for (Entry &entry : entries) {
        if (number > 0 && entry.product == number)
            entry.product = 0;
    }
    Entry &entry = entries[index];
    entry.product = number;
    entry.isProductChosen = true;
    products = makeProducts(made());
}

void OpenSelection::dropUnfitUnits()
{
    for (int index = 0; index < size(); ++index) {
        const MachineProduct *product = fed(index);
        if (product != nullptr && RateUnits::factor(entries.at(index).unit, product->kind) == 0.0)
            entries[index].unit.clear();
    }
}

QString OpenSelection::unit(int index) const
{
    return isUnitChosen(index) ? entries.at(index).unit : column(index).unit;
}

void OpenSelection::setUnit(int index, const QString &unit)
{
    entries[index].unit = unit;
    products = makeProducts(made());
}

QList<RateUnitParts> OpenSelection::unitParts(int index) const
{
    const auto kind = fed(index)->kind;
    QList<RateUnitParts> parts{RateUnits::parts(kind)};
    const auto isIt = [number = product(index)](const ColumnProduct &any) { return any.number == number; };
    if (std::none_of(report.columnProducts.begin(), report.columnProducts.end(), isIt))
        return parts;
    for (const auto other : columnKinds) {
        if (other != kind)
            parts.append(RateUnits::parts(other));
    }
    return parts;
}

OpenSelection::UnitState OpenSelection::unitState(int index) const
{
    if (unit(index).isEmpty())
        return UnitState::Assumed;
    const MachineProduct *product = fed(index);
    const bool fits = product == nullptr || product->kind == DbGroupProductGroupInfo::UnknownRate
        || RateUnits::factor(unit(index), product->kind) > 0.0;
    return fits ? UnitState::Known : UnitState::Unfit;
}

double OpenSelection::factor(int index) const
{
    const MachineProduct *product = fed(index);
    const double factor = product != nullptr ? RateUnits::factor(unit(index), product->kind) : 0.0;
    return factor > 0.0 ? factor : 1.0;
}

bool OpenSelection::feedsAny() const
{
    return std::any_of(entries.begin(), entries.end(), [](const Entry &entry) { return entry.product > 0; });
}

QList<int> OpenSelection::withoutUnit() const
{
    QList<int> columns;
    for (int index = 0; index < size(); ++index) {
        const bool mayHaveOne = fed(index) != nullptr && !RateUnits::parts(fed(index)->kind).amounts.isEmpty();
        if (mayHaveOne && unitState(index) == UnitState::Assumed)
            columns.append(index);
    }
    return columns;
}

QString OpenSelection::assumedUnit(int index) const
{
    return RateUnits::base(fed(index)->kind);
}

bool OpenSelection::isFed(int number) const
{
    return std::any_of(entries.begin(), entries.end(),
                       [number](const Entry &entry) { return entry.product == number; });
}

bool OpenSelection::isNameMoved(int number) const
{
    for (int index = 0; index < size(); ++index) {
        if (column(index).made.number == number)
            return product(index) > 0 && product(index) != number;
    }
    return false;
}

QList<ColumnProduct> OpenSelection::made() const
{
    QList<ColumnProduct> made = report.columnProducts;
    for (int index = 0; index < size(); ++index) {
        ColumnProduct *product = find(made, this->product(index));
        const ColumnProduct &own = column(index).made;
        if (product == nullptr || (product->isNamed && !own.isNamed && !isNameMoved(product->number)))
            continue;
        const int number = product->number;
        *product = own;
        product->number = number;
    }
    for (int index = 0; index < size(); ++index) {
        if (ColumnProduct *product = find(made, this->product(index)))
            product->kind = kindFor(entries.at(index).unit, product->kind);
    }
    for (ColumnProduct &product : made) {
        if (!isFed(product.number) && isTaken(product.name, made, product.number))
            product.name.clear();
    }
    for (int index = 0; index < size(); ++index) {
        ColumnProduct *product = find(made, this->product(index));
        if (product != nullptr && isTaken(product->name, made, product->number))
            product->name = column(index).name;
    }
    return made;
}

OpenRequest OpenSelection::request() const
{
    OpenRequest request{{report.path}};
    request.layer = report.layer;
    request.task = report.task;
    QList<ColumnProduct> chosen = made();
    for (ColumnProduct &product : chosen) {
        // Without its column, such a name would mean nothing to anybody.
        if (!isFed(product.number) && !product.isNamed)
            product.name.clear();
    }
    request.columnProducts = chosen;
    for (int index = 0; index < size(); ++index) {
        const int number = product(index);
        for (QStringList *list : {&request.columns, &request.units}) {
            while (list->size() < number)
                list->append(QString());
        }
        if (number == 0)
            continue;
        request.columns[number - 1] = column(index).key;
        request.units[number - 1] = entries.at(index).unit;
    }
    return request;
}

FileChoices OpenSelection::choices() const
{
    FileChoices choices{report.layer, report.task, report.columnNames, {}};
    for (int index = 0; index < size(); ++index) {
        const Entry &entry = entries.at(index);
        ColumnChoice choice{column(index).key, entry.isProductChosen, 0, {}, entry.unit};
        if (entry.isProductChosen && fed(index) != nullptr) {
            choice.product = entry.product;
            choice.productName = offered.at(entry.product - 1).name;
        }
        if (entry.isProductChosen || !entry.unit.isEmpty())
            choices.columns.append(choice);
    }
    return choices;
}

int OpenSelection::stillThere(const ColumnChoice &choice) const
{
    const auto isIt = [this, &choice](int number) {
        const MachineProduct &product = offered.at(number - 1);
        return product.isDriven && product.name == choice.productName;
    };
    if (choice.product >= 1 && choice.product <= offered.size() && isIt(choice.product))
        return choice.product;
    for (int number = 1; number <= offered.size(); ++number) {
        if (choice.product > 0 && isIt(number))
            return number;
    }
    return 0;
}

void OpenSelection::apply(const FileChoices &choices)
{
    if (choices.columnNames != report.columnNames)
        return;
    for (const ColumnChoice &choice : choices.columns) {
        const auto place = std::find_if(report.columns.begin(), report.columns.end(),
                                        [&choice](const SurveyedColumn &any) { return any.key == choice.column; });
        if (place == report.columns.end())
            continue;
        const int index = int(place - report.columns.begin());
        setUnit(index, choice.unit);
        const int number = stillThere(choice);
        if (choice.isProductChosen && (choice.product == 0 || number > 0))
            feed(index, number);
    }
    // Not before: until all have their place, a product may be of another kind.
    dropUnfitUnits();
}
