#include "shownnumber.h"

#include <QLocale>

#include <algorithm>

QString ShownNumber::inLanguage(const QString &plain)
{
    const QLocale language;
    const int point = plain.indexOf(QLatin1Char('.'));
    const int decimals = point < 0 ? 0 : plain.size() - point - 1;
    const bool isPlain = std::none_of(plain.begin(), plain.end(), [](QChar character) { return character.isLetter(); });
    if (isPlain)
        return language.toString(plain.toDouble(), 'f', decimals);
    // Powers of ten are written alike everywhere.
    return QString(plain).replace(QLatin1Char('.'), language.decimalPoint());
}

QString ShownNumber::text(double value, int decimals)
{
    return inLanguage(QString::number(value, 'f', decimals));
}
