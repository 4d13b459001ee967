#include "scriptterminal.h"

#include "activemap.h"
#include "fieldview.h"
#include "machine.h"
#include "openoptions.h"
#include "scriptcontrol.h"
#include "scriptvalue.h"
#include "terminal.h"
#include "terminalwindow.h"
#include "uidriver.h"

#include "Framework/databrokergroup.h"

#include <QElapsedTimer>
#include <QJSEngine>
#include <QMetaProperty>
#include <QThread>

#include <algorithm>
#include <cmath>

namespace {

constexpr double waitSlice = 20.0; // Milliseconds.

QString reasonOf(int code, const QString &group, const QString &property)
{
    switch (code) {
    case DataBrokerGroup::ErrUnknownGroup:
        return QStringLiteral("no group \"%1\"").arg(group);
    case DataBrokerGroup::ErrUnknownProperty:
        return QStringLiteral("group \"%1\" has no property \"%2\"").arg(group, property);
    case DataBrokerGroup::ErrWrongType:
        return QStringLiteral("the value is of the wrong type for \"%2\" of group \"%1\"").arg(group, property);
    case DataBrokerGroup::ErrInvalidToken:
        return QStringLiteral("\"%2\" of group \"%1\" is write-protected").arg(group, property);
    case DataBrokerGroup::ErrGroupRemoved:
        return QStringLiteral("group \"%1\" has been removed").arg(group);
    default:
        return QStringLiteral("\"%2\" of group \"%1\" refused the value with code %3")
            .arg(group, property, QString::number(code));
    }
}

/// The classes that are drawn (they come first in a legend), each with its area.
QVariantList plainLegend(const QList<OrvikTypes::RX_RATECOLOR> &legend, const QList<double> &areas)
{
    QVariantList classes =
        ScriptValue::fromBroker(
            QVariant::fromValue(QList<QList<OrvikTypes::RX_RATECOLOR>>{ActiveMap::drawnClasses(legend)}))
            .toList()
            .value(0)
            .toList();
    for (int i = 0; i < classes.size(); ++i) {
        QVariantMap entry = classes.at(i).toMap();
        entry.insert(QStringLiteral("area"), areas.value(i));
        classes[i] = entry;
    }
    return classes;
}

QString unitFromText(RateSource::UnitFrom from)
{
    switch (from) {
    case RateSource::UnitFrom::Operator:
        return QStringLiteral("operator");
    case RateSource::UnitFrom::Format:
        return QStringLiteral("format");
    case RateSource::UnitFrom::Column:
        return QStringLiteral("column");
    case RateSource::UnitFrom::Text:
        return QStringLiteral("text");
    case RateSource::UnitFrom::Name:
        return QStringLiteral("name");
    case RateSource::UnitFrom::Assumed:
        break;
    }
    return QStringLiteral("assumed");
}

/// Files write at most ten digits; those behind the twelfth come from the arithmetic.
double withFilesDigits(double rate)
{
    return QString::number(rate, 'g', 12).toDouble();
}

QVariantMap describe(const RateSource &source)
{
    QVariantMap described{{QStringLiteral("column"), source.column},
                          {QStringLiteral("unit"), source.unit},
                          {QStringLiteral("unitFrom"), unitFromText(source.unitFrom)},
                          {QStringLiteral("product"), source.product},
                          {QStringLiteral("sure"), source.isSure}};
    const PlaceRates &rates = source.placeRates;
    for (const auto &[name, rate] : {std::pair("outOfField", rates.outOfField), std::pair("elsewhere", rates.elsewhere),
                                     std::pair("positionLost", rates.positionLost)}) {
        if (!std::isnan(rate))
            described.insert(QLatin1String(name), withFilesDigits(rate));
    }
    return described;
}

QVariantMap lonLat(const QPointF &degrees)
{
    return {{QStringLiteral("lon"), degrees.x()}, {QStringLiteral("lat"), degrees.y()}};
}

/// Describes a load; `legend` is that of the active product's column, else that of the first column.
QVariantMap describe(const LoadReport &report, const QString &activeColumn)
{
    QVariantList legends;
    for (int i = 0; i < report.legends.size(); ++i)
        legends.append(QVariant(plainLegend(report.legends.at(i), report.areas.value(i))));
    QVariantList sources;
    for (const RateSource &source : report.sources)
        sources.append(describe(source));
    return {{QStringLiteral("group"), report.group},
            {QStringLiteral("polygons"), report.polygons},
            {QStringLiteral("outers"), report.outers},
            {QStringLiteral("holes"), report.holes},
            {QStringLiteral("columns"), report.columns},
            {QStringLiteral("sources"), sources},
            {QStringLiteral("legend"), legends.value(std::max(0, report.columns.indexOf(activeColumn)))},
            {QStringLiteral("legends"), legends},
            {QStringLiteral("origin"), lonLat(report.origin)},
            {QStringLiteral("repaired"), report.repaired},
            {QStringLiteral("skipped"), report.skipped},
            {QStringLiteral("warnings"), report.warnings}};
}

} // namespace

