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
    void everyTextOfTheDisplayIsTranslated_data();
    void everyTextOfTheDisplayIsTranslated();
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
    QTest::addColumn<QString>("ownText");
    QTest::newRow("de") << "de"
                        << "Auf alle Produkte anwenden"
                        << "PRODUKTE";
    QTest::newRow("fr") << "fr"
                        << "Appliquer à tous les produits"
                        << "PRODUITS";
    QTest::newRow("es") << "es"
                        << "Aplicar a todos los productos"
                        << "PRODUCTOS";
    QTest::newRow("pt_BR") << "pt_BR"
                           << "Aplicar a todos os produtos"
                           << "PRODUTOS";
    QTest::newRow("pt-br") << "pt-br"
                           << "Aplicar a todos os produtos"
                           << "PRODUTOS";
}

void TestLanguages::aLanguageIsFoundByItsCode()
{
    QFETCH(QString, code);
    QCOMPARE(Languages::install(code, QDir(pluginFolder())), QString());
    QTEST(title(), "text");
    QTEST(QCoreApplication::translate("ProductSelector", "PRODUCTS"), "ownText");
}

void TestLanguages::everyTextOfTheDisplayIsTranslated_data()
{
    QTest::addColumn<QString>("code");
    for (const char *code : {"de", "fr", "es", "pt_BR"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

void TestLanguages::everyTextOfTheDisplayIsTranslated()
{
    QFETCH(QString, code);
    QFile file(sourcePath("Simulator/Terminal/translations/terminal_%1.ts").arg(code));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString catalogue = QString::fromUtf8(file.readAll());
    QVERIFY(catalogue.count(QStringLiteral("<translation>")) > 10);
    QVERIFY(!catalogue.contains(QStringLiteral("type=\"unfinished\"")));
    QVERIFY(!catalogue.contains(QStringLiteral("<translation></translation>")));
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
