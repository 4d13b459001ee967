#include "fileopeningtest.h"
#include "layerwriter.h"
#include "machine.h"
#include "paintedtexts.h"
#include "productadoption.h"
#include "vehicle.h"

#include <QFileInfo>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>

/// What files opened through the window make of the machine's products, also where their fields lie far apart.
class TestFileOpeningProducts : public FileOpeningTest {
    Q_OBJECT

private Q_SLOTS:
    void theFirstFileBringsItsProducts();
    void aFileThatReplacesAllBringsItsProducts();
    void aProductThatItsColumnLeavesStaysOnlyByAName_data();
    void aProductThatItsColumnLeavesStaysOnlyByAName();
    void aProductIsNamedAndMeasuredByTheColumnChosenForIt_data();
    void aProductIsNamedAndMeasuredByTheColumnChosenForIt();
    void aProductOfTheFileIsMeasuredByTheUnitChosenForIt();
    void productsStayWhereOneIsInUseOrTheMachineMoves();
    void filesWantedTogetherShareTheProducts();
    void aFieldFarFromTheOtherIsToldBeforeAndAfter_data();
    void aFieldFarFromTheOtherIsToldBeforeAndAfter();
    void aFieldFarFromTheOtherTakesItsPlaceUnlessBothAreWanted();
    void aFieldFarFromTheOtherBringsItsProducts();

private:
    /// Writes a prescription with these columns.
    QString write(const char *name, const QList<LayerField> &fields, double longitude = 10.0)
    {
        LayerSketch sketch;
        sketch.fields = fields;
        QList<QVariant> rates;
        for (int i = 0; i < fields.size(); ++i)
            rates.append(100.0 + i);
        sketch.rows = {{squareText(longitude, 50, 0.001), rates}};
        const QString path = folder.filePath(QLatin1String(name) + QStringLiteral(".shp"));
        return sketch.write(path) ? path : QString();
    }
    QStringList productNames()
    {
        QStringList names;
        for (const Product &product : terminal().machine()->products())
            names.append(product.name);
        return names;
    }
    QString remark() { return terminal().window()->findChild<QLabel *>(QStringLiteral("openRemark"))->text(); }
    QTemporaryDir folder;
};

