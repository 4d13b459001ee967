#include "Backend/rateunits.h"
#include "backendtest.h"
#include "layerwriter.h"

#include <QTemporaryDir>

Q_DECLARE_METATYPE(LayerField)

/// What the back-end finds in a file before loading it.
class PrescriptionBackendSurveyTest : public BackendTest {
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatEachColumnHolds_data();
    void tellsWhatEachColumnHolds();
    void suggestsWhatALoadWouldFeed_data();
    void suggestsWhatALoadWouldFeed();
    void aLoadTakesEachColumnInTheUnitThatWasTold_data();
    void aLoadTakesEachColumnInTheUnitThatWasTold();
    void aLoadHasTheClassesThatWereTold_data();
    void aLoadHasTheClassesThatWereTold();
    void tellsTotalsForTheOperatorToChoose();
    void tellsAllColumnsWhereNoneLooksLikeARate();
    void tellsAllColumnsOfALayerWhereNoLayerHasARate();
    void namesAColumnByItsNumberWhereItsNameStandsForAnother();
    void tellsWhichRecordIsSeenWhere();
    void aBorderWithoutARateHidesNothing();
    void classesEachRecord();
    void refusesWhatALoadRefuses_data();
    void refusesWhatALoadRefuses();
    void productsAreMadeAnewWhereNoneStaysInUse_data();
    void productsAreMadeAnewWhereNoneStaysInUse();
    void publishesNothing();
    void isCancelled();

private:
    SurveyReport survey(const LoadRequest &request);
    QString write(const QList<LayerField> &fields, const QList<QVariant> &values);

    QTemporaryDir folder;
};

SurveyReport PrescriptionBackendSurveyTest::survey(const LoadRequest &request)
{
    QSignalSpy surveyed(backend.data(), &PrescriptionBackend::surveyed);
    backend->survey(request);
    return surveyed.wait() ? surveyed.first().first().value<SurveyReport>() : SurveyReport();
}

QString PrescriptionBackendSurveyTest::write(const QList<LayerField> &fields, const QList<QVariant> &values)
{
    LayerSketch sketch;
    sketch.fields = fields;
    sketch.rows = {{squareText(10, 50, 0.001), values}, {squareText(10.001, 50, 0.001), values}};
    const QString path = folder.filePath(QStringLiteral("sketch.shp"));
    return sketch.write(path) ? path : QString();
}

void PrescriptionBackendSurveyTest::tellsWhatEachColumnHolds_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("columns");
    QTest::newRow("units") << "three-zones.geojson"
                           << QStringList{"SEED_K_HA [k/ha] 70..90 0% sure", "FERT_KG_HA [kg/ha] 0..150 0% sure",
                                          "HERB_L_HA [L/ha] 0..3 0% sure"};
    QTest::newRow("gaps") << "partly-without-rate.geojson"
                          << QStringList{"seed_rate [] 10..12 50% sure", "fert_rate [] 100..110 50% sure"};
    QTest::newRow("text") << "text-rates.geojson" << QStringList{"Rate [] 7..12.5 50% sure"};
    QTest::newRow("guesses") << "two-strips.geojson" << QStringList{"A [] 10..20 0% guess", "B [] 5..6 0% guess"};
}

void PrescriptionBackendSurveyTest::tellsWhatEachColumnHolds()
{
    QFETCH(QString, file);
    const SurveyReport report = survey(requestFor(fixture(qPrintable(file))));
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QStringList told;
    for (const SurveyedColumn &column : report.columns)
        told.append(QStringLiteral("%1 [%2] %3..%4 %5% %6")
                        .arg(column.name, column.unit)
                        .arg(column.leastRate)
                        .arg(column.greatestRate)
                        .arg(100.0 * column.shareWithoutRate)
                        .arg(column.isSure ? "sure" : "guess"));
    QTEST(told, "columns");
}

void PrescriptionBackendSurveyTest::suggestsWhatALoadWouldFeed_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file : {"three-zones.geojson", "two-strips.geojson", "partly-without-rate.geojson"})
        QTest::newRow(file) << file;
}

