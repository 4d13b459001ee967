#include "dialoghost.h"
#include "dialogprobe.h"
#include "paths.h"
#include "testbase.h"

#include <QTranslator>
#include <QXmlStreamReader>

/// The dialog in every language: nothing untranslated, nothing cut off, nothing overlapping.
class TestDialogLanguages : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void captionsHaveRoom_data();
    void captionsHaveRoom();
};

namespace {

const QStringList languages{"de", "fr", "es", "pt_BR"};

void languageColumn()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

QString folder()
{
    return buildPath("Plugins/uiPluginRxMap/translations");
}

/// The visible controls of the dialog, without the background and the vertical caption over the buttons.
QList<QWidget *> visibleControls(const QDialog &dialog)
{
    QList<QWidget *> controls;
    for (QWidget *widget : dialog.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool isBackground = widget->size() == dialog.size();
        if (widget->isVisible() && !isBackground && widget->height() < dialog.height())
            controls.append(widget);
    }
    return controls;
}

/// How wide the label's text is; its size hint gives only the fixed width.
int textWidth(const QLabel &label)
{
    return label.fontMetrics().size(0, label.text()).width();
}

} // namespace

void TestDialogLanguages::everyTextIsTranslated_data()
{
    languageColumn();
}

void TestDialogLanguages::everyTextIsTranslated()
{
    QFETCH(QString, language);
    QFile file(sourcePath("Plugins/uiPluginRxMap/translations/uiPluginRxMap_%1.ts").arg(language));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    int texts = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement() || reader.name() != QLatin1String("translation"))
            continue;
        QVERIFY(!reader.attributes().hasAttribute(QStringLiteral("type")));
        QVERIFY(!reader.readElementText().isEmpty());
        ++texts;
    }
    QVERIFY(!reader.hasError());
    QVERIFY(texts >= 34);
    QTranslator translator;
    QVERIFY(translator.load(folder() + QStringLiteral("/uiPluginRxMap_%1.qm").arg(language)));
    QVERIFY(translator.translate("RxMapGraphicsList", "Rx Rate: ") != QLatin1String("Rx Rate: "));
    QVERIFY(translator.translate("RxMapGraphicsList", "Rx Rate: ").endsWith(QLatin1String(": ")));
}

void TestDialogLanguages::captionsHaveRoom_data()
{
    languageColumn();
    QTest::newRow("en") << "en";
}

void TestDialogLanguages::captionsHaveRoom()
{
    QFETCH(QString, language);
    QTranslator translator;
    if (language != QLatin1String("en")) {
        QVERIFY(translator.load(folder() + QStringLiteral("/uiPluginRxMap_%1.qm").arg(language)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
    }
    DialogHost host;
    // The longest unit there is.
    host.replaceProduct(0, ProductLineItem::Volume);
    host.nodes.at(0)->setOperationalSettings(OrvikTypes::SPN_OperationalSetStruct(true));
    host.setLoaded();
    host.host.units->setAreaUnitSystem(0);
    RxMapWidgetDialog01 dialog(&host.broker, host.images, nullptr);
    DialogProbe probe(dialog);
    dialog.show();
    // The caption ends where its field begins, and fonts differ by a few pixels from system to system.
    const QLabel &beforeField = *probe.defaultRateLabel();
    QVERIFY2(textWidth(beforeField) <= 0.95 * beforeField.width(), qPrintable(beforeField.text()));
    for (int state = 0; state < 3; ++state) {
        host.bins.at(0)->setRxMapGroupName(state == 2 ? QString() : QStringLiteral("rxMap.field"));
        host.gps->setVehicleIsStopped(state == 0);
        dialog.testForZeroSpeed();
        const QList<QWidget *> controls = visibleControls(dialog);
        QVERIFY(controls.size() >= 6);
        for (QWidget *control : controls) {
            auto *label = qobject_cast<QLabel *>(control);
            if (label != nullptr && !label->text().isEmpty())
                QVERIFY2(textWidth(*label) <= label->width(), qPrintable(label->text()));
            QVERIFY2(dialog.rect().contains(control->geometry()), qPrintable(control->objectName()));
            for (QWidget *other : controls) {
                if (other != control)
                    QVERIFY2(!control->geometry().intersects(other->geometry()),
                             qPrintable(control->objectName() + QLatin1Char(' ') + other->objectName()));
            }
        }
    }
    QCoreApplication::removeTranslator(&translator);
}

RXMAP_TEST(TestDialogLanguages, Widgets)
#include "tst_rxmapwidgetdialog01_languages.moc"
