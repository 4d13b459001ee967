#include "scriptvalue.h"

#include "Variants/valueconversion.h"

#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"
#include "Framework/rxsettings.h"
#include "Framework/spnoperationalsetstruct.h"
#include "Framework/spnswitchbytecalsettingsstruct.h"
#include "Framework/xyz.h"

#include <QVariantList>
#include <QVariantMap>

#include <cmath>
#include <functional>

using OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING;
using OrvikTypes::RX_RATECOLOR;
using OrvikTypes::RX_SETTINGS;
using OrvikTypes::SPN_OperationalSetStruct;
using OrvikTypes::SPN_SwitchByteCalSettingsStruct;
using OrvikTypes::XYZ;

namespace {

template <typename T> QVariant plain(const T &value)
{
    return QVariant::fromValue(value);
}

QVariant plain(const float &value)
{
    return double(value);
}

QVariant plain(const QColor &color)
{
    return color.isValid() ? color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb) : QString();
}

QVariant plain(const XYZ &point)
{
    return QVariantMap{{QStringLiteral("x"), point.x}, {QStringLiteral("y"), point.y}, {QStringLiteral("z"), point.z}};
}

QVariant plain(const RX_RATECOLOR &entry)
{
    return QVariantMap{{QStringLiteral("rate"), entry.rate}, {QStringLiteral("color"), plain(entry.color)}};
}

QVariant plain(const SPN_OperationalSetStruct &settings)
{
    return QVariantMap{{QStringLiteral("isRatioRate"), settings.isRatioRate()}};
}

QVariant plain(const SPN_SwitchByteCalSettingsStruct &settings)
{
    return QVariantMap{{QStringLiteral("isInjection"), settings.isInjection()}};
}

QVariant plain(const RX_SETTINGS &entry)
{
    return QVariantMap{{QStringLiteral("name"), entry.name},
                       {QStringLiteral("onLookAheadMs"), entry.onLookAheadMs},
                       {QStringLiteral("zeroRateShutoff"), entry.zeroRateShutoff},
                       {QStringLiteral("isMaster"), entry.isMaster},
                       {QStringLiteral("followsMaster"), entry.followsMaster}};
}

QVariant plain(const RX_DBFCOLUMN_TO_RATECAL_MAPPING &entry);

template <typename T> QVariant plain(const QList<T> &list)
{
    QVariantList result;
    for (const T &entry : list)
        result.append(QVariant(plain(entry)));
    return result;
}

QVariant plain(const RX_DBFCOLUMN_TO_RATECAL_MAPPING &entry)
{
    return QVariantMap{{QStringLiteral("auxFlag"), entry.auxFlag},
                       {QStringLiteral("rateCalName"), entry.rateCalName},
                       {QStringLiteral("dbfColumnName"), entry.dbfColumnName},
                       {QStringLiteral("auxNumber"), entry.auxNumber},
                       {QStringLiteral("auxValue1"), entry.auxValue1},
                       {QStringLiteral("auxValue2"), entry.auxValue2},
                       {QStringLiteral("auxValue3"), entry.auxValue3},
                       {QStringLiteral("defaultRate"), entry.defaultRate},
                       {QStringLiteral("auxIndices"), plain(entry.auxIndices)},
                       {QStringLiteral("auxNumber2"), entry.auxNumber2}};
}

/// Takes a value as the broker does: only if nothing is lost.
template <typename T> bool take(const QVariant &value, T &target)
{
    QVariant converted;
    if (!convertWithoutLoss(value, qMetaTypeId<T>(), converted))
        return false;
    target = converted.value<T>();
    return true;
}

bool take(const QVariant &value, QColor &target)
{
    const QString name = value.toString();
    if (value.userType() != QMetaType::QString || (!name.isEmpty() && !QColor::isValidColor(name)))
        return false;
    target = name.isEmpty() ? QColor() : QColor(name);
    return true;
}

/// Reads the fields of a plain object; every field that is there must be known and of the right type.
class FieldReader {
public:
    explicit FieldReader(const QVariant &value)
        : fields(value.toMap())
    {
        if (value.userType() != QMetaType::QVariantMap)
            error = QStringLiteral("an object is expected");
    }

    template <typename T> FieldReader &field(const char *name, T &target)
    {
        const QVariant value = fields.take(QLatin1String(name));
        if (!value.isValid())
            return *this;
        if (!take(value, target) && error.isEmpty())
            error = QStringLiteral("\"%1\" has the wrong type").arg(QLatin1String(name));
        return *this;
    }

    QString finish() const
    {
        if (error.isEmpty() && !fields.isEmpty())
            return QStringLiteral("unknown field \"%1\"").arg(fields.firstKey());
        return error;
    }

private:
    QVariantMap fields;
    QString error;
};

QString read(const QVariant &value, XYZ &point)
{
    return FieldReader(value).field("x", point.x).field("y", point.y).field("z", point.z).finish();
}