void PrescriptionBackendSurveyTest::suggestsWhatALoadWouldFeed()
{
    QFETCH(QString, file);
    LoadRequest request = requestFor(fixture(qPrintable(file)));
    request.products[1].kind = DbGroupProductGroupInfo::WeightRate;
    const LoadReport loaded = backend->loadAndWait(request);
    const SurveyReport surveyed = survey(request);
    QVERIFY(!loaded.sources.isEmpty());
    for (int i = 0; i < loaded.sources.size(); ++i) {
        QCOMPARE(surveyed.columns.at(i).name, loaded.sources.at(i).column);
        QCOMPARE(surveyed.columns.at(i).product, loaded.sources.at(i).product);
        QCOMPARE(surveyed.columns.at(i).unitFrom, loaded.sources.at(i).unitFrom);
    }
    for (int i = loaded.sources.size(); i < surveyed.columns.size(); ++i)
        QCOMPARE(surveyed.columns.at(i).product, 0);
}

void PrescriptionBackendSurveyTest::aLoadTakesEachColumnInTheUnitThatWasTold_data()
{
    QTest::addColumn<QList<LayerField>>("fields");
    QTest::addColumn<QStringList>("units");
    const LayerField first{"Rate1", 1.0};
    const LayerField second{"Rate2", 2.0};
    const LayerField third{"Rate3", 3.0};
    QTest::newRow("each behind its rate")
        << QList<LayerField>{first, {"Unit1", "kg/ha"}, second, {"Unit2", "lb/ac"}} << QStringList{"kg/ha", "lb/ac"};
    QTest::newRow("another rate between")
        << QList<LayerField>{first, second, {"Unit2", "kg/ha"}, third, {"Unit3", "lb/ac"}}
        << QStringList{"", "kg/ha", "lb/ac"};
    QTest::newRow("a rate that is text between")
        << QList<LayerField>{first, {"Rate2", "2 t/ha"}, {"Unit2", "kg/ha"}, third, {"Unit3", "lb/ac"}}
        << QStringList{"", "kg/ha", "lb/ac"};
    QTest::newRow("an identifier between")
        << QList<LayerField>{first, {"Id", 1}, {"Unit1", "kg/ha"}, second, {"Unit2", "lb/ac"}}
        << QStringList{"kg/ha", "lb/ac"};
    QTest::newRow("none that looks like a rate")
        << QList<LayerField>{{"YIELD", 1.0}, {"Unit1", "kg/ha"}, {"YEAR", 1}, {"Unit2", "lb/ac"}}
        << QStringList{"kg/ha", "lb/ac"};
    QTest::newRow("in the name") << QList<LayerField>{{"A_kg_ha", 1.0}, second} << QStringList{"kg/ha", ""};
}

void PrescriptionBackendSurveyTest::aLoadTakesEachColumnInTheUnitThatWasTold()
{
    QFETCH(QList<LayerField>, fields);
    QList<QVariant> values;
    for (const LayerField &field : qAsConst(fields))
        values.append(field.sample);
    const QString path = write(fields, values);
    const SurveyReport report = survey(requestFor(path));
    QVERIFY2(report.isOk(), qPrintable(report.error));
    for (const SurveyedColumn &column : report.columns) {
        const LoadReport loaded = backend->loadAndWait(requestFor(path, {column.key}));
        QVERIFY2(loaded.isOk(), qPrintable(loaded.error));
        QCOMPARE(loaded.sources.first().unit, column.unit);
        QCOMPARE(loaded.sources.first().unitFrom, column.unitFrom);
    }
    QStringList units;
    for (const QString &name : report.columnNames) {
        for (const SurveyedColumn &column : report.columns) {
            if (column.name == name)
                units.append(column.unit);
        }
    }
    QTEST(units, "units");
}

void PrescriptionBackendSurveyTest::aLoadHasTheClassesThatWereTold_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<double>("displayFactor");
    QTest::newRow("as suggested") << QString() << 0.8921785;
    QTest::newRow("in another unit") << "lb/ac" << 0.8921785;
    QTest::newRow("for a metric display") << "cwt/ac" << 1.0;
}

