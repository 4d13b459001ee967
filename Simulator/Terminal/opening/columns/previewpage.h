#pragma once

#include "openselection.h"
#include "product.h"

#include <QWidget>

class Caption;
class ColumnTable;
class LegendPanel;
class Machine;
class MapPreview;
class QHBoxLayout;
class QLabel;
class Pager;
class TouchButton;

/// What a file holds and what it is to feed, before it is opened: its map, and a row for each of its columns.
class PreviewPage : public QWidget {
    Q_OBJECT

public:
    /// `machine` is not owned and outlives the page.
    explicit PreviewPage(const Machine *machine, QWidget *parent = nullptr);

    /// `selection` is not owned and outlives what is shown of it. `waiting`: how many files are to be opened after it.
    void show(const OpenSelection &selection, int waiting);
    /// Updates what may have changed in the selection.
    void refresh();
    Pager *pager() const;

Q_SIGNALS:
    void accepted();
    void left();
    void skipped();
    void cancelled();
    void layerTouched();
    void taskTouched();
    void productTouched(int index);
    void unitTouched(int index);

protected:
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeHead();
    QWidget *makeMap();
    QWidget *makeFoot();
    TouchButton *addButton(QHBoxLayout *layout, const QString &text, const char *name, void (PreviewPage::*signal)());
    void showColumn(int index);
    /// What happens to the files that are open.
    QStringList replacements() const;

    const Machine *machine;
    const OpenSelection *selection = nullptr;
    Caption *title;
    TouchButton *layer = nullptr;
    TouchButton *task = nullptr;
    MapPreview *map;
    LegendPanel *legend;
    QLabel *remark;
    ColumnTable *table;
    TouchButton *accept = nullptr;
    TouchButton *skip = nullptr;
};
