#include "columnproducts.h"
#include "testbase.h"

/// Which products the columns of a file name.
class ColumnProductsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void columnsMakeProducts_data();
    void columnsMakeProducts();
    void whatAFormatCallsAColumnOrItsMeasureIsTheProductsName();
    void namedColumnsAndUnitsAreExpectedBeforeTheFileIsRead();
    void aProductIsKnownByItsColumn();
};

namespace {

using Names = QStringList;

RawPrescription mapOf(const Names &names)
{
    RawPrescription map;
    map.records = 4;
    for (const QString &name : names) {
        SourceColumn column;
        column.name = name;
        column.field = map.columnNames.size();
        column.values = {1.5, 1.5, 2.5, 3.5 + column.field};
        map.columnNames.append(name);
        map.numberFields.push_back(column.field);
        map.columns.push_back(column);
    }
    return map;
}

/// "number:name, kind"
Names textsOf(const QList<ColumnProduct> &products)
{
    Names texts;
    for (const ColumnProduct &product : products) {
        const char *kind = product.kind == DbGroupProductGroupInfo::CountRate ? "count"
            : product.kind == DbGroupProductGroupInfo::VolumeRate             ? "volume"
            : product.kind == DbGroupProductGroupInfo::WeightRate             ? "weight"
                                                                              : "other";
        texts.append(
            QStringLiteral("%1:%2, %3").arg(QString::number(product.number), product.name, QLatin1String(kind)));
    }
    return texts;
}

} // namespace

void ColumnProductsTest::columnsMakeProducts_data()
{
    QTest::addColumn<Names>("columns");
    QTest::addColumn<Names>("named");
    QTest::addColumn<Names>("units");
    QTest::addColumn<Names>("products");
    const auto row = [](const char *tag, const Names &columns, const Names &named, const Names &units,
                        const Names &products) { QTest::newRow(tag) << columns << named << units << products; };
    row("by their units", {"UREA_KG_HA", "GPA", "Mais_seeds_m2", "AREA_HA"}, {}, {},
        {"1:Urea, weight", "2:GPA, volume", "3:Mais, count"});
    row("letters", {"A_kg_ha", "B_l_ha", "C_l_ha", "M_l_ha"}, {}, {},
        {"1:A, weight", "2:B, volume", "3:C, volume", "4:M, volume"});
    row("more than a machine usually has", {"A_kg_ha", "B_kg_ha", "Lime_l_ha", "D_lb_ac"}, {}, {},
        {"1:A, weight", "2:B, weight", "3:Lime, volume", "4:D, weight"});
    row("seed by weight", {"SEED_kg_ha"}, {}, {}, {"1:Seed, weight"});
    row("no unit, but a name", {"Rate_Herb", "Rate_Seed"}, {}, {}, {"1:Herb, volume", "2:Seed, count"});
    row("neither unit nor name", {"Rate"}, {}, {}, {"1:Rate, weight"});
    row("by the operator's unit", {"Rate", "Dose"}, {}, {"seeds/m2", "gal/ac"}, {"1:Rate, count", "2:Dose, volume"});
    row("one name twice", {"N_kg_ha", "N_lb_ac"}, {}, {}, {"1:N, weight", "2:N_lb_ac, weight"});
    row("as named", {"A_kg_ha", "B_kg_ha", "Lime_l_ha"}, {"", "#3", "a_kg_ha"}, {}, {"2:Lime, volume", "3:A, weight"});
    row("one column named twice", {"A_kg_ha"}, {"A_kg_ha", "A_kg_ha", "A_kg_ha"}, {},
        {"1:A, weight", "2:A_kg_ha, weight", "3:A_kg_ha 2, weight"});
    row("a total", {"QT_kg"}, {"QT_kg"}, {}, {"1:QT_kg, weight"});
    row("guesses", {"a", "b", "c", "d"}, {}, {}, {"1:A, weight", "2:B, weight", "3:C, weight"});
    row("no rates", {"AREA_HA"}, {}, {}, {});
}

void ColumnProductsTest::columnsMakeProducts()
{
    QFETCH(Names, columns);
    QFETCH(Names, named);
    QFETCH(Names, units);
    QTEST(textsOf(ColumnProducts(named, units).of(mapOf(columns), {})), "products");
}

void ColumnProductsTest::whatAFormatCallsAColumnOrItsMeasureIsTheProductsName()
{
    RawPrescription map = mapOf({"UAN 28 l/ha mix", "Setpoint Mass Rate", "Setpoint Mass Rate (2)"});
    for (SourceColumn &column : map.columns) {
        column.meaning = SourceColumn::Meaning::Rates;
        column.formatUnit = QStringLiteral("mg/m2");
        if (column.field > 0)
            column.measured = QStringLiteral("Mass");
    }
    const QList<ColumnProduct> products = ColumnProducts({}, {}).of(map, {});
    QCOMPARE(textsOf(products), Names({"1:UAN 28 l/ha mix, weight", "2:Mass, weight", "3:Mass 2, weight"}));
    QVERIFY(products.at(0).isNamed && !products.at(1).isNamed);
    QVERIFY(ColumnProducts::isNamed(map.columns[1], QStringLiteral("mass")));
}

void ColumnProductsTest::namedColumnsAndUnitsAreExpectedBeforeTheFileIsRead()
{
    QCOMPARE(ColumnProducts({"", "A"}, {"", "", "", "l/ha"}).expected().size(), 4);
    QCOMPARE(ColumnProducts({}, {}).expected().size(), 0);
}

void ColumnProductsTest::aProductIsKnownByItsColumn()
{
    const RawPrescription map = mapOf({QStringLiteral("UREA_KG_HA")});
    QVERIFY(ColumnProducts::isNamed(map.columns.front(), QStringLiteral("Urea")));
    QVERIFY(ColumnProducts::isNamed(map.columns.front(), QStringLiteral("urea_kg_ha")));
    QVERIFY(!ColumnProducts::isNamed(map.columns.front(), QStringLiteral("UAN")));
}

RXMAP_TEST(ColumnProductsTest, None)
#include "tst_columnproducts.moc"
