#pragma once

#include <QVariant>

/// Converts `value` to the meta-type `type` if nothing is lost by it: numbers stay in range and keep fractions, text
/// is a number in the C locale throughout, records are of the type itself or have a registered converter. False, with
/// `converted` untouched, otherwise.
bool convertWithoutLoss(const QVariant &value, int type, QVariant &converted);
