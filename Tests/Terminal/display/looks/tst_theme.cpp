#include "testbase.h"
#include "theme.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// From 1, the same, to 21, black and white.
double contrast(const QColor &one, const QColor &other)
{
    const auto ends = std::minmax({luminance(one), luminance(other)});
    return (ends.second + 0.05) / (ends.first + 0.05);
}

} // namespace

Q_DECLARE_METATYPE(QColor)

/// Whether the panels can be read, and are drawn as they are meant.
class TestTheme : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void textStandsOutFromItsGround_data();
    void textStandsOutFromItsGround();
    void aPressedButtonLooksDifferent();
    void aPanelIsFilledToItsEdgesAndHasRoundCorners();
};

void TestTheme::textStandsOutFromItsGround_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    QTest::newRow("panel") << Theme::text() << Theme::panel();
    QTest::newRow("faint on panel") << Theme::faintText() << Theme::panel();
    QTest::newRow("button") << Theme::text() << Theme::button();
    QTest::newRow("accent") << Theme::textOnAccent() << Theme::accent();
}

void TestTheme::textStandsOutFromItsGround()
{
    QFETCH(QColor, text);
    QFETCH(QColor, ground);
    QVERIFY2(contrast(text, ground) >= 7.0, qPrintable(QString::number(contrast(text, ground))));
}

void TestTheme::aPressedButtonLooksDifferent()
{
    QVERIFY(contrast(Theme::button(), Theme::pressedButton()) >= 2.0);
}

void TestTheme::aPanelIsFilledToItsEdgesAndHasRoundCorners()
{
    QImage image(80, 60, QImage::Format_ARGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setPen(Qt::red);
        Theme::drawPanel(painter, image.rect(), Qt::blue);
    }
    for (const QPoint &inside : {QPoint(40, 30), QPoint(40, 0), QPoint(40, 59), QPoint(0, 30), QPoint(79, 30)})
        QCOMPARE(image.pixelColor(inside), QColor(Qt::blue));
    for (const QPoint &corner : {QPoint(0, 0), QPoint(79, 0), QPoint(0, 59), QPoint(79, 59)})
        QCOMPARE(image.pixelColor(corner), QColor(Qt::white));
}

RXMAP_TEST(TestTheme, Core)
#include "tst_theme.moc"
