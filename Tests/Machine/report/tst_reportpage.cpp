#include "drivenfield.h"
#include "drivetally.h"
#include "dubinspath.h"
#include "fieldraster.h"
#include "machinebench.h"
#include "reportpage.h"
#include "reportunits.h"
#include "testbase.h"

#include <QImage>
#include <QXmlStreamReader>

#include <cmath>

/// The report as a page.
class TestReportPage : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void itIsWholeAndNeedsNothingElse();
    void itsHeadTellsTheDefaultRatesOfWhatIsDriven();
    void picturesShowPlanAndDriveInTheLegendsColours();
    void whatIsAppliedWithoutARateHasAColourOfItsOwn();
    void classesAddUp();
    void theFarthestChangesAreListed();
    void numbersAreInTheOperatorsUnits_data();
    void numbersAreInTheOperatorsUnits();
    void numbersAreShort_data();
    void numbersAreShort();
    void theSameDriveMakesTheSamePage();

private:
    struct Element {
        QString name;
        QString text;
        QString picture;
    };

    /// There and back over the border between two zones, with one product that has no prescription.
    static QByteArray drive(UnitSystem units, bool isTuned);
    static QList<Element> elements(const QByteArray &page);
    QStringList texts(const char *name) const;
    QImage picture(int index) const;

    QByteArray page;
    QList<Element> all;
};

QByteArray TestReportPage::drive(UnitSystem units, bool isTuned)
{
    Products products = ProductFile::standard().mid(0, 2);
    products[0].name = QStringLiteral("Seed\u202e<&\">");
    products[0].defaultRate = 65.0;
    MachineBench bench(products, units);
    if (!bench.loadZones({{-90, 0, 50}, {0, 90, 80}}, {1}, QStringLiteral("A\u202e")).isOk())
        return {};
    bench.set(1, 0, false, true);
    DrivePath path(Pose{{-90, 0}, radiansOf(90.0)});
    for (const double y : {0.0, 30.0, 60.0, 90.0}) {
        const bool isEast = y == 0.0 || y == 60.0;
        const Pose start{{isEast ? -90.0 : 90.0, y}, radiansOf(isEast ? 90.0 : 270.0)};
        if (y > 0.0)
            path.append(dubinsPath(path.end(), start, 7.0));
        path.append(PathPiece{180.0, 0.0, true});
    }
    FieldDrive drive(&bench.simulation, path);
    DriveTally tally(&bench.simulation);
    FieldRaster raster(&bench.simulation, drive.workedBounds());
    drive.run();
    tally.end();
    raster.end();
    std::vector<FieldDrive::Curve> curves;
    if (isTuned)
        curves = FieldDrive(&bench.simulation, path).tune();
    return ReportPage::make({QStringLiteral("zones\u202e.shp"), &bench.simulation, &tally, &raster, curves});
}

QList<TestReportPage::Element> TestReportPage::elements(const QByteArray &page)
{
    QList<Element> found;
    QXmlStreamReader reader(page);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            found.append({reader.name().toString(), {}, reader.attributes().value(QLatin1String("src")).toString()});
        else if (reader.isCharacters() && !found.isEmpty())
            found.last().text += reader.text();
    }
    return reader.hasError() ? QList<Element>() : found;
}

QStringList TestReportPage::texts(const char *name) const
{
    QStringList found;
    for (const Element &element : all) {
        if (element.name == QLatin1String(name))
            found.append(element.text);
    }
    return found;
}

QImage TestReportPage::picture(int index) const
{
    QStringList pictures;
    for (const Element &element : all) {
        if (!element.picture.isEmpty())
            pictures.append(element.picture);
    }
    const QString data = pictures.value(index).section(QLatin1Char(','), 1);
    return QImage::fromData(QByteArray::fromBase64(data.toLatin1()), "PNG");
}

void TestReportPage::initTestCase()
{
    page = drive(UnitSystem::Metric, true);
    all = elements(page);
}