void PrescriptionBackendSurveyTest::aLoadHasTheClassesThatWereTold()
{
    QFETCH(QString, unit);
    QFETCH(double, displayFactor);
    LayerSketch sketch;
    sketch.fields = {{"Rate_g_m2", 1.0}};
    for (int record = 0; record < 60; ++record)
        sketch.rows.append({squareText(10 + 0.001 * record, 50, 0.001), {10.0 + 0.37 * record}});
    const QString path = folder.filePath(QStringLiteral("many.shp"));
    QVERIFY(sketch.write(path));
    LoadRequest request = requestFor(path);
    request.products[0].kind = DbGroupProductGroupInfo::WeightRate;
    request.products[0].displayFactor = displayFactor;
    request.units = QStringList{unit};
    const LoadReport loaded = backend->loadAndWait(request);
    const SurveyReport report = survey(request);
    const QString chosen = unit.isEmpty() ? report.columns.value(0).unit : unit;
    const double factor = RateUnits::factor(chosen, request.products[0].kind);
    const SurveyedClasses told = report.classesOf(0, factor, displayFactor);
    QVERIFY(!loaded.hasSingleRates.value(0) && !told.hasSingleRates);
    QCOMPARE(told.legend.size(), loaded.legends.first().size());
    for (int i = 0; i < told.legend.size(); ++i)
        QCOMPARE(float(told.legend.at(i).rate), float(loaded.legends.first().at(i).rate));
}

void PrescriptionBackendSurveyTest::tellsTotalsForTheOperatorToChoose()
{
    const QString path =
        write({{"ID", 1}, {"QT_kg", 1.0}, {"RATE_kg_ha", 1.0}, {"TOT_AREA", 1.0}}, {1, 50.0, 100.0, 0.5});
    const SurveyReport report = survey(requestFor(path));
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QCOMPARE(report.columns.size(), 2);
    QCOMPARE(report.columns.at(0).name, QStringLiteral("RATE_kg_ha"));
    QVERIFY(!report.columns.at(0).isTotal);
    const SurveyedColumn &total = report.columns.at(1);
    QCOMPARE(total.name, QStringLiteral("QT_kg"));
    QVERIFY(total.isTotal && !total.isSure);
    QCOMPARE(total.product, 0);
    QCOMPARE(total.greatestRate, 50.0);
    // An operator who chose the column among those offered is warned; a user who names it knows.
    LoadRequest chosen = requestFor(path, {QStringLiteral("QT_kg")});
    QVERIFY(backend->loadAndWait(chosen).warnings.filter(QStringLiteral("called a total")).isEmpty());
    chosen.tellsGuesses = true;
    const LoadReport loaded = backend->loadAndWait(chosen);
    QCOMPARE(loaded.warnings.filter(QStringLiteral("\"QT_kg\" is called a total")).size(), 1);
    QVERIFY(loaded.warnings.filter(QStringLiteral("guess")).isEmpty());
    QCOMPARE(int(loaded.findings.first().kind), int(MapFinding::Kind::Total));
}

void PrescriptionBackendSurveyTest::tellsAllColumnsWhereNoneLooksLikeARate()
{
    const QString path = write({{"YIELD", 1.0}, {"YEAR", 1}, {"REMARK", "a"}}, {7.5, 2026, QStringLiteral("dry")});
    const SurveyReport report = survey(requestFor(path));
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QVERIFY2(report.lackOfFeeds.contains(QStringLiteral("no column that looks like a rate")),
             qPrintable(report.lackOfFeeds));
    QCOMPARE(report.columns.size(), 2);
    QCOMPARE(report.columns.at(0).name, QStringLiteral("YIELD"));
    QCOMPARE(report.columns.at(1).name, QStringLiteral("YEAR"));
    for (const SurveyedColumn &column : report.columns)
        QCOMPARE(column.product, 0);
    QCOMPARE(report.columnNames, QStringList({"YIELD", "YEAR", "REMARK"}));
}

