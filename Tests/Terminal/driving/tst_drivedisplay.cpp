#include "activemap.h"
#include "drivedisplay.h"
#include "fieldview.h"
#include "legendpanel.h"
#include "machine.h"
#include "mapoverlay.h"
#include "simulation.h"
#include "statusbar.h"
#include "terminaltest.h"
#include "terminalwindow.h"
#include "theme.h"
#include "touchbutton.h"
#include "vehicle.h"
#include "windowstack.h"

/// Driving as the whole display shows it.
class TestDriveDisplay : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theDriveButtonShowsAndHidesWhatDrives();
    void nothingCoversThePluginsButtonOrAnythingElse();
    void theFieldIsSeenAsAWholeAboveTheStrip();
    void workedGroundIsSeenInFullColours();
    void workedGroundIsNoPartOfTheMap();
    void anotherProductsColoursAreSeenAtOnce();
    void groundThatWasWorkedForHoursIsDrawnToTheNewest();
    void theCameraFollowsUntilItIsMovedByHand();
    void theLookAheadPointIsSeenAheadOfTheVehicle();

private:
    QWidget *find(const char *name) { return terminal().window()->findChild<QWidget *>(QLatin1String(name)); }
    void touch(const char *name) { QTest::mouseClick(find(name), Qt::LeftButton); }
    Vehicle &vehicle() { return *terminal().vehicle(); }
    /// Drives straight ahead from there at 5 m/s.
    void drive(const QPointF &from, double degrees, double seconds);
    /// The pixel of the display at a field point.
    QColor seenAt(const QPointF &field);
};

void TestDriveDisplay::init()
{
    TerminalTest::init();
    terminal().simulation()->setTimeFactor(0.0);
    QVERIFY(open("three-zones.geojson", {"SEED_K_HA", "FERT_KG_HA"}).isOk());
}

void TestDriveDisplay::drive(const QPointF &from, double degrees, double seconds)
{
    MachineSize size = vehicle().size();
    size.acceleration = 1e6;
    vehicle().setSize(size);
    vehicle().follow(DrivePath(Pose{from, radiansOf(degrees)}));
    vehicle().steer(0.0);
    vehicle().drive(5.0);
    terminal().simulation()->run(seconds);
}

QColor TestDriveDisplay::seenAt(const QPointF &field)
{
    const FieldView &view = *terminal().window()->fieldView();
    const QPoint pixel = view.camera().project(field).value_or(QPointF()).toPoint() + view.pos();
    return WindowStack::picture(terminal().window()).pixelColor(pixel);
}

void TestDriveDisplay::theDriveButtonShowsAndHidesWhatDrives()
{
    QVERIFY(find("drive")->isVisible());
    QVERIFY(!find("drivePanel")->isVisible() && !find("driveStrip")->isVisible());
    touch("drive");
    QVERIFY(find("drivePanel")->isVisible() && find("driveStrip")->isVisible());
    QVERIFY(!find("selectProduct1")->isVisible());
    touch("drive");
    QVERIFY(!find("drivePanel")->isVisible() && !find("driveStrip")->isVisible());
    QVERIFY(find("selectProduct1")->isVisible());
}

void TestDriveDisplay::nothingCoversThePluginsButtonOrAnythingElse()
{
    touch("drive");
    const QList<QWidget *> panels{find("statusBar"), find("legend"),    find("guidancePage"), find("zoomIn"),
                                  find("zoomOut"),   find("showField"), find("drivePanel"),   find("driveStrip")};
    const QRect display = terminal().window()->rect();
    for (int i = 0; i < panels.size(); ++i) {
        QVERIFY2(panels.at(i)->isVisible() && display.contains(panels.at(i)->geometry()),
                 qPrintable(panels.at(i)->objectName()));
        for (int other = 0; other < i; ++other)
            QVERIFY2(!panels.at(i)->geometry().intersects(panels.at(other)->geometry()),
                     qPrintable(panels.at(i)->objectName() + panels.at(other)->objectName()));
    }
}

void TestDriveDisplay::theFieldIsSeenAsAWholeAboveTheStrip()
{
    // The field is as high as it is wide.
    QVERIFY(terminal().open({{TerminalHost::sampleField()}}).last().isOk());
    touch("drive");
    const FieldView &view = *terminal().window()->fieldView();
    const QRectF field = *terminal().bounds();
    for (const QPointF &corner : {field.topLeft(), field.topRight(), field.bottomLeft(), field.bottomRight()}) {
        const QPoint seen = view.camera().project(corner).value_or(QPointF()).toPoint() + view.pos();
        QVERIFY(seen.y() < find("driveStrip")->y() && seen.x() > find("drivePanel")->geometry().right());
    }
}

