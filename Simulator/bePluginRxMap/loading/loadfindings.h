#pragma once

#include "Backend/loadreport.h"
#include "planering.h"

#include <vector>

/// Enters what a load finds into its report. Each finding is a warning, too, and is worded once for both.
class LoadFindings {
public:
    /// A count in words: "1 ring was left out", "2 rings were left out".
    struct Words {
        QString one;
        QString many;
        /// In which the records are what the words say; empty for all.
        QString column = {};
    };

    /// `report` is not owned and outlives this; it names the file.
    explicit LoadFindings(LoadReport &report);

    /// A remark on the load, not on the map.
    void remark(const QString &text);
    void add(const MapFinding &finding);
    /// `record`: the one it is about, from 0; -1 for the whole file.
    void add(MapFinding::Kind kind, const QString &text, int record = -1);
    /// Adds one finding about all of these records, which it names; nothing if there are none. A record counts as often
    /// as it is listed. `polygons` tell where the records lie.
    void addCounted(MapFinding::Kind kind, const std::vector<int> &records, const Words &words,
                    const std::vector<PlanePolygon> &polygons = {});

private:
    LoadReport &report;
};
