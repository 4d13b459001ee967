#include "fieldscene.h"
#include "mapoverlay.h"
#include "paintedtexts.h"
#include "testbase.h"
#include "theme.h"

#include <cmath>

/// What the overlay draws, and where.
class TestMapOverlayLooks : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void touchesGoThroughToTheMap();
    void theBubbleSaysItsTextBesideTheColourOfItsClass();
    void theBubbleKeepsToTheFreeArea_data();
    void theBubbleKeepsToTheFreeArea();
    void aBubbleBehindTheEyeIsLeftOut();
    void theScaleBarIsOfARoundLength_data();
    void theScaleBarIsOfARoundLength();
    void theVehicleStandsAtItsPlaceAndPointsAhead_data();
    void theVehicleStandsAtItsPlaceAndPointsAhead();

private:
    QImage picture();
    /// The smallest rectangle that holds every pixel of that colour; empty when there is none.
    QRect extentOf(const QColor &color);

    const QRectF freeArea{100, 20, 500, 360};
    QScopedPointer<MapOverlay> overlay;
    Camera camera;
};

namespace {

const QColor classColor(12, 200, 34);
const QPointF farAway(-4000.0, 0.0);

} // namespace

void TestMapOverlayLooks::init()
{
    TestBase::init();
    overlay.reset(new MapOverlay);
    overlay->resize(700, 400);
    camera = Camera();
    camera.setViewport(overlay->size());
    camera.setDistance(300.0);
    overlay->setCamera(camera);
    overlay->setFreeArea(freeArea);
    // Outside the picture.
    overlay->setVehicle(farAway, 0.0);
}

QImage TestMapOverlayLooks::picture()
{
    QImage image(overlay->size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    overlay->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QRect TestMapOverlayLooks::extentOf(const QColor &color)
{
    const QImage image = picture();
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}

void TestMapOverlayLooks::touchesGoThroughToTheMap()
{
    QVERIFY(overlay->testAttribute(Qt::WA_TransparentForMouseEvents));
}

void TestMapOverlayLooks::theBubbleSaysItsTextBesideTheColourOfItsClass()
{
    overlay->showBubble(QPointF(0, 0), QStringLiteral("Rx Rate: 80.00"), classColor);
    QVERIFY(paintedTexts(*overlay).contains(QStringLiteral("Rx Rate: 80.00")));
    QVERIFY(extentOf(FieldScene::onGround(classColor)).width() > 20);
    overlay->showBubble(QPointF(0, 0), QStringLiteral("Rx Rate: 0.00"), QColor());
    QVERIFY(paintedTexts(*overlay).contains(QStringLiteral("Rx Rate: 0.00")));
    QVERIFY(extentOf(FieldScene::onGround(classColor)).isEmpty());
    overlay->showBubble(QPointF(0, 0), QString(), classColor);
    QVERIFY(paintedTexts(*overlay).filter(QStringLiteral("Rate")).isEmpty());
    QVERIFY(extentOf(FieldScene::onGround(classColor)).isEmpty());
}

void TestMapOverlayLooks::theBubbleKeepsToTheFreeArea_data()
{
    QTest::addColumn<QPointF>("finger");
    QTest::addColumn<bool>("isAbove");
    QTest::newRow("middle") << QPointF(350, 200) << true;
    QTest::newRow("left edge") << QPointF(102, 200) << true;
    QTest::newRow("right edge") << QPointF(598, 200) << true;
    QTest::newRow("top edge") << QPointF(350, 40) << false;
    QTest::newRow("top right corner") << QPointF(598, 24) << false;
}

void TestMapOverlayLooks::theBubbleKeepsToTheFreeArea()
{
    QFETCH(QPointF, finger);
    const QPointF field = camera.fieldPoint(finger).value();
    const QImage without = picture();
    overlay->showBubble(field, QStringLiteral("Rx Rate: 80.00"), classColor);
    const QImage with = picture();
    QRect changed;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
        }
    }
    // The dot that marks the point itself may stick out by its radius.
    QVERIFY2(freeArea.adjusted(-8, -8, 8, 8).contains(changed),
             qPrintable(QStringLiteral("%1 to %2").arg(changed.left()).arg(changed.right())));
    const QRect swatch = extentOf(FieldScene::onGround(classColor));
    QTEST(swatch.bottom() < finger.y(), "isAbove");
    // The finger covers what lies right under it.
    QVERIFY(std::abs(swatch.center().y() - finger.y()) > 20.0);
}

