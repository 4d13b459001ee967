#pragma once

#include "openselection.h"

#include <QWidget>

class ListRow;
class TouchButton;

/// One column of a file: what it holds, and the product that it feeds and its unit, which can both be touched.
class ColumnRow : public QWidget {
    Q_OBJECT

public:
    /// `place`: of the row on the page, from 0; names its controls.
    explicit ColumnRow(int place, QWidget *parent = nullptr);

    void show(const OpenSelection &selection, int index);
    void setShown(bool isShownOnTheMap);

Q_SIGNALS:
    void touched();
    void productTouched();
    void unitTouched();

private:
    static QStringList notes(const SurveyedColumn &column, const QString &unit);
    static QString unitNote(const OpenSelection &selection, int index);

    ListRow *what;
    TouchButton *product;
    TouchButton *unit;
};
