#include "dialogtest.h"

#include <QAbstractEventDispatcher>
#include <QMouseEvent>
#include <QWindow>

/// How the dialog is left, by Done, by Cancel or otherwise.
class TestDialogClosing : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void whileTheVehicleMovesNothingIsWritten();
    void notUnderVraFromTheStartCancels();
    void aSecondTapThatIsOnItsWayDoesNothing_data();
    void aSecondTapThatIsOnItsWayDoesNothing();
    void aSecondTouchWhileTheFirstIsWrittenMixesNoGroups_data();
    void aSecondTouchWhileTheFirstIsWrittenMixesNoGroups();
    void theRestIsWrittenWhenAListenerDeletesTheDialog();
    void theEscapeKeyLeavesWithoutWriting();
    void openingAgainShowsWhatWasWritten();
    void aThousandDialogsLeaveNothingBehind();
};

namespace {

/// Touches the button `taps` times before the program handles the first touch.
void postTaps(const QDialog &dialog, const QWidget &button, int taps)
{
    QWindow *window = dialog.windowHandle();
    const QPoint at = button.mapTo(&dialog, button.rect().center());
    for (int i = 0; i < 2 * taps; ++i) {
        const bool press = i % 2 == 0;
        QCoreApplication::postEvent(window,
                                    new QMouseEvent(press ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, at,
                                                    at, window->mapToGlobal(at), Qt::LeftButton,
                                                    press ? Qt::LeftButton : Qt::NoButton, {}));
    }
}

/// Publishes the groups a, b and c, of two mappings each, in place of the present map; a holds the settings.
QList<DbGroupRxMap *> publishThreeMaps(DialogHost &host)
{
    host.broker.removeGroup(host.map->name());
    QList<DbGroupRxMap *> maps;
    for (const char *name : {"a", "b", "c"}) {
        maps.append(host.host.addMap(QLatin1String(name), {}));
        const QString channel = QString(QLatin1String(name)).toUpper();
        maps.last()->setRateCalMappings(
            {mappingFor(channel + QLatin1Char('0')), mappingFor(channel + QLatin1Char('1'))});
    }
    maps.first()->setSettings(host.map->getSettings());
    return maps;
}

/// Each group's name and, in brackets, its channels.
QString channels(const QList<DbGroupRxMap *> &maps)
{
    QStringList texts;
    for (const DbGroupRxMap *map : maps) {
        QStringList names;
        for (const auto &mapping : map->getRateCalMappings())
            names.append(mapping.rateCalName);
        texts.append(map->name().mid(6) + QLatin1Char('[') + names.join(QLatin1Char(' ')) + QLatin1Char(']'));
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

void TestDialogClosing::whileTheVehicleMovesNothingIsWritten()
{
    open();
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("9.0"));
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("7"));
    host->gps->setVehicleIsStopped(false);
    dialog->testForZeroSpeed();
    const auto settings = host->map->getSettings();
    const auto mappings = host->map->getRateCalMappings();
    int writes = 0;
    connect(host->map, &DbGroupRxMap::settingsChanged, this, [&writes] { ++writes; });
    connect(host->map, &DbGroupRxMap::rateCalMappingsChanged, this, [&writes] { ++writes; });
    done();
    QCOMPARE(writes, 0);
    QCOMPARE(host->map->getSettings(), settings);
    QCOMPARE(host->map->getRateCalMappings(), mappings);
    QCOMPARE(host->loaders[0].defaultRate, 7.0);
    QCOMPARE(host->reInitialisations, 0);
}

void TestDialogClosing::notUnderVraFromTheStartCancels()
{
    for (BinGroup *bin : qAsConst(host->bins))
        bin->setRxMapGroupName(QString());
    open();
    probe->settings()[0].onLookAheadMs = 9000;
    probe->settings()[0].isMaster = true;
    probe->mappings()[0].defaultRate = 7.0;
    int writes = 0;
    connect(host->map, &DbGroupRxMap::settingsChanged, this, [&writes] { ++writes; });
    connect(host->map, &DbGroupRxMap::rateCalMappingsChanged, this, [&writes] { ++writes; });
    done();
    QCOMPARE(writes, 0);
    QCOMPARE(host->reInitialisations, 0);
    QCOMPARE(host->entry(0).onLookAheadMs, 1000);
    QCOMPARE(host->map->getRateCalMappings().at(0).defaultRate, 0.0);
}

void TestDialogClosing::aSecondTapThatIsOnItsWayDoesNothing_data()
{
    QTest::addColumn<bool>("stopped");
    QTest::addColumn<int>("writes");
    QTest::newRow("Done") << true << 1;
    QTest::newRow("Cancel") << false << 0;
}

void TestDialogClosing::aSecondTapThatIsOnItsWayDoesNothing()
{
    QFETCH(bool, stopped);
    int settingsWrites = 0;
    int mappingWrites = 0;
    connect(host->map, &DbGroupRxMap::settingsChanged, this, [&settingsWrites] { ++settingsWrites; });
    connect(host->map, &DbGroupRxMap::rateCalMappingsChanged, this, [&mappingWrites] { ++mappingWrites; });
    host->gps->setVehicleIsStopped(stopped);
    open();
    int releases = 0;
    connect(probe->doneButton(), &OrvikButton::buttonReleased, this, [&releases] { ++releases; });
    QTimer::singleShot(0, dialog.data(), [this] { postTaps(*dialog, *probe->doneButton(), 2); });
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    QCoreApplication::processEvents();
    QVERIFY(releases > 0);
    QTEST(settingsWrites, "writes");
    QTEST(mappingWrites, "writes");
    // Nothing is written either when a button of another host reports a touch while it is hidden.
    DialogProbe::release(probe->doneButton());
    QTEST(settingsWrites, "writes");
    QTEST(mappingWrites, "writes");
}

void TestDialogClosing::aSecondTouchWhileTheFirstIsWrittenMixesNoGroups_data()
{
    QTest::addColumn<bool>("isTouched");
    QTest::newRow("reported at once") << false;
    QTest::newRow("let through by an event loop") << true;
}

void TestDialogClosing::aSecondTouchWhileTheFirstIsWrittenMixesNoGroups()
{
    QFETCH(bool, isTouched);
    const QList<DbGroupRxMap *> maps = publishThreeMaps(*host);
    open();
    int writes = 0;
    for (DbGroupRxMap *map : maps) {
        connect(map, &DbGroupRxMap::rateCalMappingsChanged, this, [&, isTouched] {
            ++writes;
            if (!isTouched) {
                DialogProbe::release(probe->doneButton());
            } else if (dialog->isVisible()) {
                postTaps(*dialog, *probe->doneButton(), 1);
                QCoreApplication::processEvents();
            }
        });
    }
    done();
    QCOMPARE(channels(maps), QStringLiteral("a[A0 A1] b[B0 B1] c[C0 C1]"));
    QCOMPARE(writes, 3);
}

void TestDialogClosing::theRestIsWrittenWhenAListenerDeletesTheDialog()
{
    const QList<DbGroupRxMap *> maps = publishThreeMaps(*host);
    open();
    for (auto &mapping : probe->mappings())
        mapping.dbfColumnName = QStringLiteral("edited");
    DialogProbe::release(probe->zeroRateShutoffBox());
    connect(maps.first(), &DbGroupRxMap::rateCalMappingsChanged, this, [this] { dialog.reset(); });
    dialog->doneButtonReleased(0);
    QVERIFY(!dialog);
    QCOMPARE(maps.last()->getRateCalMappings().last().dbfColumnName, QStringLiteral("edited"));
    QVERIFY(maps.first()->getSettings().first().zeroRateShutoff);
    QCOMPARE(host->reInitialisations, 1);
}

void TestDialogClosing::theEscapeKeyLeavesWithoutWriting()
{
    open();
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("9.0"));
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("7"));
    const auto settings = host->map->getSettings();
    const auto mappings = host->map->getRateCalMappings();
    QTimer::singleShot(0, dialog.data(), [this] { QTest::keyClick(dialog.data(), Qt::Key_Escape); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QCOMPARE(host->map->getSettings(), settings);
    QCOMPARE(host->map->getRateCalMappings(), mappings);
    QCOMPARE(host->loaders[0].defaultRate, 7.0);
}

void TestDialogClosing::openingAgainShowsWhatWasWritten()
{
    open();
    DialogProbe::release(probe->productButton(2));
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("4.2"));
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("120.5"));
    DialogProbe::release(probe->applyToAllBox());
    done();
    open();
    QCOMPARE(probe->selectedProduct(), 2);
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("4.2"));
    QCOMPARE(probe->defaultRateEdit()->getText(), QStringLiteral("120.5"));
    QCOMPARE(probe->applyToAllBox()->currentImage(), 1);
}

