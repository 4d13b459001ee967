#include "columnsketch.h"

#include "planesketch.h"

#include <utility>

SourceColumn ColumnSketch::column(const QString &name, std::vector<double> values, std::vector<int> unreadable)
{
    SourceColumn result;
    result.name = name;
    result.values = std::move(values);
    result.unreadable = std::move(unreadable);
    return result;
}

RawPrescription ColumnSketch::mapOf(std::vector<SourceColumn> columns)
{
    RawPrescription map;
    map.records = 4;
    map.xs = {11.0, 12.0};
    map.ys = {48.0, 49.0};
    map.columns = std::move(columns);
    for (SourceColumn &entry : map.columns) {
        entry.field = map.columnNames.size();
        map.columnNames.append(entry.name);
        map.numberFields.push_back(entry.field);
    }
    return map;
}

RawPrescription ColumnSketch::tableOf(const QStringList &names)
{
    std::vector<SourceColumn> columns;
    for (const QString &name : names)
        columns.push_back(column(name, {1.0, 1.0, 2.0, 3.0 + static_cast<double>(columns.size())}));
    return mapOf(std::move(columns));
}

std::vector<PlanePolygon> ColumnSketch::polygons()
{
    return {{square(0.0, 0.0, 10.0), {}, 0},
            {square(0.0, 0.0, 10.0), {}, 0},
            {square(0.0, 0.0, 20.0), {}, 1},
            {square(0.0, 0.0, 30.0), {square(0.0, 0.0, 10.0)}, 2},
            {square(0.0, 0.0, 10.0), {}, 3}};
}

MachineProduct ColumnSketch::product(const char *name, DbGroupProductGroupInfo::RateKind kind)
{
    MachineProduct result;
    result.name = QString::fromLatin1(name);
    result.kind = kind;
    return result;
}

QList<MachineProduct> ColumnSketch::machine()
{
    return {product("Seed", DbGroupProductGroupInfo::CountRate),
            product("Fertiliser", DbGroupProductGroupInfo::WeightRate),
            product("Spray", DbGroupProductGroupInfo::VolumeRate)};
}

QStringList ColumnSketch::feeds(const ColumnPolicy &policy, const RawPrescription &map)
{
    QStringList result;
    for (const ColumnPolicy::Feed &feed : policy.decide(map, polygons()).feeds)
        result.append(QStringLiteral("%1:%2").arg(QString::number(feed.product + 1),
                                                  map.columns[static_cast<size_t>(feed.column)].name));
    return result;
}

QStringList ColumnSketch::textsOf(const QList<MapFinding> &findings)
{
    QStringList texts;
    for (const MapFinding &finding : findings)
        texts.append(finding.text);
    return texts;
}
