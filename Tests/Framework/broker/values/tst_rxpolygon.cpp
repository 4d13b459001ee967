#include "testbase.h"

#include "Framework/rxpolygon.h"

#include <cstddef>
#include <type_traits>

using OrvikTypes::RX_POLYGON;
using OrvikTypes::RX_POLYGONVERTEX;
using OrvikTypes::RX_RATECOLOR;

/// Back-ends and plug-ins are built separately and share these records in memory: every field has its place and width.
class TestRxPolygon : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void fieldsHaveTheirPlaces_data();
    void fieldsHaveTheirPlaces();
    void fieldsHaveTheirTypes();
};

void TestRxPolygon::fieldsHaveTheirPlaces_data()
{
    // Where a pointer is aligned like a double, as on every 64-bit terminal.
    if (sizeof(void *) != 8)
        QSKIP("the places are those of a 64-bit program");
    QTest::addColumn<std::size_t>("place");
    QTest::addColumn<std::size_t>("expected");
#define FIELD(RECORD, NAME, PLACE) QTest::newRow(#RECORD "::" #NAME) << offsetof(RECORD, NAME) << std::size_t(PLACE)
    FIELD(RX_POLYGON, area, 0);
    FIELD(RX_POLYGON, drawIndex, 8);
    FIELD(RX_POLYGON, vertices, 16);
    FIELD(RX_POLYGON, vertexCount, 24);
    FIELD(RX_POLYGON, rates, 32);
    FIELD(RX_POLYGON, isHole, 40);
    FIELD(RX_POLYGON, next, 48);
    FIELD(RX_POLYGONVERTEX, x, 0);
    FIELD(RX_POLYGONVERTEX, y, 8);
    FIELD(RX_RATECOLOR, rate, 0);
    FIELD(RX_RATECOLOR, color, 8);
#undef FIELD
    QTest::newRow("size of RX_POLYGON") << sizeof(RX_POLYGON) << std::size_t(56);
    QTest::newRow("size of RX_POLYGONVERTEX") << sizeof(RX_POLYGONVERTEX) << std::size_t(16);
}

void TestRxPolygon::fieldsHaveTheirPlaces()
{
    QFETCH(std::size_t, place);
    QTEST(place, "expected");
}

void TestRxPolygon::fieldsHaveTheirTypes()
{
#define TYPE(RECORD, NAME, ...) QVERIFY((std::is_same<decltype(RECORD::NAME), __VA_ARGS__>::value))
    TYPE(RX_POLYGON, area, double);
    TYPE(RX_POLYGON, drawIndex, qint32);
    TYPE(RX_POLYGON, vertices, RX_POLYGONVERTEX *);
    TYPE(RX_POLYGON, vertexCount, quint32);
    TYPE(RX_POLYGON, rates, float *);
    TYPE(RX_POLYGON, isHole, bool);
    TYPE(RX_POLYGON, next, RX_POLYGON *);
    TYPE(RX_POLYGONVERTEX, x, double);
    TYPE(RX_POLYGONVERTEX, y, double);
    TYPE(RX_RATECOLOR, rate, double);
    TYPE(RX_RATECOLOR, color, QColor);
#undef TYPE
}

RXMAP_TEST(TestRxPolygon, None)
#include "tst_rxpolygon.moc"
