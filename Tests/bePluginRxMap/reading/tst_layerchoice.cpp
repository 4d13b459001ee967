#include "readertest.h"

/// Which of several layers is read.
class LayerChoiceTest : public ReaderTest {
    Q_OBJECT

private Q_SLOTS:
    void takesTheFirstLayerThatFits_data();
    void takesTheFirstLayerThatFits();
    void looksForPolygonsWhereTheKindIsNotKnown_data();
    void looksForPolygonsWhereTheKindIsNotKnown();
    void takesALayerByItsName_data();
    void takesALayerByItsName();
    void saysWhyNoLayerFits_data();
    void saysWhyNoLayerFits();
    void saysThatAFileHasNoTasks();

private:
    static LayerSketch layer(const char *name, const char *column, double rate);
    static LayerSketch points(const char *name);
    static LayerSketch empty(const char *name);
    bool write(const QList<LayerSketch> &layers) { return writeLayers(path("a.gpkg"), layers); }
};

Q_DECLARE_METATYPE(QList<LayerSketch>)

LayerSketch LayerChoiceTest::layer(const char *name, const char *column, double rate)
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.name = name;
    sketch.fields = {{column, 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {rate}}};
    return sketch;
}

LayerSketch LayerChoiceTest::points(const char *name)
{
    LayerSketch sketch = layer(name, "rate", 9.0);
    sketch.kind = "GEOMETRY";
    sketch.rows = {{QStringLiteral("POINT (11 48)"), {9.0}},
                   {QStringLiteral("GEOMETRYCOLLECTION (LINESTRING (11 48, 12 48))"), {9.0}}};
    return sketch;
}

LayerSketch LayerChoiceTest::empty(const char *name)
{
    LayerSketch sketch = layer(name, "rate", 9.0);
    sketch.rows.clear();
    return sketch;
}

void LayerChoiceTest::takesTheFirstLayerThatFits_data()
{
    QTest::addColumn<QList<LayerSketch>>("layers");
    QTest::addColumn<QStringList>("columns");
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QStringList>("offered");
    const QList<LayerSketch> two{layer("first", "rate_a", 1.0), layer("second", "rate_b", 1.0)};
    QTest::newRow("first") << two << QStringList() << "first" << QStringList{"first", "second"};
    QTest::newRow("with the column") << two << QStringList{"", "RATE_B"} << "second" << QStringList{"first", "second"};
    QTest::newRow("a rate by its name before one by its content")
        << QList<LayerSketch>{layer("border", "height", 1.5), layer("zones", "rate", 1.0)} << QStringList() << "zones"
        << QStringList{"border", "zones"};
    QTest::newRow("one by its content before none")
        << QList<LayerSketch>{layer("border", "area_ha", 1.5), layer("zones", "height", 1.0)} << QStringList()
        << "zones" << QStringList{"border", "zones"};
    QTest::newRow("no points, no empty ones")
        << QList<LayerSketch>{points("points"), empty("empty"), layer("zones", "rate", 1.0)} << QStringList() << "zones"
        << QStringList{"zones"};
}

void LayerChoiceTest::takesTheFirstLayerThatFits()
{
    QFETCH(QList<LayerSketch>, layers);
    QFETCH(QStringList, columns);
    QFETCH(QString, taken);
    QFETCH(QStringList, offered);
    QVERIFY(write(layers));
    QVERIFY2(read(path("a.gpkg"), columns), qPrintable(error));
    QCOMPARE(map.layer, taken);
    QCOMPARE(map.layers, offered);
    QCOMPARE(map.columns[0].values, std::vector<double>{1.0});
    QStringList warnings;
    for (const QString &other : offered) {
        if (other != taken)
            warnings.append(QStringLiteral("of its layers \"%1\" is loaded, not \"%2\"").arg(taken, other));
    }
    QCOMPARE(map.warnings, warnings);
}