void TestReportPage::itIsWholeAndNeedsNothingElse()
{
    // The page is XML as well, so every element is closed.
    QVERIFY(all.size() > 100);
    QVERIFY(page.startsWith("<!DOCTYPE html>"));
    QVERIFY(page.contains("charset=\"utf-8\""));
    for (const char *reference : {"http", "src=\"/", "href", "url(", "<script", "<link"})
        QVERIFY2(!page.contains(reference), reference);
    QCOMPARE(texts("h2"), (QStringList{"Seed?<&\"> (k/ha)", "Fertiliser (kg/ha)"}));
    QVERIFY(texts("p").contains(QStringLiteral("No prescription drives this product.")));
    QCOMPARE(texts("p").filter(QStringLiteral("Column A?; look-ahead")).size(), 1);
    QCOMPARE(texts("svg").size(), 2);
    QVERIFY(texts("p").contains(QStringLiteral("A look-ahead of 0.70 s puts the changes nearest to the borders."))
            || texts("p").contains(QStringLiteral("A look-ahead of 0.80 s puts the changes nearest to the borders.")));
    // Without tuning there is no curve.
    QCOMPARE(drive(UnitSystem::Metric, false).count("<svg"), 1);
}

void TestReportPage::itsHeadTellsTheDefaultRatesOfWhatIsDriven()
{
    const QStringList cells = texts("td");
    const int place = cells.indexOf(QStringLiteral("Default rate of Seed?<&\">"));
    QVERIFY(place >= 0);
    QCOMPARE(cells.at(place + 1), QStringLiteral("65.0 k/ha"));
    QVERIFY(!cells.contains(QStringLiteral("Default rate of Fertiliser")));
    QCOMPARE(cells.at(1), QStringLiteral("zones?.shp"));
}

void TestReportPage::picturesShowPlanAndDriveInTheLegendsColours()
{
    const QImage prescribed = picture(0);
    const QImage applied = picture(1);
    QVERIFY(!prescribed.isNull() && prescribed.size() == applied.size());
    QCOMPARE(texts("figcaption"), (QStringList{"Prescribed", "Applied"}));
    // The picture reaches from -98 to 98 m east, and from -8 to 98 m north.
    const double cell = 196.0 / prescribed.width();
    const auto at = [cell](const QImage &image, double x, double y) {
        return image.pixelColor(int((x + 98.0) / cell), image.height() - 1 - int((y + 8.0) / cell));
    };
    const QColor low = at(prescribed, -50, 0);
    const QColor high = at(prescribed, 50, 0);
    QVERIFY(low != high && low.alpha() == 255 && high.alpha() == 255);
    QCOMPARE(at(prescribed, -94, 0).alpha(), 0);
    for (const double y : {0.0, 30.0, 60.0, 90.0}) {
        QCOMPARE(at(applied, -50, y), low);
        QCOMPARE(at(applied, 50, y), high);
        QCOMPARE(at(applied, -50, y + 7.0).alpha(), 0);
        // Without look-ahead the rate changes late, in either direction.
        const bool isEast = y == 0.0 || y == 60.0;
        QCOMPARE(at(applied, 1.0, y), isEast ? low : high);
        QCOMPARE(at(applied, -1.0, y), isEast ? low : high);
        QCOMPARE(at(applied, isEast ? 4.0 : -4.0, y), isEast ? high : low);
    }
}

void TestReportPage::whatIsAppliedWithoutARateHasAColourOfItsOwn()
{
    const QImage prescribed = picture(0);
    const QImage applied = picture(1);
    const QColor own(0x88, 0x88, 0x88);
    int outside = 0;
    int inside = 0;
    for (int row = 0; row < applied.height(); ++row) {
        for (int column = 0; column < applied.width(); ++column) {
            const bool isOutside = prescribed.pixelColor(column, row).alpha() == 0;
            if (applied.pixelColor(column, row).alpha() == 0)
                continue;
            QVERIFY(!isOutside || applied.pixelColor(column, row) == own);
            (isOutside ? outside : inside) += applied.pixelColor(column, row) == own ? 1 : 0;
        }
    }
    QVERIFY(outside > 0);
    // When it starts, the machine applies almost nothing.
    QVERIFY2(inside < 0.01 * applied.width() * applied.height(), qPrintable(QString::number(inside)));
    // The table of classes serves as the legend.
    const int swatch = page.indexOf("background:" + own.name().toLatin1());
    QVERIFY(swatch > 0);
    QVERIFY(page.indexOf("No rate prescribed", swatch) - swatch < 30);
}

void TestReportPage::classesAddUp()
{
    const QStringList cells = texts("td");
    const int first = cells.indexOf(QStringLiteral("Total"));
    QVERIFY(first > 12);
    // Class, area, planned, applied, difference, share: two classes, ground without a rate, the total.
    const auto number = [&cells](int at) { return cells.at(at).toDouble(); };
    const int low = first - 18;
    QVERIFY(std::fabs(number(low + 1) - 0.432) < 0.01);
    QVERIFY(std::fabs(number(low + 2) - 50.0 * number(low + 1)) < 0.3);
    QVERIFY(std::fabs(number(low + 8) - 80.0 * number(low + 7)) < 0.3);
    QCOMPARE(texts("span").last(), QStringLiteral("No rate prescribed"));
    for (int column = 1; column <= 3; ++column)
        QVERIFY(std::fabs(number(low + column) + number(low + 6 + column) + number(low + 12 + column)
                          - number(first + column))
                < 0.2);
}

