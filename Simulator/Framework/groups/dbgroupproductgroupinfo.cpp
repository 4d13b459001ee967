#include "Framework/dbgroupproductgroupinfo.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupqmlunitsconverter.h"

class DbGroupProductGroupInfoPrivate {
public:
    int productNumber = 0;
    int rateKind = DbGroupProductGroupInfo::UnknownRate;
};

DbGroupProductGroupInfo::DbGroupProductGroupInfo(const QString &name, QObject *parent)
    : DataBrokerGroup(name, parent)
    , d(new DbGroupProductGroupInfoPrivate)
{
}

DbGroupProductGroupInfo::~DbGroupProductGroupInfo() = default;

ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupProductGroupInfo, int, productNumber, ProductNumber, d->productNumber)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupProductGroupInfo, int, rateKind, RateKind, d->rateKind)

double getRateConversion(DbGroupProductGroupInfo *group)
{
    constexpr double unconverted = 1.0;
    if (group == nullptr || group->broker() == nullptr)
        return unconverted;
    const auto *const units =
        qobject_cast<DbGroupQmlUnitsConverter *>(group->broker()->getGroup(QStringLiteral("QmlUnitsConverter"), false));
    if (units == nullptr)
        return unconverted;
    switch (group->getRateKind()) {
    case DbGroupProductGroupInfo::CountRate:
        return units->getCountRateToDisplay();
    case DbGroupProductGroupInfo::RatioRate:
        return units->getRatioRateToDisplay();
    case DbGroupProductGroupInfo::InjectionRate:
        return units->getInjectionRateToDisplay();
    case DbGroupProductGroupInfo::VolumeRate:
        return units->getVolumeRateToDisplay();
    case DbGroupProductGroupInfo::WeightRate:
        return units->getWeightRateToDisplay();
    case DbGroupProductGroupInfo::PressureRate:
        return units->getPressureToDisplay();
    default:
        return unconverted;
    }
}
