#include "drivecontrols.h"
#include "drivekeys.h"
#include "drivepanel.h"
#include "driverecord.h"
#include "machinebench.h"
#include "paintedtexts.h"
#include "paths.h"
#include "recorder.h"
#include "testbase.h"
#include "theme.h"
#include "touchbutton.h"
#include "vehicle.h"
#include "wheelbar.h"

#include <QDialog>
#include <QLabel>
#include <QTranslator>

/// The column of buttons that drive the machine, and the keys that do the same.
class TestDrivePanel : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aTouchDoesWhatTheButtonSays();
    void aUnitIsNotBroken();
    void pedalsAndWheelAreThereByHand();
    void itShowsWhatAScriptDoes();
    void aRecordIsStartedShownAndEnded();
    void aTrackIsAskedForAndShown();
    void followingIsAskedForAndShown();
    void theWheelGoesBackWhenItIsLeft();
    void whatADialogKeepsFromTheWheelLooksSo();
    void everyButtonIsBigEnoughForAGlove();
    void textsFitInEveryLanguage_data();
    void textsFitInEveryLanguage();
    void keysDriveWhileThePanelIsSeen();
    void aHeldKeyTurnsTheWheelFurther();

private:
    void makePanel();
    void touch(const char *name) { QTest::mouseClick(find<TouchButton>(name), Qt::LeftButton); }
    template <typename Widget> Widget *find(const char *name)
    {
        return panel->findChild<Widget *>(QLatin1String(name));
    }
    bool isChecked(const char *name) { return find<TouchButton>(name)->isChecked(); }

    QScopedPointer<MachineBench> bench;
    QScopedPointer<DriveControls> controls;
    QScopedPointer<QTemporaryDir> folder;
    QScopedPointer<Recorder> recorder;
    QScopedPointer<DriveRecord> record;
    QScopedPointer<DrivePanel> panel;
};

void TestDrivePanel::init()
{
    TestBase::init();
    bench.reset(new MachineBench);
    QVERIFY(bench->loadZones({{-100, 0, 50.0}, {0, 100, 80.0}}).isOk());
    controls.reset(new DriveControls(&bench->simulation));
    folder.reset(new QTemporaryDir);
    recorder.reset(new Recorder(&bench->simulation));
    record.reset(new DriveRecord(&bench->simulation, recorder.data(), folder->path()));
    makePanel();
}

void TestDrivePanel::makePanel()
{
    panel.reset(new DrivePanel(controls.data(), record.data()));
    // As wide as the window's columns.
    panel->resize(212, 704);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.data()));
}

void TestDrivePanel::cleanup()
{
    panel.reset();
    record.reset();
    recorder.reset();
    controls.reset();
    bench.reset();
    TestBase::cleanup();
}

void TestDrivePanel::aTouchDoesWhatTheButtonSays()
{
    Vehicle &vehicle = *bench->simulation.vehicle();
    touch("driveStart");
    bench->simulation.run(1.0);
    QCOMPARE(vehicle.currentSpeed(), 3.0);
    touch("speedUp");
    touch("paceUp");
    touch("paceUp");
    touch("paceDown");
    bench->simulation.run(1.0);
    QCOMPARE(vehicle.currentSpeed(), 11.0 / 3.6);
    QCOMPARE(bench->simulation.timeFactor(), 2.0);
    QTRY_COMPARE(find<QLabel>("driveSpeed")->text(), QStringLiteral("11.0 km/h"));
    QTRY_COMPARE(find<QLabel>("drivePace")->text(), QStringLiteral("2\u00d7 time"));
    QVERIFY(isChecked("driveStart") && isChecked("driveSwaths") && !isChecked("driveByHand"));
    touch("drivePause");
    QCOMPARE(bench->simulation.timeFactor(), 0.0);
    touch("drivePause");
    QCOMPARE(bench->simulation.timeFactor(), 2.0);
    touch("signalLoss");
    QVERIFY(!vehicle.hasSignal());
    touch("speedDown");
    touch("driveStop");
    bench->simulation.run(1.0);
    QVERIFY(vehicle.isStopped());
    QTRY_VERIFY(!isChecked("driveStart"));
}

void TestDrivePanel::aUnitIsNotBroken()
{
    for (int speed = 11; speed >= 8; --speed) {
        touch("speedDown");
        QTRY_COMPARE(find<QLabel>("driveSpeed")->text(), QStringLiteral("%1.0 km/h").arg(speed - 1));
        const QStringList painted = paintedTexts(*find<QLabel>("driveSpeed"));
        QVERIFY2(painted.last() == QLatin1String("km/h"), qPrintable(painted.join(QLatin1Char('|'))));
    }
}

