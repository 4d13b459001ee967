#include "taskcolumns.h"

#include "datadictionary.h"

#include <algorithm>
#include <limits>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

QString identityOf(const ProcessValue &value)
{
    return QStringLiteral("%1 %2 %3").arg(QString::number(value.number), value.product, value.device);
}

QString columnName(const ProcessValue &value, const TaskData &data, const DataDictionary::Entry *entry)
{
    const QString product = data.products.value(value.product);
    if (!product.isEmpty())
        return product;
    return entry == nullptr ? QStringLiteral("DDI %1").arg(value.number) : QString::fromUtf8(entry->name);
}

bool isSetpoint(int number)
{
    const DataDictionary::Entry *entry = DataDictionary::find(number);
    return entry != nullptr && entry->isSetpoint();
}

/// Whether the task has any targets; its other values are then limits, or what was applied.
bool hasSetpoints(const Task &task)
{
    return std::any_of(task.zones.begin(), task.zones.end(), [](const TreatmentZone &zone) {
        return std::any_of(zone.values.begin(), zone.values.end(),
                           [](const ProcessValue &value) { return isSetpoint(value.number); });
    });
}

/// Whether the unit is an amount per area.
bool isPerArea(const QString &unit)
{
    return unit.endsWith(QStringLiteral("/m²"));
}

} // namespace

TaskColumns::TaskColumns(const Task &task, const TaskData &data)
{
    for (const TreatmentZone &zone : task.zones) {
        QHash<QString, int> before;
        for (const ProcessValue &value : zone.values) {
            const QString name = key(value, before);
            ++before[identityOf(value)];
            isCutShort = isCutShort || (table.size() == most && !places.contains(name));
            if (places.contains(name) || isCutShort)
                continue;
            places.insert(name, table.size());
            add(value, data);
        }
    }
    if (isCutShort)
        return;
    const bool areSetpointsKnown = hasSetpoints(task);
    for (const TreatmentZone &zone : task.zones) {
        const std::vector<size_t> inZone = placesOf(zone);
        for (size_t i = 0; i < inZone.size(); ++i) {
            SourceColumn &column = table[inZone[i]];
            if (!isSetpoint(zone.values[i].number) && column.meaning == SourceColumn::Meaning::Rates)
                column.meaning = areSetpointsKnown ? SourceColumn::Meaning::NoRates : SourceColumn::Meaning::NotSaid;
        }
    }
    takePlaceRates(task);
}

QString TaskColumns::key(const ProcessValue &value, const QHash<QString, int> &before)
{
    const QString identity = identityOf(value);
    return QStringLiteral("%1 %2").arg(identity, QString::number(before.value(identity)));
}

void TaskColumns::add(const ProcessValue &value, const TaskData &data)
{
    const DataDictionary::Entry *entry = DataDictionary::find(value.number);
    SourceColumn column;
    column.name = freeName(columnName(value, data, entry));
    if (data.products.value(value.product).isEmpty() && entry != nullptr) {
        const int count = ++timesMeasured[value.number];
        column.measured = count == 1 ? entry->measured() : QStringLiteral("%1 %2").arg(entry->measured()).arg(count);
    }
    column.field = static_cast<int>(table.size());
    Scale scale{0.0, 1.0};
    if (entry != nullptr) {
        scale.factor = entry->resolution;
        column.formatUnit = entry->rateUnit();
        column.meaning = isPerArea(column.formatUnit) ? SourceColumn::Meaning::Rates : SourceColumn::Meaning::NoRates;
    } else if (data.presentations.contains(value.presentation)) {
        const ValuePresentation shown = data.presentations.value(value.presentation);
        scale = {shown.offset, shown.scale};
        column.formatUnit = shown.unit;
    }
    column.isInteger = scale.factor == 1.0;
    table.push_back(column);
    scales.push_back(scale);
}

QString TaskColumns::freeName(const QString &name)
{
    QString candidate = name;
    while (names.contains(candidate.toLower()))
        candidate = QStringLiteral("%1 (%2)").arg(name, QString::number(++names[name.toLower()]));
    names.insert(candidate.toLower(), 1);
    return candidate;
}

void TaskColumns::takePlaceRates(const Task &task)
{
    const auto take = [this, &task](int code, double PlaceRates::*rate) {
        const TreatmentZone *zone = task.zone(code);
        if (zone == nullptr)
            return;
        const std::vector<double> rates = ratesOf(*zone);
        for (size_t i = 0; i < table.size(); ++i)
            table[i].placeRates.*rate = rates[i];
    };
    take(task.outOfFieldZone, &PlaceRates::outOfField);
    take(task.defaultZone, &PlaceRates::elsewhere);
    take(task.positionLostZone, &PlaceRates::positionLost);
}

std::vector<size_t> TaskColumns::placesOf(const TreatmentZone &zone) const
{
    std::vector<size_t> result;
    QHash<QString, int> before;
    for (const ProcessValue &value : zone.values) {
        result.push_back(places.value(key(value, before)));
        ++before[identityOf(value)];
    }
    return result;
}

std::vector<double> TaskColumns::ratesOf(const TreatmentZone &zone) const
{
    std::vector<double> rates(table.size(), notANumber);
    const std::vector<size_t> inZone = placesOf(zone);
    for (size_t i = 0; i < inZone.size(); ++i)
        rates[inZone[i]] = rate(inZone[i], zone.values[i].value);
    return rates;
}

double TaskColumns::rate(size_t place, qint64 value) const
{
    const double rate = (static_cast<double>(value) + scales[place].offset) * scales[place].factor;
    return value < 0 || !(rate >= 0.0) ? notANumber : rate;
}
