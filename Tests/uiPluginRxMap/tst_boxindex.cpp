#include "boxindex.h"
#include "testbase.h"

#include <algorithm>
#include <random>

class TestBoxIndex : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void withoutBoxesNothingIsFound();
    void boxesThatTouchFromInsideContain();
    void exactlyTheContainingBoxesAreFound_data();
    void exactlyTheContainingBoxesAreFound();
};

static Box nextBox(const QString &kind, std::mt19937 &random)
{
    std::uniform_int_distribution<int> corner(0, 40);
    const double x = corner(random);
    const double y = corner(random);
    if (kind == QLatin1String("of equal centre"))
        return {-x, -y, x, y};
    if (kind == QLatin1String("of no size"))
        return {x / 8.0, y, x / 8.0, y};
    const double width = corner(random);
    const double height = corner(random);
    if (kind == QLatin1String("at the limit"))
        return {-1e100 * (x / 40.0), -1e100 * (y / 40.0), 1e100 * (width / 40.0), 1e100 * (height / 40.0)};
    return {x, y, x + width, y + height};
}

void TestBoxIndex::withoutBoxesNothingIsFound()
{
    QVector<int> found;
    BoxIndex({}, {}).find({0, 0, 1, 1}, found);
    QVERIFY(found.isEmpty());
}

void TestBoxIndex::boxesThatTouchFromInsideContain()
{
    QVector<int> found;
    BoxIndex({{0, 0, 10, 10}, {1, 0, 10, 10}}, {7, 9}).find({0, 0, 10, 10}, found);
    QCOMPARE(found, QVector<int>{7});
}

void TestBoxIndex::exactlyTheContainingBoxesAreFound_data()
{
    QTest::addColumn<int>("boxes");
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"scattered", "of equal centre", "of no size", "at the limit"}) {
        for (int boxes : {1, 8, 9, 64, 65, 1000})
            QTest::addRow("%d %s", boxes, kind) << boxes << QString::fromLatin1(kind);
    }
}

void TestBoxIndex::exactlyTheContainingBoxesAreFound()
{
    QFETCH(int, boxes);
    QFETCH(QString, kind);
    std::mt19937 random(7);
    QVector<Box> all;
    QVector<int> ids;
    for (int i = 0; i < boxes; ++i) {
        all.append(nextBox(kind, random));
        ids.append(3 * i);
    }
    const BoxIndex index(all, ids);
    int hits = 0;
    for (int query = 0; query < 200; ++query) {
        // Every second one is an eighth of a box that is there, or all of it where that has no size.
        Box box = query % 2 == 0 ? nextBox(kind, random) : all.at(query % boxes);
        box.maxX = box.minX + (box.maxX / 8.0 - box.minX / 8.0);
        box.maxY = box.minY + (box.maxY / 8.0 - box.minY / 8.0);
        QVector<int> expected;
        for (int i = 0; i < boxes; ++i) {
            if (all.at(i).contains(box))
                expected.append(3 * i);
        }
        QVector<int> found;
        index.find(box, found);
        std::sort(found.begin(), found.end());
        QCOMPARE(found, expected);
        hits += found.size();
    }
    QVERIFY(hits >= 100);
}

QTEST_APPLESS_MAIN(TestBoxIndex)
#include "tst_boxindex.moc"
