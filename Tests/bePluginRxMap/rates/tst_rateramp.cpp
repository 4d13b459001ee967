#include "rateramp.h"
#include "testbase.h"

#include <array>
#include <cmath>

namespace {

using Triple = std::array<double, 3>;

double linear(double encoded)
{
    return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

/// Relative luminance, 0 to 1.
double luminance(const Triple &rgb)
{
    return 0.2126 * rgb[0] + 0.7152 * rgb[1] + 0.0722 * rgb[2];
}

Triple linearRgb(const QColor &color)
{
    return {linear(color.redF()), linear(color.greenF()), linear(color.blueF())};
}

/// How an eye that lacks one kind of cones sees linear colours (matrices of the usual simulation at full strength).
Triple seen(const Triple &rgb, int blindness)
{
    static const double matrices[3][9] = {
        {0.152286, 1.052583, -0.204868, 0.114503, 0.786281, 0.099216, -0.003882, -0.048116, 1.051998},
        {0.367322, 0.860646, -0.227968, 0.280085, 0.672501, 0.047413, -0.011820, 0.042940, 0.968881},
        {1.255528, -0.076749, -0.178779, -0.078411, 0.930809, 0.147602, 0.004733, 0.691367, 0.303900}};
    if (blindness < 0)
        return rgb;
    const double *m = matrices[blindness];
    Triple result = {};
    for (int i = 0; i < 3; ++i)
        result[size_t(i)] = std::max(0.0, m[3 * i] * rgb[0] + m[3 * i + 1] * rgb[1] + m[3 * i + 2] * rgb[2]);
    return result;
}

/// CIE 1976 L*a*b*.
Triple lab(const Triple &rgb)
{
    const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116.0; };
    const double x = f((0.4124 * rgb[0] + 0.3576 * rgb[1] + 0.1805 * rgb[2]) / 0.9505);
    const double y = f(luminance(rgb));
    const double z = f((0.0193 * rgb[0] + 0.1192 * rgb[1] + 0.9505 * rgb[2]) / 1.089);
    return {116.0 * y - 16.0, 500.0 * (x - y), 200.0 * (y - z)};
}

double difference(const QColor &a, const QColor &b, int blindness)
{
    const Triple first = lab(seen(linearRgb(a), blindness));
    const Triple second = lab(seen(linearRgb(b), blindness));
    return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}

} // namespace

class RateRampTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void getsLighterAllTheWay();
    void takesThePlacesBeyondItsEndsAsTheEnds();
    void keepsSevenClassesAndZeroApart_data();
    void keepsSevenClassesAndZeroApart();
    void drawsNothingForNoRate();
};

void RateRampTest::getsLighterAllTheWay()
{
    double previous = 0.0;
    for (int i = 0; i <= 50; ++i) {
        const double light = luminance(linearRgb(RateRamp::color(i / 50.0)));
        QVERIFY(light > previous);
        previous = light;
    }
}

void RateRampTest::takesThePlacesBeyondItsEndsAsTheEnds()
{
    QCOMPARE(RateRamp::color(-3.0), RateRamp::color(0.0));
    QCOMPARE(RateRamp::color(3.0), RateRamp::color(1.0));
}

void RateRampTest::keepsSevenClassesAndZeroApart_data()
{
    QTest::addColumn<int>("blindness");
    QTest::newRow("full colour sight") << -1;
    QTest::newRow("without red") << 0;
    QTest::newRow("without green") << 1;
    QTest::newRow("without blue") << 2;
}

void RateRampTest::keepsSevenClassesAndZeroApart()
{
    QFETCH(int, blindness);
    QList<QColor> colors = {RateRamp::zeroColor()};
    for (int i = 0; i < 7; ++i)
        colors.append(RateRamp::color(i / 6.0));
    constexpr double plainlyDifferent = 9.0;
    for (int i = 0; i < colors.size(); ++i) {
        for (int k = i + 1; k < colors.size(); ++k) {
            const double apart = difference(colors.at(i), colors.at(k), blindness);
            QVERIFY2(apart > plainlyDifferent, qPrintable(QStringLiteral("%1 and %2: %3").arg(i).arg(k).arg(apart)));
        }
    }
}

void RateRampTest::drawsNothingForNoRate()
{
    QCOMPARE(RateRamp::noRateColor().alpha(), 0);
    QCOMPARE(RateRamp::zeroColor().alpha(), 255);
    QCOMPARE(RateRamp::color(0.3).alpha(), 255);
}

RXMAP_TEST(RateRampTest, Core)
#include "tst_rateramp.moc"
