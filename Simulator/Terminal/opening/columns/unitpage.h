#pragma once

#include "Backend/rateunits.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class Caption;
class QButtonGroup;
class QGridLayout;
class TouchButton;

/// The unit of a column's rates: an amount and an area, each chosen by a touch.
class UnitPage : public QWidget {
    Q_OBJECT

public:
    explicit UnitPage(QWidget *parent = nullptr);

    /// `kinds`: of which units are made, at least one; the first is shown first. `unit`: the one in use; `unitOfFile`:
    /// what the file says, empty if it says nothing.
    void ask(const QString &question, const QList<RateUnitParts> &kinds, const QString &unit,
             const QString &unitOfFile);

Q_SIGNALS:
    /// An empty unit leaves it to the file.
    void chosen(const QString &unit);
    void left();

private:
    void fill(QButtonGroup *group, QGridLayout *grid, const QStringList &texts, const QString &current,
              const QString &name);
    void showUnit();
    /// Offers the amounts of the next kind.
    void showOthers();
    QString unit() const;

    Caption *title;
    Caption *amountTitle;
    Caption *areaTitle;
    QGridLayout *amountGrid;
    QGridLayout *areaGrid;
    QButtonGroup *amounts;
    QButtonGroup *areas;
    TouchButton *fromFile;
    TouchButton *others;
    TouchButton *accept;
    QList<RateUnitParts> kinds; ///< The one that is shown first.
};