void PrescriptionBackendSurveyTest::tellsAllColumnsOfALayerWhereNoLayerHasARate()
{
    LayerSketch first;
    first.driver = "GPKG";
    first.name = "harvest";
    first.fields = {{"YIELD", 1.0}};
    first.rows = {{squareText(10, 50, 0.001), {7.5}}, {squareText(10.001, 50, 0.001), {8.5}}};
    LayerSketch second = first;
    second.name = "soil";
    second.fields = {{"PH", 1.0}};
    const QString path = folder.filePath(QStringLiteral("layers.gpkg"));
    QVERIFY(writeLayers(path, {first, second}));
    const SurveyReport report = survey(requestFor(path));
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QCOMPARE(report.lackOfFeeds, backend->loadAndWait(requestFor(path)).error);
    QCOMPARE(report.layer, QStringLiteral("harvest"));
    QCOMPARE(report.layers, QStringList({"harvest", "soil"}));
    QCOMPARE(report.columns.size(), 1);
    QCOMPARE(report.columns.first().name, QStringLiteral("YIELD"));
    QCOMPARE(report.columns.first().product, 0);
}

void PrescriptionBackendSurveyTest::namesAColumnByItsNumberWhereItsNameStandsForAnother()
{
    LayerSketch sketch;
    sketch.driver = "GeoJSON";
    sketch.fields = {{"rate", 1.0}, {"RATE", 1.0}};
    sketch.rows = {{squareText(10, 50, 0.001), {7.0, 8.0}}, {squareText(10.001, 50, 0.001), {9.0, 10.0}}};
    const QString path = folder.filePath(QStringLiteral("twice.geojson"));
    QVERIFY(sketch.write(path));
    const SurveyReport report = survey(requestFor(path));
    QCOMPARE(report.columns.size(), 2);
    for (const SurveyedColumn &column : report.columns) {
        const LoadReport loaded = backend->loadAndWait(requestFor(path, {column.key}));
        QVERIFY2(loaded.isOk(), qPrintable(loaded.error));
        QCOMPARE(loaded.legends.first().last().rate, column.greatestRate);
    }
}

void PrescriptionBackendSurveyTest::tellsWhichRecordIsSeenWhere()
{
    const SurveyReport report = survey(requestFor(fixture("pond-and-island.geojson")));
    QCOMPARE(report.polygons, 3);
    const QSize size = report.pictureSize;
    QCOMPARE(qMax(size.width(), size.height()), SurveyReport::pictureSide);
    QCOMPARE(report.recordAtPixel.size(), size.width() * size.height());
    const auto at = [&report, size](double right, double down) {
        return report.recordAtPixel.at(int(down * size.height()) * size.width() + int(right * size.width()));
    };
    QCOMPARE(at(0.05, 0.05), 0);
    QCOMPARE(at(0.32, 0.5), 1);
    QCOMPARE(at(0.5, 0.5), 2);
    // The pond around the island.
    QCOMPARE(at(0.43, 0.5), -1);
}

void PrescriptionBackendSurveyTest::aBorderWithoutARateHidesNothing()
{
    LayerSketch sketch;
    sketch.fields = {{"Dose", 1.0}};
    sketch.rows = {{squareText(10, 50, 0.001), {120.0}}, {squareText(10, 50, 0.001), {QVariant()}}};
    const QString path = folder.filePath(QStringLiteral("border.shp"));
    QVERIFY(sketch.write(path));
    const SurveyReport report = survey(requestFor(path));
    QCOMPARE(report.polygons, 2);
    QVERIFY(!report.recordAtPixel.contains(1));
    QVERIFY(report.recordAtPixel.contains(0));
}

void PrescriptionBackendSurveyTest::classesEachRecord()
{
    const SurveyReport report = survey(requestFor(fixture("partly-without-rate.geojson")));
    const SurveyedClasses seed = report.classesOf(0, 1.0, 1.0);
    QCOMPARE(seed.ofRecords.size(), 4);
    QCOMPARE(seed.legend.size(), 3);
    QVERIFY(seed.hasSingleRates);
    QCOMPARE(seed.legend.at(seed.ofRecords.at(0)).rate, 10.0);
    QCOMPARE(seed.legend.at(seed.ofRecords.at(2)).rate, 12.0);
    for (const int record : {1, 3})
        QCOMPARE(seed.legend.at(seed.ofRecords.at(record)).color.alpha(), 0);
}

