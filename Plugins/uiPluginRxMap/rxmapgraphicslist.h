#pragma once

#include "Framework/uigraphicslist.h"

#include <QPointer>

class DbGroupAAM;
class DbGroupProductGroupInfo;
class DbGroupQmlUnitsConverter;
class DbGroupRxMap;
class RxMap3D;

/// The plug-in's share of the host's 3D field view: owns the map drawable, follows the job's active application map
/// and tells the prescribed rate at a point.
class RxMapGraphicsList : public UiGraphicsList {
    Q_OBJECT

public:
    RxMapGraphicsList(DataBroker *broker, QObject *parent);
    /// Deletes the drawables.
    ~RxMapGraphicsList() override;

    /// "Rx Rate: " and the rate of the active product at `point`, in the operator's unit with two decimals, and a blank
    /// line; empty where nothing is prescribed.
    QString getPointDescription(QVector3D point) override;
    void init() override;

public Q_SLOTS:
    /// Looks the application map of that name up again and gives it to the drawable; null when there is none.
    void activeAamChanged(QString name);

private:
    friend class RxMapGraphicsListProbe;

    /// Position of the mapping of `aam`'s product in the group of that name; -1 when it has none.
    static int mappingIndex(const DataBroker &broker, const QByteArray &group, const DbGroupAAM &aam);
    /// Asks the back-end for the rate at `position` of its answer; empty when the answer is not valid.
    static QString describe(DataBroker &broker, const QByteArray &group, int position, const QVariant &point,
                            double factor);

    DbGroupRxMap *rxMapGroup = nullptr;
    DbGroupAAM *aamGroup = nullptr;
    DbGroupProductGroupInfo *productGroupInfo = nullptr;
    DbGroupQmlUnitsConverter *unitsConverter = nullptr;
    QPointer<RxMap3D> rxMap3D; ///< Null once it is deleted, while the list goes.
};
