#include "reportunits.h"
#include "shownnumber.h"
#include "testbase.h"

#include <QLocale>

/// Numbers as each language writes them.
class TestShownNumber : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aLanguageHasItsOwnSeparators_data();
    void aLanguageHasItsOwnSeparators();
    void noDigitIsLost();
    void aReportsNumbersFollow();
};

void TestShownNumber::cleanup()
{
    QLocale::setDefault(QLocale::English);
    TestBase::cleanup();
}

void TestShownNumber::aLanguageHasItsOwnSeparators_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *title, const char *language, const char *plain, const QString &shown) {
        QTest::newRow(title) << language << plain << shown;
    };
    row("English", "en", "12345.60", "12,345.60");
    row("German", "de", "12345.60", "12.345,60");
    row("German, a fraction", "de", "0.07", "0,07");
    row("German, below zero", "de", "-1234.5", "-1.234,5");
    row("German, whole", "de", "5932", "5.932");
    row("German, a power of ten", "de", "1.23457e+06", "1,23457e+06");
    row("Portuguese of Brazil", "pt_BR", "1234.5", "1.234,5");
    row("French", "fr", "1234.5", QStringLiteral("1\u202f234,5"));
    row("none chosen", "C", "12345.60", "12345.60");
}

void TestShownNumber::aLanguageHasItsOwnSeparators()
{
    QFETCH(QString, language);
    QFETCH(QString, plain);
    QLocale::setDefault(QLocale(language));
    QTEST(ShownNumber::inLanguage(plain), "shown");
}

void TestShownNumber::noDigitIsLost()
{
    QLocale::setDefault(QLocale(QStringLiteral("de")));
    QCOMPARE(ShownNumber::inLanguage(QStringLiteral("999999999999.12")), QStringLiteral("999.999.999.999,12"));
    QCOMPARE(ShownNumber::inLanguage(QStringLiteral("0.0001234")), QStringLiteral("0,0001234"));
    QCOMPARE(ShownNumber::text(2.5, 2), QStringLiteral("2,50"));
}

void TestShownNumber::aReportsNumbersFollow()
{
    QLocale::setDefault(QLocale(QStringLiteral("de")));
    QCOMPARE(ReportUnits::number(-12.345), QStringLiteral("\u221212,3"));
    QCOMPARE(ReportUnits::number(54321.0), QStringLiteral("54.321"));
    QCOMPARE(ReportUnits::number(-0.004, 2), QStringLiteral("0,00"));
}

RXMAP_TEST(TestShownNumber, None)
#include "tst_shownnumber.moc"
