#pragma once

#include "Framework/databroker.h"
#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"

#include <QList>
#include <QString>

#include <deque>
#include <vector>

class DbGroupAAM;
class DbGroupJob;
class DbGroupProductGroupInfo;
class DbGroupQmlUnitsConverter;
class DbGroupRxMap;

/// A ring as a list of x, y pairs.
using Ring = std::vector<OrvikTypes::RX_POLYGONVERTEX>;

Ring square(double left, double bottom, double size);
/// Signed area by the shoelace formula (Meister 1769), counter-clockwise positive, square metres.
double signedArea(const Ring &ring);

/// Builds and owns a chain of polygon records.
class PolygonChain {
public:
    /// Adds an outer ring with one rate per mapping; the area is the ring's own.
    OrvikTypes::RX_POLYGON &addOuter(const Ring &ring, std::vector<float> rates = {1.0F});
    OrvikTypes::RX_POLYGON &addHole(const Ring &ring);
    OrvikTypes::RX_POLYGON *first();
    unsigned int count() const { return static_cast<unsigned int>(polygons.size()); }
    OrvikTypes::RX_POLYGON &at(unsigned int index) { return polygons.at(index); }

private:
    OrvikTypes::RX_POLYGON &add(const Ring &ring, std::vector<float> rates, bool isHole);

    std::deque<Ring> rings;
    std::deque<std::vector<float>> rateLists;
    std::deque<OrvikTypes::RX_POLYGON> polygons;
};

OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING mappingFor(const QString &rateCalName);

/// The host as the map sees it: a broker with a job, application maps for the products "system.productGroup.1" and
/// "system.productGroup.2", units, and prescription groups as a test needs them.
class MapHost {
public:
    /// `iniFile`: the terminal's settings; empty: none.
    explicit MapHost(const QString &iniFile = QString());

    static QString productGroup(int number);
    static QString aamName(int number);
    DbGroupAAM *aam(int number) const;
    void activateProduct(int number);
    /// Publishes an empty prescription group "rxMap.<name>" that maps the given products in order.
    DbGroupRxMap *addMap(const QString &name, const QList<int> &products);
    /// Publishes the chain and one legend for every mapping.
    static void publish(DbGroupRxMap &group, PolygonChain &chain, const QList<OrvikTypes::RX_RATECOLOR> &legend);

    DataBroker broker;
    DbGroupJob *job;
    DbGroupQmlUnitsConverter *units;
};
