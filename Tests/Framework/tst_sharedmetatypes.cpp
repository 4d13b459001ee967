#include "testbase.h"

#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"
#include "Framework/rxsettings.h"
#include "Framework/spnoperationalsetstruct.h"
#include "Framework/spnswitchbytecalsettingsstruct.h"
#include "Framework/units.h"
#include "Framework/xyz.h"

#include <type_traits>

using namespace OrvikTypes;

class TestSharedMetaTypes : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void eachTypeIsFoundUnderItsName_data();
    void eachTypeIsFoundUnderItsName();
    void idsComeFromTheSharedTypeLibrary();
    void copiesShareTheirTextAndKeepEveryField();
    void polygonRecordsHaveTheirFieldsInOrder();
    void unitAbbreviationsAreComplete();
};

void TestSharedMetaTypes::eachTypeIsFoundUnderItsName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("id");
    QTest::newRow("settings") << QByteArray("QList<OrvikTypes::RX_SETTINGS>") << qMetaTypeId<QList<RX_SETTINGS>>();
    QTest::newRow("mappings") << QByteArray("QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>")
                              << qMetaTypeId<QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>>();
    QTest::newRow("setting") << QByteArray("OrvikTypes::RX_SETTINGS") << qMetaTypeId<RX_SETTINGS>();
    QTest::newRow("mapping") << QByteArray("OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING")
                             << qMetaTypeId<RX_DBFCOLUMN_TO_RATECAL_MAPPING>();
    QTest::newRow("colour") << QByteArray("OrvikTypes::RX_RATECOLOR") << qMetaTypeId<RX_RATECOLOR>();
    QTest::newRow("legend") << QByteArray("QList<OrvikTypes::RX_RATECOLOR>") << qMetaTypeId<QList<RX_RATECOLOR>>();
    QTest::newRow("legends") << QByteArray("QList<QList<OrvikTypes::RX_RATECOLOR>>")
                             << qMetaTypeId<QList<QList<RX_RATECOLOR>>>();
    QTest::newRow("point") << QByteArray("OrvikTypes::XYZ") << qMetaTypeId<XYZ>();
    QTest::newRow("operational settings")
        << QByteArray("OrvikTypes::SPN_OperationalSetStruct") << qMetaTypeId<SPN_OperationalSetStruct>();
    QTest::newRow("switch-byte calibration")
        << QByteArray("OrvikTypes::SPN_SwitchByteCalSettingsStruct") << qMetaTypeId<SPN_SwitchByteCalSettingsStruct>();
}

void TestSharedMetaTypes::eachTypeIsFoundUnderItsName()
{
    QFETCH(QByteArray, name);
    QFETCH(int, id);
    QVERIFY(id >= int(QMetaType::User));
    QCOMPARE(QMetaType::type(name.constData()), id);
}

void TestSharedMetaTypes::idsComeFromTheSharedTypeLibrary()
{
    QCOMPARE(QMetaTypeId<QList<RX_SETTINGS>>::qt_metatype_id(), qMetaTypeId<QList<RX_SETTINGS>>());
    QCOMPARE(QMetaTypeId<QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>>::qt_metatype_id(),
             qMetaTypeId<QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>>());
    QVERIFY(qMetaTypeId<QList<RX_SETTINGS>>() != qMetaTypeId<QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>>());
}

void TestSharedMetaTypes::copiesShareTheirTextAndKeepEveryField()
{
    RX_SETTINGS settings;
    settings.name = QStringLiteral("first");
    settings.onLookAheadMs = 1260;
    settings.isMaster = true;
    const RX_SETTINGS copy = settings;
    QVERIFY(copy == settings);
    QVERIFY(copy.name.isSharedWith(settings.name));
    QVERIFY(copy != RX_SETTINGS());

    RX_DBFCOLUMN_TO_RATECAL_MAPPING mapping;
    mapping.rateCalName = QStringLiteral("Product 1");
    mapping.auxIndices = {1, 2};
    mapping.auxNumber2 = 9;
    const RX_DBFCOLUMN_TO_RATECAL_MAPPING mappingCopy = mapping;
    QVERIFY(mappingCopy == mapping);
    QVERIFY(mappingCopy.rateCalName.isSharedWith(mapping.rateCalName));
    QVERIFY(mappingCopy != RX_DBFCOLUMN_TO_RATECAL_MAPPING());
}

void TestSharedMetaTypes::polygonRecordsHaveTheirFieldsInOrder()
{
    QVERIFY(std::is_standard_layout<RX_POLYGON>::value);
    QVERIFY(offsetof(RX_POLYGON, area) < offsetof(RX_POLYGON, drawIndex));
    QVERIFY(offsetof(RX_POLYGON, drawIndex) < offsetof(RX_POLYGON, vertices));
    QVERIFY(offsetof(RX_POLYGON, vertices) < offsetof(RX_POLYGON, vertexCount));
    QVERIFY(offsetof(RX_POLYGON, vertexCount) < offsetof(RX_POLYGON, rates));
    QVERIFY(offsetof(RX_POLYGON, rates) < offsetof(RX_POLYGON, isHole));
    QVERIFY(offsetof(RX_POLYGON, isHole) < offsetof(RX_POLYGON, next));
    QCOMPARE(int(sizeof(RX_POLYGONVERTEX)), 16);
}

void TestSharedMetaTypes::unitAbbreviationsAreComplete()
{
    using namespace OrvikUnits;
    const QStringList units{FluidOunce, CubicMillimeter, Milliliter, Liter, Pint,
                            Gallon,     ShortTon,        Tonne,      Ounce, Pound,
                            Gram,       Kilogram,        Milligram,  Acre,  ThousandSquareFeet,
                            Hectare,    SquareMeter};
    QCOMPARE(units,
             (QStringList{"fl oz", "mm3", "mL", "L", "pt", "gal", "ton", "t", "oz", "lb", "g", "kg", "mg", "ac",
                          "1000 ft2", "ha", "m2"}));
    QCOMPARE(QLatin1String(widgetModeSetting), QLatin1String("widgetModeSetting"));
}

QTEST_GUILESS_MAIN(TestSharedMetaTypes)
#include "tst_sharedmetatypes.moc"
