#include "Backend/prescriptionbackend.h"
#include "files.h"
#include "languages.h"
#include "paths.h"
#include "productfile.h"
#include "shownnumber.h"
#include "testbase.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>

/// Which catalogues a language loads.
class TestLanguages : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aLanguageIsFoundByItsCode_data();
    void aLanguageIsFoundByItsCode();
    void theDesktopsLanguageIsTakenWhereItIsSpoken_data();
    void theDesktopsLanguageIsTakenWhereItIsSpoken();
    void numbersAndTheUsualProductsFollowTheLanguage_data();
    void numbersAndTheUsualProductsFollowTheLanguage();
    void everyTextOfTheDisplayIsTranslated_data();
    void everyTextOfTheDisplayIsTranslated();
    void germanHasAWordOfItsOwnForTheDefaultRate();
    void frenchCallsTheGroundAParcelle();
    void unitsOfLengthAndAreaStayAsInTheLegend_data();
    void unitsOfLengthAndAreaStayAsInTheLegend();
    void whatALoadSaysIsTranslated_data();
    void whatALoadSaysIsTranslated();
    void englishNeedsNoCatalogue_data();
    void englishNeedsNoCatalogue();
    void cataloguesBesideThePluginCountToo_data();
    void cataloguesBesideThePluginCountToo();
    void aLanguageWithoutACatalogueIsRefused_data();
    void aLanguageWithoutACatalogueIsRefused();
    void aDamagedCatalogueIsNamed();

private:
    static QString pluginFolder() { return buildPath("Plugins/uiPluginRxMap"); }
    static QString title() { return QCoreApplication::translate("RxMapWidgetDialog01", "Apply to all products"); }
};

void TestLanguages::cleanup()
{
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    QLocale::setDefault(QLocale::English);
    TestBase::cleanup();
}

void TestLanguages::aLanguageIsFoundByItsCode_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("ownText");
    const auto row = [](const char *title, const char *code, const char *text, const char *ownText) {
        QTest::newRow(title) << code << text << ownText;
    };
    row("de", "de", "Auf alle Produkte anwenden", "PRODUKTE");
    row("fr", "fr", "Appliquer à tous les produits", "PRODUITS");
    row("es", "es", "Aplicar a todos los productos", "PRODUCTOS");
    row("pt_BR", "pt_BR", "Aplicar a todos os produtos", "PRODUTOS");
    row("pt-br", "pt-br", "Aplicar a todos os produtos", "PRODUTOS");
    row("pt-BR", "pt-BR", "Aplicar a todos os produtos", "PRODUTOS");
}

void TestLanguages::aLanguageIsFoundByItsCode()
{
    QFETCH(QString, code);
    QCOMPARE(Languages::install(code, QDir(pluginFolder())), QString());
    QTEST(title(), "text");
    QTEST(QCoreApplication::translate("ProductSelector", "PRODUCTS"), "ownText");
}

void TestLanguages::theDesktopsLanguageIsTakenWhereItIsSpoken_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("code");
    const auto row = [](const QStringList &wanted, const char *code) {
        QTest::newRow(qPrintable(wanted.join(QLatin1Char(' ')))) << wanted << code;
    };
    row({"de"}, "de");
    row({"de-AT", "fr"}, "de");
    row({"pt-BR"}, "pt_BR");
    row({"pt_PT"}, "pt_BR");
    row({"ja-JP", "es-MX", "fr"}, "es");
    row({"en-GB", "de"}, "en");
    row({"C"}, "en");
    row({"ja"}, "en");
    row({}, "en");
}

void TestLanguages::theDesktopsLanguageIsTakenWhereItIsSpoken()
{
    QFETCH(QStringList, wanted);
    QTEST(Languages::suiting(wanted, QDir(pluginFolder())), "code");
    // A language counts only if the whole display speaks it.
    QCOMPARE(Languages::suiting(wanted, QDir(buildPath("Simulator/Resources"))), QStringLiteral("en"));
}

