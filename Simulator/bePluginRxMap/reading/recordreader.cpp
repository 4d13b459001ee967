#include "recordreader.h"

#include "Backend/backendtext.h"
#include "rateunit.h"
#include "shapereader.h"
#include "tablecolumns.h"
#include "textrate.h"

#include <algorithm>
#include <cmath>
#include <cpl_string.h>
#include <iterator>
#include <limits>
#include <ogrsf_frmts.h>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// At most this many rates are read from all columns together, half a gigabyte: records may leave columns out, and so
/// take no room in the file.
constexpr double mostValues = 64.0 * 1024.0 * 1024.0;

bool isRate(double value)
{
    return std::isfinite(value) && value >= 0.0;
}

bool hasValue(const OGRField &entry)
{
    return OGR_RawField_IsUnset(&entry) == 0 && OGR_RawField_IsNull(&entry) == 0;
}

/// The number in an entry of a column that is not text. Reals are taken from where they lie: GDAL's conversion asks for
/// the column's type each time.
double readNumber(const OGRFeature &feature, const SourceColumn &column)
{
    return column.isInteger ? feature.GetFieldAsDouble(column.field) : feature.GetRawFieldRef(column.field)->Real;
}

/// Whether two texts name the same unit, however they spell it.
bool areOneUnit(const QString &one, const QString &other)
{
    const QString unit = one == other ? QString() : RateUnit::fromText(one).text();
    return one == other || (!unit.isEmpty() && unit == RateUnit::fromText(other).text());
}

/// The number in a text; NaN, and counted, if its unit differs from that of those before.
double readText(const OGRFeature &feature, int record, SourceColumn &column)
{
    const QString text = QString::fromUtf8(feature.GetFieldAsString(column.field));
    const TextRate rate = TextRate::parse(text);
    if (column.unit.isEmpty())
        column.unit = rate.unit;
    if (!rate.isReadable || (!rate.unit.isEmpty() && !areOneUnit(rate.unit, column.unit))) {
        column.unreadable.push_back(record);
        return notANumber;
    }
    if (rate.isAmbiguous && column.ambiguous.isEmpty())
        column.ambiguous = text.trimmed();
    return rate.value;
}

void compareText(const OGRFeature &feature, TextColumn &column)
{
    if (column.isMixed)
        return;
    const QString text = QString::fromUtf8(feature.GetFieldAsString(column.field)).trimmed();
    if (column.text.isEmpty())
        column.text = text;
    column.isMixed = !text.isEmpty() && !areOneUnit(text, column.text);
    if (column.isMixed)
        column.other = text;
}

/// Makes room for that many records of one cell each. Files may announce more than they hold, so there is a limit.
void reserve(RawPrescription &map, double records)
{
    constexpr double most = 1e6;
    constexpr size_t cellVertices = 5;
    const double columns = static_cast<double>(std::max<size_t>(1, map.columns.size()));
    const auto room = static_cast<size_t>(std::min({most, records, mostValues / columns}));
    map.rings.reserve(room);
    map.xs.reserve(room * cellVertices);
    map.ys.reserve(room * cellVertices);
    for (SourceColumn &column : map.columns)
        column.values.reserve(room);
}

} // namespace

RecordReader::RecordReader(OGRLayer &openLayer, const QStringList &wantedColumns, ColumnJudge columnJudge,
                           const LoadControl &loadControl)
    : layer(openLayer)
    , wanted(wantedColumns)
    , judge(columnJudge)
    , control(loadControl)
{
    wanted.removeAll(QString());
}

bool RecordReader::fail(const QString &text)
{
    reason = text;
    return false;
}

bool RecordReader::read(RawPrescription &map)
{
    return chooseColumns(map) && readRecords(map);
}

