#include "findingunits.h"

#include "Backend/mapfinding.h"
#include "showndistance.h"
#include "shownnumber.h"

#include <QRegularExpression>

namespace {

constexpr double hectare = 10000.0; // Square metres.
constexpr double acre = 4046.8564224;
constexpr double foot = 0.3048; // Metres.

} // namespace

FindingUnits::FindingUnits(UnitSystem givenSystem)
    : system(givenSystem)
    , isMetric(givenSystem == UnitSystem::Metric)
{
}

QString FindingUnits::textOf(const MapFinding &finding) const
{
    // A figure in the back-end's language, with a comma or a point. Names in quotation marks are passed over, since
    // they may look like a figure. Letters are those of any language, so that "24 más" is not a figure.
    static const QRegularExpression figure(QStringLiteral("\"[^\"]*\"|„[^“]*“|“[^”]*”|«[^»]*»"
                                                          "|\\b([0-9]+(?:[.,][0-9]+)?) m(2?)\\b"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    // Other findings have no figures of these kinds.
    if (!finding.area)
        return finding.text;
    QString text;
    int end = 0;
    QRegularExpressionMatchIterator matches = figure.globalMatch(finding.text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (match.captured(1).isEmpty())
            continue;
        const double value = match.captured(1).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
        text += finding.text.mid(end, match.capturedStart() - end);
        text += match.captured(2).isEmpty() ? ShownDistance::width(value, system) : area(value);
        end = match.capturedEnd();
    }
    return text + finding.text.mid(end);
}

QString FindingUnits::area(double squareMetres) const
{
    if (squareMetres >= 0.1 * hectare)
        return ShownNumber::text(squareMetres / (isMetric ? hectare : acre), 2)
            + (isMetric ? QStringLiteral(" ha") : QStringLiteral(" ac"));
    const double shown = isMetric ? squareMetres : squareMetres / (foot * foot);
    return (isMetric ? tr("%1 m\u00b2") : tr("%1 ft\u00b2")).arg(ShownNumber::text(shown, shown < 10.0 ? 2 : 1));
}