ScriptTerminal::ScriptTerminal(Terminal *givenTerminal, const std::atomic<bool> *givenIsInterrupted, QObject *parent)
    : ScriptDriving(givenTerminal, givenIsInterrupted, parent)
{
}

QJSValue ScriptTerminal::activeProduct() const
{
    return onGui([this] { return terminal->machine()->activeProduct(); });
}

void ScriptTerminal::setActiveProduct(const QJSValue &number)
{
    // A number that is not whole would be rounded or wrapped to a product that nobody asked for.
    const bool isWhole = number.isNumber() && number.toNumber() == double(number.toInt());
    if (!isWhole || !onGui([&] { return terminal->machine()->setActiveProduct(number.toInt()); }))
        fail(QStringLiteral("no product %1").arg(number.toString()));
}

QJSValue ScriptTerminal::open(const QString &path, const QJSValue &options)
{
    const Result<OpenRequest> read = OpenOptions::read(path, options);
    if (!read.isOk()) {
        fail(read.error);
        return {};
    }
    QVariantMap description;
    const QString error = onGui([&] {
        const LoadReport report = terminal->open(read.value).first();
        if (report.isOk())
            description = describe(report, terminal->activeColumn());
        return report.error;
    });
    if (!error.isEmpty()) {
        fail(error);
        return {};
    }
    return qjsEngine(this)->toScriptValue(description);
}

void ScriptTerminal::close(const QString &group)
{
    if (!onGui([&] { return terminal->close(group); }))
        fail(QStringLiteral("no map \"%1\" is loaded").arg(group));
}

bool ScriptTerminal::isFieldPoint(double x, double y) const
{
    const bool isFinite = std::isfinite(x) && std::isfinite(y);
    if (!isFinite)
        fail(QStringLiteral("(%1, %2) is no field point").arg(x).arg(y));
    return isFinite;
}

QString ScriptTerminal::touchMap(double x, double y)
{
    if (!isFieldPoint(x, y))
        return {};
    return onGui([&] { return terminal->touch(QPointF(x, y)); });
}

QJSValue ScriptTerminal::bounds()
{
    const std::optional<QRectF> all = onGui([this] { return terminal->bounds(); });
    if (!all)
        return QJSValue(QJSValue::NullValue);
    return qjsEngine(this)->toScriptValue(QVariantMap{{QStringLiteral("minX"), all->left()},
                                                      {QStringLiteral("minY"), all->top()},
                                                      {QStringLiteral("maxX"), all->right()},
                                                      {QStringLiteral("maxY"), all->bottom()}});
}

bool ScriptTerminal::isConverted(const Result<QPointF> &converted, double first, double second) const
{
    if (!converted.isOk())
        fail(QStringLiteral("(%1, %2): %3")
                 .arg(QString::number(first, 'g', 12), QString::number(second, 'g', 12), converted.error));
    return converted.isOk();
}

