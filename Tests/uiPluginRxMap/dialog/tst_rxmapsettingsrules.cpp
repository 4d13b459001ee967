#include "maphost.h"
#include "rxmapsettingsrules.h"
#include "testbase.h"

#include <limits>

namespace Rules = RxMapSettingsRules;

/// The settings dialog's rules, without a dialog. Letters stand for a product: m master, f follows, s shut off.
class TestRxMapSettingsRules : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void masterAndShutoffReachTheProductsTheyShould_data();
    void masterAndShutoffReachTheProductsTheyShould();
    void onlyMasterAndShutoffNeedReInit_data();
    void onlyMasterAndShutoffNeedReInit();
    void aGroupTakesAsManyMappingsAsItHolds_data();
    void aGroupTakesAsManyMappingsAsItHolds();
    void secondsBecomeWholeMilliseconds_data();
    void secondsBecomeWholeMilliseconds();
};

namespace {

Rules::Settings settingsOf(const QString &products)
{
    Rules::Settings settings;
    for (const QString &letters : products.split(QLatin1Char(','))) {
        OrvikTypes::RX_SETTINGS entry;
        entry.isMaster = letters.contains(QLatin1Char('m'));
        entry.followsMaster = letters.contains(QLatin1Char('f'));
        entry.zeroRateShutoff = letters.contains(QLatin1Char('s'));
        settings.append(entry);
    }
    return settings;
}

Rules::Mappings mappingsOf(const QString &channels)
{
    Rules::Mappings mappings;
    for (const QChar &channel : channels)
        mappings.append(mappingFor(channel));
    return mappings;
}

enum Change { NoMaster, Master, On, Off, OnForAll, OffForAll };

Rules::Settings changed(const Rules::Settings &settings, Change change, int product)
{
    switch (change) {
    case NoMaster:
        return Rules::withoutMaster(settings);
    case Master:
        return Rules::withMaster(settings, product);
    default:
        return Rules::withShutoff(settings, product, change == On || change == OnForAll, change >= OnForAll);
    }
}

} // namespace

void TestRxMapSettingsRules::masterAndShutoffReachTheProductsTheyShould_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("change");
    QTest::addColumn<int>("product");
    QTest::addColumn<QString>("after");
    QTest::newRow("no master any more") << "ms,fs" << int(NoMaster) << 0 << "s,fs";
    QTest::newRow("a master with shut-off reaches all") << "f,s,-" << int(Master) << 1 << "fs,ms,s";
    QTest::newRow("a master without reaches all") << "fs,-,s" << int(Master) << 1 << "f,m,-";
    QTest::newRow("another master") << "m,f,-" << int(Master) << 2 << "-,f,m";
    QTest::newRow("a master beyond the last") << "ms,f" << int(Master) << 2 << "s,f";
    QTest::newRow("a master before the first") << "ms,f" << int(Master) << -1 << "s,f";
    QTest::newRow("on for one") << "f,f" << int(On) << 1 << "f,fs";
    QTest::newRow("off for one") << "fs,fs" << int(Off) << 0 << "f,fs";
    QTest::newRow("on for one beyond the last") << "f,f" << int(On) << 2 << "f,f";
    QTest::newRow("on for all that follow") << "m,f,-" << int(OnForAll) << 0 << "m,fs,-";
    QTest::newRow("off for all that follow") << "mfs,fs,s" << int(OffForAll) << 2 << "mf,f,s";
}

void TestRxMapSettingsRules::masterAndShutoffReachTheProductsTheyShould()
{
    QFETCH(QString, before);
    QFETCH(int, change);
    QFETCH(int, product);
    QFETCH(QString, after);
    QCOMPARE(changed(settingsOf(before), static_cast<Change>(change), product), settingsOf(after));
    QCOMPARE(Rules::hasMaster(settingsOf(before)), before.contains(QLatin1Char('m')));
}

void TestRxMapSettingsRules::onlyMasterAndShutoffNeedReInit_data()
{
    QTest::addColumn<QString>("old");
    QTest::addColumn<QString>("now");
    QTest::addColumn<bool>("needed");
    QTest::newRow("the same") << "m,fs"
                              << "m,fs" << false;
    QTest::newRow("another follower") << "m,fs"
                                      << "mf,s" << false;
    QTest::newRow("another master") << "m,-"
                                    << "-,m" << true;
    QTest::newRow("another shut-off") << "-,s"
                                      << "-,-" << true;
    QTest::newRow("one entry more in the group") << "-,s"
                                                 << "-" << false;
    QTest::newRow("one entry less in the group") << "-"
                                                 << "-,s" << false;
}

void TestRxMapSettingsRules::onlyMasterAndShutoffNeedReInit()
{
    QFETCH(QString, old);
    QFETCH(QString, now);
    QTEST(Rules::needsReInit(settingsOf(old), settingsOf(now)), "needed");
}

void TestRxMapSettingsRules::aGroupTakesAsManyMappingsAsItHolds_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<QString>("held");
    QTest::addColumn<QString>("share");
    QTest::newRow("the first group") << 0 << "ab"
                                     << "AB";
    QTest::newRow("the second group") << 2 << "cd"
                                      << "CD";
    QTest::newRow("a group that grew") << 2 << "cdefg"
                                       << "CDEfg";
    QTest::newRow("nothing left") << 5 << "x"
                                  << "x";
    QTest::newRow("far behind the last") << 9 << "x"
                                         << "x";
    QTest::newRow("an empty group") << 0 << ""
                                    << "";
}

void TestRxMapSettingsRules::aGroupTakesAsManyMappingsAsItHolds()
{
    QFETCH(int, first);
    QFETCH(QString, held);
    QFETCH(QString, share);
    QCOMPARE(Rules::shareOf(mappingsOf(QStringLiteral("ABCDE")), first, mappingsOf(held)), mappingsOf(share));
}

void TestRxMapSettingsRules::secondsBecomeWholeMilliseconds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("two decimals") << "2.57" << 2570;
    QTest::newRow("below a millisecond") << "0.0004" << 0;
    QTest::newRow("truncated") << "1.9999" << 1999;
    QTest::newRow("truncated toward zero") << "-1.9999" << -1999;
    QTest::newRow("no number") << "abc" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("not a number") << "nan" << 0;
    QTest::newRow("too small") << "-1e300" << std::numeric_limits<int>::min();
    QTest::newRow("too large") << "1e300" << std::numeric_limits<int>::max();
}

void TestRxMapSettingsRules::secondsBecomeWholeMilliseconds()
{
    QFETCH(QString, text);
    QTEST(Rules::lookAheadMs(text), "milliseconds");
}

RXMAP_TEST(TestRxMapSettingsRules, None)
#include "tst_rxmapsettingsrules.moc"
