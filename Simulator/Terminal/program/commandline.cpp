#include "commandline.h"

#include "commandoptions.h"
#include "fieldplane.h"
#include "regularfile.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <cmath>
#include <utility>

namespace {

QString readUnits(const QString &text, CommandLine &line)
{
    if (text == QLatin1String("us"))
        line.units = UnitSystem::Us;
    else if (text == QLatin1String("metric"))
        line.units = UnitSystem::Metric;
    else if (text == QLatin1String("turf"))
        line.units = UnitSystem::Turf;
    else
        return QStringLiteral("--units %1: no such unit system (us, metric, turf)").arg(text);
    return {};
}

/// Two numbers, separated by a comma.
std::optional<QPointF> readPair(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    bool xOk = false;
    bool yOk = false;
    const double x = parts.value(0).toDouble(&xOk);
    const double y = parts.value(1).toDouble(&yOk);
    const bool isPair = parts.size() == 2 && xOk && yOk && std::isfinite(x) && std::isfinite(y);
    return isPair ? std::optional<QPointF>({x, y}) : std::nullopt;
}

QString readDescribe(const QString &text, CommandLine &line)
{
    line.describe = readPair(text);
    return line.describe ? QString() : QStringLiteral("--describe %1: not two numbers X,Y").arg(text);
}

QString readAt(const QString &text, CommandLine &line)
{
    line.at = readPair(text);
    if (!line.at)
        return QStringLiteral("--at %1: not two numbers LON,LAT").arg(text);
    return FieldPlane::areDegrees(*line.at)
        ? QString()
        : QStringLiteral("--at %1: no longitude from -180 to 180 and latitude from -90 to 90").arg(text);
}

/// The entries of a list, quoted as in CSV (RFC 4180): an entry in quotes may hold commas, and quotes that are doubled.
/// Nothing where a quote is left open.
std::optional<QStringList> entriesOf(const QString &text)
{
    const QChar quote = QLatin1Char('"');
    QStringList entries{QString()};
    bool isQuoted = false;
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i);
        const bool isDoubled = isQuoted && letter == quote && i + 1 < text.size() && text.at(i + 1) == quote;
        if (letter == QLatin1Char(',') && !isQuoted) {
            entries.append(QString());
            continue;
        }
        if (letter == quote && !isDoubled)
            isQuoted = !isQuoted;
        else
            entries.last().append(letter);
        i += isDoubled ? 1 : 0;
    }
    for (QString &entry : entries)
        entry = entry.trimmed();
    return isQuoted ? std::nullopt : std::optional(entries);
}

QString readColumns(const QString &text, CommandLine &line)
{
    const std::optional<QStringList> entries = entriesOf(text);
    if (!entries)
        return QStringLiteral("--columns %1: a quote is left open").arg(text);
    line.columns = *entries;
    if (line.columns.join(QString()).isEmpty())
        return QStringLiteral("--columns %1: names no column").arg(text);
    return {};
}

QString readSourceUnits(const QString &text, CommandLine &line)
{
    const QStringList units = text.split(QLatin1Char(','));
    for (const QString &unit : units)
        line.sourceUnits.append(unit.trimmed());
    if (line.sourceUnits.join(QString()).isEmpty())
        return QStringLiteral("--source-units %1: names no unit").arg(text);
    return {};
}

QString requireFile(const QString &option, const QString &path)
{
    const QString problem = regularFileProblem(path);
    return problem.isEmpty() ? QString() : QStringLiteral("--%1 %2: %3").arg(option, path, problem);
}

QString requireFolder(const QString &option, const QString &path)
{
    return QFileInfo(path).isDir() ? QString() : QStringLiteral("--%1 %2: no such folder").arg(option, path);
}

/// An option that is given more than once, or without a value, is a mistake that must not pass silently.
QString checkValues(const QCommandLineParser &parser)
{
    for (const QString &option : {columnsOption, sourceUnitsOption, layerOption, taskOption, productsOption,
                                  unitsOption, languageOption, themeOption, pluginDirOption, describeOption, atOption,
                                  screenshotOption, scriptOption, driveOption, recordOption}) {
        if (!parser.isSet(option))
            continue;
        if (parser.values(option).size() > 1)
            return QStringLiteral("--%1 is given more than once").arg(option);
        if (parser.value(option).isEmpty())
            return QStringLiteral("--%1 has an empty value").arg(option);
    }
    return {};
}

QString checkDrive(const QCommandLineParser &parser)
{
    if (!parser.isSet(driveOption)) {
        for (const QString &option : {recordOption, tuneOption}) {
            if (parser.isSet(option))
                return QStringLiteral("--%1 needs --drive").arg(option);
        }
        return {};
    }
    for (const QString &option : {describeOption, atOption, screenshotOption, scriptOption, openOption}) {
        if (parser.isSet(option))
            return QStringLiteral("--drive does not go with --%1").arg(option);
    }
    const QString report = parser.value(driveOption);
    if (!report.endsWith(QLatin1String(".json"), Qt::CaseInsensitive)
        && !report.endsWith(QLatin1String(".html"), Qt::CaseInsensitive))
        return QStringLiteral("--drive %1: a report is a .json or .html file").arg(report);
    return parser.positionalArguments().isEmpty() ? QStringLiteral("--drive needs a prescription to drive") : QString();
}

