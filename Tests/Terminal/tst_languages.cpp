#include "languages.h"
#include "paths.h"
#include "testbase.h"

#include <QTemporaryDir>
#include <QTranslator>

/// Which catalogues a language brings.
class TestLanguages : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aLanguageIsFoundByItsCode_data();
    void aLanguageIsFoundByItsCode();
    void englishNeedsNoCatalogue_data();
    void englishNeedsNoCatalogue();
    void cataloguesBesideThePluginCountToo();
    void aLanguageWithoutACatalogueIsRefused();
    void aDamagedCatalogueIsNamed();

private:
    static QString pluginFolder() { return buildPath("Plugins/uiPluginRxMap"); }
    static QString title() { return QCoreApplication::translate("RxMapWidgetDialog01", "Apply to all products"); }
};

void TestLanguages::cleanup()
{
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    TestBase::cleanup();
}

void TestLanguages::aLanguageIsFoundByItsCode_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("de") << "de"
                        << "Auf alle Produkte anwenden";
    QTest::newRow("fr") << "fr"
                        << "Appliquer à tous les produits";
    QTest::newRow("es") << "es"
                        << "Aplicar a todos los productos";
    QTest::newRow("pt_BR") << "pt_BR"
                           << "Aplicar a todos os produtos";
    QTest::newRow("pt-br") << "pt-br"
                           << "Aplicar a todos os produtos";
}

void TestLanguages::aLanguageIsFoundByItsCode()
{
    QFETCH(QString, code);
    QCOMPARE(Languages::install(code, QDir(pluginFolder())), QString());
    QTEST(title(), "text");
}

void TestLanguages::englishNeedsNoCatalogue_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("en") << "en";
    QTest::newRow("EN") << "EN";
}

void TestLanguages::englishNeedsNoCatalogue()
{
    QFETCH(QString, code);
    QCOMPARE(Languages::install(code, QDir(QStringLiteral("/nowhere"))), QString());
    QCOMPARE(title(), QStringLiteral("Apply to all products"));
}

void TestLanguages::cataloguesBesideThePluginCountToo()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(pluginFolder() + QStringLiteral("/translations/uiPluginRxMap_es.qm"),
                        folder.filePath(QStringLiteral("uiPluginRxMap_es.qm"))));
    QCOMPARE(Languages::install(QStringLiteral("es"), QDir(folder.path())), QString());
    QCOMPARE(title(), QStringLiteral("Aplicar a todos los productos"));
}

void TestLanguages::aLanguageWithoutACatalogueIsRefused()
{
    const QString error = Languages::install(QStringLiteral("xx"), QDir(pluginFolder()));
    QVERIFY2(error.contains(QLatin1String("xx")) && error.contains(pluginFolder()), qPrintable(error));
    // "R" ends the name of no catalogue: a code stands whole.
    QVERIFY(!Languages::install(QStringLiteral("R"), QDir(pluginFolder())).isEmpty());
    QCOMPARE(title(), QStringLiteral("Apply to all products"));
}

void TestLanguages::aDamagedCatalogueIsNamed()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("uiPluginRxMap_de.qm")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no catalogue at all");
    file.close();
    const QString error = Languages::install(QStringLiteral("de"), QDir(folder.path()));
    QVERIFY2(error.startsWith(file.fileName()), qPrintable(error));
}

QTEST_GUILESS_MAIN(TestLanguages)
#include "tst_languages.moc"
