#pragma once

#include <QString>

#include <algorithm>
#include <cmath>

/// A rate in the operator's unit as a legend writes it: at least three significant digits, at least two decimals where
/// single precision holds them, no zeros at its end, and no exponent as long as it is short enough to read. The maker
/// of a legend and its display write rates alike, so that different classes look different.
class ShownRate {
public:
    /// What the last digit shown of such a rate stands for; 0 for zero.
    static double step(double value)
    {
        if (value == 0.0)
            return 0.0;
        return std::pow(10.0, isPlain(value) ? -decimals(value) : digits(value) - significant(value));
    }

    static QString text(double value)
    {
        if (value == 0.0)
            return QStringLiteral("0");
        if (!isPlain(value))
            return QString::number(value, 'g', significant(value));
        QString text = QString::number(value, 'f', decimals(value));
        if (text.contains(QLatin1Char('.'))) {
            while (text.endsWith(QLatin1Char('0')))
                text.chop(1);
            if (text.endsWith(QLatin1Char('.')))
                text.chop(1);
        }
        return text;
    }

private:
    static bool isPlain(double value) { return std::fabs(value) < 1e12 && std::fabs(value) >= 1e-4; }
    static int significant(double value) { return std::fabs(value) < 1.0 ? 3 : 4; }
    /// Digits before the decimal point; zero or less for values below one.
    static int digits(double value) { return static_cast<int>(std::floor(std::log10(std::fabs(value)))) + 1; }
    static int decimals(double value)
    {
        constexpr int heldDigits = 7; // That single precision holds.
        return std::max(0, std::min(std::max(2, 3 - digits(value)), heldDigits - digits(value)));
    }
};