void LayerChoiceTest::looksForPolygonsWhereTheKindIsNotKnown_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QString>("first");
    QTest::newRow("any") << QByteArray("GEOMETRY") << "POINT (11 48)";
    QTest::newRow("collections") << QByteArray("GEOMETRYCOLLECTION") << "GEOMETRYCOLLECTION (POINT (11 48))";
    QTest::newRow("collections with heights")
        << QByteArray("GEOMETRYCOLLECTION Z") << "GEOMETRYCOLLECTION Z (POINT Z (11 48 5))";
}

void LayerChoiceTest::looksForPolygonsWhereTheKindIsNotKnown()
{
    QFETCH(QByteArray, kind);
    QFETCH(QString, first);
    LayerSketch sketch = layer("mixed", "rate", 1.0);
    sketch.kind = kind.constData();
    sketch.rows.prepend({first, {9.0}});
    sketch.rows.last().geometry = QStringLiteral("GEOMETRYCOLLECTION (%1)").arg(sketch.rows.last().geometry);
    QVERIFY(write({points("points"), sketch}));
    QVERIFY2(read(path("a.gpkg")), qPrintable(error));
    QCOMPARE(map.layer, QStringLiteral("mixed"));
    QCOMPARE(map.records, 2);
    QCOMPARE(map.rings.size(), size_t(1));
}

void LayerChoiceTest::takesALayerByItsName_data()
{
    QTest::addColumn<QString>("taken");
    QTest::newRow("second") << "second";
    QTest::newRow("SECOND") << "second";
    QTest::newRow("#2") << "second";
    QTest::newRow("first") << "first";
}

void LayerChoiceTest::takesALayerByItsName()
{
    QVERIFY(write({layer("first", "rate", 1.0), points("points"), layer("second", "height", 2.5)}));
    QVERIFY2(read(ReadRequest{path("a.gpkg"), {}, QString::fromLatin1(QTest::currentDataTag())}), qPrintable(error));
    QTEST(map.layer, "taken");
    QVERIFY(map.warnings.isEmpty());
}

void LayerChoiceTest::saysWhyNoLayerFits_data()
{
    QTest::addColumn<QList<LayerSketch>>("layers");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("columns");
    QTest::addColumn<QString>("reason");
    const QList<LayerSketch> all{points("points"), empty("empty"), layer("a", "rate", 1.0), layer("b", "area_ha", 1.0)};
    QTest::newRow("no such layer") << all << "c" << QStringList() << "has no layer \"c\" with polygons; it has a, b";
    QTest::newRow("a layer of points") << all << "points" << QStringList()
                                       << "has no layer \"points\" with polygons; it has a, b";
    QTest::newRow("no layer with the column")
        << all << "" << QStringList{"LIME"}
        << "none of its layers will do: \"points\" holds no polygons, \"empty\" holds no records, \"a\" has no column "
           "\"LIME\", \"b\" has no column \"LIME\"";
    QTest::newRow("no layer with a rate")
        << QList<LayerSketch>{layer("a", "id", 1.0), layer("b", "area_ha", 1.0)} << "" << QStringList()
        << "none of its layers will do: \"a\" has no column that looks like a rate, \"b\" has no column that looks "
           "like "
           "a rate";
    QTest::newRow("none with polygons")
        << QList<LayerSketch>{points("p"), empty("e")} << "" << QStringList()
        << "none of its layers will do: \"p\" holds no polygons, \"e\" holds no records";
}

void LayerChoiceTest::saysWhyNoLayerFits()
{
    QFETCH(QList<LayerSketch>, layers);
    QFETCH(QString, name);
    QFETCH(QStringList, columns);
    QVERIFY(write(layers));
    QVERIFY(!read(ReadRequest{path("a.gpkg"), columns, name}));
    QTEST(error, "reason");
}

void LayerChoiceTest::saysThatAFileHasNoTasks()
{
    QVERIFY(write({layer("a", "rate", 1.0)}));
    QVERIFY(!read(ReadRequest{path("a.gpkg"), {}, {}, QStringLiteral("spring")}));
    QCOMPARE(error, QStringLiteral("has no task \"spring\"; it has no tasks"));
}

RXMAP_TEST(LayerChoiceTest, Core)
#include "tst_layerchoice.moc"
