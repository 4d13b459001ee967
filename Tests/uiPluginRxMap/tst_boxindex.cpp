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
    for (int boxes : {1, 8, 9, 64, 65, 1000})
        QTest::addRow("%d boxes", boxes) << boxes;
}

void TestBoxIndex::exactlyTheContainingBoxesAreFound()
{
    QFETCH(int, boxes);
    std::mt19937 random(7);
    std::uniform_int_distribution<int> corner(0, 40);
    auto next = [&] {
        const double x = corner(random);
        const double y = corner(random);
        return Box{x, y, x + corner(random), y + corner(random)};
    };
    QVector<Box> all;
    QVector<int> ids;
    for (int i = 0; i < boxes; ++i) {
        all.append(next());
        ids.append(3 * i);
    }
    const BoxIndex index(all, ids);
    for (int query = 0; query < 200; ++query) {
        Box box = next();
        box.maxX = box.minX + (box.maxX - box.minX) / 8.0;
        box.maxY = box.minY + (box.maxY - box.minY) / 8.0;
        QVector<int> expected;
        for (int i = 0; i < boxes; ++i) {
            if (all.at(i).contains(box))
                expected.append(3 * i);
        }
        QVector<int> found;
        index.find(box, found);
        std::sort(found.begin(), found.end());
        QCOMPARE(found, expected);
    }
}

QTEST_APPLESS_MAIN(TestBoxIndex)
#include "tst_boxindex.moc"
