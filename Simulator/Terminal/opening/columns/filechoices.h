#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// What the operator chose for one column of a file; what is not chosen is left to the program.
struct ColumnChoice {
    /// As SurveyedColumn::key.
    QString column;
    bool isProductChosen = false;
    /// Number from 1, and name, of the product that the column feeds; 0 for none.
    int product = 0;
    QString productName;
    /// Empty: what the file says.
    QString unit;
};

/// What the operator chose for a file.
struct FileChoices {
    QString layer;
    QString task;
    /// All columns of the table that the operator chose from.
    QStringList columnNames;
    /// The columns for which something was chosen.
    QList<ColumnChoice> columns;
};
