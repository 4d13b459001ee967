#pragma once

#include "Backend/machineproduct.h"
#include "Backend/rateunits.h"
#include "Backend/surveyreport.h"
#include "filechoices.h"
#include "openrequest.h"

#include <QList>
#include <QString>

#include <functional>

/// Which columns of a surveyed file are to feed which products, and in which units. It begins with what a load would do
/// unasked. At most one column feeds a product.
class OpenSelection {
public:
    /// What is known of the unit of a column's rates.
    enum class UnitState {
        Known,
        /// The file does not tell it: the product's base unit is assumed.
        Assumed,
        /// It is not a unit for such a product: the numbers are taken in the product's base unit.
        Unfit,
    };

    using ProductMaker = std::function<QList<MachineProduct>(const QList<ColumnProduct> &)>;

    OpenSelection() = default;
    /// `makeProducts` makes the machine's products of those that the survey's columns make.
    OpenSelection(const SurveyReport &survey, const ProductMaker &makeProducts);

    const SurveyReport &survey() const { return report; }
    /// The products to choose from. One that a column made is named and measured by the column that feeds it, unless
    /// only the former one names a product.
    const QList<MachineProduct> &fedProducts() const { return products; }
    int size() const { return report.columns.size(); }
    const SurveyedColumn &column(int index) const { return report.columns.at(index); }

    /// Number from 1 of the product that a column feeds; 0 for none.
    int product(int index) const { return entries.at(index).product; }
    /// Takes the operator's choice; a column that fed that product then feeds none.
    void setProduct(int index, int number);
    /// The unit of the column's rates: as chosen, else as the file says; empty when it is not known.
    QString unit(int index) const;
    bool isUnitChosen(int index) const { return !entries.at(index).unit.isEmpty(); }
    /// An empty unit leaves it to the file. A product that a column made becomes of the kind that has such a unit.
    void setUnit(int index, const QString &unit);
    /// What the unit of a column that feeds a product may be made of: first for the product's kind, and if a column
    /// made it, for the others.
    QList<RateUnitParts> unitParts(int index) const;
    UnitState unitState(int index) const;
    /// Multiplies the column's rates to the base unit of the product that it feeds; 1 without a product.
    double factor(int index) const;

    bool feedsAny() const;
    /// The columns of unknown unit that feed a product whose rates have one.
    QList<int> withoutUnit() const;
    /// The unit that is assumed for such a column.
    QString assumedUnit(int index) const;
    OpenRequest request() const;
    /// What the operator chose, without what the program did unasked.
    FileChoices choices() const;
    /// Takes what was chosen before, unless the file's columns have changed. A column whose product no longer exists
    /// feeds what it would unasked.
    void apply(const FileChoices &choices);

private:
    struct Entry {
        int product = 0;
        QString unit;
        bool isProductChosen = false;
    };

    /// Number from 1 of the product that was chosen; 0 if it no longer exists.
    int stillThere(const ColumnChoice &choice) const;
    /// Null for a column that feeds none.
    const MachineProduct *fed(int index) const;
    bool isFed(int number) const;
    /// Whether the column that made the product feeds another one.
    bool isNameMoved(int number) const;
    /// As setProduct(), but units stay as they are.
    void feed(int index, int number);
    /// Forgets units that were chosen for a product of another kind, which no column made.
    void dropUnfitUnits();
    /// The products that the columns make as they are chosen.
    QList<ColumnProduct> made() const;

    SurveyReport report;
    ProductMaker makeProducts;
    QList<MachineProduct> products;
    /// As they were before anything was chosen.
    QList<MachineProduct> offered;
    QList<Entry> entries; ///< One per column.
};
