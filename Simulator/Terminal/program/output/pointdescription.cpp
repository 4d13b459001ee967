#include "pointdescription.h"

#include "fieldplane.h"
#include "machine.h"
#include "ratesourcetext.h"
#include "terminal.h"
#include "unitsystem.h"

#include <algorithm>
#include <optional>

namespace {

/// What feeds a product, and the plane of its map.
struct Feed {
    RateSource source;
    QPointF origin;
};

std::optional<Feed> feedOf(const Terminal &terminal, int number)
{
    const QList<LoadReport> maps = terminal.backend()->maps();
    for (const LoadReport &map : maps) {
        if (!terminal.columnsOf(map.group).contains(number))
            continue;
        const auto source = std::find_if(map.sources.begin(), map.sources.end(),
                                         [number](const RateSource &any) { return any.product == number; });
        if (source != map.sources.end())
            return Feed{*source, map.origin};
    }
    return {};
}

/// The point on another plane that shows the same place; nothing where that plane does not reach it.
std::optional<QPointF> onPlane(const QPointF &field, const QPointF &shown, const QPointF &other)
{
    if (shown == other)
        return field;
    const std::optional<QPointF> degrees = FieldPlane(shown).toEarth(field);
    return degrees ? FieldPlane(other).toField(*degrees) : std::nullopt;
}

/// Column and unit of the file, and the unit in which the rate is shown if that is another one.
QString sourceText(const RateSource &source, const QString &shownUnit)
{
    const QString fileUnit = fileUnitText(source);
    const QString text = QStringLiteral(" (%1, %2)").arg(source.column, fileUnit);
    return shownUnit.isEmpty() || shownUnit == fileUnit ? text : text + QStringLiteral(", shown in ") + shownUnit;
}

} // namespace

QStringList describePoint(Terminal &terminal, const QPointF &field, const QString &name)
{
    Machine *machine = terminal.machine();
    const int active = machine->activeProduct();
    const std::optional<QPointF> shown = terminal.machine()->planeOrigin();
    QStringList lines;
    for (int number = 1; number <= machine->products().size(); ++number) {
        // A plug-in answers for the active product.
        machine->setActiveProduct(number);
        const std::optional<Feed> feed = feedOf(terminal, number);
        const std::optional<QPointF> point = feed ? onPlane(field, *shown, feed->origin) : field;
        QString text =
            point ? terminal.answerAt(*point).text.replace(QLatin1Char('\n'), QLatin1String("; ")) : QString();
        if (text.isEmpty())
            text = QStringLiteral("No rate is prescribed at ") + name;
        else if (feed)
            text += sourceText(feed->source,
                               rateUnit(machine->products().at(number - 1).rateKind(), machine->unitSystem()));
        lines.append(QStringLiteral("product %1 (%2): %3")
                         .arg(QString::number(number), machine->products().at(number - 1).name, text));
    }
    machine->setActiveProduct(active);
    terminal.touch(field);
    return lines;
}
