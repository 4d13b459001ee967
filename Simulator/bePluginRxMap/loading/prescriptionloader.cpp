#include "prescriptionloader.h"

#include "Backend/backendtext.h"
#include "columnproducts.h"
#include "duplicatepolygons.h"
#include "filesurvey.h"
#include "gdalsession.h"
#include "geosinterrupt.h"
#include "legendbuilder.h"
#include "ringrepair.h"
#include "straypolygons.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <iterator>
#include <utility>

namespace {

/// Maps that lie farther apart do not share a plane: it would be too far from level under one of them.
constexpr double maxDistanceOnOnePlane = 20000.0;

constexpr double shareOfReading = 0.6;
constexpr double shareOfPlacing = 0.1;
constexpr double shareOfRepair = 0.2;
constexpr size_t ringsPerReport = 256;

using Kind = MapFinding::Kind;

/// The products as far as they are known before the file is read.
LoadRequest expecting(LoadRequest request)
{
    if (request.makeProducts)
        request.products = request.makeProducts(ColumnProducts(request.columns, request.units).expected());
    return request;
}

QString tangleText(int record)
{
    return BackendText::tr("record %1 was left out, its rings cross each other or themselves more than %2 times")
        .arg(QString::number(record), QString::number(RingRepair::mostCrossings));
}

} // namespace

PrescriptionLoader::PrescriptionLoader(const LoadRequest &loadRequest, const std::vector<LocalPlane> &knownPlanes,
                                       const LoadControl &loadControl)
    : request(expecting(loadRequest))
    , policy(request.products, request.columns, request.units)
    , planes(knownPlanes)
    , control(loadControl)
{
}

void PrescriptionLoader::tell(MapFinding::Kind kind, const QString &text, int record)
{
    MapFinding finding;
    finding.kind = kind;
    finding.text = text;
    if (record >= 0)
        finding.records.append(record);
    findings->add(finding);
}

bool PrescriptionLoader::fail(const QString &text)
{
    report->error = QStringLiteral("%1: %2").arg(request.path, text);
    return false;
}

std::unique_ptr<LoadedMap> PrescriptionLoader::load()
{
    auto map = std::make_unique<LoadedMap>();
    report = &map->report;
    report->path = request.path;
    findings.emplace(*report);
    if (!attempt([this, &map] { return loadInto(*map); })) {
        map->lookup.reset();
        map->chain.reset();
    }
    return map;
}

SurveyReport PrescriptionLoader::survey()
{
    LoadedMap map;
    report = &map.report;
    report->path = request.path;
    findings.emplace(*report);
    SurveyReport survey;
    survey.path = request.path;
    attempt([this, &map, &survey] { return surveyInto(map, survey); });
    survey.error = map.report.error;
    survey.layer = map.report.layer;
    survey.layers = map.report.layers;
    survey.task = map.report.task;
    survey.tasks = map.report.tasks;
    return survey;
}

bool PrescriptionLoader::attempt(const std::function<bool()> &work)
{
    try {
        return work();
    } catch (const std::exception &failure) {
        return fail(BackendText::tr("cannot be loaded: %1").arg(QString::fromUtf8(failure.what())));
    }
}

bool PrescriptionLoader::surveyInto(LoadedMap &map, SurveyReport &survey)
{
    const GdalSession session;
    const GeosInterrupt interrupt(control.cancelled);
    const bool isRead = readPolygons(map, ColumnPolicy::chanceOf);
    if (isRead)
        makeProducts();
    survey.columnProducts = report->columnProducts;
    const QString lack = isRead ? FileSurvey(source, polygons).addColumns(policy, survey) : QString();
    if (!lack.isEmpty())
        fail(lack);
    const bool isNoLayerTaken = source.layer.isEmpty() && source.layers.size() > 1;
    if (!isRead && !isNoLayerTaken)
        return false;
    survey.lackOfFeeds = std::exchange(report->error, QString());
    if (survey.columns.isEmpty()) {
        // Nothing in the table looks like a rate: the operator may know better.
        source = RawPrescription();
        if (!readPolygons(map, [](const SourceColumn &) { return RateChance::Possible; }))
            return false;
        FileSurvey(source, polygons).addColumns(policy, survey);
        for (SurveyedColumn &column : survey.columns)
            column.product = 0;
    }
    if (survey.columns.isEmpty()) {
        report->error = survey.lackOfFeeds;
        return false;
    }
    FileSurvey(source, polygons).addPicture(survey);
    control.report(1.0);
    return !control.isCancelled() || fail(BackendText::tr("loading was cancelled"));
}

