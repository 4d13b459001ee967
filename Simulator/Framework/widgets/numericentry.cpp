#include "numericentry.h"

#include <QRegularExpression>

#include <cmath>

namespace {

/// More digits than a double holds mean nothing, and their powers of ten would overflow.
constexpr unsigned int maxDigits = 15;

/// Rounding of decimal fractions must not refuse a limit itself.
constexpr double relativeTolerance = 1e-12;

} // namespace

void NumericEntry::setSizeLimits(unsigned int integerDigits, unsigned int decimals)
{
    const unsigned int digits = qMin(integerDigits, maxDigits);
    const unsigned int places = qMin(decimals, maxDigits);
    setRange(0.0, std::pow(10.0, int(digits)) - std::pow(10.0, -int(places)), places);
}

void NumericEntry::setRange(double minimum, double maximum, unsigned int decimals)
{
    isLimited = true;
    rangeMinimum = minimum;
    rangeMaximum = maximum;
    decimalLimit = qMin(decimals, maxDigits);
}

QString NumericEntry::limitsText() const
{
    if (!isLimited)
        return QString();
    return QString::number(rangeMinimum, 'g', int(maxDigits)) + QStringLiteral(" \u2013 ")
        + QString::number(rangeMaximum, 'g', int(maxDigits));
}

bool NumericEntry::takesPoint() const
{
    return decimalLimit > 0;
}

bool NumericEntry::takesMinus() const
{
    return rangeMinimum < 0.0;
}

void NumericEntry::setText(const QString &text)
{
    current = text;
    replaces = true;
}

QString NumericEntry::text() const
{
    return current;
}

void NumericEntry::startOver()
{
    replaces = true;
}

bool NumericEntry::startsOver() const
{
    return replaces;
}

bool NumericEntry::type(QChar character)
{
    const QString candidate = withCharacter(character);
    return check(candidate) == Refusal::None && change(candidate);
}

NumericEntry::Refusal NumericEntry::refusalOf(QChar character) const
{
    return check(withCharacter(character));
}

QString NumericEntry::refusalText(Refusal refusal) const
{
    switch (refusal) {
    case Refusal::None:
        break;
    case Refusal::NoNumber:
        return tr("That would be no number");
    case Refusal::NoDecimals:
        return tr("Whole numbers only");
    case Refusal::TooManyDecimals:
        return tr("Decimals: %1 at most").arg(decimalLimit);
    case Refusal::OutOfRange:
        return isLimited ? tr("Beyond %1").arg(limitsText()) : tr("Too many digits");
    }
    return {};
}

bool NumericEntry::eraseLast()
{
    return change(replaces ? QString() : current.chopped(qMin(1, current.size())));
}

bool NumericEntry::clear()
{
    return change(QString());
}

QString NumericEntry::withCharacter(QChar character) const
{
    QString candidate = replaces ? QString() : current;
    const bool isNumberStart = candidate.isEmpty() || candidate == QLatin1String("-");
    if (character == QLatin1Char('.') && isNumberStart)
        candidate += QLatin1Char('0');
    else if (character.isDigit() && (candidate == QLatin1String("0") || candidate == QLatin1String("-0")))
        candidate.chop(1);
    return candidate + character;
}

NumericEntry::Refusal NumericEntry::check(const QString &candidate) const
{
    static const QRegularExpression form(QStringLiteral("^(-?)([0-9]*)(?:\\.([0-9]*))?$"));
    const QRegularExpressionMatch match = form.match(candidate);
    if (!match.hasMatch())
        return Refusal::NoNumber;
    const bool isNegative = !match.captured(1).isEmpty();
    if (isNegative && !takesMinus())
        return Refusal::OutOfRange;
    if (match.captured(2).isEmpty())
        return Refusal::None;

    const double smallest = isNegative ? -rangeMaximum : rangeMinimum;
    const double largest = isNegative ? -rangeMinimum : rangeMaximum;
    const double magnitude = (match.captured(2) + QLatin1Char('.') + match.captured(3)).toDouble();
    if (!candidate.contains(QLatin1Char('.')))
        return canReachRange(magnitude, smallest, largest) ? Refusal::None : Refusal::OutOfRange;
    if (!takesPoint())
        return Refusal::NoDecimals;
    const int places = match.captured(3).size();
    if (places > int(decimalLimit))
        return Refusal::TooManyDecimals;
    const double tolerance = relativeTolerance * qMax(1.0, std::abs(largest));
    const double furthest = magnitude + std::pow(10.0, -places) - std::pow(10.0, -int(decimalLimit));
    const bool isWithin = magnitude <= largest + tolerance && furthest >= smallest - tolerance;
    return isWithin ? Refusal::None : Refusal::OutOfRange;
}

/// Whether a whole number lies in the range, as it stands or with further digits and decimals typed after it.
bool NumericEntry::canReachRange(double magnitude, double smallest, double largest) const
{
    const double maxDecimals = 1.0 - std::pow(10.0, -int(decimalLimit));
    double span = 1.0;
    double lowest = magnitude;
    while (lowest <= largest) {
        if (lowest + (span - 1.0) + maxDecimals >= smallest)
            return true;
        if (magnitude == 0.0)
            return false; // a digit after a lone zero takes the zero's place
        span *= 10.0;
        lowest = magnitude * span;
    }
    return false;
}

bool NumericEntry::change(const QString &newText)
{
    const bool isOther = newText != current;
    current = newText;
    replaces = false;
    return isOther;
}
