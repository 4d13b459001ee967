#pragma once

#include "Backend/columnshares.h"
#include "Backend/machineproduct.h"
#include "Backend/mapfinding.h"
#include "Backend/ratesource.h"
#include "likelycolumns.h"
#include "planering.h"
#include "rawprescription.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

/// Decides which rate column feeds which product, and what to report about it.
///
/// Columns that the operator names feed the products that they are named for. Otherwise the columns whose names say
/// that they hold rates are taken, else those whose content suggests it, else whole numbers that could be rates; only
/// one of a target and what was applied, and only one of equal columns. Each product takes the first column named after
/// it; a product that found none takes the first whose name suits it; then the rest take what is left, in table order.
/// A column whose unit does not fit a product never feeds it unasked. No column feeds a product that no prescription
/// may drive.
class ColumnPolicy {
public:
    /// One column that feeds one product; one column may feed several.
    struct Feed {
        int product; ///< From 0.
        int column;  ///< Place in RawPrescription::columns.
        /// From the column's unit to the product's base unit.
        double factor = 1.0;
        /// From the base unit to the operator's unit.
        double displayFactor = 1.0;
    };

    struct Decision {
        /// In product order.
        std::vector<Feed> feeds;
        /// One per feed.
        QList<RateSource> sources;
        /// What was left out of the columns, or assumed.
        QList<MapFinding> findings;
        /// What is no fault of the map, without the file's name: columns called rates that found no product left.
        QStringList warnings;
        /// Why no product can be fed, without the file's name; empty when one can.
        QString error;
    };

    /// A prescription file and all columns of its table.
    struct File {
        QString path;
        QStringList columns;
    };

    /// `named`: columns for products 1, 2, ...; an empty name leaves its product out, an empty list leaves the choice
    /// to the policy. `units`: of the columns that feed products 1, 2, ...; empty and missing ones are left to the
    /// file.
    ColumnPolicy(const QList<MachineProduct> &products, const QStringList &named, const QStringList &units = {});

    /// Reports guesses among named columns, too.
    void tellGuesses() { tellsGuesses = true; }

    /// Whether the column holds rates, judged by name and type.
    static RateChance chanceOf(const SourceColumn &column);
    /// The same where the operator is to choose: a total may be meant as a rate.
    static RateChance chanceToChoose(const SourceColumn &column);

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
    void readUnits(const QStringList &texts);
    void decideLikely(const RawPrescription &source, const LikelyColumns &likely, Decision &decision) const;
    /// Reports the columns that feed nothing; `driven`: products that a prescription may drive.
    void tellUnfed(const RawPrescription &source, const LikelyColumns &likely, const std::vector<int> &driven,
                   Decision &decision) const;
    bool fits(const LikelyColumn &column, int product) const;
    /// Enters what is reported about a feed, and its factor.
    void describe(const SourceColumn &column, ColumnUnit unit, Feed &feed, Decision &decision) const;
    std::vector<Feed> feedNamed(const RawPrescription &source) const;
    /// Hands the columns out to products (numbers from 0).
    std::vector<Feed> feedLikely(const RawPrescription &source, std::vector<LikelyColumn> columns,
                                 const std::vector<int> &candidates) const;

    QList<MachineProduct> products;
    QStringList names;
    std::vector<RateUnit> operatorUnits; ///< One per product.
    bool tellsGuesses = false;
    QString reason;
    QStringList remarks;
};
