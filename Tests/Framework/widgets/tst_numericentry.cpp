#include "numericentry.h"
#include "testbase.h"

#include <functional>

using Limits = std::function<void(NumericEntry &)>;
Q_DECLARE_METATYPE(Limits)

class tst_NumericEntry : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void takesOnlyKeysWithinTheLimits_data();
    void takesOnlyKeysWithinTheLimits();
    void saysWhyAKeyIsNotTaken_data();
    void saysWhyAKeyIsNotTaken();
    void replacesAnyTextWithTheFirstKey_data();
    void replacesAnyTextWithTheFirstKey();
    void aRefusedFirstKeyLeavesTheTextToBeReplaced();
    void tellsWhetherTheTextIsAnotherOne();
    void erasingTakesTheWholeTextThatIsToBeReplaced();
    void erasesTheLastCharacter();
    void clearsTheText();
    void tellsItsLimits_data();
    void tellsItsLimits();
    void limitsSetLaterReplaceEarlierOnes();

private:
    static void type(NumericEntry &entry, const QString &keys)
    {
        for (const QChar key : keys)
            entry.type(key);
    }
};

void tst_NumericEntry::takesOnlyKeysWithinTheLimits_data()
{
    QTest::addColumn<Limits>("limits");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *title, const Limits &limits, const QString &keys, const char *text) {
        QTest::newRow(title) << limits << keys << text;
    };

    const Limits none = [](NumericEntry &) {};
    const Limits threeAndOne = [](NumericEntry &entry) { entry.setSizeLimits(3, 1); };
    const Limits threeAndTwo = [](NumericEntry &entry) { entry.setSizeLimits(3, 2); };
    const Limits threeAndNone = [](NumericEntry &entry) { entry.setSizeLimits(3, 0); };
    const Limits noneAndTwo = [](NumericEntry &entry) { entry.setSizeLimits(0, 2); };
    const Limits toFiveThousand = [](NumericEntry &entry) { entry.setRange(0.0, 5000.0, 1); };
    const Limits tenToFifty = [](NumericEntry &entry) { entry.setRange(10.0, 50.0, 1); };
    const Limits aroundZero = [](NumericEntry &entry) { entry.setRange(-12.5, 7.25, 2); };
    const Limits belowZero = [](NumericEntry &entry) { entry.setRange(-50.0, -10.0, 0); };
    const Limits tenths = [](NumericEntry &entry) { entry.setRange(0.1, 0.3, 1); };

    row("a fourth digit", threeAndOne, "1234", "123");
    row("the most digits", threeAndOne, "999.9", "999.9");
    row("a second decimal", threeAndOne, "2.57", "2.5");
    row("two decimals where there may be two", threeAndTwo, "2.57", "2.57");
    row("a second point", threeAndTwo, "2.5.7", "2.57");
    row("the point of a whole number", threeAndNone, "2.5", "25");
    row("no digit before the point", noneAndTwo, "5.25", "0.25");
    row("a minus in a size", threeAndOne, "-5", "5");
    row("a letter", threeAndOne, "e5x", "5");
    row("a foreign digit", threeAndOne, QString(QChar(0x0665)) + QLatin1Char('5'), "5");
    row("a leading point", threeAndOne, ".5", "0.5");
    row("a digit after a lone zero", threeAndOne, "0075", "75");
    row("zeros after the point", threeAndTwo, "0.05", "0.05");

    row("the largest value", toFiveThousand, "5000.0", "5000.0");
    row("over by a digit", toFiveThousand, "5001", "500");
    row("over by a decimal", toFiveThousand, "5000.1", "5000.");
    row("over by a place", toFiveThousand, "12345", "1234");
    row("a second decimal of a range", toFiveThousand, "12.34", "12.3");
    row("a minus over zero", toFiveThousand, "-1", "1");

    row("below, but may grow", tenToFifty, "12", "12");
    row("cannot become large enough", tenToFifty, "6", "");
    row("zero below the range", tenToFifty, "0", "");
    row("a decimal below the range", tenToFifty, "1.5", "15");

    row("a negative value", aroundZero, "-12.5", "-12.5");
    row("under by a decimal", aroundZero, "-12.51", "-12.5");
    row("over on the other side", aroundZero, "8", "");
    row("a minus inside", aroundZero, "1-2", "1");
    row("a point after the minus", aroundZero, "-.5", "-0.5");
    row("a negative range", belowZero, "-7-20", "-20");
    row("a positive value in a negative range", belowZero, "20", "");
    row("limits that no double holds", tenths, "0.3", "0.3");
    row("beyond limits that no double holds", tenths, "0.4", "0.");

    row("no limits", none, "-123456.654321", "-123456.654321");
}

void tst_NumericEntry::takesOnlyKeysWithinTheLimits()
{
    QFETCH(Limits, limits);
    QFETCH(QString, keys);
    NumericEntry entry;
    limits(entry);
    type(entry, keys);
    QTEST(entry.text(), "text");
}

