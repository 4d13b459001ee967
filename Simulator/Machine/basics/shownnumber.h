#pragma once

#include <QString>

/// Numbers as the terminal shows them: in the language chosen (QLocale's default), with its decimal separator and
/// digits in groups. What programs read, scripts and what plug-ins write keep to the point.
namespace ShownNumber {

/// A decimal number as C writes it ("12345.60", "1.5e+06"), with the same digits.
QString inLanguage(const QString &plain);
QString text(double value, int decimals = 0);

} // namespace ShownNumber
