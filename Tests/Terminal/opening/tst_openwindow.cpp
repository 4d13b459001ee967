#include "Backend/shownrate.h"
#include "layerwriter.h"
#include "machine.h"
#include "openwindowtest.h"
#include "paintedtexts.h"
#include "theme.h"

#include <QAbstractButton>
#include <QApplication>

/// What the open window shows of a file, and how the operator uses it.
class TestOpenWindow : public OpenWindowTest {
    Q_OBJECT

private Q_SLOTS:
    void eachColumnHasARow_data();
    void eachColumnHasARow();
    void theColumnTouchedIsShown();
    void classesAreThoseOfTheLoadedMap();
    void longNamesAreShownWhole();
    void keysDoWhatTouchesDo();
    void allControlsAreBigEnoughForAGlove();
};

void TestOpenWindow::eachColumnHasARow_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("sure, with units") << "three-zones.geojson"
                                      << QStringList{"SEED_K_HA, Seed, k/ha", "FERT_KG_HA, Fertiliser, kg/ha",
                                                     "HERB_L_HA, Herbicide, L/ha"};
    QTest::newRow("guesses") << "two-strips.geojson" << QStringList{"A, Seed, ?", "B, Fertiliser, ?"};
}

void TestOpenWindow::eachColumnHasARow()
{
    QFETCH(QString, file);
    QFETCH(QStringList, rows);
    window->preview({fixture(qPrintable(file))});
    QVERIFY(waitFor("openAccept"));
    for (int i = 0; i < rows.size(); ++i) {
        const QString name = QStringLiteral("columnRow%1").arg(i);
        QCOMPARE(QStringList({text(name), text(name + QStringLiteral("Product")), text(name + QStringLiteral("Unit"))})
                     .join(QStringLiteral(", ")),
                 rows.at(i));
        const QStringList painted = paintedTexts(*find(name));
        QCOMPARE(painted.contains(QStringLiteral("guess")), rows.at(i).endsWith(QLatin1Char('?')));
    }
    QVERIFY(find(QStringLiteral("columnRow%1").arg(rows.size())) == nullptr);
}

void TestOpenWindow::theColumnTouchedIsShown()
{
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    const auto middle = [this] {
        QWidget *map = find(QStringLiteral("openMap"));
        return map->grab().toImage().pixelColor(map->rect().center());
    };
    const QStringList seed = paintedTexts(*find(QStringLiteral("openLegend")));
    for (const char *text : {"Seed", "k/ha", "SEED_K_HA", "80"})
        QVERIFY2(seed.contains(QLatin1String(text)), qPrintable(seed.join(QLatin1Char('|'))));
    const QColor seedColor = middle();
    touch(QStringLiteral("columnRow1"));
    const QStringList fertiliser = paintedTexts(*find(QStringLiteral("openLegend")));
    QVERIFY(fertiliser.contains(QStringLiteral("120.5")));
    QVERIFY(middle() != seedColor);
}

void TestOpenWindow::classesAreThoseOfTheLoadedMap()
{
    LayerSketch sketch;
    sketch.fields = {{"UREA_KG_HA", 1.0}};
    for (int record = 0; record < 60; ++record)
        sketch.rows.append({squareText(10 + 0.001 * record, 50, 0.001), {100.0 + 3.7 * record}});
    const QString path = folder->filePath(QStringLiteral("many.shp"));
    QVERIFY(sketch.write(path));
    window->preview({path});
    QVERIFY(waitFor("openAccept"));
    touch(QStringLiteral("columnRow0Unit"));
    touch(QStringLiteral("unitAmount5"));
    touch(QStringLiteral("unitArea1"));
    touch(QStringLiteral("unitAccept"));
    const QString shown = paintedTexts(*find(QStringLiteral("openLegend"))).join(QLatin1Char('|'));
    accept();
    QTRY_VERIFY(!window->isVisible());
    const QList<OrvikTypes::RX_RATECOLOR> classes = backend->maps().first().legends.first();
    QCOMPARE(classes.size(), 7);
    for (const OrvikTypes::RX_RATECOLOR &entry : classes)
        QVERIFY2(shown.contains(ShownRate::text(entry.rate)), qPrintable(shown));
}

void TestOpenWindow::longNamesAreShownWhole()
{
    adoption->adoptFromNextFile();
    window->preview({write({"Winter wheat compound fertiliser in autumn kg/ha"}, QStringLiteral("long.geojson"))});
    QVERIFY(waitFor("openAccept"));
    for (const char *name : {"columnRow0", "columnRow0Product"}) {
        const QString painted = paintedTexts(*find(QLatin1String(name))).join(QLatin1Char(' '));
        QVERIFY2(!painted.contains(QChar(0x2026)), qPrintable(painted));
        QVERIFY2(painted.contains(QLatin1String("utumn")), qPrintable(painted));
    }
}

void TestOpenWindow::keysDoWhatTouchesDo()
{
    const auto press = [this](Qt::Key key) {
        QWidget *focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : window.data(), key);
    };
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    QApplication::setActiveWindow(window.data());
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), find(QStringLiteral("columnRow0")));
    press(Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), find(QStringLiteral("columnRow0Product")));
    press(Qt::Key_Return);
    QVERIFY(find(QStringLiteral("choice0")) != nullptr);
    press(Qt::Key_Escape);
    QVERIFY(find(QStringLiteral("openAccept")) != nullptr);
    press(Qt::Key_Return);
    QTRY_COMPARE(backend->maps().size(), 1);
    QTRY_VERIFY(!window->isVisible());
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    press(Qt::Key_Escape);
    QVERIFY(find(QStringLiteral("fileRow0")) != nullptr);
    press(Qt::Key_Escape);
    QVERIFY(!window->isVisible());
}

void TestOpenWindow::allControlsAreBigEnoughForAGlove()
{
    const auto check = [this] {
        const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (!button->isVisible())
                continue;
            QVERIFY2(button->width() >= Theme::touchTarget && button->height() >= Theme::touchTarget,
                     qPrintable(button->objectName()));
            const QRect area(button->mapTo(window.data(), QPoint(0, 0)), button->size());
            QVERIFY2(window->rect().contains(area), qPrintable(button->objectName()));
        }
    };
    window->showFiles();
    touch(QStringLiteral("placeRoot"));
    check();
    window->preview({fixture("three-zones.geojson")});
    QVERIFY(waitFor("openAccept"));
    check();
    touch(QStringLiteral("columnRow2Unit"));
    check();
    touch(QStringLiteral("openBack"));
    touch(QStringLiteral("columnRow2Product"));
    check();
}

RXMAP_TEST(TestOpenWindow, Widgets)
#include "tst_openwindow.moc"