void PrescriptionBackendSurveyTest::refusesWhatALoadRefuses_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << fixture("no-such-file.shp");
    QTest::newRow("no prescription") << fixture("README.md");
    QTest::newRow("a folder") << sourcePath("Tests/fixtures");
}

void PrescriptionBackendSurveyTest::refusesWhatALoadRefuses()
{
    QFETCH(QString, path);
    const LoadReport loaded = backend->loadAndWait(requestFor(path));
    const SurveyReport surveyed = survey(requestFor(path));
    QVERIFY(!loaded.error.isEmpty());
    QCOMPARE(surveyed.error, loaded.error);
    QVERIFY(surveyed.columns.isEmpty());
}

void PrescriptionBackendSurveyTest::productsAreMadeAnewWhereNoneStaysInUse_data()
{
    QTest::addColumn<QList<int>>("inUse");
    QTest::addColumn<bool>("isOnThePlane");
    QTest::addColumn<bool>("areMade");
    QTest::newRow("none") << QList<int>() << true << true;
    QTest::newRow("what the file feeds") << QList<int>{2} << true << true;
    QTest::newRow("what it does not feed") << QList<int>{1, 2} << true << false;
    QTest::newRow("what it does not feed, elsewhere") << QList<int>{1, 2} << false << true;
}

void PrescriptionBackendSurveyTest::productsAreMadeAnewWhereNoneStaysInUse()
{
    QFETCH(QList<int>, inUse);
    LoadRequest request = requestFor(write({{"LIME_T_HA", 1.0}}, {1.0}));
    request.products[1].kind = DbGroupProductGroupInfo::WeightRate;
    QFETCH(bool, isOnThePlane);
    const QPointF origin = isOnThePlane ? survey(request).origin : QPointF(38.0, 50.0);
    for (const int number : inUse)
        request.products[number - 1].inUseAt = origin;
    const QList<MachineProduct> made{{"Lime", "system.productGroup.1", DbGroupProductGroupInfo::WeightRate}};
    request.makeProducts = [made](const QList<ColumnProduct> &) { return made; };
    const SurveyReport report = survey(request);
    QTEST(!report.columnProducts.isEmpty(), "areMade");
    // The second product of the machine is measured by weight.
    QCOMPARE(report.columns.first().product, report.columnProducts.isEmpty() ? 2 : 1);
}

void PrescriptionBackendSurveyTest::publishesNothing()
{
    const LoadReport before = load("overlap.geojson");
    QSignalSpy changed(backend.data(), &PrescriptionBackend::mapsChanged);
    QSignalSpy finished(backend.data(), &PrescriptionBackend::finished);
    QVERIFY(survey(requestFor(fixture("three-zones.geojson"))).isOk());
    QVERIFY(changed.isEmpty() && finished.isEmpty());
    QCOMPARE(backend->maps().size(), 1);
    QCOMPARE(broker->findGroup(QStringLiteral("rxMap.*"), true, false), QStringList(before.group));
    QVERIFY(!backend->isLoading());
}

void PrescriptionBackendSurveyTest::isCancelled()
{
    QSignalSpy surveyed(backend.data(), &PrescriptionBackend::surveyed);
    backend->survey(requestFor(fixture("three-zones.geojson")));
    backend->cancel();
    QVERIFY(surveyed.wait());
    const auto report = surveyed.first().first().value<SurveyReport>();
    QVERIFY2(report.error.contains(QStringLiteral("cancelled")), qPrintable(report.error));
    QVERIFY(survey(requestFor(fixture("three-zones.geojson"))).isOk());
}

RXMAP_TEST(PrescriptionBackendSurveyTest, Core)
#include "tst_prescriptionbackend_survey.moc"