QString read(const QVariant &value, RX_RATECOLOR &entry)
{
    return FieldReader(value).field("rate", entry.rate).field("color", entry.color).finish();
}

QString read(const QVariant &value, SPN_OperationalSetStruct &settings)
{
    bool isRatioRate = false;
    const QString error = FieldReader(value).field("isRatioRate", isRatioRate).finish();
    settings = SPN_OperationalSetStruct(isRatioRate);
    return error;
}

QString read(const QVariant &value, SPN_SwitchByteCalSettingsStruct &settings)
{
    bool isInjection = false;
    const QString error = FieldReader(value).field("isInjection", isInjection).finish();
    settings = SPN_SwitchByteCalSettingsStruct(isInjection);
    return error;
}

QString read(const QVariant &value, RX_SETTINGS &entry)
{
    return FieldReader(value)
        .field("name", entry.name)
        .field("onLookAheadMs", entry.onLookAheadMs)
        .field("zeroRateShutoff", entry.zeroRateShutoff)
        .field("isMaster", entry.isMaster)
        .field("followsMaster", entry.followsMaster)
        .finish();
}

QString read(const QVariant &value, float &number)
{
    // A script has no single-precision numbers: rounding is no loss here, going out of range is.
    double wide = 0.0;
    if (!take(value, wide) || (std::isfinite(wide) && !std::isfinite(float(wide))))
        return QStringLiteral("a number is expected");
    number = float(wide);
    return {};
}

QString read(const QVariant &value, int &number)
{
    return take(value, number) ? QString() : QStringLiteral("a whole number is expected");
}

QString read(const QVariant &value, RX_DBFCOLUMN_TO_RATECAL_MAPPING &entry);

template <typename T> QString read(const QVariant &value, QList<T> &list)
{
    if (value.userType() != QMetaType::QVariantList)
        return QStringLiteral("a list is expected");
    const QVariantList entries = value.toList();
    for (const QVariant &entry : entries) {
        T element{};
        const QString error = read(entry, element);
        if (!error.isEmpty())
            return error;
        list.append(element);
    }
    return {};
}

QString read(const QVariant &value, RX_DBFCOLUMN_TO_RATECAL_MAPPING &entry)
{
    QVariantMap fields = value.toMap();
    const QVariant indices = fields.take(QStringLiteral("auxIndices"));
    if (indices.isValid()) {
        const QString error = read(indices, entry.auxIndices);
        if (!error.isEmpty())
            return error;
    }
    return FieldReader(value.userType() == QMetaType::QVariantMap ? QVariant(fields) : value)
        .field("auxFlag", entry.auxFlag)
        .field("rateCalName", entry.rateCalName)
        .field("dbfColumnName", entry.dbfColumnName)
        .field("auxNumber", entry.auxNumber)
        .field("auxValue1", entry.auxValue1)
        .field("auxValue2", entry.auxValue2)
        .field("auxValue3", entry.auxValue3)
        .field("defaultRate", entry.defaultRate)
        .field("auxNumber2", entry.auxNumber2)
        .finish();
}

struct RecordType {
    std::function<QVariant(const QVariant &)> fromBroker;
    std::function<Result<QVariant>(const QVariant &)> toBroker;
};

template <typename T> void add(QHash<int, RecordType> &types)
{
    types.insert(qMetaTypeId<T>(),
                 {[](const QVariant &value) { return plain(value.value<T>()); },
                  [](const QVariant &value) {
                      T record{};
                      const QString error = read(value, record);
                      return error.isEmpty() ? Result<QVariant>{QVariant::fromValue(record), {}}
                                             : Result<QVariant>::failure(error);
                  }});
}

/// Every record and list of records that a group of the terminal publishes.
const QHash<int, RecordType> &recordTypes()
{
    static const QHash<int, RecordType> types = [] {
        QHash<int, RecordType> result;
        add<XYZ>(result);
        add<SPN_OperationalSetStruct>(result);
        add<SPN_SwitchByteCalSettingsStruct>(result);
        add<QList<float>>(result);
        add<QList<RX_SETTINGS>>(result);
        add<QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>>(result);
        add<QList<QList<RX_RATECOLOR>>>(result);
        return result;
    }();
    return types;
}

} // namespace

QVariant ScriptValue::fromBroker(const QVariant &value)
{
    const auto record = recordTypes().constFind(value.userType());
    if (record != recordTypes().constEnd())
        return record->fromBroker(value);
    if (value.userType() == QMetaType::VoidStar)
        return QStringLiteral("0x%1").arg(quintptr(value.value<void *>()), 0, 16);
    return value;
}

Result<QVariant> ScriptValue::toBroker(const QVariant &plain, int type)
{
    const auto record = recordTypes().constFind(type);
    if (record != recordTypes().constEnd())
        return record->toBroker(plain);
    if (type == QMetaType::VoidStar)
        return Result<QVariant>::failure(QStringLiteral("an address cannot be set from a script"));
    return {plain, {}};
}
