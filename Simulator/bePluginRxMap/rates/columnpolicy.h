#pragma once

#include "Backend/columnshares.h"
#include "Backend/machineproduct.h"
#include "planering.h"
#include "rawprescription.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

/// Decides which rate column feeds which product, and what is to be said of it.
///
/// Columns that the operator names feed the products that they are named for. Otherwise the columns whose names say
/// that they hold rates are taken, and where none does, those that could by their content; each product takes the
/// first one whose name suits it, then those that found none take what is left, in table order. No column feeds a
/// product that no prescription may drive.
class ColumnPolicy {
public:
    /// One column that feeds one product; one column may feed several.
    struct Feed {
        int product; ///< From 0.
        int column;  ///< Place in RawPrescription::columns.
    };

    struct Decision {
        /// In product order.
        std::vector<Feed> feeds;
        /// What was left out of the columns, without the file's name.
        QStringList warnings;
        /// Why nothing can be fed, without the file's name; empty when it can.
        QString error;
    };

    /// A prescription file and all columns of its table.
    struct File {
        QString path;
        QStringList columns;
    };

    /// `named`: columns for products 1, 2, ...; an empty name leaves its product out, an empty list leaves the choice
    /// to the policy.
    ColumnPolicy(const QList<MachineProduct> &products, const QStringList &named);

    /// Why the named columns cannot feed these products, whatever the file holds; empty when they may.
    const QString &refusal() const { return reason; }
    /// The named columns, less those that were left out.
    const QStringList &named() const { return names; }
    /// What was left out of them, without the file's name.
    const QStringList &warnings() const { return remarks; }

    /// Which of the columns that were read feed which products. `polygons`: those of the map, which say how large its
    /// records are.
    Decision decide(const RawPrescription &source, const std::vector<PlanePolygon> &polygons) const;

    /// Of several files, the first one that has a column feeds the column's product. A column that no file has is an
    /// error that names it.
    static ColumnShares share(const QList<File> &files, const QStringList &named);

private:
    void leaveOutUndriven();
    std::vector<Feed> feedNamed(const RawPrescription &source) const;
    std::vector<Feed> feedLikely(const RawPrescription &source, const std::vector<PlanePolygon> &polygons) const;
    /// Numbers from 0 of the products that likely columns may feed.
    std::vector<int> waitingProducts() const;

    QList<MachineProduct> products;
    QStringList names;
    QString reason;
    QStringList remarks;
};
