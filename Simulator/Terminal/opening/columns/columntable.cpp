#include "columntable.h"

#include "columnrow.h"
#include "pager.h"

#include <QVBoxLayout>

namespace {

constexpr int rowHeight = 98;
constexpr int gap = 8;
constexpr int rowsAlone = 5;
/// With more than `rowsAlone` columns the pager takes the place of the last row.
constexpr int rowsWithPager = 4;

} // namespace

ColumnTable::ColumnTable(QWidget *parent)
    : QWidget(parent)
    , pages(new Pager(Qt::Horizontal, this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    for (int place = 0; place < rowsAlone; ++place) {
        auto *row = new ColumnRow(place, this);
        row->setFixedHeight(rowHeight);
        layout->addWidget(row);
        rows.append(row);
        connect(row, &ColumnRow::touched, this, [this, place] { showColumn(pages->first() + place); });
        connect(row, &ColumnRow::productTouched, this,
                [this, place] { Q_EMIT productTouched(pages->first() + place); });
        connect(row, &ColumnRow::unitTouched, this, [this, place] { Q_EMIT unitTouched(pages->first() + place); });
    }
    layout->addWidget(pages);
    layout->addStretch();
    connect(pages, &Pager::turned, this, &ColumnTable::refresh);
}

void ColumnTable::show(const OpenSelection &newSelection)
{
    selection = &newSelection;
    pages->setItems(selection->size(), selection->size() > rowsAlone ? rowsWithPager : rowsAlone);
    showColumn(0);
}

void ColumnTable::showColumn(int index)
{
    shown = index;
    refresh();
    Q_EMIT columnShown(index);
}

void ColumnTable::refresh()
{
    const int perPage = selection->size() > rowsAlone ? rowsWithPager : rowsAlone;
    for (int place = 0; place < rows.size(); ++place) {
        const int index = pages->first() + place;
        const bool isUsed = place < perPage && index < selection->size();
        rows.at(place)->setVisible(isUsed);
        if (!isUsed)
            continue;
        rows.at(place)->show(*selection, index);
        rows.at(place)->setShown(index == shown);
    }
}