bool RecordReader::chooseColumns(RawPrescription &map)
{
    const int count = layer.GetLayerDefn()->GetFieldCount();
    if (count > TableColumns::most)
        return fail(
            BackendText::tr("has %1 columns; files with more than %2 are not read").arg(count).arg(TableColumns::most));
    const std::vector<SourceColumn> table = TableColumns::read(*layer.GetLayerDefn(), map.columnNames);
    for (const SourceColumn &column : table) {
        if (column.isText)
            map.texts.push_back({column.name, column.field, {}, false});
        else
            map.numberFields.push_back(column.field);
    }
    if (!wanted.isEmpty())
        return takeWantedColumns(table, map);
    std::copy_if(table.begin(), table.end(), std::back_inserter(map.columns),
                 [this](const SourceColumn &column) { return judge(column) != RateChance::None; });
    return true;
}

bool RecordReader::takeWantedColumns(const std::vector<SourceColumn> &table, RawPrescription &map)
{
    QVector<int> taken;
    for (const QString &name : qAsConst(wanted)) {
        const int place = TableColumns::find(map.columnNames, name);
        if (place < 0)
            return fail(
                BackendText::tr("has no column \"%1\"; it has %2").arg(name, TableColumns::list(map.columnNames)));
        const auto column =
            std::find_if(table.begin(), table.end(), [place](const auto &c) { return c.field == place; });
        if (column == table.end())
            return fail(BackendText::tr("column \"%1\" holds no numbers").arg(map.columnNames.at(place)));
        if (!taken.contains(place))
            map.columns.push_back(*column);
        taken.append(place);
    }
    return true;
}

void RecordReader::skipOtherColumns(const RawPrescription &map)
{
    if (layer.TestCapability(OLCIgnoreFields) == 0)
        return;
    const OGRFeatureDefn &definition = *layer.GetLayerDefn();
    CPLStringList others;
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        const char *name = definition.GetFieldDefn(i)->GetNameRef();
        // GDAL goes by names; two columns may share one, and a name may stand for something other than a column.
        const bool isOwnName = definition.GetFieldIndex(name) == i && !STARTS_WITH_CI(name, "OGR_");
        const bool isRead = std::any_of(map.columns.begin(), map.columns.end(),
                                        [i](const SourceColumn &column) { return column.field == i; });
        const bool isText = std::any_of(map.texts.begin(), map.texts.end(),
                                        [i](const TextColumn &column) { return column.field == i; });
        if (isOwnName && !isRead && !isText)
            others.AddString(name);
    }
    layer.SetIgnoredFields(const_cast<const char **>(others.List()));
}

bool RecordReader::readRecords(RawPrescription &map)
{
    const double expected = static_cast<double>(std::max<GIntBig>(1, layer.GetFeatureCount()));
    reserve(map, expected);
    skipOtherColumns(map);
    ShapeReader shapes(map);
    while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
        if (control.isCancelled())
            return fail(BackendText::tr("loading was cancelled"));
        if (static_cast<double>(map.records) * static_cast<double>(map.columns.size()) > mostValues)
            return fail(BackendText::tr("has more records than can be read with %1 columns; name those that are wanted")
                            .arg(map.columns.size()));
        readValues(*feature, map);
        shapes.read(feature->GetGeometryRef());
        ++map.records;
        if (map.records % 256 == 0)
            control.report(std::min(1.0, map.records / expected));
    }
    return map.records > 0 || fail(BackendText::tr("holds no records"));
}

void RecordReader::readValues(const OGRFeature &feature, RawPrescription &map)
{
    for (SourceColumn &column : map.columns) {
        double value = notANumber;
        if (hasValue(*feature.GetRawFieldRef(column.field))) {
            value = column.isText ? readText(feature, map.records, column) : readNumber(feature, column);
            if (!isRate(value) && !(column.isText && std::isnan(value)))
                column.unreadable.push_back(map.records);
        }
        // The sum turns a negative zero into a positive one.
        column.values.push_back(isRate(value) ? value + 0.0 : notANumber);
    }
    for (TextColumn &column : map.texts)
        compareText(feature, column);
}
