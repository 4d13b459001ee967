#include "prescriptionloader.h"

#include "Backend/backendtext.h"
#include "columnproducts.h"
#include "fieldgeometry.h"
#include "filesurvey.h"
#include "gdalsession.h"
#include "geosinterrupt.h"
#include "legendbuilder.h"
#include "recordselection.h"
#include "typicalrate.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <new>
#include <utility>

namespace {

constexpr double shareOfReading = 0.6;
constexpr double shareOfGeometry = 0.3;

bool isAnyInUse(const QList<MachineProduct> &products)
{
    return std::any_of(products.begin(), products.end(),
                       [](const MachineProduct &any) { return any.inUseAt.has_value(); });
}

/// The request with its products as far as they are known before the file is read.
LoadRequest expecting(LoadRequest request)
{
    if (!request.makeProducts)
        return request;
    if (!request.columnProducts.isEmpty())
        request.products = request.makeProducts(request.columnProducts);
    else if (!isAnyInUse(request.products))
        request.products = request.makeProducts(ColumnProducts(request.columns, request.units).expected());
    return request;
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

bool PrescriptionLoader::fail(const QString &text)
{
    report->error = QStringLiteral("%1: %2").arg(request.path, text);
    return false;
}

bool PrescriptionLoader::goesOn()
{
    return !control.isCancelled() || fail(BackendText::tr("loading was cancelled"));
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
    survey.origin = map.report.origin;
    survey.archived = source.archived;
    return survey;
}

bool PrescriptionLoader::attempt(const std::function<bool()> &work)
{
    try {
        return work();
    } catch (const std::bad_alloc &) {
        return fail(BackendText::tr("cannot be loaded, there is not enough memory"));
    } catch (const std::exception &failure) {
        return fail(BackendText::tr("cannot be loaded: %1").arg(QString::fromUtf8(failure.what())));
    }
}

bool PrescriptionLoader::surveyInto(LoadedMap &map, SurveyReport &survey)
{
    const GdalSession session;
    const GeosInterrupt interrupt(control.cancelled);
    const bool isRead = readPolygons(map, ColumnPolicy::chanceToChoose);
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
    const bool looksAnyLikeRates = std::any_of(survey.columns.begin(), survey.columns.end(),
                                               [](const SurveyedColumn &column) { return !column.isTotal; });
    if (!looksAnyLikeRates) {
        // The operator may know better.
        source = RawPrescription();
        survey.columns.clear();
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
    return goesOn();
}

bool PrescriptionLoader::loadInto(LoadedMap &map)
{
    const GdalSession session;
    const GeosInterrupt interrupt(control.cancelled);
    if (!readPolygons(map, ColumnPolicy::chanceOf) || !chooseColumns(map))
        return false;
    RecordSelection records(source, rates, *findings);
    records.select(polygons, *report);
    if (!arrange())
        return false;
    makeChain(map);
    buildLegends(map);
    setDefaultRates(map);
    records.tellSkipped();
    control.report(1.0);
    return true;
}

bool PrescriptionLoader::readPolygons(LoadedMap &map, ColumnJudge judge)
{
    LoadControl reading = control;
    reading.progress = [this](double fraction) { control.report(shareOfReading * fraction); };
    if (!goesOn())
        return false;
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
    return placePolygons(map);
}

bool PrescriptionLoader::placePolygons(LoadedMap &map)
{
    LoadControl placing = control;
    placing.progress = [this](double fraction) { control.report(shareOfReading + shareOfGeometry * fraction); };
    FieldGeometry geometry(source, placing, *findings);
    QString lack = geometry.place(planes, map);
    if (lack.isEmpty())
        lack = geometry.makePolygons(ringMemory.get(), map, polygons);
    return lack.isEmpty() || fail(lack);
}

bool PrescriptionLoader::replacesAllInUse() const
{
    if (!isAnyInUse(request.products))
        return true;
    const QList<RateSource> sources = policy.decide(source, polygons).sources;
    for (int number = 1; number <= request.products.size(); ++number) {
        const auto isFed = [number](const RateSource &fed) { return fed.product == number; };
        // A product in use on another plane is not applied in this field.
        if (request.products.at(number - 1).inUseAt == report->origin
            && std::none_of(sources.begin(), sources.end(), isFed))
            return false;
    }
    return true;
}

void PrescriptionLoader::makeProducts()
{
    if (!request.makeProducts || (request.columnProducts.isEmpty() && !replacesAllInUse()))
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
    for (const QString &warning : decision.warnings)
        findings->remark(warning);
    if (!decision.error.isEmpty())
        return fail(decision.error);
    map.report.sources = decision.sources;
    for (const ColumnPolicy::Feed &feed : decision.feeds) {
        const MachineProduct &product = request.products.at(feed.product);
        map.report.columns.append(source.columns[static_cast<size_t>(feed.column)].name);
        map.rateCalNames.append(product.rateCalName);
        map.columns.push_back(
            {map.report.columns.last(), decision.sources.at(int(map.columns.size())).unit, feed.factor});
    }
    rates = RateTable(source, decision.feeds);
    return true;
}

bool PrescriptionLoader::arrange()
{
    if (polygons.empty())
        return fail(BackendText::tr("no polygon has a rate"));
    if (!goesOn())
        return false;
    arrangement = HoleArrangement::arrange(polygons);
    findings->addCounted(
        MapFinding::Kind::LooseHole, arrangement.misplaced,
        {BackendText::tr("hole cannot be drawn as one"), BackendText::tr("holes cannot be drawn as such")});
    return goesOn();
}

void PrescriptionLoader::makeChain(LoadedMap &map) const
{
    map.records.reserve(polygons.size());
    for (const PlanePolygon &polygon : polygons)
        map.records.push_back(polygon.record);
    map.joinedHoles = arrangement.joined;
    map.chain = std::make_shared<PolygonChain>(polygons, rates.values(), rates.mappings(), ringMemory);
    map.lookup =
        std::make_unique<RateLookup>(map.chain->first(), map.chain->size(), rates.mappings(), arrangement.takers);
    map.report.polygons = static_cast<int>(map.chain->size());
    map.report.bounds = map.chain->bounds();
}

void PrescriptionLoader::buildLegends(LoadedMap &map)
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
        for (ColumnProduct &made : map.report.columnProducts) {
            if (made.number == product + 1)
                made.typicalRate = TypicalRate::of(column, areas, request.products.at(product).displayFactor);
        }
    }
}

void PrescriptionLoader::setDefaultRates(LoadedMap &map)
{
    for (ColumnProduct &made : map.report.columnProducts) {
        for (const RateSource &feed : qAsConst(map.report.sources)) {
            if (feed.product == made.number)
                made.givenRate = feed.placeRates.defaultRate();
        }
    }
    if (!map.report.columnProducts.isEmpty())
        request.products = request.makeProducts(map.report.columnProducts);
    for (const RateSource &feed : qAsConst(map.report.sources)) {
        const double given = feed.placeRates.defaultRate();
        map.defaultRates.append(std::isnan(given) ? request.products.at(feed.product - 1).defaultRate : given);
    }
}
