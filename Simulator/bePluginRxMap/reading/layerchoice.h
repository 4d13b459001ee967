#pragma once

#include "rawprescription.h"
#include "readrequest.h"

#include <vector>

class GDALDataset;
class OGRLayer;

/// Chooses which layer of a file is read: of those with polygons the one that is named, else the first that has the
/// wanted columns. If no columns are named, a layer with a column that is called a rate goes before one with a column
/// that may be one.
class LayerChoice {
public:
    /// Neither is owned.
    LayerChoice(GDALDataset &dataset, const ReadRequest &request, ColumnJudge judge);

    /// Sets the layers of `map` and the warnings about those that are not taken. Null, with the reason in error(), when
    /// none will do.
    OGRLayer *choose(RawPrescription &map);
    /// The layer that has the most of the named columns, when they are named for several files together.
    OGRLayer *chooseForMost(RawPrescription &map);
    QString error() const { return reason; }

private:
    /// A layer with polygons.
    struct Offer {
        OGRLayer *layer;
        /// What it lacks; empty when it lacks nothing.
        QString lack;
        RateChance chance = RateChance::None;
        int columns = 0; ///< How many of the named ones it has.
    };

    void findOffers(RawPrescription &map);
    void judgeColumns(Offer &offer) const;
    int named(const RawPrescription &map);
    int firstThatFits(const RawPrescription &map);
    OGRLayer *take(int place, RawPrescription &map);

    GDALDataset &dataset;
    const ReadRequest &request;
    ColumnJudge judge;
    std::vector<Offer> offers;
    /// Why other layers cannot be taken, each with its name.
    QStringList unfit;
    QString reason;
};
