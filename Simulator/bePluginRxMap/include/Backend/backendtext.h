#pragma once

#include <QCoreApplication>

/// What the back-end tells the operator, in the language of the application. The texts are parts of lines; before them
/// the line says what it is about.
class BackendText {
    Q_DECLARE_TR_FUNCTIONS(BackendText)

public:
    /// A number within such a text, as QString::number() writes it but with the decimal separator of its language.
    static QString number(double value, char format, int precision)
    {
        return QString::number(value, format, precision).replace(QLatin1Char('.'), tr(".", "decimal separator"));
    }
};
