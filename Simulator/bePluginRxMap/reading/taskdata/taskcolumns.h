#pragma once

#include "rawprescription.h"
#include "taskdata.h"

#include <QHash>

#include <vector>

/// The columns of a task: one for each process data variable of its zones, told apart by number (DDI), product and
/// device element.
class TaskColumns {
public:
    /// No prescription has more columns; those beyond are left out.
    static constexpr size_t most = 1000;
    /// The most rates of all records in all columns together, so that memory is limited.
    static constexpr qint64 mostRates = 20000000;

    TaskColumns(const Task &task, const TaskData &data);

    /// The columns, named after their products, else by what the numbers (DDI) stand for, with their units and the
    /// rates for places without a prescription, but without values.
    std::vector<SourceColumn> &columns() { return table; }
    bool areTooMany() const { return isCutShort; }
    /// Whether that many records are too many for these columns.
    bool areTooMany(qint64 records) const { return records * static_cast<qint64>(table.size()) > mostRates; }
    /// The columns of a zone's values, in the zone's order.
    std::vector<size_t> placesOf(const TreatmentZone &zone) const;
    /// The rates of a zone, one per column; not a number where it has none.
    std::vector<double> ratesOf(const TreatmentZone &zone) const;
    /// A value in the column's unit; not a number for one below zero, which is no rate.
    double rate(size_t place, qint64 value) const;

private:
    struct Scale {
        double offset;
        double factor;
    };

    /// What identifies a value; `before`: the values before it in its zone.
    static QString key(const ProcessValue &value, const QHash<QString, int> &before);
    void add(const ProcessValue &value, const TaskData &data);
    /// The name, with a number appended if another column has it.
    QString freeName(const QString &name);
    void takePlaceRates(const Task &task);

    std::vector<SourceColumn> table;
    std::vector<Scale> scales; ///< One per column.
    QHash<QString, size_t> places;
    /// Names in use, in small letters, and how often each was wanted.
    QHash<QString, int> names;
    /// For each number (DDI) how many columns without a product it has.
    QHash<int, int> timesMeasured;
    bool isCutShort = false;
};
