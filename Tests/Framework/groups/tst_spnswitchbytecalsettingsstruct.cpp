#include "testbase.h"

#include "Framework/spnswitchbytecalsettingsstruct.h"

#include <QVariant>

using OrvikTypes::SPN_SwitchByteCalSettingsStruct;

class TestSpnSwitchByteCalSettingsStruct : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void noNodeInjectsUntilSaidOtherwise();
    void aVariantCarriesIt();
};

void TestSpnSwitchByteCalSettingsStruct::noNodeInjectsUntilSaidOtherwise()
{
    QVERIFY(!SPN_SwitchByteCalSettingsStruct().isInjection());
    QVERIFY(SPN_SwitchByteCalSettingsStruct(true).isInjection());
    QVERIFY(!SPN_SwitchByteCalSettingsStruct(false).isInjection());
}

void TestSpnSwitchByteCalSettingsStruct::aVariantCarriesIt()
{
    const QVariant carried = QVariant::fromValue(SPN_SwitchByteCalSettingsStruct(true));
    QVERIFY(carried.value<SPN_SwitchByteCalSettingsStruct>().isInjection());
    // A value that is not such a record reads as one that was never set.
    QVERIFY(!QVariant(true).value<SPN_SwitchByteCalSettingsStruct>().isInjection());
}

RXMAP_TEST(TestSpnSwitchByteCalSettingsStruct, None)
#include "tst_spnswitchbytecalsettingsstruct.moc"
