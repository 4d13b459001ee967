#include "dialogtest.h"

#include <QAbstractEventDispatcher>

#include <functional>

/// When the dialog's controls are shown, hidden, locked and repainted.
class TestDialogStates : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void controlStates_data();
    void controlStates();
    void notUnderVraLeavesMessageAndDoneImageAsTheyWere();
    void beforeAnyEvaluationTheMovingMessageShows();
    void onlyAStandstillThatIsKnownUnlocks_data();
    void onlyAStandstillThatIsKnownUnlocks();
    void theLockFollowsTheVehicleWhileOpen();
    void anUnmappedProductKeepsTheLock();
    void controlsComeBackWithAMappedProduct_data();
    void controlsComeBackWithAMappedProduct();
    void everyEvaluationRepaintsTheDialog();
    void theVehicleIsPolledEveryHalfSecond();
    void thePollEndsWithTheDialog();
    void productButtonsAndDoneAreNeverDisabled_data();
    void productButtonsAndDoneAreNeverDisabled();

private:
    /// How many of the four controls that take a value are enabled.
    int enabledEdits() const;
};

namespace {

/// Runs a function at every read of the standstill while it lives.
class PollHook {
public:
    PollHook(GpsGroup &givenGps, std::function<void()> givenAtPoll)
        : gps(givenGps)
        , atPoll(std::move(givenAtPoll))
    {
        gps.setBeforeReadHook(
            "vehicleIsStopped", [](void *argument) { static_cast<PollHook *>(argument)->atPoll(); }, this);
    }
    ~PollHook() { gps.setBeforeReadHook("vehicleIsStopped", nullptr, nullptr); }

private:
    Q_DISABLE_COPY(PollHook)

    GpsGroup &gps;
    std::function<void()> atPoll;
};

class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int paints = 0;
};

/// The single-shot timers that the event dispatcher still waits for.
QList<QAbstractEventDispatcher::TimerInfo> pollTimers()
{
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    QList<QAbstractEventDispatcher::TimerInfo> timers;
    for (QObject *timer : dispatcher->children())
        timers.append(dispatcher->registeredTimers(timer));
    return timers;
}

} // namespace

int TestDialogStates::enabledEdits() const
{
    int enabled = 0;
    for (const QWidget *control :
         {static_cast<QWidget *>(probe->lookAheadEdit()), static_cast<QWidget *>(probe->applyToAllBox()),
          static_cast<QWidget *>(probe->zeroRateShutoffBox()), static_cast<QWidget *>(probe->defaultRateEdit())})
        enabled += control->isEnabled() ? 1 : 0;
    return enabled;
}

void TestDialogStates::controlStates_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<bool>("stopped");
    QTest::addColumn<bool>("controlsShown");
    QTest::addColumn<bool>("movingShown");
    QTest::newRow("editable") << "rxMap.field" << true << true << false;
    QTest::newRow("locked") << "rxMap.field" << false << true << true;
    QTest::newRow("not under VRA, stopped") << "" << true << false << true;
    QTest::newRow("not under VRA, moving") << "" << false << false << true;
}

void TestDialogStates::controlStates()
{
    QFETCH(QString, group);
    QFETCH(bool, stopped);
    QFETCH(bool, controlsShown);
    QFETCH(bool, movingShown);
    host->bins.at(0)->setRxMapGroupName(group);
    host->gps->setVehicleIsStopped(stopped);
    open();
    for (QWidget *control : probe->valueControls())
        QCOMPARE(control->isVisible(), controlsShown);
    QCOMPARE(probe->notUnderVraLabel()->isVisible(), !controlsShown);
    QCOMPARE(probe->vehicleMovingLabel()->isVisible(), movingShown);
    QCOMPARE(probe->doneButton()->currentImage(), controlsShown && !stopped ? 1 : 0);
    QCOMPARE(enabledEdits(), stopped || !controlsShown ? 4 : 0);
    // The captions are never locked.
    for (QWidget *caption : probe->valueControls().mid(4))
        QVERIFY2(caption->isEnabled(), qPrintable(caption->objectName()));
}