void TestDialogClosing::aThousandDialogsLeaveNothingBehind()
{
    // The children of the dispatcher are the pending polls; those of earlier dialogs run out first.
    const QObject *dispatcher = QAbstractEventDispatcher::instance();
    QTRY_COMPARE_WITH_TIMEOUT(dispatcher->children().size(), 0, 3000);
    const int widgets = QApplication::allWidgets().size();
    const int objects = qApp->children().size();
    // All existing listeners of the groups are disconnected, so that a connection found later is a dialog's.
    const QList<DataBrokerGroup *> groups{host->map, host->gps, host->host.units, host->bins.at(0)};
    for (DataBrokerGroup *group : groups)
        QObject::disconnect(group, nullptr, nullptr, nullptr);
    for (int i = 0; i < 1000; ++i) {
        RxMapWidgetDialog01 opened(&host->broker, host->images, nullptr);
        if (i % 100 == 0)
            opened.show();
        opened.doneButtonReleased(0);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    QCOMPARE(qApp->children().size(), objects);
    QTRY_COMPARE_WITH_TIMEOUT(dispatcher->children().size(), 0, 3000);
    for (DataBrokerGroup *group : groups)
        QVERIFY2(!QObject::disconnect(group, nullptr, nullptr, nullptr), qPrintable(group->name()));
    QCOMPARE(host->map->getSettings().size(), 3);
}

RXMAP_TEST(TestDialogClosing, Widgets)
#include "tst_rxmapwidgetdialog01_closing.moc"
