#include "findingunits.h"

#include "Backend/mapfinding.h"
#include "showndistance.h"
#include "shownnumber.h"

#include <QRegularExpression>

namespace {

constexpr double hectare = 10000.0; // Square metres.
constexpr double acre = 4046.8564224;
constexpr double foot = 0.3048; // Metres.

/// The number with a point before its decimals.
QString plain(QString number)
{
    return number.replace(QLatin1Char(','), QLatin1Char('.'));
}

} // namespace

FindingUnits::FindingUnits(UnitSystem givenSystem)
    : system(givenSystem)
    , isMetric(givenSystem == UnitSystem::Metric)
{
}

QString FindingUnits::textOf(const MapFinding &finding) const
{
    // A figure in the back-end's language, with a comma or a point: a size, or a number that is long enough for groups
    // of digits. Names in quotation marks are passed over, since they may look like a figure. Letters are those of any
    // language, so that "24 más" is not a figure.
    static const QRegularExpression figure(QStringLiteral("\"[^\"]*\"|„[^“]*“|“[^”]*”|«[^»]*»"
                                                          "|\\b([0-9]+(?:[.,][0-9]+)?) m(2?)\\b"
                                                          "|(?<![\\w/:.,#])([0-9]{4,}(?:[.,][0-9]+)?)(?!\\w)"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    QString text;
    int end = 0;
    QRegularExpressionMatchIterator matches = figure.globalMatch(finding.text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString shown =
            match.captured(3).isEmpty() ? sizeText(match, finding) : grouped(match.captured(3), finding);
        text += finding.text.mid(end, match.capturedStart() - end) + shown;
        end = match.capturedEnd();
    }
    return text + finding.text.mid(end);
}

QString FindingUnits::sizeText(const QRegularExpressionMatch &match, const MapFinding &finding) const
{
    // Other findings have no sizes.
    if (match.captured(1).isEmpty() || !finding.area)
        return match.captured();
    const double value = plain(match.captured(1)).toDouble();
    return match.captured(2).isEmpty() ? ShownDistance::width(value, system) : area(value);
}

QString FindingUnits::grouped(const QString &number, const MapFinding &finding)
{
    // A record's number is its name, and products may be named by numbers without quotation marks.
    const bool isName = finding.kind == MapFinding::Kind::UnitMismatch || finding.records.contains(number.toInt());
    return isName ? number : ShownNumber::inLanguage(plain(number));
}

QString FindingUnits::area(double squareMetres) const
{
    if (squareMetres >= 0.1 * hectare)
        return ShownNumber::text(squareMetres / (isMetric ? hectare : acre), 2)
            + (isMetric ? QStringLiteral(" ha") : QStringLiteral(" ac"));
    const double shown = isMetric ? squareMetres : squareMetres / (foot * foot);
    return (isMetric ? tr("%1 m\u00b2") : tr("%1 ft\u00b2")).arg(ShownNumber::text(shown, shown < 10.0 ? 2 : 1));
}
