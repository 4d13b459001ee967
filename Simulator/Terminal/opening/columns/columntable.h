#pragma once

#include "openselection.h"

#include <QList>
#include <QWidget>

class ColumnRow;
class Pager;

/// The columns of a file, a page of rows at a time.
class ColumnTable : public QWidget {
    Q_OBJECT

public:
    explicit ColumnTable(QWidget *parent = nullptr);

    /// `selection` is not owned and outlives what is shown of it.
    void show(const OpenSelection &selection);
    /// Updates what may have changed in the selection.
    void refresh();
    /// The column whose map is shown.
    int shownColumn() const { return shown; }
    Pager *pager() const { return pages; }

Q_SIGNALS:
    void columnShown(int index);
    void productTouched(int index);
    void unitTouched(int index);

private:
    void showColumn(int index);

    const OpenSelection *selection = nullptr;
    QList<ColumnRow *> rows;
    Pager *pages;
    int shown = 0;
};