void TestFileOpeningProducts::theFirstFileBringsItsProducts()
{
    terminal().adoption()->adoptFromNextFile();
    Q_EMIT terminal().window()->dropped({TerminalHost::fixture(QStringLiteral("three-zones.geojson"))}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QCOMPARE(button("columnRow1Product")->text(), QStringLiteral("Fert"));
    // Looking alone changes nothing.
    QCOMPARE(terminal().machine()->products().at(1).name, QStringLiteral("Fertiliser"));
    // Another of the products that the file brings.
    button("columnRow0Product")->click();
    button("choice0")->click();
    button("columnRow1Product")->click();
    QCOMPARE(button("choice3")->text(), QStringLiteral("3. Herb (L/ha)"));
    button("choice2")->click();
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(terminal().machine()->products().at(1).name, QStringLiteral("Fert"));
    QCOMPARE(button("selectProduct2")->text(), QStringLiteral("Fert"));
    QCOMPARE(terminal().machine()->activeProduct(), 2);
    QCOMPARE(terminal().activeColumn(), QStringLiteral("FERT_KG_HA"));
}

void TestFileOpeningProducts::aFileThatReplacesAllBringsItsProducts()
{
    terminal().adoption()->adoptFromNextFile();
    openByTouch(write("urea", {{"UREA_KG_HA", 1.0}}));
    QCOMPARE(productNames(), QStringList({"Urea", "Seed", "Herbicide"}));
    const QString lime = write("lime", {{"LIME_T_HA", 1.0}});
    Q_EMIT terminal().window()->dropped({lime}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QCOMPARE(button("columnRow0Product")->text(), QStringLiteral("Lime"));
    QVERIFY(remark().contains(QStringLiteral("Replaces urea.shp")));
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(productNames(), QStringList({"Lime", "Seed", "Herbicide"}));
    QCOMPARE(button("selectProduct1")->text(), QStringLiteral("Lime"));
    QCOMPARE(terminal().backend()->maps().size(), 1);
    // A script does not do this: its products stay as they were.
    QVERIFY(terminal().open({{write("urea", {{"UREA_KG_HA", 1.0}})}}).first().isOk());
    QCOMPARE(productNames().first(), QStringLiteral("Lime"));
}

void TestFileOpeningProducts::aProductThatItsColumnLeavesStaysOnlyByAName_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("Rate") << "Rate" << QStringList{"Fertiliser", "Seed", "Herbicide"};
    QTest::newRow("Urea") << "UREA_KG_HA" << QStringList{"Urea", "Seed", "Herbicide"};
}

void TestFileOpeningProducts::aProductThatItsColumnLeavesStaysOnlyByAName()
{
    QFETCH(QString, column);
    terminal().adoption()->adoptFromNextFile();
    Q_EMIT terminal().window()->dropped({write("left", {{column.toLatin1().constData(), 1.0}})}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    button("columnRow0Product")->click();
    QVERIFY(button("choice2")->text().startsWith(QStringLiteral("2. Seed")));
    button("choice2")->click();
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QTEST(productNames(), "names");
    // The chosen column feeds the product that it was shown with.
    QCOMPARE(terminal().columnsOf(terminal().backend()->maps().last().group).keys(), QList<int>{2});
}

void TestFileOpeningProducts::aProductIsNamedAndMeasuredByTheColumnChosenForIt_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("kind");
    QTest::newRow("a total") << "QT_kg"
                             << "QT_kg" << int(Product::Kind::Weight);
    QTest::newRow("another product") << "UAN_L_HA"
                                     << "UAN" << int(Product::Kind::Volume);
}

void TestFileOpeningProducts::aProductIsNamedAndMeasuredByTheColumnChosenForIt()
{
    QFETCH(QString, column);
    terminal().adoption()->adoptFromNextFile();
    const QString path = write("two", {{"RATE_kg_", 1.0}, {column.toLatin1().constData(), 1.0}});
    Q_EMIT terminal().window()->dropped({path}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QCOMPARE(button("columnRow0Product")->text(), QStringLiteral("RATE_kg_"));
    button("columnRow1Product")->click();
    button("choice1")->click();
    QTEST(button("columnRow1Product")->text(), "name");
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QTEST(productNames().first(), "name");
    QTEST(int(terminal().machine()->products().first().kind), "kind");
    QCOMPARE(terminal().activeColumn(), column);
}

void TestFileOpeningProducts::productsStayWhereOneIsInUseOrTheMachineMoves()
{
    terminal().adoption()->adoptFromNextFile();
    openByTouch(write("both", {{"UREA_KG_HA", 1.0}, {"UAN_L_HA", 1.0}}));
    const QStringList names = productNames();
    Q_EMIT terminal().window()->dropped({write("lime", {{"LIME_T_HA", 1.0}})}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    const auto number = names.indexOf(QStringLiteral("Urea")) + 1;
    QCOMPARE(button("columnRow0Product")->text(), QStringLiteral("Urea"));
    QVERIFY2(remark().contains(QStringLiteral("Takes Urea over from both.shp")), qPrintable(remark()));
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(productNames(), names);
    QCOMPARE(terminal().machine()->columnsOf(terminal().backend()->maps().last().group).keys(), QList<int>{number});
    QVERIFY(terminal().close(terminal().backend()->maps().first().group));
    terminal().vehicle()->drive(2.0);
    openByTouch(write("mop", {{"MOP_KG_HA", 1.0}}));
    QCOMPARE(productNames(), names);
}

void TestFileOpeningProducts::filesWantedTogetherShareTheProducts()
{
    terminal().adoption()->adoptFromNextFile();
    Q_EMIT terminal().window()->dropped({write("urea", {{"UREA_KG_HA", 1.0}}), write("rate", {{"RATE", 1.0}})}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    accept();
    QTRY_COMPARE(terminal().backend()->maps().size(), 1);
    QTRY_VERIFY(button("openAccept") != nullptr);
    QCOMPARE(button("columnRow0Product")->text(), QStringLiteral("Seed"));
    QCOMPARE(productNames().first(), QStringLiteral("Urea"));
}

void TestFileOpeningProducts::aFieldFarFromTheOtherIsToldBeforeAndAfter_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<QString>("distance");
    QTest::newRow("kilometres") << int(UnitSystem::Metric) << "1,989 km";
    QTest::newRow("miles") << int(UnitSystem::Us) << "1,236 mi";
}

void TestFileOpeningProducts::aFieldFarFromTheOtherIsToldBeforeAndAfter()
{
    QFETCH(int, units);
    QFETCH(QString, distance);
    host.reset();
    host.reset(new TerminalHost(UnitSystem(units)));
    QSignalSpy opened(terminal().openWindow(), &OpenWindow::opened);
    openByTouch(write("both", {{"UREA_KG_HA", 1.0}, {"UAN_L_HA", 1.0}}));
    Q_EMIT terminal().window()->dropped({write("beside", {{"SEED_K_HA", 1.0}}, 10.01)}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QVERIFY2(!remark().contains(QStringLiteral("Lies")), qPrintable(remark()));
    terminal().openWindow()->leave();
    Q_EMIT terminal().window()->dropped({write("far", {{"SEED_K_HA", 1.0}}, 38.0)}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QVERIFY2(remark().contains(QStringLiteral("Lies %1 from both.shp").arg(distance)), qPrintable(remark()));
    button("openAccept")->click();
    const QStringList asked = paintedTexts(*button("choice1")->parentWidget());
    QVERIFY2(asked.contains(QStringLiteral("%1 from both.shp, which stays open").arg(distance)),
             qPrintable(asked.join('\n')));
    QCOMPARE(button("choice1")->text(), QStringLiteral("Keep both.shp open"));
    button("choice1")->click();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(opened.size(), 2);
    const QStringList warnings = opened.last().first().value<LoadReport>().warnings;
    QVERIFY2(!warnings.filter(QStringLiteral("lies 1989 km")).isEmpty(), qPrintable(warnings.join('\n')));
    QTRY_VERIFY(button("findingsButton") != nullptr);
    const auto *finding = terminal().window()->findChild<QAbstractButton *>(QStringLiteral("finding0"));
    QCOMPARE(finding->text(), QStringLiteral("lies %1 from both.shp, which feeds products, too").arg(distance));
    QVERIFY(terminal().close(terminal().backend()->maps().first().group));
    QVERIFY(button("findingsButton") == nullptr);
}

void TestFileOpeningProducts::aFieldFarFromTheOtherTakesItsPlaceUnlessBothAreWanted()
{
    QSignalSpy opened(terminal().openWindow(), &OpenWindow::opened);
    openByTouch(write("both", {{"UREA_KG_HA", 1.0}, {"UAN_L_HA", 1.0}}));
    const QString far = write("far", {{"SEED_K_HA", 1.0}}, 38.0);
    Q_EMIT terminal().window()->dropped({far}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    button("openAccept")->click();
    QCOMPARE(terminal().backend()->maps().size(), 1);
    QCOMPARE(button("choice0")->text(), QStringLiteral("Close both.shp"));
    // Back leads back to the file.
    button("openBack")->click();
    button("openAccept")->click();
    button("choice0")->click();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(terminal().backend()->maps().size(), 1);
    QCOMPARE(QFileInfo(terminal().backend()->maps().first().path), QFileInfo(far));
    QCOMPARE(opened.last().first().value<LoadReport>().warnings, QStringList());
    QVERIFY(button("findingsButton") == nullptr);
}

void TestFileOpeningProducts::aFieldFarFromTheOtherBringsItsProducts()
{
    terminal().adoption()->adoptFromNextFile();
    QSignalSpy opened(terminal().openWindow(), &OpenWindow::opened);
    openByTouch(write("both", {{"UREA_KG_HA", 1.0}, {"UAN_L_HA", 1.0}}));
    Q_EMIT terminal().window()->dropped({write("far", {{"RYE_KG_HA", 1.0}}, 38.0)}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    QVERIFY2(remark().contains(QStringLiteral("Replaces both.shp")), qPrintable(remark()));
    button("openAccept")->click();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    QCOMPARE(productNames().first(), QStringLiteral("RYE"));
    QCOMPARE(terminal().backend()->maps().size(), 1);
    // Only the plane of the new map is left.
    const QStringList warnings = opened.last().first().value<LoadReport>().warnings;
    QVERIFY2(warnings.filter(QStringLiteral("plane")).isEmpty(), qPrintable(warnings.join('\n')));
}

void TestFileOpeningProducts::aProductOfTheFileIsMeasuredByTheUnitChosenForIt()
{
    terminal().adoption()->adoptFromNextFile();
    Q_EMIT terminal().window()->dropped({write("dose", {{"Dose", 1.0}, {"UREA_KG_HA", 1.0}})}, {});
    QTRY_VERIFY(button("openAccept") != nullptr);
    for (const char *touched : {"columnRow0Unit", "unitOthers", "unitAmount0", "unitArea0", "unitAccept"})
        button(touched)->click();
    accept();
    QTRY_VERIFY(!terminal().openWindow()->isVisible());
    const Product product = terminal().machine()->products().first();
    QCOMPARE(product.name, QStringLiteral("Dose"));
    QCOMPARE(product.rateKind(), DbGroupProductGroupInfo::VolumeRate);
    QCOMPARE(product.defaultRate, 100.0); // The rate in the file, now in litres.
    QCOMPARE(terminal().backend()->maps().last().sources.first().unit, QStringLiteral("L/ha"));
}

RXMAP_TEST(TestFileOpeningProducts, Widgets)
#include "tst_fileopening_products.moc"
