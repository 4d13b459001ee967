#pragma once

#include <QString>

class Machine;

/// A product's rates in the operator's unit.
struct ShownUnit {
    /// Converts base units to the operator's unit.
    double factor = 1.0;
    /// As it is written behind a rate; empty for a product of unknown kind.
    QString text;

    /// Of a product of the machine, by number from 1.
    static ShownUnit of(const Machine &machine, int number);
    /// A rate (base units) with enough decimals to show three digits, four decimals at most.
    QString rateText(double rate) const;
};