/// What --open lets the operator choose must not be given as an option, too.
QString checkOpen(const QCommandLineParser &parser)
{
    for (const QString &option : {columnsOption, sourceUnitsOption, layerOption, taskOption}) {
        if (parser.isSet(openOption) && parser.isSet(option))
            return QStringLiteral("--%1 does not go with --open, where it is chosen in the window").arg(option);
    }
    return {};
}

QString checkCheck(const QCommandLineParser &parser)
{
    if (!parser.isSet(checkOption))
        return parser.isSet(jsonOption) ? QStringLiteral("--json needs --check") : QString();
    for (const QString &option : {describeOption, atOption, screenshotOption, scriptOption, driveOption, openOption}) {
        if (parser.isSet(option))
            return QStringLiteral("--check does not go with --%1").arg(option);
    }
    return parser.positionalArguments().isEmpty() ? QStringLiteral("--check needs a prescription to check") : QString();
}

/// Options on how prescriptions are read need a prescription.
QString checkPrescription(const QCommandLineParser &parser)
{
    if (parser.positionalArguments().contains(QString()))
        return QStringLiteral("the name of a prescription is missing");
    if (!parser.positionalArguments().isEmpty())
        return {};
    if (parser.isSet(columnsOption))
        return QStringLiteral("--columns needs a prescription to take them from");
    if (parser.isSet(sourceUnitsOption))
        return QStringLiteral("--source-units needs a prescription to read in them");
    for (const QString &option : {layerOption, taskOption}) {
        if (parser.isSet(option))
            return QStringLiteral("--%1 needs a prescription to take it from").arg(option);
    }
    return {};
}

QString readTheme(const QString &text, CommandLine &line)
{
    if (text != QLatin1String("day") && text != QLatin1String("night"))
        return QStringLiteral("--theme %1: no such theme (day, night)").arg(text);
    line.theme = text == QLatin1String("day") ? Theme::Kind::Day : Theme::Kind::Night;
    return {};
}

QString readOptions(const QCommandLineParser &parser, CommandLine &line)
{
    const std::pair<QString, QString (*)(const QString &, CommandLine &)> readers[] = {
        {unitsOption, readUnits},       {themeOption, readTheme}, {columnsOption, readColumns},
        {describeOption, readDescribe}, {atOption, readAt},       {sourceUnitsOption, readSourceUnits}};
    QString error = checkValues(parser);
    for (const auto &[option, read] : readers) {
        if (error.isEmpty() && parser.isSet(option))
            error = read(parser.value(option), line);
    }
    for (const QString &option : {productsOption, scriptOption}) {
        if (error.isEmpty() && parser.isSet(option))
            error = requireFile(option, parser.value(option));
    }
    if (error.isEmpty() && parser.isSet(pluginDirOption))
        error = requireFolder(pluginDirOption, parser.value(pluginDirOption));
    for (const auto check : {checkDrive, checkCheck, checkPrescription, checkOpen}) {
        if (error.isEmpty())
            error = check(parser);
    }
    return error;
}

} // namespace

Result<CommandLine> CommandLine::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    declareOptions(parser);
    if (!parser.parse(arguments)) {
        QString reason = parser.errorText().simplified();
        if (reason.endsWith(QLatin1Char('.')))
            reason.chop(1);
        return Result<CommandLine>::failure(reason);
    }
    CommandLine line;
    line.wantsHelp = parser.isSet(helpOption);
    if (line.wantsHelp)
        return {line, {}};
    const QString error = readOptions(parser, line);
    if (!error.isEmpty())
        return Result<CommandLine>::failure(error);
    line.prescriptions = parser.positionalArguments();
    line.layer = parser.value(layerOption);
    line.task = parser.value(taskOption);
    line.open = parser.isSet(openOption);
    line.productFile = parser.value(productsOption);
    line.language = parser.value(languageOption);
    line.pluginDir = parser.value(pluginDirOption);
    line.screenshot = parser.value(screenshotOption);
    line.script = parser.value(scriptOption);
    line.drive = parser.value(driveOption);
    line.record = parser.value(recordOption);
    line.tune = parser.isSet(tuneOption);
    line.check = parser.isSet(checkOption);
    line.json = parser.isSet(jsonOption);
    return {line, {}};
}

bool CommandLine::isInteractive() const
{
    return !describe && !at && script.isEmpty() && screenshot.isEmpty() && drive.isEmpty() && !check;
}

QString CommandLine::helpText()
{
    QCommandLineParser parser;
    declareOptions(parser);
    return parser.helpText();
}

bool CommandLine::printsAnswer() const
{
    return wantsHelp || describe || at || check || !script.isEmpty();
}
