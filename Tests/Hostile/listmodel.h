#pragma once

#include "fieldview.h"
#include "groupreading.h"

#include "Framework/dbgroupjob.h"

#include <QPointer>
#include <QString>
#include <QVector3D>

#include <functional>

class DataBroker;
class DataBrokerGroup;
class DbGroupAAM;

class DbGroupProductGroupInfo;

/// What should be seen of a graphics list: told of everything that the list hears of, it says what is drawn and
/// answered. It reads what groups publish; the host lets no hook act meanwhile.
class ListModel {
public:
    /// A list was made.
    explicit ListModel(const DataBroker &broker);
    ListModel() = default;

    void inited(const DataBroker &broker, bool withContext);
    void activeAamSet(const DataBroker &broker, const QString &name);
    void polygonCountSet(const DataBrokerGroup *group);
    void contextLost() { isInitialized = false; }
    /// The host acted in the middle of something: the outcome is up to the list until it is told again what to show.
    void forget();

    /// The job that the list follows, while it is there.
    DbGroupJob *followedJob() const { return job; }
    bool isTextKnown() const { return textKnown; }
    bool isPictureKnown() const { return pictureKnown; }
    FieldPicture picture() const { return isInitialized ? drawn : FieldPicture{}; }
    /// The answer at a point where `ratesOf` gives a map's valid rates.
    QString text(const DataBroker &broker, const std::function<QList<float>(const DataBrokerGroup *)> &ratesOf) const;

private:
    /// The first map of the active product; null when there is none.
    DataBrokerGroup *mapOfProduct(const DataBroker &broker) const;
    void chooseGroup(const DataBroker &broker);
    void rebuild();
    void draw(const QList<OrvikTypes::RX_RATECOLOR> &legend, int mapping);
    void chooseColor(const QList<OrvikTypes::RX_RATECOLOR> &legend, const OrvikTypes::RX_POLYGON &outer, int mapping);

    QPointer<DbGroupJob> job;
    DbGroupAAM *aam = nullptr;
    DbGroupProductGroupInfo *info = nullptr;
    QPointer<DataBrokerGroup> bound;
    bool isInitialized = false;
    bool textKnown = true;
    bool pictureKnown = true;
    bool colorKnown = true;
    quint32 color = 0x80000000U; ///< Colour of the polygon drawn last; survives polygons and rebuilds.
    FieldPicture drawn{};
};