void TestMapOverlayLooks::aBubbleBehindTheEyeIsLeftOut()
{
    const QPointF behind(0.0, -100000.0);
    QVERIFY(!camera.project(behind));
    overlay->showBubble(behind, QStringLiteral("Rx Rate: 80.00"), classColor);
    QVERIFY(extentOf(FieldScene::onGround(classColor)).isEmpty());
}

void TestMapOverlayLooks::theScaleBarIsOfARoundLength_data()
{
    QTest::addColumn<double>("distance");
    QTest::addColumn<bool>("isMetric");
    for (const double distance : {10.0, 35.0, 120.0, 333.0, 1500.0, 9000.0, 60000.0}) {
        QTest::newRow(qPrintable(QStringLiteral("%1 m, metric").arg(distance))) << distance << true;
        QTest::newRow(qPrintable(QStringLiteral("%1 m, us").arg(distance))) << distance << false;
    }
}

void TestMapOverlayLooks::theScaleBarIsOfARoundLength()
{
    QFETCH(double, distance);
    QFETCH(bool, isMetric);
    const QMap<QString, double> metres{{"km", 1000.0}, {"m", 1.0}, {"mi", 1609.344}, {"ft", 0.3048}};
    camera.setDistance(distance);
    overlay->setCamera(camera);
    overlay->setMetric(isMetric);
    const QStringList label = paintedTexts(*overlay)
                                  .filter(QRegularExpression(QStringLiteral("^[0-9.,]+ ")))
                                  .value(0)
                                  .split(QLatin1Char(' '));
    QCOMPARE(label.size(), 2);
    QCOMPARE(label.at(1) == QLatin1String("m") || label.at(1) == QLatin1String("km"), isMetric);
    const double number = QLocale().toDouble(label.at(0));
    const int digit = int(std::lround(number / std::pow(10.0, std::floor(std::log10(number) + 1e-9))));
    QVERIFY2(digit == 1 || digit == 2 || digit == 5, qPrintable(label.join(QLatin1Char(' '))));

    // The bar is the longest run of its colour on its line.
    const QImage image = picture();
    const int y = int(freeArea.bottom()) - 24;
    int longest = 0;
    for (int x = 0, run = 0; x < image.width(); ++x) {
        run = image.pixelColor(x, y) == Theme::colors().text ? run + 1 : 0;
        longest = qMax(longest, run);
    }
    const double expected = number * metres.value(label.at(1)) / camera.metresPerPixel(camera.target());
    QVERIFY2(std::abs(longest - expected) < 2.5,
             qPrintable(QStringLiteral("%1 pixels, not %2").arg(longest).arg(expected)));
    QVERIFY(longest >= 38 && longest <= 202);
}

void TestMapOverlayLooks::theVehicleStandsAtItsPlaceAndPointsAhead_data()
{
    QTest::addColumn<double>("heading");
    QTest::addColumn<QPoint>("ahead"); // On the screen.
    QTest::newRow("north") << 0.0 << QPoint(0, -1);
    QTest::newRow("east") << 90.0 << QPoint(1, 0);
    QTest::newRow("south") << 180.0 << QPoint(0, 1);
    QTest::newRow("west") << 270.0 << QPoint(-1, 0);
}

void TestMapOverlayLooks::theVehicleStandsAtItsPlaceAndPointsAhead()
{
    QFETCH(double, heading);
    QFETCH(QPoint, ahead);
    const QPoint place(250, 260);
    const QPointF field = camera.fieldPoint(place).value();
    overlay->setVehicle(field, heading);
    const QImage image = picture();
    QCOMPARE(image.pixelColor(place), Theme::colors().accent);
    // The arrow reaches further ahead than behind, where it has a notch.
    QCOMPARE(image.pixelColor(place + 12 * ahead), Theme::colors().accent);
    QVERIFY(image.pixelColor(place - 14 * ahead) != Theme::colors().accent);
}

RXMAP_TEST(TestMapOverlayLooks, Widgets)
#include "tst_mapoverlay_looks.moc"
