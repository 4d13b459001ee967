#include "taskdata/gridrectangles.h"
#include "testbase.h"

namespace {

/// At the equator, where the edges between rows are straight.
TaskGrid gridOf(const QByteArrayList &rows, int bytesPerCell, double cellWidth, double cellHeight)
{
    TaskGrid grid;
    grid.cellWidth = cellWidth;
    grid.cellHeight = cellHeight;
    grid.rows = rows.size();
    grid.columns = rows.first().size() / bytesPerCell;
    return grid;
}

} // namespace

class GridRectanglesTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void joinsEqualNeighbours_data();
    void joinsEqualNeighbours();
    void staysNearTheEdgesOfRowsAndColumns();
};

void GridRectanglesTest::joinsEqualNeighbours_data()
{
    QTest::addColumn<QByteArray>("cells"); // Rows from the south.
    QTest::addColumn<int>("bytesPerCell");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<QString>("rectangles"); // Column, row, columns x rows.
    QTest::newRow("one") << QByteArray("aaa aaa") << 1 << 0.0 << "0,0 3x2";
    QTest::newRow("none alike") << QByteArray("ab ba") << 1 << 0.0 << "0,0 1x1; 1,0 1x1; 0,1 1x1; 1,1 1x1";
    QTest::newRow("columns") << QByteArray("aba aba") << 1 << 0.0 << "0,0 1x2; 1,0 1x2; 2,0 1x2";
    QTest::newRow("another span") << QByteArray("abb aab abb") << 1 << 0.0
                                  << "0,0 1x1; 1,0 2x1; 0,1 2x1; 2,1 1x1; 0,2 1x1; 1,2 2x1";
    QTest::newRow("goes on beside others")
        << QByteArray("abcc abdd abce") << 1 << 0.0 << "0,0 1x3; 1,0 1x3; 2,0 2x1; 2,1 2x1; 2,2 1x1; 3,2 1x1";
    QTest::newRow("equal but not next to each other")
        << QByteArray("aa bb aa") << 1 << 0.0 << "0,0 2x1; 0,1 2x1; 0,2 2x1";
    QTest::newRow("the end of a row and the start of the next")
        << QByteArray("ab bb") << 1 << 0.0 << "0,0 1x1; 1,0 1x1; 0,1 2x1";
    QTest::newRow("values of several bytes")
        << QByteArray("123412341235 923412341235") << 4 << 0.0 << "0,0 2x1; 2,0 1x2; 0,1 1x1; 1,1 1x1";
    QTest::newRow("long values") << QByteArray("0123456789ab0123456789ab0123456789ax") << 12 << 0.0
                                 << "0,0 2x1; 2,0 1x1";
    // Cells of about 74 m by 111 m; 2 of these in a row and 11 in a column are joined there.
    QTest::newRow("wide") << QByteArray("aaaaa baaaa") << 1 << 48.0 << "0,0 2x1; 2,0 2x2; 4,0 1x2; 0,1 1x1; 1,1 1x1";
    QTest::newRow("tall") << QByteArray("a a a a a a a a a a a a a") << 1 << 48.0 << "0,0 1x11; 0,11 1x2";
    QTest::newRow("wide in the south") << QByteArray("aaaaa") << 1 << -48.0 << "0,0 2x1; 2,0 2x1; 4,0 1x1";
    QTest::newRow("near the pole") << QByteArray("aaa") << 1 << 89.99 << "0,0 3x1";
}

void GridRectanglesTest::joinsEqualNeighbours()
{
    QFETCH(QByteArray, cells);
    QFETCH(int, bytesPerCell);
    QFETCH(double, latitude);
    const QByteArrayList rows = cells.split(' ');
    TaskGrid grid = gridOf(rows, bytesPerCell, 0.001, 0.001);
    grid.south = latitude;
    const QByteArray bytes = rows.join();
    GridRectangles joined(grid, bytes, bytesPerCell);
    for (int row = 0; row < rows.size(); ++row)
        joined.addRow();
    QStringList found;
    for (const CellRectangle &rectangle : joined.rectangles())
        found.append(QStringLiteral("%1,%2 %3x%4")
                         .arg(rectangle.column)
                         .arg(rectangle.row)
                         .arg(rectangle.columns)
                         .arg(rectangle.rows));
    QTEST(found.join(QStringLiteral("; ")), "rectangles");
}

void GridRectanglesTest::staysNearTheEdgesOfRowsAndColumns()
{
    TaskGrid grid;
    grid.columns = grid.rows = 1000000;
    grid.cellHeight = grid.cellWidth = 1e-6;
    grid.south = 48.0;
    // About 150 m by 1.3 km, made of cells of 7 cm by 11 cm.
    QVERIFY2(std::abs(GridRectangles::mostColumns(grid) - 2000) < 100,
             qPrintable(QString::number(GridRectangles::mostColumns(grid))));
    QVERIFY2(std::abs(GridRectangles::mostRows(grid) - 11460) < 100,
             qPrintable(QString::number(GridRectangles::mostRows(grid))));
}

RXMAP_TEST(GridRectanglesTest, None)
#include "tst_gridrectangles.moc"
