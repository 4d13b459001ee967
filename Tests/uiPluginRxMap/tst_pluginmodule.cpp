#include "testbase.h"

#include "Framework/basepluginprovides.h"
#include "Framework/uiplugininterface.h"

#include <QDir>
#include <QJsonObject>
#include <QLibrary>
#include <QLibraryInfo>
#include <QPluginLoader>
#include <QProcess>
#include <QRegularExpression>

/// The built plug-in file, as a host finds it.
class TestPluginModule : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void metadataIsReadWithoutLoading();
    void qtplugininfoPrintsTheMetadata();
    void onlyTheTwoEntryPointsAreExported();
    void idsOfTheSharedTypesAreTakenFromTheFramework_data();
    void idsOfTheSharedTypesAreTakenFromTheFramework();
    void theInterfaceIsAnsweredAndTheInstanceIsShared();
    void afterTheInstanceIsGoneAFreshOneComes();
    void theEntryPointItselfKeepsTheInstance();
};

static const QString pluginFile = QStringLiteral(RXMAP_PLUGIN_FILE);

static QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

void TestPluginModule::metadataIsReadWithoutLoading()
{
    QPluginLoader loader(pluginFile);
    const QJsonObject metadata = loader.metaData();
    QVERIFY(!loader.isLoaded());
    QCOMPARE(metadata.value(QStringLiteral("IID")).toString(), QStringLiteral("com.orvik.uiPluginRxMap/1.0"));
    QCOMPARE(metadata.value(QStringLiteral("className")).toString(), QStringLiteral("UiPluginRxMap"));
    // Qt's newer tools omit an empty object; either way a host reads an empty one.
    QVERIFY(metadata.value(QStringLiteral("MetaData")).toObject().isEmpty());
    QCOMPARE(metadata.value(QStringLiteral("version")).toInt(), QT_VERSION & 0xFFFF00);
    // A host refuses a plug-in of the other kind if the two do not mix.
#ifdef QT_NO_DEBUG
    const bool isDebugBuild = false;
#else
    const bool isDebugBuild = true;
#endif
    const QJsonValue debug = metadata.value(QStringLiteral("debug"));
    QVERIFY(debug.isBool());
    QCOMPARE(debug.toBool(), isDebugBuild);
}

void TestPluginModule::qtplugininfoPrintsTheMetadata()
{
    const QString tool = QDir(QLibraryInfo::location(QLibraryInfo::BinariesPath)).filePath("qtplugininfo");
    QVERIFY2(QFile::exists(tool), qPrintable(tool));
    const QString printed = outputOf(tool, {"--full-json", pluginFile});
    QVERIFY2(printed.contains(QLatin1String("\"IID\": \"com.orvik.uiPluginRxMap/1.0\"")), qPrintable(printed));
    QVERIFY2(printed.contains(QLatin1String("\"className\": \"UiPluginRxMap\"")), qPrintable(printed));
}

void TestPluginModule::onlyTheTwoEntryPointsAreExported()
{
    QStringList names;
    const QString table = outputOf(QStringLiteral("nm"), {"-D", "--defined-only", "-P", pluginFile});
    for (const QString &line : table.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        names.append(line.section(QLatin1Char(' '), 0, 0));
    names.sort();
    QCOMPARE(names, (QStringList{"qt_plugin_instance", "qt_plugin_query_metadata"}));
}

void TestPluginModule::idsOfTheSharedTypesAreTakenFromTheFramework_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("mappings") << QStringLiteral("QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>");
    QTest::newRow("legends") << QStringLiteral("QList<QList<OrvikTypes::RX_RATECOLOR>>");
    QTest::newRow("point") << QStringLiteral("OrvikTypes::XYZ");
}

void TestPluginModule::idsOfTheSharedTypesAreTakenFromTheFramework()
{
    QFETCH(QString, type);
    // A module that registered a type itself would define the function instead of importing it.
    QString imports = outputOf(QStringLiteral("nm"), {"-D", "-C", "--undefined-only", pluginFile});
    imports.replace(QRegularExpression(QStringLiteral("(?<=>) (?=>)")), QString());
    QVERIFY2(imports.contains(QStringLiteral("QMetaTypeId<%1>::qt_metatype_id()").arg(type)), qPrintable(imports));
}

void TestPluginModule::theInterfaceIsAnsweredAndTheInstanceIsShared()
{
    QPluginLoader loader(pluginFile);
    auto *plugin = qobject_cast<UiPluginInterface *>(loader.instance());
    QVERIFY2(plugin, qPrintable(loader.errorString()));
    QCOMPARE(plugin->getPluginName(), QStringLiteral("UiPluginRxMap"));
    QVERIFY(dynamic_cast<BasePlugInProvides *>(plugin));
    QPluginLoader other(pluginFile);
    QCOMPARE(other.instance(), loader.instance());
}

void TestPluginModule::afterTheInstanceIsGoneAFreshOneComes()
{
    QPluginLoader loader(pluginFile);
    const QPointer<QObject> first = loader.instance();
    delete first.data();
    QVERIFY(first.isNull());
    QObject *second = loader.instance();
    QVERIFY(qobject_cast<UiPluginInterface *>(second));
}

void TestPluginModule::theEntryPointItselfKeepsTheInstance()
{
    // This bypasses the loader, which keeps what it was given once.
    using Instance = QObject *(*)();
    const auto instance = reinterpret_cast<Instance>(QLibrary::resolve(pluginFile, "qt_plugin_instance"));
    QVERIFY(instance);
    const QPointer<QObject> first = instance();
    QVERIFY(qobject_cast<UiPluginInterface *>(first));
    QCOMPARE(instance(), first.data());
    delete first.data();
    QVERIFY(first.isNull());
    const QPointer<QObject> second = instance();
    QVERIFY(qobject_cast<UiPluginInterface *>(second));
    QCOMPARE(instance(), second.data());
    delete second.data();
}

RXMAP_TEST(TestPluginModule, Widgets)
#include "tst_pluginmodule.moc"
