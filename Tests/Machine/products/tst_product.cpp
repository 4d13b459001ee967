#include "product.h"
#include "testbase.h"

Q_DECLARE_METATYPE(Product::Kind)

/// A product of the machine.
class TestProduct : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void onlyACarrierOfATankMixIsCountedAsAVolume_data();
    void onlyACarrierOfATankMixIsCountedAsAVolume();
    void anotherNameKindOrCarrierIsAnotherProduct();
};

void TestProduct::onlyACarrierOfATankMixIsCountedAsAVolume_data()
{
    using Kind = Product::Kind;
    using Info = DbGroupProductGroupInfo;
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<Info::RateKind>("rateKind");
    QTest::addColumn<Info::RateKind>("asCarrier");
    QTest::newRow("count") << Kind::Count << Info::CountRate << Info::CountRate;
    QTest::newRow("ratio") << Kind::Ratio << Info::RatioRate << Info::VolumeRate;
    QTest::newRow("injection") << Kind::Injection << Info::InjectionRate << Info::VolumeRate;
    QTest::newRow("volume") << Kind::Volume << Info::VolumeRate << Info::VolumeRate;
    QTest::newRow("weight") << Kind::Weight << Info::WeightRate << Info::WeightRate;
    QTest::newRow("pressure") << Kind::Pressure << Info::PressureRate << Info::PressureRate;
    QTest::newRow("unknown") << Kind::Unknown << Info::UnknownRate << Info::UnknownRate;
}

void TestProduct::onlyACarrierOfATankMixIsCountedAsAVolume()
{
    QFETCH(Product::Kind, kind);
    Product product;
    product.kind = kind;
    QTEST(product.rateKind(), "rateKind");
    product.isCarrier = true;
    QTEST(product.rateKind(), "asCarrier");
}

void TestProduct::anotherNameKindOrCarrierIsAnotherProduct()
{
    Product one;
    one.name = QStringLiteral("Mix");
    one.kind = Product::Kind::Ratio;
    one.defaultRate = 1.0;
    Product other = one;
    other.defaultRate = 2.0;
    QVERIFY(one.isSameAs(other));
    other.isCarrier = true;
    QVERIFY(!one.isSameAs(other));
    other = one;
    other.kind = Product::Kind::Injection;
    QVERIFY(!one.isSameAs(other));
    other = one;
    other.name = QStringLiteral("mix");
    QVERIFY(!one.isSameAs(other));
}

RXMAP_TEST(TestProduct, None)
#include "tst_product.moc"
