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
    /// What the file holds for the operator to choose from. Of the request only the file, its layer and task, and the
    /// products count.
    SurveyReport survey();

private:
    /// Runs `work`; false when it fails or throws, such as for lack of memory, with the reason in the report.
    bool attempt(const std::function<bool()> &work);
    bool loadInto(LoadedMap &map);
    bool surveyInto(LoadedMap &map, SurveyReport &survey);
    /// Reads the file and makes polygons of it on the map's plane.
    bool readPolygons(LoadedMap &map, ColumnJudge judge);
    bool placePolygons(LoadedMap &map);
    bool fail(const QString &text);
    /// False, with the reason in the report, when the load was cancelled.
    bool goesOn();

    /// Makes the products from the columns, if the machine takes them from the file.
    void makeProducts();
    /// Whether the file, unasked, takes over all products that other maps on its plane feed.
    bool replacesAllInUse() const;
    bool chooseColumns(LoadedMap &map);
    bool arrange();
    void makeChain(LoadedMap &map) const;
    void buildLegends(LoadedMap &map);
    /// Sets the default rates: those that the file gives, else the products' own; products made from the file get
    /// theirs from what it prescribes.
    void setDefaultRates(LoadedMap &map);

    LoadRequest request;
    ColumnPolicy policy;
    std::vector<LocalPlane> planes;
    const LoadControl &control;
    LoadReport *report = nullptr;
    std::optional<LoadFindings> findings;

    RawPrescription source;
    /// Holds the polygons' rings in few large blocks, which the chain keeps.
    std::shared_ptr<PolygonChain::RingMemory> ringMemory = std::make_shared<PolygonChain::RingMemory>();
    std::vector<PlanePolygon> polygons;
    HoleArrangement arrangement;
    RateTable rates;
};
