#include "scriptdriving.h"

#include "fielddrive.h"
#include "machine.h"
#include "recorder.h"
#include "scriptmachine.h"
#include "simulation.h"
#include "swathplan.h"
#include "vehicle.h"

#include <QJSEngine>
#include <QJSValueIterator>

#include <algorithm>
#include <cmath>

namespace {

/// The number that an option gives; `usual` where it gives none.
Result<double> numberIn(const QJSValue &options, const QString &name, double usual)
{
    const QJSValue value = options.property(name);
    if (value.isUndefined())
        return {usual, {}};
    return value.isNumber() ? Result<double>{value.toNumber(), {}}
                            : Result<double>::failure(QStringLiteral("\"%1\" is no number").arg(name));
}

/// The options of follow(); what they leave open is taken from `usual`.
Result<SwathOptions> swathsIn(const QJSValue &options, const SwathOptions &usual)
{
    SwathOptions swaths = usual;
    const auto angle = numberIn(options, QStringLiteral("angle"), 0.0);
    const auto width = numberIn(options, QStringLiteral("width"), usual.width);
    const auto headlands = numberIn(options, QStringLiteral("headlands"), 0.0);
    for (const Result<double> &number : {angle, width, headlands}) {
        if (!number.isOk())
            return Result<SwathOptions>::failure(number.error);
    }
    if (headlands.value != std::floor(headlands.value) || std::fabs(headlands.value) > 1000.0)
        return Result<SwathOptions>::failure(QStringLiteral("\"headlands\" is no whole number"));
    if (!options.property(QStringLiteral("angle")).isUndefined())
        swaths.angle = angle.value;
    swaths.width = width.value;
    swaths.headlands = int(headlands.value);
    return {swaths, {}};
}

QString unknownOption(const QJSValue &options, const QStringList &known)
{
    QJSValueIterator option(options);
    while (option.next()) {
        if (!known.contains(option.name()))
            return QStringLiteral("\"%1\" is no option of follow(); it knows %2")
                .arg(option.name(), known.join(QStringLiteral(", ")));
    }
    return {};
}

} // namespace

ScriptDriving::ScriptDriving(Terminal *givenTerminal, const std::atomic<bool> *givenIsInterrupted, QObject *parent)
    : QObject(parent)
    , terminal(givenTerminal)
    , isInterrupted(givenIsInterrupted)
{
}

void ScriptDriving::fail(const QString &reason) const
{
    qjsEngine(this)->throwError(reason);
}

QJSValue ScriptDriving::machine()
{
    return qjsEngine(this)->newQObject(new ScriptMachine(terminal));
}

void ScriptDriving::drive(double metresPerSecond)
{
    if (!onGui([&] { return terminal->vehicle()->drive(metresPerSecond); }))
        fail(QStringLiteral("a speed of %1 m/s is out of range").arg(metresPerSecond));
}

void ScriptDriving::stop()
{
    drive(0.0);
}

double ScriptDriving::follow(const QJSValue &options)
{
    const QString kind = options.property(QStringLiteral("kind")).toString();
    QString error = unknownOption(
        options,
        {QStringLiteral("kind"), QStringLiteral("angle"), QStringLiteral("width"), QStringLiteral("headlands")});
    if (error.isEmpty() && kind != QLatin1String("swaths") && kind != QLatin1String("hand"))
        error = QStringLiteral("\"kind\" is \"swaths\" or \"hand\"");
    if (!error.isEmpty()) {
        fail(error);
        return 0.0;
    }
    if (kind == QLatin1String("hand")) {
        steer(0.0);
        return 0.0;
    }
    const SwathOptions usual = onGui([this] { return FieldDrive::usualOptions(*terminal->simulation()); });
    const Result<SwathOptions> swaths = swathsIn(options, usual);
    const auto path = !swaths.isOk() ? Result<DrivePath>::failure(swaths.error) : onGui([&] {
        const Result<DrivePath> planned = FieldDrive::plan(*terminal->simulation(), swaths.value);
        if (planned.isOk()) {
            MachineSize size = terminal->vehicle()->size();
            size.width = swaths.value.width;
            terminal->vehicle()->setSize(size);
            terminal->vehicle()->follow(planned.value);
        }
        return planned;
    });
    if (!path.isOk())
        fail(path.error);
    return path.value.length();
}

void ScriptDriving::steer(double curvature)
{
    if (!onGui([&] { return terminal->vehicle()->steer(curvature); }))
        fail(QStringLiteral("a curvature of %1 per metre is tighter than the machine can turn").arg(curvature));
}

QJSValue ScriptDriving::replay(const QString &path)
{
    if (path.isEmpty()) {
        fail(QStringLiteral("replay() needs the name of a file"));
        return {};
    }
    const auto summary = onGui([&] { return terminal->simulation()->replay(path); });
    if (!summary.isOk()) {
        fail(summary.error);
        return {};
    }
    return qjsEngine(this)->toScriptValue(QVariantMap{{QStringLiteral("points"), summary.value.points},
                                                      {QStringLiteral("seconds"), summary.value.seconds},
                                                      {QStringLiteral("badLines"), summary.value.badLines},
                                                      {QStringLiteral("firstBad"), summary.value.firstBad}});
}

void ScriptDriving::signal(bool isThere)
{
    onGui([&] { terminal->vehicle()->setSignal(isThere); });
}

QJSValue ScriptDriving::rates(const QJSValue &product)
{
    const int number = product.toInt();
    const bool isWhole = product.isNumber() && product.toNumber() == double(number);
    Simulation::Rates now;
    QString unit;
    const bool isThere = onGui([&] {
        const Products &products = terminal->machine()->products();
        if (!isWhole || number < 1 || number > products.size())
            return false;
        now = terminal->simulation()->rates(number);
        unit = rateUnit(products.at(number - 1).rateKind(), UnitSystem::Metric);
        return true;
    });
    if (!isThere) {
        fail(QStringLiteral("no product %1").arg(product.toString()));
        return {};
    }
    QJSValue rates = qjsEngine(this)->newObject();
    const double prescribed = now.command.prescribed;
    rates.setProperty(QStringLiteral("prescribed"),
                      std::isnan(prescribed) ? QJSValue(QJSValue::NullValue) : QJSValue(prescribed));
    rates.setProperty(QStringLiteral("commanded"), now.command.commanded);
    rates.setProperty(QStringLiteral("applied"), now.applied);
    rates.setProperty(QStringLiteral("source"), QLatin1String(sourceName(now.command.source)));
    rates.setProperty(QStringLiteral("unit"), unit);
    return rates;
}

void ScriptDriving::record(const QString &path)
{
    const QString error = onGui([&] {
        Recorder *recorder = terminal->recorder();
        return path.isEmpty() ? recorder->stop() : recorder->start(path);
    });
    if (!error.isEmpty())
        fail(error);
}

void ScriptDriving::run(double seconds)
{
    constexpr double most = 1e7;
    if (!(seconds >= 0.0) || seconds > most) {
        fail(QStringLiteral("cannot run %1 s").arg(seconds));
        return;
    }
    // In pieces, so that the display stays alive and an interrupt ends it.
    constexpr double piece = 10.0;
    for (double left = seconds; left > 0.0 && !isInterrupted->load(); left -= piece) {
        onGui([&] { terminal->simulation()->run(std::min(left, piece)); });
    }
}