bool PrescriptionLoader::loadInto(LoadedMap &map)
{
    const GdalSession session;
    const GeosInterrupt interrupt(control.cancelled);
    if (!readPolygons(map, ColumnPolicy::chanceOf) || !chooseColumns(map))
        return false;
    dropRecordsWithoutRate();
    countRings(map);
    dropHidden();
    tellGaps();
    if (!arrange())
        return false;
    makeChain(map);
    buildLegends(map);
    reportCounts(map);
    control.report(1.0);
    return true;
}

bool PrescriptionLoader::readPolygons(LoadedMap &map, ColumnJudge judge)
{
    LoadControl reading = control;
    reading.progress = [this](double fraction) { control.report(shareOfReading * fraction); };
    if (control.isCancelled())
        return fail(BackendText::tr("loading was cancelled"));
    if (!policy.refusal().isEmpty())
        return fail(policy.refusal());
    for (const QString &warning : policy.warnings())
        findings->remark(warning);
    PrescriptionReader reader({request.path, policy.named(), request.layer, request.task}, judge, reading);
    if (!reader.read(source))
        return fail(reader.error());
    report->layer = source.layer;
    report->layers = source.layers;
    report->task = source.task;
    report->tasks = source.tasks;
    return place(map) && repairRings();
}

bool PrescriptionLoader::place(LoadedMap &map)
{
    if (source.rings.empty()) {
        if (!source.otherRecords.empty())
            return fail(BackendText::tr("holds points or lines, not polygons"));
        return fail(source.notFiniteRecords.empty() ? BackendText::tr("holds no polygon")
                                                    : BackendText::tr("holds no polygon with finite coordinates"));
    }
    QString reason;
    GeographicExtent extent;
    bool isLocated = LocalPlane::locate(source, extent, reason);
    if (!isLocated || StrayPolygons::mayBeWithin(extent)) {
        findings->addCounted(Kind::StrayPolygon, StrayPolygons::remove(source),
                             {BackendText::tr("polygon that lies more than 100 km from the others was left out"),
                              BackendText::tr("polygons that lie more than 100 km from the others were left out")});
        isLocated = LocalPlane::locate(source, extent, reason);
    }
    if (!isLocated)
        return fail(reason);
    if (!source.reference)
        tell(Kind::ReferenceSystem, source.lackOfReference + BackendText::tr("; taken as WGS 84"));
    const double longitude = 0.5 * (extent.west + extent.east);
    const double latitude = 0.5 * (extent.south + extent.north);
    const auto near = std::find_if(planes.begin(), planes.end(), [longitude, latitude](const LocalPlane &plane) {
        return plane.distanceTo(longitude, latitude) <= maxDistanceOnOnePlane;
    });
    map.plane = near == planes.end() ? LocalPlane(longitude, latitude) : *near;
    if (near == planes.end() && !planes.empty())
        findings->remark(BackendText::tr("lies %1 km from what is loaded and gets a plane of its own")
                             .arg(planes.front().distanceTo(longitude, latitude) / 1000.0, 0, 'f', 0));
    if (!map.plane.project(source, xs, ys, reason))
        return fail(reason);
    map.report.origin = QPointF(map.plane.longitude(), map.plane.latitude());
    placeBoundary(map);
    control.report(shareOfReading + shareOfPlacing);
    return true;
}

void PrescriptionLoader::placeBoundary(LoadedMap &map) const
{
    const SourceBoundary &boundary = source.boundary;
    RawPrescription outline;
    outline.xs = boundary.xs;
    outline.ys = boundary.ys;
    if (source.reference)
        outline.reference.reset(source.reference->Clone());
    std::vector<double> boundaryXs;
    std::vector<double> boundaryYs;
    QString reason;
    if (outline.xs.empty() || !map.plane.project(outline, boundaryXs, boundaryYs, reason))
        return;
    size_t next = 0;
    for (const size_t end : boundary.ends) {
        QPolygonF ring;
        for (; next < end; ++next)
            ring.append(QPointF(boundaryXs[next], boundaryYs[next]));
        if (!ring.isClosed())
            ring.append(ring.first());
        map.report.boundary.append(ring);
    }
}

