#include "openselection.h"
#include "testbase.h"

/// Which column feeds which product, and in which unit.
class TestOpenSelection : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void itBeginsWithWhatALoadWouldDo();
    void aProductIsFedByOneColumn();
    void nothingChosenIsNothingToOpen();
    void theRequestNamesColumnsInProductOrder();
    void theUnitIsTheFilesUntilOneIsChosen();
    void aUnitThatDoesNotFitIsSaidToBeSo_data();
    void aUnitThatDoesNotFitIsSaidToBeSo();
    void aChosenUnitGoesWithTheProductItIsNoUnitOf();
    void aProductThatAColumnMadeIsOfTheKindOfAChosenUnit();
    void theUnitsOfAGivenProductAreOfItsKind();
    void unitsOfColumnsThatChangedPlacesAreTakenAgain();
    void formerChoicesAreTaken();
    void onlyWhatTheOperatorTouchedIsKept();
    void whatTheProgramChoseOnceDoesNotStayChosen();
    void formerChoicesOfOtherColumnsOrProductsAreNot();
    void aFormerProductIsFoundByItsNameElseTheSuggestionStands();
    void aProductThatAColumnMadeIsNamedByTheOneThatFeedsIt_data();
    void aProductThatAColumnMadeIsNamedByTheOneThatFeedsIt();

private:
    OpenSelection selection;
    SurveyReport survey;
    QList<MachineProduct> products;
    /// Offers a column of weights that names no product and one of volumes that names product 2.
    void surveyWeightsAndVolumes();

    /// The products, with the names and kinds that columns give them.
    const OpenSelection::ProductMaker maker = [this](const QList<ColumnProduct> &made) {
        QList<MachineProduct> all = products;
        for (const ColumnProduct &product : made) {
            all[product.number - 1].name = product.name;
            all[product.number - 1].kind = product.kind;
        }
        return all;
    };
};

void TestOpenSelection::init()
{
    TestBase::init();
    using Info = DbGroupProductGroupInfo;
    products.clear();
    for (const auto kind : {Info::CountRate, Info::WeightRate, Info::VolumeRate}) {
        MachineProduct product;
        product.name = QStringLiteral("Product %1").arg(products.size());
        product.kind = kind;
        products.append(product);
    }
    survey = SurveyReport();
    survey.path = QStringLiteral("/a.shp");
    survey.columnNames = QStringList{"Urea", "Water", "Seed"};
    for (const char *name : {"Urea", "Water"}) {
        SurveyedColumn column;
        column.key = column.name = QLatin1String(name);
        survey.columns.append(column);
    }
    survey.columns[0].unit = QStringLiteral("lb/ac");
    survey.columns[0].product = 2;
    selection = OpenSelection(survey, maker);
}

void TestOpenSelection::itBeginsWithWhatALoadWouldDo()
{
    QCOMPARE(selection.product(0), 2);
    QCOMPARE(selection.product(1), 0);
    QCOMPARE(selection.request().columns, QStringList({"", "Urea"}));
    QCOMPARE(selection.request().units, QStringList({"", ""}));
    QCOMPARE(selection.request().paths, QStringList("/a.shp"));
}

void TestOpenSelection::aProductIsFedByOneColumn()
{
    selection.setProduct(1, 2);
    QCOMPARE(selection.product(0), 0);
    QCOMPARE(selection.product(1), 2);
}

void TestOpenSelection::nothingChosenIsNothingToOpen()
{
    QVERIFY(selection.feedsAny());
    selection.setProduct(0, 0);
    QVERIFY(!selection.feedsAny());
}

void TestOpenSelection::theRequestNamesColumnsInProductOrder()
{
    selection.setProduct(1, 1);
    selection.setProduct(0, 3);
    selection.setUnit(0, QStringLiteral("gal/ac"));
    QCOMPARE(selection.request().columns, QStringList({"Water", "", "Urea"}));
    QCOMPARE(selection.request().units, QStringList({"", "", "gal/ac"}));
}

void TestOpenSelection::theUnitIsTheFilesUntilOneIsChosen()
{
    QCOMPARE(selection.unit(0), QStringLiteral("lb/ac"));
    QVERIFY(!selection.isUnitChosen(0));
    QCOMPARE(selection.factor(0), 0.45359237 / 0.40468564224);
    selection.setUnit(0, QStringLiteral("t/ha"));
    QCOMPARE(selection.unit(0), QStringLiteral("t/ha"));
    QCOMPARE(selection.factor(0), 1000.0);
    selection.setUnit(0, QString());
    QCOMPARE(selection.unit(0), QStringLiteral("lb/ac"));
}

void TestOpenSelection::aUnitThatDoesNotFitIsSaidToBeSo_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("product");
    QTest::addColumn<int>("state");
    using State = OpenSelection::UnitState;
    QTest::newRow("fits") << 0 << 2 << int(State::Known);
    QTest::newRow("a weight for seeds") << 0 << 1 << int(State::Unfit);
    QTest::newRow("no product") << 0 << 0 << int(State::Known);
    QTest::newRow("not told") << 1 << 3 << int(State::Assumed);
}