void TestDialogStates::notUnderVraLeavesMessageAndDoneImageAsTheyWere()
{
    host->bins.at(1)->setRxMapGroupName(QString());
    host->gps->setVehicleIsStopped(false);
    open();
    DialogProbe::release(probe->productButton(1));
    QVERIFY(probe->vehicleMovingLabel()->isVisible());
    QCOMPARE(probe->doneButton()->currentImage(), 1);
    QVERIFY(probe->notUnderVraLabel()->isVisible());

    host->gps->setVehicleIsStopped(true);
    DialogProbe::release(probe->productButton(0));
    QVERIFY(!probe->vehicleMovingLabel()->isVisible());
    host->gps->setVehicleIsStopped(false);
    DialogProbe::release(probe->productButton(1));
    QVERIFY(!probe->vehicleMovingLabel()->isVisible());
    QCOMPARE(probe->doneButton()->currentImage(), 0);
}

void TestDialogStates::beforeAnyEvaluationTheMovingMessageShows()
{
    for (BinGroup *bin : qAsConst(host->bins))
        bin->setRxMapGroupName(QString());
    open();
    QVERIFY(probe->vehicleMovingLabel()->isVisible());
    QCOMPARE(probe->doneButton()->currentImage(), 0);
}

void TestDialogStates::onlyAStandstillThatIsKnownUnlocks_data()
{
    QTest::addColumn<QVariant>("standstill");
    QTest::addColumn<bool>("editable");
    QTest::newRow("no such group") << QVariant() << false;
    QTest::newRow("text true") << QVariant(QStringLiteral("true")) << true;
    QTest::newRow("text false") << QVariant(QStringLiteral("false")) << false;
    QTest::newRow("text empty") << QVariant(QStringLiteral("")) << false;
    QTest::newRow("number 1") << QVariant(1) << true;
    QTest::newRow("number 0") << QVariant(0) << false;
    QTest::newRow("list of true") << QVariant(QVariantList{true}) << false;
}

void TestDialogStates::onlyAStandstillThatIsKnownUnlocks()
{
    QFETCH(QVariant, standstill);
    host->broker.removeGroup(QStringLiteral("mainGpsSolution"));
    if (standstill.type() == QVariant::String) {
        auto *gps = new TextGpsGroup(QStringLiteral("mainGpsSolution"));
        gps->setVehicleIsStopped(standstill.toString());
        host->broker.publishGroup(gps);
    } else if (standstill.type() == QVariant::List) {
        auto *gps = new ListGpsGroup(QStringLiteral("mainGpsSolution"));
        gps->setVehicleIsStopped(standstill.toList());
        host->broker.publishGroup(gps);
    } else if (standstill.isValid()) {
        auto *gps = new NumberGpsGroup(QStringLiteral("mainGpsSolution"));
        gps->setVehicleIsStopped(standstill.toInt());
        host->broker.publishGroup(gps);
    }
    open();
    QTEST(probe->lookAheadEdit()->isEnabled(), "editable");
}

void TestDialogStates::theLockFollowsTheVehicleWhileOpen()
{
    open();
    QCOMPARE(enabledEdits(), 4);
    host->gps->setVehicleIsStopped(false);
    QCOMPARE(enabledEdits(), 4);
    QTRY_COMPARE_WITH_TIMEOUT(enabledEdits(), 0, 3000);
    QVERIFY(probe->vehicleMovingLabel()->isVisible());
    QCOMPARE(probe->doneButton()->currentImage(), 1);
    host->gps->setVehicleIsStopped(true);
    QTRY_COMPARE_WITH_TIMEOUT(enabledEdits(), 4, 3000);
    QVERIFY(!probe->vehicleMovingLabel()->isVisible());
    QCOMPARE(probe->doneButton()->currentImage(), 0);
}

void TestDialogStates::anUnmappedProductKeepsTheLock()
{
    host->bins.at(1)->setRxMapGroupName(QString());
    host->gps->setVehicleIsStopped(false);
    open();
    host->gps->setVehicleIsStopped(true);
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(enabledEdits(), 0);
    DialogProbe::release(probe->productButton(0));
    QCOMPARE(enabledEdits(), 4);
    host->gps->setVehicleIsStopped(false);
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(enabledEdits(), 4);
}