bool PrescriptionLoader::repairRings()
{
    double maxCoordinate = 1.0;
    for (size_t i = 0; i < xs.size(); ++i) {
        if (std::isfinite(xs[i]) && std::isfinite(ys[i]))
            maxCoordinate = std::max({maxCoordinate, std::fabs(xs[i]), std::fabs(ys[i])});
    }
    const RingRepair repair(maxCoordinate, &ringMemory);
    RingRepair::Outcome outcome;
    outcome.polygons.reserve(source.rings.size());
    const double rings = static_cast<double>(source.rings.size());
    for (size_t ring = 0, reported = 0; ring < source.rings.size();) {
        ring = repair.append(source, xs, ys, ring, outcome);
        if (control.isCancelled())
            return fail(BackendText::tr("loading was cancelled"));
        if (ring - reported < ringsPerReport && ring < source.rings.size())
            continue;
        reported = ring;
        control.report(shareOfReading + shareOfPlacing + shareOfRepair * static_cast<double>(ring) / rings);
    }
    polygons = std::move(outcome.polygons);
    report->repaired = static_cast<int>(outcome.repaired.size());
    std::vector<int> dropped = source.droppedRings;
    dropped.insert(dropped.end(), outcome.dropped.begin(), outcome.dropped.end());
    findings->addCounted(Kind::Skipped, dropped,
                         {BackendText::tr("ring that encloses nothing was left out"),
                          BackendText::tr("rings that enclose nothing were left out")});
    for (const int record : outcome.tangled)
        tell(Kind::Skipped, tangleText(record), record);
    findings->addCounted(Kind::LooseHole, outcome.looseHoles,
                         {BackendText::tr("hole lies in no polygon and was left out"),
                          BackendText::tr("holes lie in no polygon and were left out")});
    findings->addCounted(
        Kind::Repaired, outcome.repaired,
        {BackendText::tr("polygon had to be repaired"), BackendText::tr("polygons had to be repaired")}, polygons);
    if (polygons.empty() && !outcome.tangled.empty())
        return fail(tangleText(outcome.tangled.front()));
    return !polygons.empty() || fail(BackendText::tr("holds no polygon that encloses anything"));
}

void PrescriptionLoader::makeProducts()
{
    if (!request.makeProducts)
        return;
    report->columnProducts = request.columnProducts;
    if (report->columnProducts.isEmpty())
        report->columnProducts = ColumnProducts(request.columns, request.units).of(source, polygons);
    request.products = request.makeProducts(report->columnProducts);
    policy = ColumnPolicy(request.products, request.columns, request.units);
}

bool PrescriptionLoader::chooseColumns(LoadedMap &map)
{
    makeProducts();
    if (!policy.refusal().isEmpty())
        return fail(policy.refusal());
    if (request.tellsGuesses)
        policy.tellGuesses();
    for (const MachineProduct &product : qAsConst(request.products))
        map.productNames.append(product.name.isEmpty() ? product.rateCalName : product.name);
    const ColumnPolicy::Decision decision = policy.decide(source, polygons);
    for (const MapFinding &finding : decision.findings)
        findings->add(finding);
    if (!decision.error.isEmpty())
        return fail(decision.error);
    map.report.sources = decision.sources;
    for (const ColumnPolicy::Feed &feed : decision.feeds) {
        const MachineProduct &product = request.products.at(feed.product);
        map.report.columns.append(source.columns[static_cast<size_t>(feed.column)].name);
        map.rateCalNames.append(product.rateCalName);
        const double given = decision.sources.at(map.defaultRates.size()).placeRates.defaultRate();
        map.defaultRates.append(std::isnan(given) ? product.defaultRate : given);
        map.columns.push_back(
            {map.report.columns.last(), decision.sources.at(int(map.columns.size())).unit, feed.factor});
    }
    rates = RateTable(source, decision.feeds);
    return true;
}

void PrescriptionLoader::dropRecordsWithoutRate()
{
    const auto first = std::stable_partition(polygons.begin(), polygons.end(), [this](const PlanePolygon &polygon) {
        return !rates.hasNone(polygon.record);
    });
    withoutRate.assign(std::make_move_iterator(first), std::make_move_iterator(polygons.end()));
    polygons.erase(first, polygons.end());
}

void PrescriptionLoader::tellGaps()
{
    for (size_t i = 0; i < rates.mappings(); ++i) {
        std::vector<int> gaps;
        for (const PlanePolygon &polygon : polygons) {
            const bool isKnown = !gaps.empty() && gaps.back() == polygon.record;
            if (!isKnown && std::isnan(rates.at(polygon.record, i)))
                gaps.push_back(polygon.record);
        }
        const QString column = report->columns.at(static_cast<int>(i));
        findings->addCounted(Kind::Skipped, gaps,
                             {BackendText::tr("record has no rate in column \"%1\"").arg(column),
                              BackendText::tr("records have no rate in column \"%1\"").arg(column)},
                             polygons);
    }
}

