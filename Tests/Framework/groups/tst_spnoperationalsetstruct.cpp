#include "testbase.h"

#include "Framework/spnoperationalsetstruct.h"

#include <QVariant>

using OrvikTypes::SPN_OperationalSetStruct;

class TestSpnOperationalSetStruct : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void ratesArePerAreaUntilSaidOtherwise();
    void aVariantCarriesIt();
};

void TestSpnOperationalSetStruct::ratesArePerAreaUntilSaidOtherwise()
{
    QVERIFY(!SPN_OperationalSetStruct().isRatioRate());
    QVERIFY(SPN_OperationalSetStruct(true).isRatioRate());
    QVERIFY(!SPN_OperationalSetStruct(false).isRatioRate());
}

void TestSpnOperationalSetStruct::aVariantCarriesIt()
{
    const QVariant carried = QVariant::fromValue(SPN_OperationalSetStruct(true));
    QVERIFY(carried.value<SPN_OperationalSetStruct>().isRatioRate());
    // A value that is not such a record reads as one that was never set.
    QVERIFY(!QVariant(true).value<SPN_OperationalSetStruct>().isRatioRate());
}

RXMAP_TEST(TestSpnOperationalSetStruct, None)
#include "tst_spnoperationalsetstruct.moc"