void TestDrivePanel::pedalsAndWheelAreThereByHand()
{
    QVERIFY(!find<TouchButton>("throttle")->isVisible() && !find<TouchButton>("brake")->isVisible());
    touch("driveByHand");
    QTRY_VERIFY(find<TouchButton>("throttle")->isVisible());
    Vehicle &vehicle = *bench->simulation.vehicle();
    QTest::mousePress(find<TouchButton>("throttle"), Qt::LeftButton);
    bench->simulation.run(1.0);
    QVERIFY(vehicle.currentSpeed() > 0.0);
    QTest::mouseRelease(find<TouchButton>("throttle"), Qt::LeftButton);
    QTest::mousePress(panel->wheel(), Qt::LeftButton, {}, QPoint(panel->wheel()->width() - 4, 30));
    QCOMPARE(panel->wheel()->turn(), 1.0);
    bench->simulation.run(1.0);
    QVERIFY(vehicle.heading() > 5.0 && vehicle.heading() < 90.0);
    QTest::mouseRelease(panel->wheel(), Qt::LeftButton);
    touch("brake");
    touch("driveSwaths");
    QTRY_VERIFY(!find<TouchButton>("throttle")->isVisible());
    QCOMPARE(vehicle.mode(), Motion::Mode::Swaths);
}

void TestDrivePanel::itShowsWhatAScriptDoes()
{
    QVERIFY(isChecked("driveSwaths"));
    // One after the other, since each of them refreshes the whole panel.
    bench->simulation.vehicle()->setSignal(false);
    QTRY_VERIFY(isChecked("signalLoss"));
    bench->simulation.setTimeFactor(0.0);
    QTRY_VERIFY(isChecked("drivePause"));
    bench->place({0, 0}, 0.0, 0.0);
    QTRY_VERIFY(isChecked("driveByHand") && !isChecked("driveSwaths") && !isChecked("driveStart"));
    bench->simulation.vehicle()->drive(2.0);
    QTRY_VERIFY(isChecked("driveStart"));
}

void TestDrivePanel::aRecordIsStartedShownAndEnded()
{
    touch("driveRecord");
    QVERIFY(recorder->isRecording());
    bench->simulation.run(65.0);
    QTRY_VERIFY(paintedTexts(*find<TouchButton>("driveRecord")).contains(QStringLiteral("1:05")));
    QVERIFY(isChecked("driveRecord"));
    touch("driveRecord");
    QVERIFY(!recorder->isRecording());
    QTRY_VERIFY(!isChecked("driveRecord"));
    QTRY_VERIFY(!paintedTexts(*find<TouchButton>("driveRecord")).contains(QStringLiteral("1:05")));
    QVERIFY(folder->remove());
    QFile inItsPlace(folder->path());
    QVERIFY(inItsPlace.open(QIODevice::WriteOnly));
    touch("driveRecord");
    QTRY_VERIFY(!isChecked("driveRecord"));
}

void TestDrivePanel::aTrackIsAskedForAndShown()
{
    QSignalSpy wanted(panel.data(), &DrivePanel::replayWanted);
    touch("driveReplay");
    QCOMPARE(wanted.size(), 1);
    QTRY_VERIFY(!isChecked("driveReplay"));
    QFile track(folder->filePath(QStringLiteral("track.csv")));
    QVERIFY(track.open(QIODevice::WriteOnly) && track.write("time,x,y\n0,0,0\n9,9,0\n") > 0);
    track.close();
    QVERIFY(bench->simulation.replay(track.fileName()).isOk());
    QTRY_VERIFY(isChecked("driveReplay"));
}

void TestDrivePanel::followingIsAskedForAndShown()
{
    QSignalSpy wanted(panel.data(), &DrivePanel::followWanted);
    touch("followCamera");
    QCOMPARE(wanted, QList<QVariantList>{{true}});
    panel->setFollowing(false);
    QVERIFY(!isChecked("followCamera"));
}

void TestDrivePanel::theWheelGoesBackWhenItIsLeft()
{
    touch("driveByHand");
    WheelBar *wheel = panel->wheel();
    QTRY_VERIFY(wheel->isVisible());
    QSignalSpy turned(wheel, &WheelBar::turnedTo);
    QTest::mousePress(wheel, Qt::LeftButton, {}, wheel->rect().center());
    QVERIFY(qAbs(wheel->turn()) < 0.02);
    QMouseEvent slide(QEvent::MouseMove, QPointF(3, 30), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(wheel, &slide);
    QCOMPARE(wheel->turn(), -1.0);
    QTest::mouseRelease(wheel, Qt::LeftButton);
    QCOMPARE(wheel->turn(), 0.0);
    wheel->setTurn(0.5);
    touch("driveSwaths");
    QTRY_COMPARE(wheel->turn(), 0.0);
}

void TestDrivePanel::whatADialogKeepsFromTheWheelLooksSo()
{
    controls->takeHand();
    QTRY_VERIFY(panel->wheel()->isVisible());
    const auto ground = [this] { return panel->wheel()->grab().toImage().pixelColor(panel->wheel()->width() / 2, 4); };
    QCOMPARE(ground(), Theme::colors().button);
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QCOMPARE(ground(), Theme::colors().disabledButton);
}

void TestDrivePanel::everyButtonIsBigEnoughForAGlove()
{
    controls->takeHand();
    QTRY_VERIFY(panel->wheel()->isVisible());
    QList<QWidget *> targets{panel->wheel()};
    for (TouchButton *button : panel->findChildren<TouchButton *>())
        targets.append(button);
    QCOMPARE(targets.size(), 16);
    for (int i = 0; i < targets.size(); ++i) {
        const QRect place = targets.at(i)->geometry();
        QVERIFY2(place.width() >= 56 && place.height() >= 56, qPrintable(targets.at(i)->objectName()));
        QVERIFY(panel->rect().contains(place));
        for (int other = 0; other < i; ++other)
            QVERIFY(!place.intersects(targets.at(other)->geometry()));
    }
}

void TestDrivePanel::textsFitInEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"de", "es", "fr", "pt_BR"})
        QTest::newRow(language) << language;
}