void TestReportPage::theFarthestChangesAreListed()
{
    QVERIFY(texts("p").join(QLatin1Char(' ')).contains(QStringLiteral("4 changes of rate; median ")));
    const QStringList cells = texts("td");
    const QStringList changes = cells.mid(cells.size() - 24);
    double farther = 1.0;
    for (int change = 0; change < 4; ++change) {
        const QStringList row = changes.mid(6 * change, 6);
        QVERIFY2(std::fabs(row.at(0).toDouble()) < 0.1, qPrintable(row.join(QLatin1Char(' '))));
        const bool isEast = qRound(row.at(1).toDouble()) % 60 == 0;
        QCOMPARE(row.mid(2, 2), isEast ? (QStringList{"50.0", "80.0"}) : (QStringList{"80.0", "50.0"}));
        const double seconds = row.at(5).toDouble();
        QVERIFY2(seconds >= 0.7 && seconds <= 0.8 && seconds <= farther, qPrintable(row.at(5)));
        farther = seconds;
        QVERIFY(std::fabs(row.at(4).toDouble() - FieldDrive::usualSpeed * seconds) < 0.1);
    }
}

void TestReportPage::numbersAreInTheOperatorsUnits_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<QStringList>("heads");
    QTest::addColumn<double>("area");
    QTest::addColumn<double>("planned");
    QTest::addColumn<QString>("width");
    // 1000 seeds are the same number in every unit system; an acre is 0.40468564 ha.
    QTest::newRow("metric") << int(UnitSystem::Metric)
                            << QStringList{"Class (k/ha)", "Area (ha)", "Planned (k)", "Late (m)"} << 0.432 << 21.6
                            << "12.0 m";
    QTest::newRow("us") << int(UnitSystem::Us) << QStringList{"Class (k/ac)", "Area (ac)", "Planned (k)", "Late (ft)"}
                        << 1.0675 << 21.6 << "39.4 ft";
    QTest::newRow("turf") << int(UnitSystem::Turf)
                          << QStringList{"Class (k/tu)", QStringLiteral("Area (ft\u00b2)"), "Planned (k)", "Late (ft)"}
                          << 46500.0 << 21.6 << "39.4 ft";
}

void TestReportPage::numbersAreInTheOperatorsUnits()
{
    QFETCH(int, units);
    QFETCH(QStringList, heads);
    QFETCH(double, area);
    QFETCH(double, planned);
    QFETCH(QString, width);
    all = elements(drive(UnitSystem(units), false));
    for (const QString &head : heads)
        QVERIFY2(texts("th").contains(head), qPrintable(head + texts("th").join(QLatin1Char(' '))));
    const QStringList cells = texts("td");
    QVERIFY(cells.contains(width));
    const int low = cells.indexOf(QStringLiteral("Total")) - 18;
    const double shownArea = QLocale(QLocale::English).toDouble(cells.value(low + 1));
    QVERIFY2(std::fabs(shownArea / area - 1.0) < 0.02, qPrintable(cells.value(low + 1)));
    QVERIFY2(std::fabs(cells.value(low + 2).toDouble() / planned - 1.0) < 0.02, qPrintable(cells.value(low + 2)));
}

void TestReportPage::numbersAreShort_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << -0.0 << "0";
    QTest::newRow("next to nothing") << -4e-5 << "0";
    QTest::newRow("ratio") << 0.01234 << "0.0123";
    QTest::newRow("rate") << 84.26 << "84.3";
    QTest::newRow("below zero") << -84.26 << QStringLiteral("\u221284.3");
    QTest::newRow("many") << 1234567.8 << "1,234,568";
    QTest::newRow("no number") << std::nan("") << QStringLiteral("\u2013");
}

void TestReportPage::numbersAreShort()
{
    QFETCH(double, value);
    QTEST(ReportUnits::number(value), "text");
}

void TestReportPage::theSameDriveMakesTheSamePage()
{
    QCOMPARE(drive(UnitSystem::Metric, true), page);
}

RXMAP_TEST(TestReportPage, Core)
#include "tst_reportpage.moc"
