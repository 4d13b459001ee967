#include "dialoghost.h"
#include "rateunits.h"
#include "testbase.h"

#include <QCoreApplication>
#include <QTranslator>

/// Units and factors of every kind of product.
class TestRateUnits : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyKindHasItsUnit_data();
    void everyKindHasItsUnit();
    void unitTextsAreTranslatedWithTheirComment_data();
    void unitTextsAreTranslatedWithTheirComment();
    void aCarrierNodeRulesOutRatioAndInjection();
    void ratioComesBeforeInjection();
    void aProductOfNoKnownKindHasNoUnit();
};

namespace {

/// Answers every text of the unit context with its comment.
class CommentTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *comment, int) const override
    {
        if (qstrcmp(context, "DbGroupQmlUnitsConverter") != 0)
            return QString();
        return QString::fromLatin1(source) + QLatin1Char('|') + QString::fromLatin1(comment);
    }
};

struct Row {
    const char *kind;
    int unit;
    const char *source;
    const char *comment;
};

const Row rows[] = {
    {"count", 0, "k/ac", "count per area: 1000/acre"},
    {"count", 1, "k/ha", "count per area: 1000/hectare"},
    {"count", 2, "k/tu", "count per area: 1000/turf"},
    {"count", -1, "k/tu", "count per area: 1000/turf"},
    {"ratio", 0, "fl oz/gal", "fluid ounces/galon"},
    {"ratio", 1, "L/L", "liter/liter"},
    {"ratio", 2, "fl oz/gal", "fluid ounces/galon"},
    {"injection", 0, "fl oz/ac", "fluid ounce/acre"},
    {"injection", 1, "mL/ha", "milliliter/hectare"},
    {"injection", 2, "fl oz/tu", "fluid ounce/turf"},
    {"volume", 0, "gal/ac", "gallons/acre"},
    {"volume", 1, "L/ha", "liter/hectare"},
    {"volume", 2, "gal/tu", "gallons/turf"},
    {"weight", 0, "lb/ac", "pound/acre"},
    {"weight", 1, "kg/ha", "kilogram/hectare"},
    {"weight", 99, "lb/tu", "pound/turf"},
    {"pressure", 0, "psi", "unit of pressure: pound-force per square inch"},
    {"pressure", 1, "kPa", "unit of pressure: kilopascals"},
    {"pressure", 2, "bar", "metric unit of pressure"},
    {"pressure", 3, "inHg", "unit of pressure: inch of mercury"},
    {"pressure", 4, "mmHg", "unit of pressure: millemeter of mercury"},
    {"pressure", 5, "atm", "unit of pressure: atmosphere"},
    {"pressure", 6, "hPa", "unit of pressure: hectopascal"},
    {"pressure", 7, "kPa", "unit of pressure: kilopascals"},
    {"pressure", -1, "kPa", "unit of pressure: kilopascals"},
};

/// A product of the given kind, with its node and the operator's unit.
class Product {
public:
    Product(const QString &kind, int unit)
        : item(basisOf(kind))
    {
        using namespace OrvikTypes;
        node.setOperationalSettings(SPN_OperationalSetStruct(kind == QLatin1String("ratio")));
        node.setSwitchByteCalSettings(SPN_SwitchByteCalSettingsStruct(kind == QLatin1String("injection")));
        if (kind == QLatin1String("pressure"))
            units.setPressureUnit(unit);
        else
            units.setAreaUnitSystem(unit);
        // Different factors, so that the six pairs can be told apart.
        units.setCountRateToDisplay(1);
        units.setCountRateFromDisplay(-1);
        units.setRatioRateToDisplay(2);
        units.setRatioRateFromDisplay(-2);
        units.setInjectionRateToDisplay(3);
        units.setInjectionRateFromDisplay(-3);
        units.setVolumeRateToDisplay(4);
        units.setVolumeRateFromDisplay(-4);
        units.setWeightRateToDisplay(5);
        units.setWeightRateFromDisplay(-5);
        units.setPressureToDisplay(6);
        units.setPressureFromDisplay(-6);
    }

