#include "fieldscene.h"
#include "fieldview.h"
#include "simulatorrun.h"
#include "terminalhost.h"
#include "terminalwindow.h"
#include "testbase.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

/// What is drawn at a field point matches the terminal's answer there.
class TestDrawnIsAnswered : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void classesAgree_data();
    void classesAgree();
    void aMapTooWideForOneLookAgreesUpClose();
};

namespace {

/// The result of comparing drawn with answered colours.
struct Comparison {
    int compared = 0;
    int covered = 0; ///< Those of them on polygons.
    int wrong = 0;
    QString firstWrong;
};

bool isNear(const QColor &a, const QColor &b)
{
    constexpr int tolerance = 3;
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance
        && std::abs(a.blue() - b.blue()) <= tolerance;
}

/// Zooms in on parts of the active product's map and compares there, point by point.
class CloseLook {
public:
    explicit CloseLook(Terminal &givenTerminal)
        : terminal(givenTerminal)
    {
    }

    void compareIn(const QRectF &area)
    {
        constexpr int steps = 12;
        terminal.window()->fieldView()->frame(area);
        for (int i = 0; i < steps * steps; ++i)
            compareAt(QPointF(area.left() + area.width() * (0.5 + i % steps) / steps,
                              area.top() + area.height() * (0.5 + i / steps) / steps));
    }

    Comparison found;

private:
    QColor answeredAt(const QPointF &point) const
    {
        const QColor color = terminal.answerAt(point).color;
        return color.isValid() ? FieldScene::onGround(color) : FieldScene::groundColor();
    }

    void compareAt(const QPointF &point)
    {
        const QColor answered = answeredAt(point);
        const QColor drawn = terminal.mapColor(point);
        const bool agrees = isNear(drawn, answered);
        if (!agrees && isAtEdge(point, answered))
            return;
        ++found.compared;
        found.covered += answered == FieldScene::groundColor() ? 0 : 1;
        if (agrees)
            return;
        if (++found.wrong == 1)
            found.firstWrong = QStringLiteral("%1,%2 is drawn %3, answered %4")
                                   .arg(point.x())
                                   .arg(point.y())
                                   .arg(drawn.name(), answered.name());
    }

    /// Within a pixel of an edge, what is drawn may be what is answered beside the point.
    bool isAtEdge(const QPointF &point, const QColor &answered) const
    {
        const double pixel = 1.5 * terminal.window()->fieldView()->camera().metresPerPixel(point);
        for (int i = 0; i < 9; ++i) {
            if (answeredAt(point + pixel * QPointF(i % 3 - 1, i / 3 - 1)) != answered)
                return true;
        }
        return false;
    }

    Terminal &terminal;
};

QRectF boundsOf(const OrvikTypes::RX_POLYGON &polygon)
{
    QPolygonF ring;
    for (unsigned int i = 0; i < polygon.vertexCount; ++i)
        ring.append(QPointF(polygon.vertices[i].x, polygon.vertices[i].y));
    return ring.boundingRect();
}

} // namespace

void TestDrawnIsAnswered::classesAgree_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("sample field") << sampleField();
    for (const char *name :
         {"grid-clipped/grid-clipped.shp", "cells-three-products/cells.shp", "cells-three-products/zones_8c.shp",
          "cells-17k/cells.shp", "cells-17k/zones_4c.shp", "cells-17k/zones_8c.shp", "blocks-utm/treatment_blocks.shp",
          "blocks-utm/treatment_blocks.gpkg", "zones-geojson/app_map_vector.geojson", "zones-geojson/*_test.geojson"})
        QTest::newRow(name) << realData(QString::fromLatin1(name));
}

void TestDrawnIsAnswered::classesAgree()
{
    QFETCH(QString, file);
    if (file.isEmpty())
        QSKIP("RXMAP_REAL_DATA names no folder with real prescriptions");
    QVERIFY2(QFileInfo::exists(file), qPrintable(file));
    const QString head = QStringLiteral("var path = \"%1\"; var options = {}; var points = 400;\n").arg(file);
    const SimulatorRun run = runScript(head + scriptText(QStringLiteral("drawn-is-answered.js")));
    const QString said = run.output.join(QLatin1Char('\n')) + run.errors;
    QVERIFY2(run.exitCode == 0, qPrintable(said));
    const QJsonObject result = QJsonDocument::fromJson(run.output.constLast().toUtf8()).object();
    QVERIFY2(result.value(QStringLiteral("wrong")).toInt(-1) == 0, qPrintable(said));
    // Colours of no class are left out of the comparison, so hardly any of them may occur.
    QVERIFY2(result.value(QStringLiteral("mixedShare")).toDouble(1.0) <= 0.01, qPrintable(said));
    // Enough points lie far from edges, on the map and beside it, for the comparison to mean something.
    const int compared = result.value(QStringLiteral("compared")).toInt();
    QVERIFY2(compared > 200, qPrintable(said));
    // Bare ground alone would prove nothing.
    QVERIFY2(5 * result.value(QStringLiteral("covered")).toInt() >= compared, qPrintable(said));
    qInfo("%s", qPrintable(run.output.constLast()));
}

void TestDrawnIsAnswered::aMapTooWideForOneLookAgreesUpClose()
{
    RXMAP_NEED_REAL_DATA();
    constexpr int looks = 15;
    TerminalHost host;
    QCOMPARE(host.problem(), QString());
    const LoadReport report =
        host.terminal()
            .open({{realData(QStringLiteral("parcels-holes/parcels.shp"))}, {QStringLiteral("AREA_HA")}})
            .first();
    QVERIFY2(report.isOk(), qPrintable(report.error));
    auto *group = qobject_cast<DbGroupRxMap *>(host.terminal().broker()->getGroup(report.group, false));
    QVERIFY(group);
    CloseLook look(host.terminal());
    QVERIFY(report.outers >= looks);
    int outer = 0;
    for (auto *polygon = static_cast<const OrvikTypes::RX_POLYGON *>(group->getPolygonBuffer()); polygon != nullptr;
         polygon = polygon->next) {
        if (!polygon->isHole && outer++ % (report.outers / looks) == 0)
            look.compareIn(boundsOf(*polygon));
    }
    const Comparison &found = look.found;
    qInfo("%d compared, %d of them on polygons", found.compared, found.covered);
    QVERIFY2(found.wrong == 0, qPrintable(found.firstWrong));
    QVERIFY2(found.compared >= 100 * looks, qPrintable(QString::number(found.compared)));
    QVERIFY2(3 * found.covered >= found.compared, qPrintable(QString::number(found.covered)));
}

RXMAP_TEST(TestDrawnIsAnswered, Widgets)
#include "tst_drawnisanswered.moc"
