#pragma once

#include <QString>

/// A rate that a table holds as text: "12.5", "12,5", "1.200,5", "100 kg/ha". Points and commas are read as written,
/// whatever the terminal's language.
struct TextRate {
    /// Not a number where the text has none.
    double value;
    /// What follows the number, without blanks around it.
    QString unit;
    /// False for a text that is not empty and does not begin with a number.
    bool isReadable;
    /// Three digits follow the text's only comma, which may therefore have been a thousands separator. It is read as a
    /// decimal comma.
    bool isAmbiguous;

    static TextRate parse(const QString &text);
};