void TestDrivePanel::textsFitInEveryLanguage()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(buildPath("Simulator/Terminal/terminal_%1.qm").arg(language)));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QVERIFY(bench->backend.unload(bench->backend.maps().first().group));
    controls->start();
    makePanel();
    QVERIFY(!controls->message().isEmpty());
    QCOMPARE(paintedTexts(*find<QLabel>("driveMessage")).join(QLatin1Char(' ')), controls->message());
    controls->takeHand();
    makePanel();
    QTRY_VERIFY(panel->wheel()->isVisible());
    const QStringList painted = paintedTexts(*panel);
    for (const TouchButton *button : panel->findChildren<TouchButton *>())
        QVERIFY2(painted.contains(button->text()), qPrintable(button->text()));
    QVERIFY(find<TouchButton>("driveByHand")->text() != QLatin1String("By hand"));
}

void TestDrivePanel::keysDriveWhileThePanelIsSeen()
{
    const DriveKeys keys(controls.data(), record.data(), panel.data());
    Vehicle &vehicle = *bench->simulation.vehicle();
    const auto key = [this](int code) { QTest::keyClick(panel.data(), Qt::Key(code)); };
    key(Qt::Key_Space);
    QVERIFY(controls->isUnderWay());
    key(Qt::Key_Space);
    QVERIFY(!controls->isUnderWay());
    key(Qt::Key_Plus);
    key(Qt::Key_Minus);
    key(Qt::Key_Minus);
    QCOMPARE(controls->speedText(), QStringLiteral("9.0 km/h"));
    key(Qt::Key_PageUp);
    QCOMPARE(bench->simulation.timeFactor(), 2.0);
    key(Qt::Key_PageDown);
    key(Qt::Key_P);
    QVERIFY(controls->isPaused());
    key(Qt::Key_L);
    QVERIFY(!vehicle.hasSignal());
    key(Qt::Key_R);
    QVERIFY(recorder->isRecording());
    key(Qt::Key_R);
    QVERIFY(!recorder->isRecording());
    QSignalSpy trackWanted(panel.data(), &DrivePanel::replayWanted);
    key(Qt::Key_T);
    QCOMPARE(trackWanted.size(), 1);
    key(Qt::Key_H);
    QVERIFY(controls->isByHand());
    QTest::keyPress(panel.data(), Qt::Key_Up);
    bench->simulation.run(1.0);
    QCOMPARE(vehicle.currentSpeed(), 2.5);
    QTest::keyRelease(panel.data(), Qt::Key_Up);
    QTest::keyPress(panel.data(), Qt::Key_Down);
    bench->simulation.run(1.0);
    QCOMPARE(vehicle.currentSpeed(), 0.0);
    QTest::keyRelease(panel.data(), Qt::Key_Down);
    key(Qt::Key_S);
    QCOMPARE(vehicle.mode(), Motion::Mode::Swaths);
    panel->hide();
    key(Qt::Key_H);
    QVERIFY(!controls->isByHand());
}

void TestDrivePanel::aHeldKeyTurnsTheWheelFurther()
{
    const DriveKeys keys(controls.data(), record.data(), panel.data());
    controls->takeHand();
    QTRY_VERIFY(panel->wheel()->isVisible());
    QTest::keyPress(panel.data(), Qt::Key_Left);
    QCOMPARE(panel->wheel()->turn(), -0.2);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(panel.data(), &repeated);
    QCOMPARE(panel->wheel()->turn(), -0.4);
    QKeyEvent between(QEvent::KeyRelease, Qt::Key_Left, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(panel.data(), &between);
    QCOMPARE(panel->wheel()->turn(), -0.4);
    QTest::keyRelease(panel.data(), Qt::Key_Left);
    QCOMPARE(panel->wheel()->turn(), 0.0);
}

RXMAP_TEST(TestDrivePanel, Widgets)
#include "tst_drivepanel.moc"