void TestLanguages::numbersAndTheUsualProductsFollowTheLanguage_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("en") << "en"
                        << "5,932.5" << QStringList{"Fertiliser", "Fert"};
    QTest::newRow("de") << "de"
                        << "5.932,5" << QStringList{"D\u00fcnger", "D\u00fcng"};
    QTest::newRow("pt-br") << "pt-br"
                           << "5.932,5" << QStringList{"Fertilizante", "Fert"};
}

void TestLanguages::numbersAndTheUsualProductsFollowTheLanguage()
{
    QFETCH(QString, code);
    QCOMPARE(Languages::install(code, QDir(pluginFolder())), QString());
    QTEST(ShownNumber::text(5932.5, 1), "number");
    const Product fertiliser = ProductFile::standard().at(1);
    QTEST((QStringList{fertiliser.name, fertiliser.shortName}), "names");
}

void TestLanguages::everyTextOfTheDisplayIsTranslated_data()
{
    QTest::addColumn<QString>("code");
    for (const char *code : {"terminal_de", "terminal_fr", "terminal_es", "terminal_pt_BR", "backend_de", "backend_fr",
                             "backend_es", "backend_pt_BR"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

void TestLanguages::everyTextOfTheDisplayIsTranslated()
{
    QFETCH(QString, code);
    const QString catalogue =
        QString::fromUtf8(readFile(sourcePath("Simulator/Terminal/translations/%1.ts").arg(code)));
    QVERIFY(catalogue.count(QStringLiteral("<translation>")) > 10);
    QVERIFY(!catalogue.contains(QStringLiteral("type=\"unfinished\"")));
    QVERIFY(!catalogue.contains(QStringLiteral("<translation></translation>")));
}

void TestLanguages::germanHasAWordOfItsOwnForTheDefaultRate()
{
    QFile catalogue(sourcePath("Simulator/Terminal/translations/terminal_de.ts"));
    QVERIFY(catalogue.open(QIODevice::ReadOnly));
    static const QRegularExpression word(
        QStringLiteral("<source>([^<]*)</source>\\s*<translation>[^<]*[vV]org(?:abe|egeben)"));
    QRegularExpressionMatchIterator found = word.globalMatch(QString::fromUtf8(catalogue.readAll()));
    QVERIFY(found.hasNext());
    while (found.hasNext())
        QVERIFY(found.next().captured(1).startsWith(QStringLiteral("Default rate")));
}

void TestLanguages::frenchCallsTheGroundAParcelle()
{
    const QString catalogue = QString::fromUtf8(readFile(sourcePath("Simulator/Terminal/translations/terminal_fr.ts")));
    QVERIFY(catalogue.contains(QStringLiteral("<translation>Parcelle</translation>")));
    static const QRegularExpression other(QStringLiteral("<translation>[^<]*\\b[cC]hamps?\\b[^<]*"));
    const QRegularExpressionMatch found = other.match(catalogue);
    QVERIFY2(!found.hasMatch(), qPrintable(found.captured()));
}

void TestLanguages::unitsOfLengthAndAreaStayAsInTheLegend_data()
{
    QTest::addColumn<QString>("code");
    for (const char *code : {"de", "fr", "es", "pt_BR"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

void TestLanguages::unitsOfLengthAndAreaStayAsInTheLegend()
{
    QFETCH(QString, code);
    const QString catalogue =
        QString::fromUtf8(readFile(sourcePath("Simulator/Terminal/translations/terminal_%1.ts").arg(code)));
    static const QRegularExpression unit(
        QStringLiteral("<source>(%1 (?:ft|ft²|mi|m|m²|km))</source>\\s*<translation>([^<]*)<"));
    QRegularExpressionMatchIterator found = unit.globalMatch(catalogue);
    QVERIFY(found.hasNext());
    while (found.hasNext()) {
        const QRegularExpressionMatch text = found.next();
        QCOMPARE(text.captured(2), text.captured(1));
    }
}

void TestLanguages::whatALoadSaysIsTranslated_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("refusal");
    QTest::addColumn<QString>("finding");
    QTest::addColumn<QString>("figure");
    QTest::newRow("de") << "de"
                        << "/no/such.shp: diese Datei gibt es nicht"
                        << "Spalte „A“ ist geraten: nichts an ihrem Namen sagt, dass sie Mengen enthält"
                        << " auf [0-9]+,[0-9] m2$";
    QTest::newRow("fr")
        << "fr"
        << "/no/such.shp: ce fichier n’existe pas"
        << "la colonne «\u00a0A\u00a0» est supposée\u00a0: rien dans son nom n’indique qu’elle contient des doses"
        << " sur [0-9]+,[0-9] m2$";
    QTest::newRow("es") << "es"
                        << "/no/such.shp: este archivo no existe"
                        << "la columna «A» es una suposición: nada en su nombre indica que contenga dosis"
                        << " en [0-9]+,[0-9] m2$";
    QTest::newRow("pt_BR") << "pt_BR"
                           << "/no/such.shp: este arquivo não existe"
                           << "a coluna “A” é uma suposição: nada em seu nome indica que contenha doses"
                           << " em [0-9]+,[0-9] m2$";
}

void TestLanguages::whatALoadSaysIsTranslated()
{
    QFETCH(QString, code);
    QCOMPARE(Languages::install(code, QDir(pluginFolder())), QString());
    LoadRequest request;
    request.products = {MachineProduct()};
    request.path = QStringLiteral("/no/such.shp");
    QTEST(PrescriptionBackend::checkFile(request, 12.0).error, "refusal");
    request.path = sourcePath("Tests/fixtures/two-strips.geojson");
    QTEST(PrescriptionBackend::checkFile(request, 12.0).findings.value(0).text, "finding");
    request.path = sourcePath("Tests/fixtures/overlap.geojson");
    QFETCH(QString, figure);
    const QString overlap = PrescriptionBackend::checkFile(request, 12.0).findings.last().text;
    QVERIFY2(QRegularExpression(figure).match(overlap).hasMatch(), qPrintable(overlap));
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

void TestLanguages::cataloguesBesideThePluginCountToo_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "uiPluginRxMap_es.qm";
    QTest::newRow("underscores in the plug-in's name") << "ui_map_es.qm";
}

void TestLanguages::cataloguesBesideThePluginCountToo()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(pluginFolder() + QStringLiteral("/translations/uiPluginRxMap_es.qm"), folder.filePath(name)));
    QCOMPARE(Languages::install(QStringLiteral("es"), QDir(folder.path())), QString());
    QCOMPARE(title(), QStringLiteral("Aplicar a todos los productos"));
}

void TestLanguages::aLanguageWithoutACatalogueIsRefused_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("unknown") << "xx";
    QTest::newRow("end of a code") << "R";
    QTest::newRow("country alone") << "BR";
    QTest::newRow("country alone, in lower case") << "br";
    QTest::newRow("language alone, of which there is that of a country") << "pt";
    QTest::newRow("name of the plug-in too") << "uiPluginRxMap_de";
}

void TestLanguages::aLanguageWithoutACatalogueIsRefused()
{
    QFETCH(QString, code);
    const QString error = Languages::install(code, QDir(pluginFolder()));
    QVERIFY2(error.startsWith(QStringLiteral("--language %1: ").arg(code)) && error.contains(pluginFolder()),
             qPrintable(error));
    QCOMPARE(title(), QStringLiteral("Apply to all products"));
}

void TestLanguages::aDamagedCatalogueIsNamed()
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder.filePath(QStringLiteral("uiPluginRxMap_de.qm")), "no catalogue at all");
    const QString error = Languages::install(QStringLiteral("de"), QDir(folder.path()));
    QVERIFY2(error.startsWith(file), qPrintable(error));
}

RXMAP_TEST(TestLanguages, Core)
#include "tst_languages.moc"