void TestDriveDisplay::workedGroundIsSeenInFullColours()
{
    const QColor before = seenAt({-100, 20});
    drive({-100, 0}, 0.0, 10.0);
    const ActiveMap map = ActiveMap::find(*terminal().broker(), Machine::productGroupName(1));
    QCOMPARE(seenAt({-100, 20}).rgb(), map.classColor(70.0).rgb());
    QVERIFY(before != map.classColor(70.0));
    QCOMPARE(seenAt({-110, 20}), before);
}

void TestDriveDisplay::workedGroundIsNoPartOfTheMap()
{
    const QColor map = terminal().mapColor({-100, 20});
    drive({-100, 0}, 0.0, 10.0);
    terminal().refresh();
    QCOMPARE(terminal().mapColor({-100, 20}), map);
}

void TestDriveDisplay::anotherProductsColoursAreSeenAtOnce()
{
    drive({-100, 0}, 0.0, 10.0);
    terminal().machine()->setActiveProduct(2);
    const ActiveMap map = ActiveMap::find(*terminal().broker(), Machine::productGroupName(2));
    QCOMPARE(seenAt({-100, 20}).rgb(), map.classColor(120.5).rgb());
    terminal().machine()->setActiveProduct(3);
    // Bare ground, or a line of its grid.
    const QColor seen = seenAt({-100, 20});
    QVERIFY2(seen.lightness() > 160 && seen.saturation() < 40, qPrintable(seen.name()));
}

void TestDriveDisplay::groundThatWasWorkedForHoursIsDrawnToTheNewest()
{
    const WorkedGround &ground = *terminal().driving()->workedGround();
    drive({0, 0}, 0.0, 1.0);
    vehicle().steer(0.05);
    // More strips than fit: each step makes a strip of its own.
    terminal().simulation()->run(2.0 * 3600.0);
    QCOMPARE(ground.end() - ground.oldest(), qint64(WorkedGround::maxStrips));
    WindowStack::picture(terminal().window());
    // New strips replace the oldest ones. This one was driven half a round ago, away from the vehicle's arrow:
    terminal().simulation()->run(13.0);
    const qint64 number = ground.end() - 126;
    const WorkedGround::Strip &strip = ground.strip(number);
    const QPointF place(double(strip.corners[0].x + strip.corners[1].x) / 2.0,
                        double(strip.corners[0].y + strip.corners[1].y) / 2.0);
    QCOMPARE(seenAt(place).rgb(), ground.color(number).rgb());
}

void TestDriveDisplay::theCameraFollowsUntilItIsMovedByHand()
{
    touch("drive");
    touch("followCamera");
    FieldView &view = *terminal().window()->fieldView();
    const auto middle = [&] { return view.camera().project(vehicle().position()).value_or(QPointF()); };
    const QPointF held = middle();
    const int middleOfTheMap = (find("drivePanel")->geometry().right() + find("legend")->x()) / 2;
    QVERIFY2(qAbs(held.x() - middleOfTheMap) < 3.0, qPrintable(QString::number(held.x())));
    drive({100, 30}, 45.0, 5.0);
    QTRY_VERIFY((middle() - held).manhattanLength() < 2.0);
    QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(600, 300));
    QMouseEvent drag(QEvent::MouseMove, QPointF(700, 300), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &drag);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, QPoint(700, 300));
    QTRY_VERIFY(!static_cast<TouchButton *>(find("followCamera"))->isChecked());
    const QPointF target = view.camera().target();
    drive({-100, 30}, 45.0, 5.0);
    QTest::qWait(60);
    QCOMPARE(view.camera().target(), target);
    // Switching it off by its button shows the field again.
    touch("followCamera");
    QVERIFY(view.camera().target() != target);
    touch("followCamera");
    const std::optional<QPointF> corner = view.camera().project(terminal().bounds()->topLeft());
    QVERIFY(corner && view.rect().contains(corner->toPoint()));
}

void TestDriveDisplay::theLookAheadPointIsSeenAheadOfTheVehicle()
{
    // Only the overlay moves, so that nothing below it counts.
    const auto overlay = [this] {
        terminal().window()->overlay()->setVehicle(vehicle().position(), vehicle().heading());
        return WindowStack::picture(terminal().window());
    };
    drive({-50, -30}, 0.0, 1.0);
    const QImage with = overlay();
    const FieldView &view = *terminal().window()->fieldView();
    const QPointF asked = vehicle().position() + QPointF(0.0, 5.0);
    const QPoint seen = view.camera().project(asked).value_or(QPointF()).toPoint() + view.pos();
    // The ring around the point has a radius of 9 pixels.
    QCOMPARE(with.pixelColor(seen + QPoint(9, 0)), Theme::colors().text);
    vehicle().stop();
    terminal().simulation()->run(1.0);
    QVERIFY(overlay().pixelColor(seen + QPoint(9, 0)) != Theme::colors().text);
}

RXMAP_TEST(TestDriveDisplay, Widgets)
#include "tst_drivedisplay.moc"
