#include "layerchoice.h"

#include "Backend/backendtext.h"
#include "gdalsession.h"
#include "tablecolumns.h"

#include <algorithm>
#include <ogrsf_frmts.h>

namespace {

bool isArea(OGRwkbGeometryType type)
{
    const OGRwkbGeometryType kind = wkbFlatten(type);
    return OGR_GT_IsSubClassOf(kind, wkbSurface) || OGR_GT_IsSubClassOf(kind, wkbMultiSurface);
}

bool mayHoldPolygons(OGRLayer &layer)
{
    const OGRwkbGeometryType kind = wkbFlatten(layer.GetGeomType());
    return isArea(kind) || kind == wkbUnknown || kind == wkbGeometryCollection;
}

bool holdsArea(const OGRGeometry *geometry)
{
    if (geometry == nullptr)
        return false;
    if (wkbFlatten(geometry->getGeometryType()) != wkbGeometryCollection)
        return isArea(geometry->getGeometryType());
    const OGRGeometryCollection &members = *geometry->toGeometryCollection();
    return std::any_of(members.begin(), members.end(), [](const OGRGeometry *member) { return holdsArea(member); });
}

/// Why the layer has no polygons; empty when it has.
QString lackOfPolygons(OGRLayer &layer)
{
    if (!mayHoldPolygons(layer))
        return BackendText::tr("holds no polygons");
    // Faults of a layer that is not read are no reason to refuse another.
    const GdalSession own;
    layer.ResetReading();
    int records = 0;
    bool hasPolygons = false;
    while (!hasPolygons) {
        const OGRFeatureUniquePtr feature(layer.GetNextFeature());
        if (!feature)
            break;
        ++records;
        hasPolygons = isArea(layer.GetGeomType()) || holdsArea(feature->GetGeometryRef());
    }
    layer.ResetReading();
    if (hasPolygons)
        return {};
    return records == 0 ? BackendText::tr("holds no records") : BackendText::tr("holds no polygons");
}

QString quoted(const QString &name)
{
    return QStringLiteral("\"%1\"").arg(name);
}

} // namespace

LayerChoice::LayerChoice(GDALDataset &openDataset, const ReadRequest &readRequest, ColumnJudge columnJudge)
    : dataset(openDataset)
    , request(readRequest)
    , judge(columnJudge)
{
}

OGRLayer *LayerChoice::choose(RawPrescription &map)
{
    findOffers(map);
    return take(request.layer.isEmpty() ? firstThatFits(map) : named(map), map);
}

OGRLayer *LayerChoice::chooseForMost(RawPrescription &map)
{
    findOffers(map);
    const auto most = std::max_element(offers.begin(), offers.end(),
                                       [](const Offer &a, const Offer &b) { return a.columns < b.columns; });
    if (!request.layer.isEmpty())
        return take(named(map), map);
    return take(offers.empty() ? firstThatFits(map) : static_cast<int>(most - offers.begin()), map);
}

void LayerChoice::findOffers(RawPrescription &map)
{
    const int count = dataset.GetLayerCount();
    for (OGRLayer *layer : dataset.GetLayers()) {
        const QString name = QString::fromUtf8(layer->GetName());
        // Faults of the only layer are reported by those who read it.
        const QString lack = count > 1 || !mayHoldPolygons(*layer) ? lackOfPolygons(*layer) : QString();
        if (!lack.isEmpty()) {
            unfit.append(count > 1 ? quoted(name) + QLatin1Char(' ') + lack : lack);
            continue;
        }
        map.layers.append(name);
        offers.push_back({layer, {}});
        judgeColumns(offers.back());
    }
}

void LayerChoice::judgeColumns(Offer &offer) const
{
    QStringList names;
    const std::vector<SourceColumn> table = TableColumns::read(*offer.layer->GetLayerDefn(), names);
    for (const SourceColumn &column : table)
        offer.chance = std::max(offer.chance, judge(column));
    bool isAnyNamed = false;
    for (const QString &wanted : request.columns) {
        if (wanted.isEmpty())
            continue;
        isAnyNamed = true;
        const int place = TableColumns::find(names, wanted);
        if (place >= 0)
            ++offer.columns;
        else if (offer.lack.isEmpty())
            offer.lack = BackendText::tr("has no column \"%1\"").arg(wanted);
    }
    if (isAnyNamed)
        offer.chance = RateChance::Named;
    else if (offer.chance < RateChance::Possible)
        offer.lack = BackendText::tr("has no column that looks like a rate");
}

int LayerChoice::named(const RawPrescription &map)
{
    const int place = TableColumns::find(map.layers, request.layer);
    if (place < 0)
        reason =
            BackendText::tr("has no layer \"%1\" with polygons; it has %2")
                .arg(request.layer, map.layers.isEmpty() ? BackendText::tr("none") : TableColumns::list(map.layers));
    return place;
}

int LayerChoice::firstThatFits(const RawPrescription &map)
{
    for (const RateChance chance : {RateChance::Named, RateChance::Possible}) {
        const auto first = std::find_if(offers.begin(), offers.end(), [chance](const Offer &offer) {
            return offer.lack.isEmpty() && offer.chance == chance;
        });
        if (first != offers.end())
            return static_cast<int>(first - offers.begin());
    }
    // Faults of the only layer are best reported by those who read its records.
    if (offers.size() == 1)
        return 0;
    for (size_t i = 0; i < offers.size(); ++i)
        unfit.append(quoted(map.layers.at(static_cast<int>(i))) + QLatin1Char(' ') + offers[i].lack);
    if (unfit.isEmpty())
        reason = BackendText::tr("holds no layer");
    else if (dataset.GetLayerCount() == 1)
        reason = unfit.first();
    else
        reason = BackendText::tr("none of its layers will do: ") + TableColumns::list(unfit);
    return -1;
}

OGRLayer *LayerChoice::take(int place, RawPrescription &map)
{
    if (place < 0)
        return nullptr;
    QStringList others;
    for (const QString &name : qAsConst(map.layers))
        others.append(quoted(name));
    const QString taken = others.takeAt(place);
    if (request.layer.isEmpty() && !others.isEmpty())
        map.warnings.append(
            BackendText::tr("of its layers %1 is loaded, not %2").arg(taken, TableColumns::list(others)));
    map.layer = map.layers.at(place);
    return offers[static_cast<size_t>(place)].layer;
}
