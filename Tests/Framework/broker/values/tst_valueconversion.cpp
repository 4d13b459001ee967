#include "Variants/valueconversion.h"
#include "testbase.h"

#include <limits>

namespace {

struct Metres {
    double value = 0.0;
};

} // namespace

Q_DECLARE_METATYPE(Metres)

class TestValueConversion : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void valuesThatFitAreConverted_data();
    void valuesThatFitAreConverted();
    void valuesThatLoseSomethingAreRefused_data();
    void valuesThatLoseSomethingAreRefused();
    void aNotANumberStaysOneInARealNumber();
    void aNullPointerFitsAPointer();
    void aRegisteredConverterServesARecord();
};

void TestValueConversion::valuesThatFitAreConverted_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("same type") << QVariant(7) << QVariant(7);
    QTest::newRow("int to unsigned") << QVariant(7) << QVariant(7u);
    QTest::newRow("whole double to unsigned") << QVariant(4294967295.0) << QVariant(4294967295u);
    QTest::newRow("text to unsigned") << QVariant(QStringLiteral("4294967295")) << QVariant(4294967295u);
    QTest::newRow("bool to int") << QVariant(true) << QVariant(1);
    QTest::newRow("least int") << QVariant(-2147483648.0) << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("least long") << QVariant(-9223372036854775808.0) << QVariant(std::numeric_limits<qlonglong>::min());
    QTest::newRow("largest unsigned long as text")
        << QVariant(QStringLiteral("18446744073709551615")) << QVariant(std::numeric_limits<qulonglong>::max());
    QTest::newRow("minus zero to unsigned") << QVariant(-0.0) << QVariant(0u);
    QTest::newRow("text with an exponent to int") << QVariant(QStringLiteral("1.2e2")) << QVariant(120);
    QTest::newRow("int to double") << QVariant(7) << QVariant(7.0);
    QTest::newRow("two to the 53rd to double") << QVariant(qint64(1) << 53) << QVariant(9007199254740992.0);
    QTest::newRow("float to double") << QVariant(0.5f) << QVariant(0.5);
    QTest::newRow("text to double") << QVariant(QStringLiteral("-12.5")) << QVariant(-12.5);
    QTest::newRow("bytes to double") << QVariant(QByteArray("12.5")) << QVariant(12.5);
    QTest::newRow("double to float") << QVariant(0.5) << QVariant(0.5f);
    QTest::newRow("infinity to float") << QVariant(qInf()) << QVariant(std::numeric_limits<float>::infinity());
    QTest::newRow("one to bool") << QVariant(1) << QVariant(true);
    QTest::newRow("zero to bool") << QVariant(0.0) << QVariant(false);
    QTest::newRow("text true to bool") << QVariant(QStringLiteral("true")) << QVariant(true);
    QTest::newRow("text false to bool") << QVariant(QStringLiteral("false")) << QVariant(false);
    QTest::newRow("int to text") << QVariant(-7) << QVariant(QStringLiteral("-7"));
    QTest::newRow("double to text") << QVariant(0.1) << QVariant(QStringLiteral("0.1"));
    QTest::newRow("bytes to text") << QVariant(QByteArray("\xc3\xa4")) << QVariant(QString(QChar(0xe4)));
}

void TestValueConversion::valuesThatFitAreConverted()
{
    QFETCH(QVariant, value);
    QFETCH(QVariant, expected);
    QVariant converted;
    QVERIFY(convertWithoutLoss(value, expected.userType(), converted));
    QCOMPARE(converted.userType(), expected.userType());
    QCOMPARE(converted, expected);
}

