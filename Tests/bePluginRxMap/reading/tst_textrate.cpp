#include "testbase.h"
#include "textrate.h"

#include <cmath>

class TextRateTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void readsNumbersAsTheyAreWritten_data();
    void readsNumbersAsTheyAreWritten();
    void refusesWhatIsNoNumber_data();
    void refusesWhatIsNoNumber();
    void takesAnEmptyTextForNoRate();
};

void TextRateTest::readsNumbersAsTheyAreWritten_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("isAmbiguous");
    const auto row = [](const char *text, double value, const char *unit = "", bool isAmbiguous = false) {
        QTest::newRow(text) << value << QString::fromUtf8(unit) << isAmbiguous;
    };
    row("12.5", 12.5);
    row(" 7 ", 7.0);
    row("12,5", 12.5);
    row("0,125", 0.125);
    row(".5", 0.5);
    row("-3", -3.0);
    row("1e3", 1000.0);
    row("1.5E+2", 150.0);
    row("1.234,5", 1234.5);
    row("1,234.5", 1234.5);
    row("1,234,567", 1234567.0);
    row("1.234.567,25", 1234567.25);
    row("1'234'567.5", 1234567.5);
    row("1\u2019500 kg/ha", 1500.0, "kg/ha"); // Apostrophe, no-break space, narrow one, thin space.
    row("1\u00a0500\u00a0kg/ha", 1500.0, "kg/ha");
    row("32\u202f000,5", 32000.5);
    row("32\u2009000", 32000.0);
    row("1.234", 1.234);
    row("32,000", 32.0, "", true);
    row("1234,000", 1234.0);
    row("100 kg/ha", 100.0, "kg/ha");
    row("100,5kg/ha", 100.5, "kg/ha");
    row("32 1000/ac", 32.0, "1000/ac");
    row("5 \xc2\xb5l/m2", 5.0, "\xc2\xb5l/m2");
}

void TextRateTest::readsNumbersAsTheyAreWritten()
{
    const TextRate rate = TextRate::parse(QString::fromUtf8(QTest::currentDataTag()));
    QVERIFY(rate.isReadable);
    QTEST(rate.value, "value");
    QTEST(rate.unit, "unit");
    QTEST(rate.isAmbiguous, "isAmbiguous");
}

void TextRateTest::refusesWhatIsNoNumber_data()
{
    QTest::addColumn<bool>("none");
    for (const char *text : {"none", "kg/ha", "10-20", "1.2.3", "2020.01.02", "1,2,3", "1,5;2", "12 / 3", "nan", "inf",
                             ".", "+", "1.234,567,8", "100 200", "1'23", "1'2345"})
        QTest::newRow(text) << true;
}

void TextRateTest::refusesWhatIsNoNumber()
{
    const TextRate rate = TextRate::parse(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!rate.isReadable);
    QVERIFY(std::isnan(rate.value));
}

void TextRateTest::takesAnEmptyTextForNoRate()
{
    const TextRate rate = TextRate::parse(QStringLiteral("  "));
    QVERIFY(rate.isReadable);
    QVERIFY(std::isnan(rate.value));
}

RXMAP_TEST(TextRateTest, None)
#include "tst_textrate.moc"
