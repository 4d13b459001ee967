#pragma once

#include "Backend/machineproduct.h"
#include "Backend/surveyreport.h"
#include "filechoices.h"
#include "openrequest.h"

#include <QList>
#include <QString>

/// Which columns of a file that was surveyed are to feed which products, and in which units. It begins with what a load
/// would do unasked. A product is fed by one column at most.
class OpenSelection {
public:
    /// Whether the rates of a column are in the unit that is said of it.
    enum class UnitState {
        Known,
        /// The file does not tell it: the product's base unit is assumed.
        Assumed,
        /// It is no unit of such a product: the numbers are taken in the product's base unit.
        Unfit,
    };

    OpenSelection() = default;
    OpenSelection(const SurveyReport &survey, const QList<MachineProduct> &products);

    const SurveyReport &survey() const { return report; }
    /// The products that there are to choose from.
    const QList<MachineProduct> &fedProducts() const { return products; }
    int size() const { return report.columns.size(); }
    const SurveyedColumn &column(int index) const { return report.columns.at(index); }

    /// Number from 1 of the product that a column feeds; 0 for none.
    int product(int index) const { return entries.at(index).product; }
    /// What the operator chooses; a column that fed that product feeds none then.
    void setProduct(int index, int number);
    /// Of the column's rates, as chosen, else as the file says; empty when it is not known.
    QString unit(int index) const;
    bool isUnitChosen(int index) const { return !entries.at(index).unit.isEmpty(); }
    /// An empty unit leaves it to the file.
    void setUnit(int index, const QString &unit);
    UnitState unitState(int index) const;
    /// Takes the column's rates to the base unit of the product that it feeds; 1 without one.
    double factor(int index) const;

    bool feedsAny() const;
    /// The columns that feed a product whose rates have a unit, in one that is not known.
    QList<int> withoutUnit() const;
    /// The unit that is assumed of such a column.
    QString assumedUnit(int index) const;
    OpenRequest request() const;
    /// What the operator chose, none of what the program did unasked.
    FileChoices choices() const;
    /// Takes what was chosen before, unless the file's columns are others now. A column whose product is not there any
    /// more feeds what it would unasked.
    void apply(const FileChoices &choices);

private:
    struct Entry {
        int product = 0;
        QString unit;
        bool isProductChosen = false;
    };

    /// Number from 1 of the product that was chosen; 0 where it is not there.
    int stillThere(const ColumnChoice &choice) const;
    /// Null for a column that feeds none.
    const MachineProduct *fed(int index) const;

    SurveyReport report;
    QList<MachineProduct> products;
    QList<Entry> entries; ///< One per column.
};
