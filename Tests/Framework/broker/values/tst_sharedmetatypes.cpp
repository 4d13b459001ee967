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

using IdOfType = int (*)();
Q_DECLARE_METATYPE(IdOfType)

class TestSharedMetaTypes : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void eachTypeIsFoundUnderItsName_data();
    void eachTypeIsFoundUnderItsName();
    void copiesShareTheirTextAndKeepEveryField();
    void polygonRecordsHaveTheirFieldsInOrder();
    void unitAbbreviationsAreComplete();
};

void TestSharedMetaTypes::eachTypeIsFoundUnderItsName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<IdOfType>("idOfType");
    QTest::newRow("settings") << QByteArray("QList<OrvikTypes::RX_SETTINGS>")
                              << IdOfType(QMetaTypeId<QList<RX_SETTINGS>>::qt_metatype_id);
    QTest::newRow("mappings") << QByteArray("QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>")
                              << IdOfType(QMetaTypeId<QList<RX_DBFCOLUMN_TO_RATECAL_MAPPING>>::qt_metatype_id);
    QTest::newRow("setting") << QByteArray("OrvikTypes::RX_SETTINGS")
                             << IdOfType(QMetaTypeId<RX_SETTINGS>::qt_metatype_id);
    QTest::newRow("mapping") << QByteArray("OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING")
                             << IdOfType(QMetaTypeId<RX_DBFCOLUMN_TO_RATECAL_MAPPING>::qt_metatype_id);
    QTest::newRow("colour") << QByteArray("OrvikTypes::RX_RATECOLOR")
                            << IdOfType(QMetaTypeId<RX_RATECOLOR>::qt_metatype_id);
    QTest::newRow("legend") << QByteArray("QList<OrvikTypes::RX_RATECOLOR>")
                            << IdOfType(QMetaTypeId<QList<RX_RATECOLOR>>::qt_metatype_id);
    QTest::newRow("legends") << QByteArray("QList<QList<OrvikTypes::RX_RATECOLOR>>")
                             << IdOfType(QMetaTypeId<QList<QList<RX_RATECOLOR>>>::qt_metatype_id);
    QTest::newRow("point") << QByteArray("OrvikTypes::XYZ") << IdOfType(QMetaTypeId<XYZ>::qt_metatype_id);
    QTest::newRow("operational settings") << QByteArray("OrvikTypes::SPN_OperationalSetStruct")
                                          << IdOfType(QMetaTypeId<SPN_OperationalSetStruct>::qt_metatype_id);
    QTest::newRow("switch-byte calibration") << QByteArray("OrvikTypes::SPN_SwitchByteCalSettingsStruct")
                                             << IdOfType(QMetaTypeId<SPN_SwitchByteCalSettingsStruct>::qt_metatype_id);
}

void TestSharedMetaTypes::eachTypeIsFoundUnderItsName()
{
    QFETCH(QByteArray, name);
    QFETCH(IdOfType, idOfType);
    // By name first: asking for the id would itself register the name.
    const int found = QMetaType::type(name.constData());
    QVERIFY(found >= int(QMetaType::User));
    QCOMPARE(found, idOfType());
    QCOMPARE(QByteArray(QMetaType::typeName(found)), QMetaObject::normalizedType(name.constData()));
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

RXMAP_TEST(TestSharedMetaTypes, Core)
#include "tst_sharedmetatypes.moc"