void PrescriptionLoader::countRings(LoadedMap &map) const
{
    std::vector<bool> isUsed(static_cast<size_t>(source.records), false);
    for (const PlanePolygon &polygon : polygons) {
        isUsed[static_cast<size_t>(polygon.record)] = true;
        map.report.holes += static_cast<int>(polygon.holes.size());
    }
    map.report.outers = static_cast<int>(polygons.size());
    map.report.skipped = static_cast<int>(std::count(isUsed.begin(), isUsed.end(), false));
}

void PrescriptionLoader::dropHidden()
{
    const auto hides = [this](int later, int earlier) {
        for (size_t i = 0; i < rates.mappings(); ++i) {
            if (std::isnan(rates.at(later, i)) && !std::isnan(rates.at(earlier, i)))
                return false;
        }
        return true;
    };
    std::vector<PlanePolygon> hidden = DuplicatePolygons::drop(polygons, hides);
    std::vector<int> records;
    for (const PlanePolygon &polygon : hidden)
        records.push_back(polygon.record);
    findings->addCounted(Kind::Duplicate, records,
                         {BackendText::tr("polygon is hidden under a later one of the same shape"),
                          BackendText::tr("polygons are hidden under later ones of the same shape")},
                         hidden);
}

bool PrescriptionLoader::arrange()
{
    if (polygons.empty())
        return fail(BackendText::tr("no polygon has a rate"));
    if (control.isCancelled())
        return fail(BackendText::tr("loading was cancelled"));
    arrangement = HoleArrangement::arrange(polygons);
    findings->addCounted(
        Kind::LooseHole, arrangement.misplaced,
        {BackendText::tr("hole cannot be drawn as one"), BackendText::tr("holes cannot be drawn as such")});
    return !control.isCancelled() || fail(BackendText::tr("loading was cancelled"));
}

void PrescriptionLoader::makeChain(LoadedMap &map) const
{
    map.records.reserve(polygons.size());
    for (const PlanePolygon &polygon : polygons)
        map.records.push_back(polygon.record);
    map.joinedHoles = arrangement.joined;
    map.chain = std::make_shared<PolygonChain>(polygons, rates.values(), rates.mappings());
    map.lookup =
        std::make_unique<RateLookup>(map.chain->first(), map.chain->size(), rates.mappings(), arrangement.takers);
}

void PrescriptionLoader::buildLegends(LoadedMap &map) const
{
    constexpr double squareMetresPerHectare = 10000.0;
    const std::vector<double> areas = map.chain->polygonAreas();
    for (size_t i = 0; i < rates.mappings(); ++i) {
        std::vector<float> column;
        std::vector<int> cells;
        column.reserve(map.records.size());
        cells.reserve(source.cells.size());
        double amount = 0.0;
        for (const int record : map.records) {
            const float rate = rates.at(record, i);
            if (!std::isnan(rate))
                amount += static_cast<double>(rate) * areas[column.size()] / squareMetresPerHectare;
            column.push_back(rate);
            if (!source.cells.empty())
                cells.push_back(source.cellsOf(record));
        }
        const int product = map.report.sources.at(static_cast<int>(i)).product - 1;
        const auto legend = LegendBuilder::build(column, request.products.at(product).displayFactor, cells);
        map.report.legends.append(legend.classes);
        map.report.hasSingleRates.append(legend.hasSingleRates);
        map.report.areas.append(LegendBuilder::areasOf(legend.classes, column, areas));
        map.report.amounts.append(amount);
    }
}

void PrescriptionLoader::reportCounts(LoadedMap &map)
{
    map.report.polygons = static_cast<int>(map.chain->size());
    map.report.bounds = map.chain->bounds();
    const auto tellSkipped = [this](const std::vector<int> &records, const QString &one, const QString &many) {
        findings->addCounted(Kind::Skipped, records, {one, many});
    };
    tellSkipped(source.emptyRecords, BackendText::tr("record without geometry was skipped"),
                BackendText::tr("records without geometry were skipped"));
    tellSkipped(source.otherRecords, BackendText::tr("record that is no polygon was skipped"),
                BackendText::tr("records that are no polygons were skipped"));
    tellSkipped(source.notFiniteRecords, BackendText::tr("record with a coordinate that is not finite was skipped"),
                BackendText::tr("records with a coordinate that is not finite were skipped"));
    std::vector<int> records;
    for (const PlanePolygon &polygon : withoutRate) {
        if (records.empty() || records.back() != polygon.record)
            records.push_back(polygon.record);
    }
    findings->addCounted(
        Kind::Skipped, records,
        {BackendText::tr("record without a rate was skipped"), BackendText::tr("records without a rate were skipped")},
        withoutRate);
    for (const QString &warning : source.warnings)
        findings->remark(warning);
}