QJSValue ScriptTerminal::toField(double lon, double lat)
{
    if (!std::isfinite(lon) || !std::isfinite(lat)) {
        fail(QStringLiteral("(%1, %2) is no longitude and latitude").arg(lon).arg(lat));
        return {};
    }
    const Result<QPointF> field = onGui([&] { return terminal->toField(QPointF(lon, lat)); });
    if (!isConverted(field, lon, lat))
        return {};
    return qjsEngine(this)->toScriptValue(
        QVariantMap{{QStringLiteral("x"), field.value.x()}, {QStringLiteral("y"), field.value.y()}});
}

QJSValue ScriptTerminal::toEarth(double x, double y)
{
    if (!isFieldPoint(x, y))
        return {};
    const Result<QPointF> degrees = onGui([&] { return terminal->toEarth(QPointF(x, y)); });
    return isConverted(degrees, x, y) ? qjsEngine(this)->toScriptValue(lonLat(degrees.value)) : QJSValue();
}

QJSValue ScriptTerminal::mapColor(double x, double y)
{
    if (!isFieldPoint(x, y))
        return {};
    const QColor color = onGui([&] { return terminal->mapColor(QPointF(x, y)); });
    return qjsEngine(this)->toScriptValue(QVariantList{color.red(), color.green(), color.blue()});
}

QJSValue ScriptTerminal::find(const QString &name)
{
    // Most widgets have no name.
    if (name.isEmpty() || !onGui([&] { return UiDriver::find(name) != nullptr; }))
        return QJSValue(QJSValue::NullValue);
    auto *control = new ScriptControl(name, terminal);
    Terminal *shown = terminal;
    connect(control, &ScriptControl::acted, shown, &Terminal::refresh);
    return qjsEngine(this)->newQObject(control);
}

QJSValue ScriptTerminal::get(const QString &group, const QString &property)
{
    QVariant value;
    const int code = onGui([&] {
        return terminal->broker()->getProperty(group.toLatin1().constData(), property.toLatin1().constData(), value);
    });
    if (code != DataBrokerGroup::Success) {
        fail(reasonOf(code, group, property));
        return {};
    }
    return qjsEngine(this)->toScriptValue(ScriptValue::fromBroker(value));
}

void ScriptTerminal::set(const QString &group, const QString &property, const QJSValue &value)
{
    const QVariant plain = value.toVariant();
    const QString error = onGui([&] {
        const DataBrokerGroup *target = terminal->broker()->getGroup(group, false);
        const int index =
            target != nullptr ? target->metaObject()->indexOfProperty(property.toLatin1().constData()) : -1;
        const int type = index >= 0 ? target->metaObject()->property(index).userType() : int(QMetaType::UnknownType);
        const Result<QVariant> converted = ScriptValue::toBroker(plain, type);
        if (!converted.isOk())
            return QStringLiteral("\"%2\" of group \"%1\": %3").arg(group, property, converted.error);
        const int code = terminal->broker()->setProperty(group.toLatin1().constData(), property.toLatin1().constData(),
                                                         converted.value);
        terminal->refresh();
        return code == DataBrokerGroup::Success ? QString() : reasonOf(code, group, property);
    });
    if (!error.isEmpty())
        fail(error);
}

QStringList ScriptTerminal::groups(const QString &pattern)
{
    return onGui([&] { return terminal->broker()->findGroup(pattern, true, false); });
}

void ScriptTerminal::wait(double milliseconds)
{
    if (!(milliseconds >= 0.0)) {
        fail(QStringLiteral("cannot wait %1 ms").arg(milliseconds));
        return;
    }
    QElapsedTimer passed;
    passed.start();
    for (double left = milliseconds; left > 0.0 && !isInterrupted->load();
         left = milliseconds - double(passed.elapsed()))
        QThread::msleep(static_cast<unsigned long>(std::ceil(std::min(left, waitSlice))));
    onGui([this] {
        terminal->refresh();
        return true;
    });
}

void ScriptTerminal::screenshot(const QString &path)
{
    const QString error = path.isEmpty() ? QStringLiteral("a picture needs a file name")
                                         : onGui([&] { return terminal->saveScreenshot(path); });
    if (!error.isEmpty())
        fail(error);
}
