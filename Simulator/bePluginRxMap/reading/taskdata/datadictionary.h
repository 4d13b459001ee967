#pragma once

#include <QString>

#include <vector>

/// The numbers (data dictionary identifiers, DDI) by which task data says what a value is, as far as they stand for
/// rates.
class DataDictionary {
public:
    struct Entry {
        int number;
        const char *name;
        /// As the dictionary writes it (UTF-8): "mm³/m²", "/m²" for a count.
        const char *unit;
        /// What one step of a written value stands for, in the unit.
        double resolution;

        /// Whether it is a target, rather than what was applied or a limit.
        bool isSetpoint() const { return QLatin1String(name).startsWith(QLatin1String("Setpoint")); }
        /// What is measured, in a word: "Mass", or the nutrient's symbol. In the language of the application.
        QString measured() const;
        /// The unit, with what is counted.
        QString rateUnit() const;
    };

    /// By number. Source: the public data dictionary of ISO 11783-11.
    static const std::vector<Entry> &entries();
    /// Null where the number is not known.
    static const Entry *find(int number);
};