void tst_NumericEntry::saysWhyAKeyIsNotTaken_data()
{
    QTest::addColumn<Limits>("limits");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *title, const Limits &limits, const char *keys, const QString &reason) {
        QTest::newRow(title) << limits << keys << reason;
    };
    const Limits none = [](NumericEntry &) {};
    const Limits threeAndOne = [](NumericEntry &entry) { entry.setSizeLimits(3, 1); };
    const Limits whole = [](NumericEntry &entry) { entry.setRange(-5.0, 40.0, 0); };
    row("a key that is taken", threeAndOne, "2", QString());
    row("the last digit that is taken", threeAndOne, "999.9", QString());
    row("a digit too many", threeAndOne, "1234", "Beyond 0 \u2013 999.9");
    row("a decimal too many", threeAndOne, "2.57", "Decimals: 1 at most");
    row("a minus", threeAndOne, "-", "Beyond 0 \u2013 999.9");
    row("below the range", whole, "-6", "Beyond -5 \u2013 40");
    row("above the range", whole, "41", "Beyond -5 \u2013 40");
    row("the point of a whole number", whole, "3.", "Whole numbers only");
    row("a second point", threeAndOne, "2.5.", "That would be no number");
    row("a letter", threeAndOne, "2x", "That would be no number");
    row("without limits", none, "12345678901234567", "Too many digits");
}

void tst_NumericEntry::saysWhyAKeyIsNotTaken()
{
    QFETCH(Limits, limits);
    QFETCH(QString, keys);
    NumericEntry entry;
    limits(entry);
    type(entry, keys.chopped(1));
    const NumericEntry::Refusal refusal = entry.refusalOf(keys.back());
    QTEST(entry.refusalText(refusal), "reason");
    const QString before = entry.text();
    type(entry, keys.right(1));
    QCOMPARE(entry.text() == before, refusal != NumericEntry::Refusal::None);
}

void tst_NumericEntry::replacesAnyTextWithTheFirstKey_data()
{
    QTest::addColumn<QString>("shown");
    QTest::newRow("a number") << "2.5";
    QTest::newRow("no number") << "????";
    QTest::newRow("a number outside the limits") << "1.23457e+06";
    QTest::newRow("nothing") << "";
}

void tst_NumericEntry::replacesAnyTextWithTheFirstKey()
{
    QFETCH(QString, shown);
    NumericEntry entry;
    entry.setRange(0.0, 5000.0, 1);
    entry.setText(shown);
    QVERIFY(entry.startsOver());
    QCOMPARE(entry.text(), shown);

    entry.type('7');
    QVERIFY(!entry.startsOver());
    QCOMPARE(entry.text(), QStringLiteral("7"));
    entry.type('1');
    QCOMPARE(entry.text(), QStringLiteral("71"));

    entry.startOver();
    entry.type('.');
    QCOMPARE(entry.text(), QStringLiteral("0."));
}

void tst_NumericEntry::aRefusedFirstKeyLeavesTheTextToBeReplaced()
{
    NumericEntry entry;
    entry.setSizeLimits(3, 1);
    entry.setText(QStringLiteral("????"));
    QVERIFY(!entry.type('-'));
    QCOMPARE(entry.text(), QStringLiteral("????"));
    QVERIFY(entry.startsOver());
}

void tst_NumericEntry::tellsWhetherTheTextIsAnotherOne()
{
    NumericEntry entry;
    entry.setSizeLimits(1, 0);
    QVERIFY(entry.type('5'));
    QVERIFY(!entry.type('6'));
    entry.startOver();
    QVERIFY(!entry.type('5')); // the same text again
    QVERIFY(!entry.startsOver());
    QVERIFY(entry.eraseLast());
    QVERIFY(!entry.eraseLast());
    QVERIFY(!entry.clear());
}

void tst_NumericEntry::erasingTakesTheWholeTextThatIsToBeReplaced()
{
    NumericEntry entry;
    entry.setText(QStringLiteral("1.23457e+06"));
    QVERIFY(entry.eraseLast());
    QCOMPARE(entry.text(), QString());
}

void tst_NumericEntry::erasesTheLastCharacter()
{
    NumericEntry entry;
    type(entry, QStringLiteral("12.5"));
    QVERIFY(entry.eraseLast());
    QCOMPARE(entry.text(), QStringLiteral("12."));
    QVERIFY(entry.eraseLast());
    QCOMPARE(entry.text(), QStringLiteral("12"));
}

void tst_NumericEntry::clearsTheText()
{
    NumericEntry entry;
    type(entry, QStringLiteral("12.5"));
    QVERIFY(entry.clear());
    QCOMPARE(entry.text(), QString());
}

void tst_NumericEntry::tellsItsLimits_data()
{
    QTest::addColumn<Limits>("limits");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("point");
    QTest::addColumn<bool>("minus");

    QTest::newRow("none") << Limits([](NumericEntry &) {}) << QString() << true << true;
    QTest::newRow("size") << Limits([](NumericEntry &entry) { entry.setSizeLimits(3, 1); })
                          << QStringLiteral("0 \u2013 999.9") << true << false;
    QTest::newRow("range") << Limits([](NumericEntry &entry) { entry.setRange(0.0, 5000.0, 1); })
                           << QStringLiteral("0 \u2013 5000") << true << false;
    QTest::newRow("whole numbers") << Limits([](NumericEntry &entry) { entry.setRange(-20.0, 100.0, 0); })
                                   << QStringLiteral("-20 \u2013 100") << false << true;
}

void tst_NumericEntry::tellsItsLimits()
{
    QFETCH(Limits, limits);
    NumericEntry entry;
    limits(entry);
    QTEST(entry.limitsText(), "text");
    QTEST(entry.takesPoint(), "point");
    QTEST(entry.takesMinus(), "minus");
}

void tst_NumericEntry::limitsSetLaterReplaceEarlierOnes()
{
    NumericEntry entry;
    entry.setSizeLimits(1, 0);
    entry.setRange(-5000.0, 5000.0, 1);
    type(entry, QStringLiteral("-1234.5"));
    QCOMPARE(entry.text(), QStringLiteral("-1234.5"));
}

RXMAP_TEST(tst_NumericEntry, None)
#include "tst_numericentry.moc"
