#include "textrate.h"

#include <QRegularExpression>

#include <limits>

namespace {

/// Sign, digits, exponent and what follows. A lone point or comma sets off decimals; if there are more, the last kind
/// sets off decimals and the other thousands. So do apostrophes and blanks that do not break a line.
const char pattern[] = R"(^([+-]?)((?:\d++(?:[.,]\d*+)?|[.,]\d++)"
                       R"(|\d{1,3}(?:,\d{3})+\.\d+|\d{1,3}(?:\.\d{3})+,\d+)"
                       R"(|\d{1,3}(?:,\d{3}){2,}|\d{1,3}(?:\.\d{3}){2,})"
                       R"(|\d{1,3}(?:['\x{a0}\x{2009}\x{2019}\x{202f}]\d{3})+(?:[.,]\d+)?))"
                       R"((?:[eE][+-]?\d+)?)[\s\h]*((?:\p{L}|1000).*|)$)";

QString withDecimalPoint(QString digits)
{
    const int points = digits.count(QLatin1Char('.'));
    const int commas = digits.count(QLatin1Char(','));
    const bool isCommaLast = digits.lastIndexOf(QLatin1Char(',')) > digits.lastIndexOf(QLatin1Char('.'));
    if (points > 1 || (points == 1 && isCommaLast))
        digits.remove(QLatin1Char('.'));
    if (commas > 1 || (commas == 1 && !isCommaLast))
        digits.remove(QLatin1Char(','));
    static const QRegularExpression separators(QStringLiteral("[^0-9.,eE+-]"));
    digits.remove(separators);
    return digits.replace(QLatin1Char(','), QLatin1Char('.'));
}

} // namespace

TextRate TextRate::parse(const QString &text)
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    static const QRegularExpression number(QString::fromLatin1(pattern));
    static const QRegularExpression threeDigits(QStringLiteral(R"(^[1-9]\d{0,2},\d{3}$)"));
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {none, {}, true, false};
    const QRegularExpressionMatch match = number.match(trimmed);
    bool isNumber = false;
    const double value = (match.captured(1) + withDecimalPoint(match.captured(2))).toDouble(&isNumber);
    if (!match.hasMatch() || !isNumber)
        return {none, {}, false, false};
    return {value, match.captured(3), true, threeDigits.match(match.captured(2)).hasMatch()};
}
