#pragma once

#include <QString>

#include <vector>

/// The numbers by which task data names what a value is (data dictionary identifiers, DDI), as far as they are rates.
class DataDictionary {
public:
    struct Entry {
        int number;
        const char *name;
        /// As the dictionary writes it (UTF-8): "mm³/m²", "/m²" for a count.
        const char *unit;
        /// One step of the values that are written, in the unit.
        double resolution;

        /// Names what is wanted, not what was put out nor its limits.
        bool isSetpoint() const { return QLatin1String(name).startsWith(QLatin1String("Setpoint")); }
        /// The unit with what is counted.
        QString rateUnit() const;
    };

    /// By number. Source: the public data dictionary of ISO 11783-11.
    static const std::vector<Entry> &entries();
    /// Null where the number is not known.
    static const Entry *find(int number);
};