void TestOpenSelection::aUnitThatDoesNotFitIsSaidToBeSo()
{
    QFETCH(int, column);
    QFETCH(int, product);
    selection.setProduct(column, product);
    QTEST(int(selection.unitState(column)), "state");
    if (selection.unitState(column) != OpenSelection::UnitState::Known)
        QCOMPARE(selection.factor(column), 1.0);
}

void TestOpenSelection::aChosenUnitGoesWithTheProductItIsNoUnitOf()
{
    selection.setUnit(0, QStringLiteral("t/ha"));
    selection.setProduct(0, 3);
    QVERIFY(!selection.isUnitChosen(0));
}

void TestOpenSelection::surveyWeightsAndVolumes()
{
    survey.columns[0].made = {survey.columns[0].name, DbGroupProductGroupInfo::WeightRate, 1};
    survey.columns[0].made.isNamed = false;
    survey.columns[1].made = {survey.columns[1].name, DbGroupProductGroupInfo::VolumeRate, 2};
    for (SurveyedColumn &column : survey.columns) {
        column.product = column.made.number;
        survey.columnProducts.append(column.made);
    }
    selection = OpenSelection(survey, maker);
}

void TestOpenSelection::aProductThatAColumnMadeIsOfTheKindOfAChosenUnit()
{
    surveyWeightsAndVolumes();
    QCOMPARE(selection.unitParts(0).size(), 3);
    QVERIFY(selection.unitParts(0).first().amounts.contains(QStringLiteral("kg")));
    selection.setUnit(0, QStringLiteral("gal/ac"));
    QCOMPARE(selection.fedProducts().first().kind, DbGroupProductGroupInfo::VolumeRate);
    QCOMPARE(selection.unitState(0), OpenSelection::UnitState::Known);
    QVERIFY(selection.unitParts(0).first().amounts.contains(QStringLiteral("gal")));
    QCOMPARE(selection.request().columnProducts->first().kind, DbGroupProductGroupInfo::VolumeRate);
    OpenSelection again(survey, maker);
    again.apply(selection.choices());
    QCOMPARE(again.request().units, QStringList({"gal/ac", ""}));
    // An ounce may be either.
    selection.setUnit(1, QStringLiteral("oz/ac"));
    QCOMPARE(selection.fedProducts().at(1).kind, DbGroupProductGroupInfo::VolumeRate);
    // Where the columns feed each other's products, the units go along.
    selection.setProduct(0, 2);
    selection.setProduct(1, 1);
    QCOMPARE(selection.request().units, QStringList({"oz/ac", "gal/ac"}));
    selection.setUnit(0, QString());
    QCOMPARE(selection.fedProducts().at(1).kind, DbGroupProductGroupInfo::WeightRate);
}

void TestOpenSelection::theUnitsOfAGivenProductAreOfItsKind()
{
    QCOMPARE(selection.unitParts(0).size(), 1);
    QCOMPARE(selection.unitParts(0).first().amounts, RateUnits::parts(DbGroupProductGroupInfo::WeightRate).amounts);
}

void TestOpenSelection::unitsOfColumnsThatChangedPlacesAreTakenAgain()
{
    surveyWeightsAndVolumes();
    selection.setProduct(0, 2);
    selection.setProduct(1, 1);
    selection.setUnit(0, QStringLiteral("t/ha"));
    selection.setUnit(1, QStringLiteral("gal/ac"));
    OpenSelection again(survey, maker);
    again.apply(selection.choices());
    QCOMPARE(again.request().units, QStringList({"gal/ac", "t/ha"}));
}

void TestOpenSelection::formerChoicesAreTaken()
{
    selection.setProduct(0, 0);
    selection.setProduct(1, 3);
    selection.setUnit(1, QStringLiteral("gal/ac"));
    OpenSelection again(survey, maker);
    again.apply(selection.choices());
    QCOMPARE(again.product(0), 0);
    QCOMPARE(again.product(1), 3);
    QCOMPARE(again.unit(1), QStringLiteral("gal/ac"));
}

void TestOpenSelection::onlyWhatTheOperatorTouchedIsKept()
{
    QVERIFY(selection.choices().columns.isEmpty());
    selection.setUnit(0, QStringLiteral("t/ha"));
    selection.setProduct(1, 2); // takes it from the first
    const QList<ColumnChoice> kept = selection.choices().columns;
    QCOMPARE(kept.size(), 2);
    QCOMPARE(kept.first().unit, QStringLiteral("t/ha"));
    QVERIFY(!kept.first().isProductChosen);
    QVERIFY(kept.last().isProductChosen);
}

