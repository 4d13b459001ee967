#include "product.h"
#include "testbase.h"

/// A product of the machine.
class TestProduct : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void onlyACarrierOfATankMixIsCountedAsAVolume_data();
    void onlyACarrierOfATankMixIsCountedAsAVolume();
};

void TestProduct::onlyACarrierOfATankMixIsCountedAsAVolume_data()
{
    using Kind = Product::Kind;
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("asCarrier");
    const auto row = [](const char *name, Kind kind, Kind asCarrier) {
        QTest::newRow(name) << int(kind) << int(asCarrier);
    };
    row("count", Kind::Count, Kind::Count);
    row("ratio", Kind::Ratio, Kind::Volume);
    row("injection", Kind::Injection, Kind::Volume);
    row("volume", Kind::Volume, Kind::Volume);
    row("weight", Kind::Weight, Kind::Weight);
    row("pressure", Kind::Pressure, Kind::Pressure);
    row("unknown", Kind::Unknown, Kind::Unknown);
}

void TestProduct::onlyACarrierOfATankMixIsCountedAsAVolume()
{
    QFETCH(int, kind);
    QFETCH(int, asCarrier);
    Product product;
    product.kind = Product::Kind(kind);
    QCOMPARE(int(product.rateKind()), kind);
    product.isCarrier = true;
    QCOMPARE(int(product.rateKind()), asCarrier);
}

RXMAP_TEST(TestProduct, None)
#include "tst_product.moc"