void TestDialogStates::controlsComeBackWithAMappedProduct_data()
{
    QTest::addColumn<bool>("stopped");
    QTest::newRow("editable") << true;
    QTest::newRow("locked") << false;
}

void TestDialogStates::controlsComeBackWithAMappedProduct()
{
    QFETCH(bool, stopped);
    host->bins.at(1)->setRxMapGroupName(QString());
    host->gps->setVehicleIsStopped(stopped);
    open();
    DialogProbe::release(probe->productButton(1));
    for (QWidget *control : probe->valueControls())
        QVERIFY2(!control->isVisible(), qPrintable(control->objectName()));
    QVERIFY(probe->notUnderVraLabel()->isVisible());
    DialogProbe::release(probe->productButton(0));
    for (QWidget *control : probe->valueControls())
        QVERIFY2(control->isVisible(), qPrintable(control->objectName()));
    QVERIFY(!probe->notUnderVraLabel()->isVisible());
    QCOMPARE(enabledEdits(), stopped ? 4 : 0);
    QCOMPARE(probe->vehicleMovingLabel()->isVisible(), !stopped);
}

void TestDialogStates::everyEvaluationRepaintsTheDialog()
{
    open();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.data()));
    QCoreApplication::processEvents();
    PaintCounter counter(*dialog);
    QCoreApplication::processEvents();
    const int before = counter.paints;
    // Nothing else changes, so nothing else requests a repaint.
    dialog->setControlsEnabledState(true);
    QCoreApplication::processEvents();
    QVERIFY(counter.paints > before);
}

void TestDialogStates::theVehicleIsPolledEveryHalfSecond()
{
    // Polls of earlier dialogs run out first.
    QTRY_VERIFY_WITH_TIMEOUT(pollTimers().isEmpty(), 3000);
    int polls = 0;
    PollHook hook(*host->gps, [&polls] { ++polls; });
    open();
    polls = 0;
    for (int poll = 0; poll < 3; ++poll) {
        const QList<QAbstractEventDispatcher::TimerInfo> timers = pollTimers();
        QCOMPARE(timers.size(), 1);
        QCOMPARE(timers.constFirst().interval, 500);
        QCOMPARE(timers.constFirst().timerType, Qt::PreciseTimer);
        QTRY_COMPARE_WITH_TIMEOUT(polls, poll + 1, 3000);
    }
}

void TestDialogStates::thePollEndsWithTheDialog()
{
    int polls = 0;
    PollHook hook(*host->gps, [&polls] { ++polls; });
    open();
    polls = 0;
    QTRY_VERIFY_WITH_TIMEOUT(polls > 0, 3000);
    probe.reset();
    dialog.reset();
    polls = 0;
    QTest::qWait(1200);
    QCOMPARE(polls, 0);
}

void TestDialogStates::productButtonsAndDoneAreNeverDisabled_data()
{
    controlStates_data();
}

void TestDialogStates::productButtonsAndDoneAreNeverDisabled()
{
    QFETCH(QString, group);
    QFETCH(bool, stopped);
    host->bins.at(0)->setRxMapGroupName(group);
    host->gps->setVehicleIsStopped(stopped);
    open();
    // Right after opening, after being editable, and after being locked.
    for (const bool before : {stopped, true, false}) {
        host->bins.at(0)->setRxMapGroupName(before == stopped ? group : QStringLiteral("rxMap.field"));
        dialog->setControlsEnabledState(before);
        host->bins.at(0)->setRxMapGroupName(group);
        dialog->setControlsEnabledState(stopped);
        for (int i = 0; i < probe->productButtonCount(); ++i)
            QVERIFY(probe->productButton(i)->isEnabled());
        QVERIFY(probe->doneButton()->isEnabled());
    }
}

RXMAP_TEST(TestDialogStates, Widgets)
#include "tst_rxmapwidgetdialog01_states.moc"