void TestOpenSelection::whatTheProgramChoseOnceDoesNotStayChosen()
{
    const FileChoices former = selection.choices();
    survey.columns[0].product = 0;
    survey.columns[1].product = 1;
    OpenSelection again(survey, maker);
    again.apply(former);
    QCOMPARE(again.product(0), 0);
    QCOMPARE(again.product(1), 1);
    again.setProduct(0, 1);
    OpenSelection third(survey, maker);
    third.apply(again.choices());
    QCOMPARE(third.product(0), 1);
    QCOMPARE(third.product(1), 0);
    QCOMPARE(third.choices().columns.size(), 1);
}

void TestOpenSelection::formerChoicesOfOtherColumnsOrProductsAreNot()
{
    selection.setProduct(0, 0);
    selection.setProduct(1, 3);
    const FileChoices former = selection.choices();
    SurveyReport changed = survey;
    changed.columnNames.append(QStringLiteral("More"));
    OpenSelection otherColumns(changed, maker);
    otherColumns.apply(former);
    QCOMPARE(otherColumns.product(0), 2);
    QCOMPARE(otherColumns.product(1), 0);
    products[2].name = QStringLiteral("Other");
    OpenSelection otherProduct(survey, maker);
    otherProduct.apply(former);
    QCOMPARE(otherProduct.product(1), 0);
}

void TestOpenSelection::aFormerProductIsFoundByItsNameElseTheSuggestionStands()
{
    selection.setProduct(1, 3);
    const FileChoices former = selection.choices();
    std::swap(products[0], products[2]);
    OpenSelection elsewhere(survey, maker);
    elsewhere.apply(former);
    QCOMPARE(elsewhere.product(0), 2);
    QCOMPARE(elsewhere.product(1), 1);
    products[1].name = QStringLiteral("Other");
    OpenSelection gone(survey, maker);
    gone.apply(former);
    QCOMPARE(gone.product(0), 2);
    QCOMPARE(gone.product(1), 1);
}

void TestOpenSelection::aProductThatAColumnMadeIsNamedByTheOneThatFeedsIt_data()
{
    QTest::addColumn<QList<int>>("chosen"); // The product of each column; -1: as offered.
    QTest::addColumn<QStringList>("names"); // Of products 1 and 2, as requested.
    QTest::newRow("as offered") << QList<int>{-1, -1, -1} << QStringList{"RATE", "Urea"};
    QTest::newRow("a total") << QList<int>{-1, -1, 1} << QStringList{"QT_kg", "Urea"};
    QTest::newRow("fed by none") << QList<int>{0, 0, -1} << QStringList{"", "Urea"};
    QTest::newRow("a product's column in place of a mere rate") << QList<int>{-1, 1, -1} << QStringList{"Urea", ""};
    QTest::newRow("a mere rate in place of a product's") << QList<int>{2, -1, -1} << QStringList{"", "Urea"};
    QTest::newRow("exchanged") << QList<int>{2, 1, -1} << QStringList{"Urea", "RATE"};
    QTest::newRow("moved, and another in its place") << QList<int>{-1, 1, 2} << QStringList{"Urea", "QT_kg"};
    QTest::newRow("to and fro") << QList<int>{1, -1, 1} << QStringList{"QT_kg", "Urea"};
}

void TestOpenSelection::aProductThatAColumnMadeIsNamedByTheOneThatFeedsIt()
{
    QFETCH(QList<int>, chosen);
    survey.columns = {SurveyedColumn(), SurveyedColumn(), SurveyedColumn()};
    const char *const columns[] = {"RATE", "UREA_KG_HA", "QT_kg"};
    const char *const names[] = {"RATE", "Urea", "QT_kg"};
    for (int i = 0; i < chosen.size(); ++i) {
        SurveyedColumn &column = survey.columns[i];
        column.key = column.name = QLatin1String(columns[i]);
        column.made.name = QLatin1String(names[i]);
        column.made.isNamed = i == 1;
        column.made.number = column.product = i < 2 ? i + 1 : 0;
        if (column.product > 0)
            survey.columnProducts.append(column.made);
    }
    selection = OpenSelection(survey, maker);
    for (int i = 0; i < chosen.size(); ++i) {
        if (chosen.at(i) >= 0)
            selection.setProduct(i, chosen.at(i));
    }
    QStringList requested;
    const OpenRequest request = selection.request();
    for (const ColumnProduct &product : *request.columnProducts)
        requested.append(product.name);
    QTEST(requested, "names");
    for (int i = 0; i < chosen.size(); ++i) {
        if (selection.product(i) > 0)
            QCOMPARE(selection.fedProducts().at(selection.product(i) - 1).name, requested.at(selection.product(i) - 1));
    }
    OpenSelection again(survey, maker);
    again.apply(selection.choices());
    QCOMPARE(again.request().columns, request.columns);
}

RXMAP_TEST(TestOpenSelection, None)
#include "tst_openselection.moc"
