#include "Backend/prescriptionbackend.h"
#include "scriptrunner.h"
#include "terminalhost.h"
#include "testbase.h"

#include "bePluginRxMap/dbgrouprxmap.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QEvent>

/// A map whose back-end write-protects properties while the operator has the settings dialog open, with the plug-in
/// loaded by the terminal.
class TestProtectedProperties : public TestBase {
    Q_OBJECT

public:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void init();
    void cleanup();
    void whatIsClosedStaysAndTheRestIsWritten_data();
    void whatIsClosedStaysAndTheRestIsWritten();

private:
    QString run(const QString &program);
    /// One debug line for each refused property, in the order in which Done writes them.
    void checkRefusals();
    void checkThatTheNextDialogShowsWhatIsStored();

    QScopedPointer<TerminalHost> host;
    DbGroupRxMap *map = nullptr;
    QStringList closed; ///< Properties of the map that are protected from the moment at which the dialog is seen.
    int timesOpened = 0;
};

namespace {

const QString refusal = QStringLiteral("set %1::%2 failed: invalid write access token");

} // namespace

bool TestProtectedProperties::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched->objectName() == QLatin1String("rxMapSettings")) {
        ++timesOpened;
        for (const QString &property : qAsConst(closed))
            map->setWriteProtected(property.toLatin1().constData(), true);
    }
    return TestBase::eventFilter(watched, event);
}

void TestProtectedProperties::init()
{
    TestBase::init();
    host.reset(new TerminalHost);
    QCOMPARE(host->problem(), QString());
    const LoadReport report =
        host->terminal().open({{TerminalHost::fixture("three-zones.geojson")}, {"SEED_K_HA", "FERT_KG_HA"}}).first();
    QVERIFY2(report.isOk(), qPrintable(report.error));
    map = qobject_cast<DbGroupRxMap *>(host->terminal().broker()->getGroup(report.group, false));
    QVERIFY(map != nullptr);
    timesOpened = 0;
    qApp->installEventFilter(this);
}

void TestProtectedProperties::cleanup()
{
    qApp->removeEventFilter(this);
    map = nullptr;
    host.reset();
    TestBase::cleanup();
}

QString TestProtectedProperties::run(const QString &program)
{
    const QString helpers = QStringLiteral(R"js(
function control(name) { return terminal.find(name); }
function open() { control("rxOptions").longTouch(); }
function done() {
  control("doneButton").touch();
  if (control("rxMapSettings") !== null) throw new Error("the dialog did not close");
}
)js");
    return ScriptRunner(&host->terminal()).evaluate(helpers + program, QStringLiteral("operator.js"));
}

void TestProtectedProperties::checkRefusals()
{
    QStringList expected;
    for (const QString &property : qAsConst(closed))
        expected.append(QStringLiteral("\"ERROR: %1\"").arg(refusal.arg(map->name(), property)));
    QCOMPARE(messages().debugLines().filter(QStringLiteral("ERROR")), expected);
    QCOMPARE(map->mostRecentErr(), int(DataBrokerGroup::Success));
}

void TestProtectedProperties::checkThatTheNextDialogShowsWhatIsStored()
{
    const OrvikTypes::RX_SETTINGS stored = map->getSettings().at(1);
    QCOMPARE(run(QStringLiteral(R"js(
open();
if (control("productButton%1").image !== 1) throw new Error("another product is selected");
control("productButton1").touch();
var shown = [control("lookAheadEdit").text, control("defaultRateEdit").text, control("zeroRateShutoffBox").image];
if (shown.join() !== "%2,%3,%4") throw new Error("the dialog shows " + shown);
if (terminal.touchMap(0, 0) !== "Rx Rate: 80.00") throw new Error("the map is silent");
terminal.drive(3);
terminal.wait(700);
done();
)js")
                     .arg(stored.isMaster ? 1 : 0)
                     .arg(stored.onLookAheadMs / 1000.0, 0, 'f', 1)
                     .arg(map->getRateCalMappings().at(1).defaultRate)
                     .arg(stored.zeroRateShutoff ? 1 : 0)),
             QString());
    QCOMPARE(timesOpened, 2);
}

void TestProtectedProperties::whatIsClosedStaysAndTheRestIsWritten_data()
{
    QTest::addColumn<QStringList>("properties");
    QTest::newRow("settings") << QStringList{"settings"};
    QTest::newRow("mappings") << QStringList{"rateCalMappings"};
    QTest::newRow("both") << QStringList{"rateCalMappings", "settings"};
}

void TestProtectedProperties::whatIsClosedStaysAndTheRestIsWritten()
{
    QFETCH(QStringList, properties);
    closed = properties;
    auto settings = map->getSettings();
    auto mappings = map->getRateCalMappings();
    if (!properties.contains(QStringLiteral("settings"))) {
        settings[1].onLookAheadMs = 2500;
        for (OrvikTypes::RX_SETTINGS &entry : settings)
            entry.zeroRateShutoff = true;
        settings[1].isMaster = true;
    }
    if (!properties.contains(QStringLiteral("rateCalMappings")))
        mappings[1].defaultRate = 77.5;
    for (const QString &property : qAsConst(closed))
        messages().expectWarning(refusal.arg(map->name(), property));

    QCOMPARE(run(QStringLiteral(R"js(
open();
control("productButton1").touch();
control("lookAheadEdit").enter("2.5");
control("defaultRateEdit").enter("77.5");
control("zeroRateShutoffBox").touch();
control("applyToAllBox").touch();
done();
)js")),
             QString());
    QCOMPARE(timesOpened, 1);
    QCOMPARE(map->getSettings(), settings);
    QCOMPARE(map->getRateCalMappings(), mappings);
    checkRefusals();
    // The typed rate already drives the machine, and the request follows the edited settings, not the stored ones.
    QCOMPARE(host->terminal().backend()->loader(1)->defaultRate, 77.5);
    QVariant requests;
    QCOMPARE(host->terminal().broker()->getProperty("quillSpan", "reInitCount", requests), 0);
    QCOMPARE(requests.toInt(), 1);
    checkThatTheNextDialogShowsWhatIsStored();
}

RXMAP_TEST(TestProtectedProperties, Widgets)
#include "tst_protectedproperties.moc"
