#include "listmodel.h"

#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"

#include <QCoreApplication>
#include <QRectF>

#include <algorithm>
#include <cmath>

using OrvikTypes::RX_POLYGON;

namespace {

/// Rings of this host are rectangles with sides along the axes, perhaps with vertices that are no numbers.
QRectF boxOf(const RX_POLYGON &ring)
{
    double left = INFINITY, right = -INFINITY, bottom = INFINITY, top = -INFINITY;
    for (quint32 i = 0; i < ring.vertexCount; ++i) {
        left = std::fmin(left, ring.vertices[i].x);
        right = std::fmax(right, ring.vertices[i].x);
        bottom = std::fmin(bottom, ring.vertices[i].y);
        top = std::fmax(top, ring.vertices[i].y);
    }
    return ring.vertexCount < 4 ? QRectF() : QRectF(QPointF(left, bottom), QPointF(right, top));
}

bool takes(const RX_POLYGON &outer, const RX_POLYGON &hole)
{
    return outer.area - 10.0 > hole.area && hole.vertexCount > 0 && boxOf(outer).contains(boxOf(hole));
}

quint32 drawnColor(const QColor &color)
{
    const auto alpha = static_cast<quint32>(color.alpha() / 2.0 + 0.5);
    return static_cast<quint32>(color.red() | color.green() << 8 | color.blue() << 16) | alpha << 24;
}

} // namespace

ListModel::ListModel(const DataBroker &broker)
    : job(findGroup<DbGroupJob>(broker, QStringLiteral("system.current.job")))
{
    if (job)
        activeAamSet(broker, job->getActiveAAMGroupName());
}

void ListModel::inited(const DataBroker &broker, bool withContext)
{
    isInitialized = isInitialized || withContext;
    chooseGroup(broker);
}

void ListModel::activeAamSet(const DataBroker &broker, const QString &name)
{
    aam = findGroup<DbGroupAAM>(broker, name);
    info = aam == nullptr ? nullptr : findGroup<DbGroupProductGroupInfo>(broker, aam->productGroupName());
    textKnown = true;
    if (isInitialized)
        chooseGroup(broker);
}

void ListModel::polygonCountSet(const DataBrokerGroup *group)
{
    if (pictureKnown && group == bound && group != nullptr)
        rebuild();
}

void ListModel::forget()
{
    textKnown = pictureKnown = colorKnown = false;
}

void ListModel::chooseGroup(const DataBroker &broker)
{
    bound = aam == nullptr ? nullptr : mapOfProduct(broker);
    pictureKnown = textKnown;
    rebuild();
}

DataBrokerGroup *ListModel::mapOfProduct(const DataBroker &broker) const
{
    for (const QString &name : broker.findGroup(QStringLiteral("rxMap.*"), true, false)) {
        DataBrokerGroup *group = broker.getGroup(name, false);
        if (placeOf(valueOf<Mappings>(group, "rateCalMappings"), aam->productGroupName()) >= 0)
            return group;
    }
    return nullptr;
}

QString ListModel::text(const DataBroker &broker,
                        const std::function<QList<float>(const DataBrokerGroup *)> &ratesOf) const
{
    const DataBrokerGroup *group = aam == nullptr ? nullptr : mapOfProduct(broker);
    if (group == nullptr)
        return {};
    const QList<float> rates = ratesOf(group);
    const int place = placeOf(valueOf<Mappings>(group, "rateCalMappings"), aam->productGroupName());
    if (place >= rates.size())
        return {};
    const double rate = static_cast<double>(rates.at(place)) * (info == nullptr ? 1.0 : getRateConversion(info));
    return QCoreApplication::translate("RxMapGraphicsList", "Rx Rate: ") + QString::number(rate, 'f', 2) + "\n\n";
}

void ListModel::rebuild()
{
    drawn.fill(0);
    if (bound == nullptr || aam == nullptr)
        return;
    const int mapping = placeOf(valueOf<Mappings>(bound, "rateCalMappings"), aam->productGroupName());
    const auto legends = valueOf<Legends>(bound, "rateColors");
    if (mapping >= 0 && mapping < legends.size())
        draw(legends.at(mapping), mapping);
}

void ListModel::draw(const QList<OrvikTypes::RX_RATECOLOR> &legend, int mapping)
{
    QList<RX_POLYGON *> outers;
    QList<RX_POLYGON *> holes;
    auto *polygon = static_cast<RX_POLYGON *>(valueOf<void *>(bound, "polygonBuffer"));
    for (auto left = valueOf<unsigned int>(bound, "polygonCount"); polygon != nullptr && left > 0; --left) {
        (polygon->isHole ? holes : outers).append(polygon);
        polygon = polygon->next;
    }
    for (const RX_POLYGON *outer : outers) {
        QList<QRectF> cut;
        for (RX_POLYGON *hole : QList<RX_POLYGON *>(holes)) {
            if (takes(*outer, *hole)) {
                cut.append(boxOf(*hole));
                holes.removeOne(hole);
            }
        }
        chooseColor(legend, *outer, mapping);
        for (int pixel = 0; pixel < int(drawn.size()); ++pixel) {
            const QPointF middle(pixel % fieldSize + 0.5, pixel / fieldSize + 0.5);
            const bool isCut =
                std::any_of(cut.cbegin(), cut.cend(), [middle](const QRectF &hole) { return hole.contains(middle); });
            if (boxOf(*outer).contains(middle) && !isCut) {
                drawn[static_cast<std::size_t>(pixel)] = color;
                pictureKnown = pictureKnown && colorKnown;
            }
        }
    }
}

void ListModel::chooseColor(const QList<OrvikTypes::RX_RATECOLOR> &legend, const RX_POLYGON &outer, int mapping)
{
    if (legend.isEmpty() || outer.rates == nullptr)
        return;
    const auto rate = static_cast<double>(outer.rates[mapping]);
    colorKnown = true;
    for (const OrvikTypes::RX_RATECOLOR &entry : legend) {
        color = drawnColor(entry.color);
        if (entry.rate >= rate)
            return;
    }
}
