#pragma once

#include <QString>

/// A rate that stands as text in a table: "12.5", "12,5", "1.200,5", "100 kg/ha". Points and commas are read as
/// written, whatever the terminal's language.
struct TextRate {
    /// Not a number where the text has none.
    double value;
    /// What follows the number, without blanks around it.
    QString unit;
    /// False for a text that neither is empty nor begins with a number.
    bool isReadable;
    /// Three digits follow its only comma, which may thus have been meant to set off thousands. It is read as a decimal
    /// one.
    bool isAmbiguous;

    static TextRate parse(const QString &text);
};