void TestValueConversion::valuesThatLoseSomethingAreRefused_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("type");
    QTest::newRow("no value") << QVariant() << int(QMetaType::Int);
    QTest::newRow("no value to text") << QVariant() << int(QMetaType::QString);
    QTest::newRow("minus one to unsigned") << QVariant(-1) << int(QMetaType::UInt);
    QTest::newRow("fraction to unsigned") << QVariant(3.5) << int(QMetaType::UInt);
    QTest::newRow("1e12 to unsigned") << QVariant(1e12) << int(QMetaType::UInt);
    QTest::newRow("two to the 32nd to unsigned") << QVariant(4294967296.0) << int(QMetaType::UInt);
    QTest::newRow("two to the 31st to int") << QVariant(2147483648u) << int(QMetaType::Int);
    QTest::newRow("two to the 63rd to long") << QVariant(9223372036854775808.0) << int(QMetaType::LongLong);
    QTest::newRow("two to the 64th to unsigned long") << QVariant(18446744073709551616.0) << int(QMetaType::ULongLong);
    QTest::newRow("just below the least int") << QVariant(qint64(-2147483649)) << int(QMetaType::Int);
    QTest::newRow("not a number to int") << QVariant(qQNaN()) << int(QMetaType::Int);
    QTest::newRow("infinity to int") << QVariant(qInf()) << int(QMetaType::Int);
    QTest::newRow("word to int") << QVariant(QStringLiteral("seven")) << int(QMetaType::Int);
    QTest::newRow("empty text to int") << QVariant(QString()) << int(QMetaType::Int);
    QTest::newRow("number and unit to double") << QVariant(QStringLiteral("5 kg")) << int(QMetaType::Double);
    QTest::newRow("number and a zero byte to int") << QVariant(QByteArray("7\0", 2)) << int(QMetaType::Int);
    QTest::newRow("decimal comma to double") << QVariant(QStringLiteral("12,5")) << int(QMetaType::Double);
    QTest::newRow("text nan to double") << QVariant(QStringLiteral("nan")) << int(QMetaType::Double);
    QTest::newRow("text inf to double") << QVariant(QStringLiteral("inf")) << int(QMetaType::Double);
    QTest::newRow("long beyond a double") << QVariant((qint64(1) << 53) + 1) << int(QMetaType::Double);
    QTest::newRow("double beyond a float") << QVariant(1e300) << int(QMetaType::Float);
    QTest::newRow("double finer than a float") << QVariant(0.1) << int(QMetaType::Float);
    QTest::newRow("two to bool") << QVariant(2) << int(QMetaType::Bool);
    QTest::newRow("word to bool") << QVariant(QStringLiteral("yes")) << int(QMetaType::Bool);
    QTest::newRow("broken bytes to text") << QVariant(QByteArray("\xff\xfe")) << int(QMetaType::QString);
    QTest::newRow("list to text") << QVariant(QVariantList{1}) << int(QMetaType::QString);
    QTest::newRow("number to pointer") << QVariant(1) << int(QMetaType::VoidStar);
    QTest::newRow("list to int") << QVariant(QVariantList{1}) << int(QMetaType::Int);
    QTest::newRow("number to record") << QVariant(QStringLiteral("1")) << qMetaTypeId<Metres>();
    QTest::newRow("unknown type") << QVariant(1) << int(QMetaType::UnknownType);
}

void TestValueConversion::valuesThatLoseSomethingAreRefused()
{
    QFETCH(QVariant, value);
    QFETCH(int, type);
    QVariant converted = QStringLiteral("as it was");
    QVERIFY(!convertWithoutLoss(value, type, converted));
    QCOMPARE(converted, QVariant(QStringLiteral("as it was")));
}

void TestValueConversion::aNotANumberStaysOneInARealNumber()
{
    QVariant converted;
    QVERIFY(convertWithoutLoss(QVariant(std::numeric_limits<float>::quiet_NaN()), QMetaType::Double, converted));
    QVERIFY(qIsNaN(converted.toDouble()));
}

void TestValueConversion::aNullPointerFitsAPointer()
{
    QVariant converted;
    QVERIFY(convertWithoutLoss(QVariant::fromValue(nullptr), QMetaType::VoidStar, converted));
    QCOMPARE(converted.userType(), int(QMetaType::VoidStar));
    QCOMPARE(converted.value<void *>(), nullptr);
}

void TestValueConversion::aRegisteredConverterServesARecord()
{
    const auto fromNumber = [](double value) {
        Metres metres;
        metres.value = value;
        return metres;
    };
    const bool isRegistered = QMetaType::registerConverter<double, Metres>(fromNumber);
    QVERIFY(isRegistered);
    QVariant converted;
    QVERIFY(convertWithoutLoss(2.5, qMetaTypeId<Metres>(), converted));
    QCOMPARE(converted.value<Metres>().value, 2.5);
}

RXMAP_TEST(TestValueConversion, Core)
#include "tst_valueconversion.moc"
