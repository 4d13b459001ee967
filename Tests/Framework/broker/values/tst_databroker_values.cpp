#include "files.h"
#include "samplegroup.h"
#include "testbase.h"

#include "Framework/databroker.h"

#include <QFile>
#include <QTemporaryDir>

/// What the broker returns by name: groups' properties, settings, the display's size.
class TestDataBrokerValues : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void accessByNameGivesItsCodes();
    void aFailedReadLeavesTheValue();
    void settingsAreReadByDottedPath_data();
    void settingsAreReadByDottedPath();
    void aSettingThatIsNotThereGivesTheDefaultOnRequest();
    void aBrokerWithoutSettingsHasNone();
    void theDisplaySizeIsGivenBack();
};

void TestDataBrokerValues::accessByNameGivesItsCodes()
{
    DataBroker broker;
    broker.publishGroup(new SampleGroup(QStringLiteral("rxMap.a")));
    QVariant value;
    QCOMPARE(broker.setProperty("rxMap.a", "level", 4), int(DataBrokerGroup::Success));
    QCOMPARE(broker.getProperty("rxMap.a", "level", value), int(DataBrokerGroup::Success));
    QCOMPARE(value, QVariant(4));

    QCOMPARE(broker.getProperty("rxMap.b", "level", value), int(DataBrokerGroup::ErrUnknownGroup));
    QCOMPARE(broker.setProperty("rxMap.b", "level", 4), int(DataBrokerGroup::ErrUnknownGroup));
    QCOMPARE(broker.getProperty(nullptr, "level", value), int(DataBrokerGroup::ErrUnknownGroup));
    QCOMPARE(broker.setProperty("rxMap.a", nullptr, 4), int(DataBrokerGroup::ErrUnknownProperty));
    QCOMPARE(broker.setProperty("rxMap.a", "height", 4), int(DataBrokerGroup::ErrUnknownProperty));
    QCOMPARE(broker.setProperty("rxMap.a", "level", QStringLiteral("high")), int(DataBrokerGroup::ErrWrongType));

    broker.removeGroup(QStringLiteral("rxMap.a"));
    QCOMPARE(broker.setProperty("rxMap.a", "level", 5), int(DataBrokerGroup::ErrGroupRemoved));
    QCOMPARE(broker.getProperty("rxMap.a", "level", value), int(DataBrokerGroup::ErrGroupRemoved));
}

void TestDataBrokerValues::aFailedReadLeavesTheValue()
{
    DataBroker broker;
    broker.publishGroup(new SampleGroup(QStringLiteral("rxMap.a")));
    QVariant value = QStringLiteral("as it was");
    broker.getProperty("rxMap.b", "level", value);
    broker.getProperty("rxMap.a", "height", value);
    broker.removeGroup(QStringLiteral("rxMap.a"));
    broker.getProperty("rxMap.a", "level", value);
    QCOMPARE(value, QVariant(QStringLiteral("as it was")));
}

void TestDataBrokerValues::settingsAreReadByDottedPath_data()
{
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<QString>("value");
    QTest::newRow("section with a dot") << QByteArray("main.general.font") << "DejaVu Sans";
    QTest::newRow("section") << QByteArray("display.contrast") << "7";
    QTest::newRow("no section") << QByteArray("language") << "de";
    QTest::newRow("text beyond Latin-1") << QByteArray("display.unit") << QString(QChar(0x2030));
}

void TestDataBrokerValues::settingsAreReadByDottedPath()
{
    QFETCH(QByteArray, setting);
    QFETCH(QString, value);
    const QTemporaryDir folder;
    const DataBroker broker(writeFile(
        folder.filePath(QStringLiteral("terminal.ini")),
        "[General]\nlanguage=de\n[main.general]\nfont=DejaVu Sans\n[display]\ncontrast=7\nunit=\xe2\x80\xb0\n"));
    QVariant found;
    QCOMPARE(broker.getIniSetting(setting.constData(), found, QStringLiteral("other"), true),
             int(DataBrokerGroup::Success));
    QCOMPARE(found.toString(), value);
}

void TestDataBrokerValues::aSettingThatIsNotThereGivesTheDefaultOnRequest()
{
    const QTemporaryDir folder;
    const DataBroker broker(folder.filePath(QStringLiteral("absent.ini")));
    QVariant value = QStringLiteral("as it was");
    QCOMPARE(broker.getIniSetting("main.general.font", value, QStringLiteral("Liberation Sans"), false),
             int(DataBrokerGroup::ErrUnknownProperty));
    QCOMPARE(value.toString(), QStringLiteral("as it was"));
    QCOMPARE(broker.getIniSetting("", value, QVariant(), false), int(DataBrokerGroup::ErrUnknownProperty));
    QCOMPARE(broker.getIniSetting(nullptr, value, QVariant(), false), int(DataBrokerGroup::ErrUnknownProperty));
    QCOMPARE(broker.getIniSetting("main.general.font", value, QStringLiteral("Liberation Sans"), true),
             int(DataBrokerGroup::Success));
    QCOMPARE(value.toString(), QStringLiteral("Liberation Sans"));
}

void TestDataBrokerValues::aBrokerWithoutSettingsHasNone()
{
    const DataBroker broker;
    QVariant value;
    QCOMPARE(broker.getIniSetting("main.general.font", value, QStringLiteral("Liberation Sans"), true),
             int(DataBrokerGroup::Success));
    QCOMPARE(value.toString(), QStringLiteral("Liberation Sans"));
}

void TestDataBrokerValues::theDisplaySizeIsGivenBack()
{
    QCOMPARE(DataBroker().getSize(), QSize(1280, 800));
    QCOMPARE(DataBroker(QString(), QSize(640, 480)).getSize(), QSize(640, 480));
}

RXMAP_TEST(TestDataBrokerValues, Core)
#include "tst_databroker_values.moc"
