#pragma once

#include "Backend/loadrequest.h"
#include "Backend/surveyreport.h"
#include "columnpolicy.h"
#include "holearrangement.h"
#include "loadcontrol.h"
#include "loadedmap.h"
#include "loadfindings.h"
#include "prescriptionreader.h"
#include "ratetable.h"
#include "rawprescription.h"

#include <functional>
#include <memory>
#include <memory_resource>
#include <optional>
#include <vector>

/// Turns a prescription file into a map that is ready to be published. Blocks and touches nothing that is shared, so it
/// runs in any thread.
class PrescriptionLoader {
public:
    /// `planes`: those of the published maps, oldest first; the map takes the first one that is near enough.
    PrescriptionLoader(const LoadRequest &request, const std::vector<LocalPlane> &planes, const LoadControl &control);

    /// Never null; says in its report what went wrong.
    std::unique_ptr<LoadedMap> load();
    /// What the file holds for the operator to choose from. Of the request it takes the file, its layer and task, and
    /// the products.
    SurveyReport survey();

private:
    /// Runs it; false also where it ran out of memory or the like, with the reason in the report.
    bool attempt(const std::function<bool()> &work);
    bool loadInto(LoadedMap &map);
    bool surveyInto(LoadedMap &map, SurveyReport &survey);
    /// Reads the file and makes polygons of it on the map's plane.
    bool readPolygons(LoadedMap &map, ColumnJudge judge);
    bool placePolygons(LoadedMap &map);
    bool fail(const QString &text);
    /// False, with the reason in the report, when the load was cancelled.
    bool goesOn();

    /// Makes the products from the columns where the machine takes them from the file.
    void makeProducts();
    /// Whether the file, unasked, takes over all products that others on its plane feed.
    bool replacesAllInUse() const;
    bool chooseColumns(LoadedMap &map);
    bool arrange();
    void makeChain(LoadedMap &map) const;
    void buildLegends(LoadedMap &map);
    /// Those that the file gives, else the products'; products that are made from it get theirs by what it prescribes.
    void setDefaultRates(LoadedMap &map);

    LoadRequest request;
    ColumnPolicy policy;
    std::vector<LocalPlane> planes;
    const LoadControl &control;
    LoadReport *report = nullptr;
    std::optional<LoadFindings> findings;

    RawPrescription source;
    /// Of the polygons' rings: had in few large blocks, and given back as such.
    std::pmr::monotonic_buffer_resource ringMemory;
    std::vector<PlanePolygon> polygons;
    HoleArrangement arrangement;
    RateTable rates;
};
