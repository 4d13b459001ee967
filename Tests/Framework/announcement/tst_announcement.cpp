#include "recordingannouncement.h"
#include "samplegroup.h"
#include "testbase.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QMetaProperty>

namespace {

/// Writes to every property that the group's own classes declare the value that it already has.
void writeEveryProperty(DataBrokerGroup &group)
{
    const QMetaObject *const meta = group.metaObject();
    for (int index = DataBrokerGroup::staticMetaObject.propertyCount(); index < meta->propertyCount(); ++index)
        meta->property(index).write(&group, meta->property(index).read(&group));
}

void compareWithTheNotifySignals(const QMetaObject &meta, const QList<Announcement> &announced)
{
    const int first = DataBrokerGroup::staticMetaObject.propertyCount();
    QCOMPARE(announced.size(), meta.propertyCount() - first);
    for (int i = 0; i < announced.size(); ++i) {
        const QMetaProperty property = meta.property(first + i);
        QCOMPARE(announced[i].property, QByteArray(property.name()));
        QCOMPARE(QMetaObject::normalizedType(announced[i].typeName.constData()),
                 property.notifySignal().parameterTypes().value(0));
        QCOMPARE(QMetaType::type(announced[i].typeName.constData()), property.userType());
        QVERIFY(announced[i].value != nullptr);
    }
}

} // namespace

/// The type with which the accessors declare a new value to the listeners. A listener called directly cannot tell: the
/// call uses only the address.
class TestAnnouncement : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyPropertyOfAMapIsDeclaredUnderItsMetaType();
    void everyKindOfValueIsDeclaredUnderItsMetaType();
    void theListsAreDeclaredUnderTheirFullNames();
};

void TestAnnouncement::everyPropertyOfAMapIsDeclaredUnderItsMetaType()
{
    DbGroupRxMap group(QStringLiteral("rxMap.a"));
    takeAnnouncements();
    writeEveryProperty(group);
    compareWithTheNotifySignals(DbGroupRxMap::staticMetaObject, takeAnnouncements());
}

void TestAnnouncement::everyKindOfValueIsDeclaredUnderItsMetaType()
{
    // Known by name only once it has been used.
    qRegisterMetaType<QList<float>>();
    SampleGroup group(QStringLiteral("sample"));
    takeAnnouncements();
    writeEveryProperty(group);
    compareWithTheNotifySignals(SampleGroup::staticMetaObject, takeAnnouncements());
}

void TestAnnouncement::theListsAreDeclaredUnderTheirFullNames()
{
    DbGroupRxMap group(QStringLiteral("rxMap.a"));
    takeAnnouncements();
    group.setSettings({});
    group.setRateCalMappings({});
    const QList<Announcement> announced = takeAnnouncements();
    QCOMPARE(announced.size(), 2);
    QCOMPARE(announced[0].typeName, QByteArray("QList<OrvikTypes::RX_SETTINGS>"));
    QCOMPARE(announced[1].typeName, QByteArray("QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>"));
}

RXMAP_TEST(TestAnnouncement, Core)
#include "tst_announcement.moc"