    static ProductLineItem::Basis basisOf(const QString &kind)
    {
        if (kind == QLatin1String("count"))
            return ProductLineItem::Count;
        if (kind == QLatin1String("weight"))
            return ProductLineItem::Weight;
        if (kind == QLatin1String("pressure"))
            return ProductLineItem::Pressure;
        return kind == QLatin1String("none") ? ProductLineItem::None : ProductLineItem::Volume;
    }

    RateUnit unit() const { return rateUnitOf(item, node, units); }

    ProductLineItem item;
    DbGroupSingleProductNode node{QStringLiteral("node")};
    DbGroupQmlUnitsConverter units{QStringLiteral("QmlUnitsConverter")};
};

double pairOf(const QString &kind)
{
    static const QStringList kinds{"count", "ratio", "injection", "volume", "weight", "pressure"};
    return kinds.indexOf(kind) + 1.0;
}

} // namespace

void TestRateUnits::everyKindHasItsUnit_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("unitSetting");
    QTest::addColumn<QString>("text");
    for (const Row &row : rows)
        QTest::addRow("%s %d", row.kind, row.unit) << row.kind << row.unit << row.source;
}

void TestRateUnits::everyKindHasItsUnit()
{
    QFETCH(QString, kind);
    QFETCH(int, unitSetting);
    const Product product(kind, unitSetting);
    QTEST(product.unit().text, "text");
    QCOMPARE(product.unit().toDisplay, pairOf(kind));
    QCOMPARE(product.unit().fromDisplay, -pairOf(kind));
}

void TestRateUnits::unitTextsAreTranslatedWithTheirComment_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("unitSetting");
    QTest::addColumn<QString>("translated");
    for (const Row &row : rows)
        QTest::addRow("%s %d", row.kind, row.unit)
            << row.kind << row.unit << QString::fromLatin1(row.source) + QLatin1Char('|') + QLatin1String(row.comment);
}

void TestRateUnits::unitTextsAreTranslatedWithTheirComment()
{
    QFETCH(QString, kind);
    QFETCH(int, unitSetting);
    CommentTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const QString text = Product(kind, unitSetting).unit().text;
    QCoreApplication::removeTranslator(&translator);
    QTEST(text, "translated");
}

void TestRateUnits::aCarrierNodeRulesOutRatioAndInjection()
{
    for (const char *kind : {"ratio", "injection"}) {
        Product product(QString::fromLatin1(kind), 1);
        product.node.setIsCarrier(true);
        QCOMPARE(product.unit().text, QStringLiteral("L/ha"));
        QCOMPARE(product.unit().toDisplay, pairOf(QStringLiteral("volume")));
        QCOMPARE(product.unit().fromDisplay, -pairOf(QStringLiteral("volume")));
    }
}

void TestRateUnits::ratioComesBeforeInjection()
{
    Product product(QStringLiteral("injection"), 1);
    product.node.setOperationalSettings(OrvikTypes::SPN_OperationalSetStruct(true));
    QCOMPARE(product.unit().text, QStringLiteral("L/L"));
    QCOMPARE(product.unit().toDisplay, pairOf(QStringLiteral("ratio")));
    QCOMPARE(product.unit().fromDisplay, -pairOf(QStringLiteral("ratio")));
}

void TestRateUnits::aProductOfNoKnownKindHasNoUnit()
{
    const Product product(QStringLiteral("none"), 1);
    QVERIFY(product.unit().text.isEmpty());
    QCOMPARE(product.unit().toDisplay, 0.0);
    QCOMPARE(product.unit().fromDisplay, 0.0);
}

RXMAP_TEST(TestRateUnits, Widgets)
#include "tst_rateunits.moc"
