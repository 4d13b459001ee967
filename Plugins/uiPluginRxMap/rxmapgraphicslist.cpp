#include "rxmapgraphicslist.h"

#include "groupvalue.h"
#include "ratemapping.h"
#include "rxmap3d.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/xyz.h"
#include "bePluginRxMap/dbgrouprxmap.h"

namespace {

template <typename Group> Group *findGroupOf(const DataBroker *broker, const QString &name)
{
    return broker == nullptr ? nullptr : qobject_cast<Group *>(broker->getGroup(name, false));
}

} // namespace

RxMapGraphicsList::RxMapGraphicsList(DataBroker *givenBroker, QObject *parent)
    : UiGraphicsList(givenBroker, parent)
    , rxMap3D(new RxMap3D(givenBroker, this))
{
    objects.append(rxMap3D);
    unitsConverter = findGroupOf<DbGroupQmlUnitsConverter>(broker, QStringLiteral("QmlUnitsConverter"));
    // By design: the placeholder stays unfilled; the list reads prescriptions by name, never through this pointer.
    rxMapGroup = findGroupOf<DbGroupRxMap>(broker, QStringLiteral("rxMap.%1"));

    DbGroupJob *job = findGroupOf<DbGroupJob>(broker, QStringLiteral("system.current.job"));
    if (job == nullptr)
        return;
    // By design: the name is read before the list subscribes to it; a product that a hook activates in between goes
    // unnoticed.
    activeAamChanged(job->getActiveAAMGroupName());
    job->connectPropertySetSlot("activeAAMGroupName", this, SLOT(activeAamChanged(QString)), Qt::UniqueConnection,
                                true);
}

RxMapGraphicsList::~RxMapGraphicsList()
{
    while (!objects.isEmpty())
        delete objects.takeLast();
}

void RxMapGraphicsList::init()
{
    const QPointer<RxMapGraphicsList> self(this);
    for (int i = 0; self && i < objects.size(); ++i)
        objects.at(i)->init();
    if (self && rxMap3D)
        rxMap3D->updateRxMapGroup();
}

void RxMapGraphicsList::activeAamChanged(QString name)
{
    // Reading runs the host's hooks, which may replace this list or activate another product; the latest product
    // counts.
    const QPointer<RxMapGraphicsList> self(this);
    DbGroupAAM *const aam = findGroupOf<DbGroupAAM>(broker, name);
    aamGroup = aam;
    if (rxMap3D)
        rxMap3D->setAamGroup(aam);
    const QString productGroup = aam == nullptr ? QString() : aam->productGroupName();
    if (self && aamGroup == aam)
        productGroupInfo = aam == nullptr ? nullptr : findGroupOf<DbGroupProductGroupInfo>(broker, productGroup);
}

QString RxMapGraphicsList::getPointDescription(QVector3D point)
{
    const QVariant query = QVariant::fromValue(OrvikTypes::XYZ(
        static_cast<double>(point.x()), static_cast<double>(point.y()), static_cast<double>(point.z())));
    // Reads and the write run the host's hooks and slots, which may replace this list: no member is touched after them.
    DataBroker *const source = broker;
    const DbGroupAAM *const aam = aamGroup;
    DbGroupProductGroupInfo *const info = productGroupInfo;
    if (source == nullptr || aam == nullptr)
        return {};
    const QStringList names = source->findGroup(QStringLiteral("rxMap.*"), true, false);
    const double factor = info == nullptr ? 1.0 : getRateConversion(info);
    for (const QString &name : names) {
        const QByteArray group = name.toLatin1();
        const int position = mappingIndex(*source, group, *aam);
        // By design: the first map of the active product decides, also when its answer is not valid.
        if (position >= 0)
            return describe(*source, group, position, query, factor);
    }
    return {};
}

int RxMapGraphicsList::mappingIndex(const DataBroker &broker, const QByteArray &group, const DbGroupAAM &aam)
{
    const auto mappings =
        groupValue<QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>>(broker, group.constData(), "rateCalMappings");
    return findMapping(mappings, aam.productGroupName());
}

QString RxMapGraphicsList::describe(DataBroker &broker, const QByteArray &group, int position, const QVariant &point,
                                    double factor)
{
    broker.setProperty(group.constData(), "queryRatesAtXYZ", point);
    const QList<float> rates = groupValue<QList<float>>(broker, group.constData(), "ratesAtXYZ");
    const bool valid = groupValue<bool>(broker, group.constData(), "ratesAtXYZValid");
    if (!valid || position >= rates.size())
        return {};
    const double rate = static_cast<double>(rates.at(position)) * factor;
    return tr("Rx Rate: ") + QString::number(rate, 'f', 2) + QStringLiteral("\n\n");
}
