#include "placement/boxindex.h"
#include "testbase.h"

#include <algorithm>
#include <random>

class TestBoxIndex : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void withoutBoxesNothingIsFound();
    void boxesThatTouchFromInsideAreFound();
    void boxesThatReachOutsideAreNotFound();
    void onlySmallerAreasAreFound();
    void aRemovedBoxIsNotFound();
    void exactlyTheBoxesInsideAreFound_data();
    void exactlyTheBoxesInsideAreFound();
};

namespace {

constexpr double anyArea = 1e300;

QVector<int> idsInside(const BoxIndex &index, const Box &box, double area)
{
    QVector<BoxEntry> found;
    index.find(box, area, found);
    QVector<int> ids;
    for (const BoxEntry &entry : qAsConst(found))
        ids.append(entry.id);
    std::sort(ids.begin(), ids.end());
    return ids;
}

Box nextBox(const QString &kind, std::mt19937 &random)
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
    return {x, y, x + width / 4.0, y + height / 4.0};
}

} // namespace

void TestBoxIndex::withoutBoxesNothingIsFound()
{
    QVERIFY(idsInside(BoxIndex({}), {0, 0, 1, 1}, anyArea).isEmpty());
}

void TestBoxIndex::boxesThatTouchFromInsideAreFound()
{
    QCOMPARE(idsInside(BoxIndex({{{0, 0, 10, 10}, 1.0, 7}}), {0, 0, 10, 10}, anyArea), QVector<int>{7});
    QVector<BoxEntry> found;
    BoxIndex({{{1, 2, 3, 4}, 5.0, 7}}).find({0, 0, 10, 10}, anyArea, found);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.at(0).area, 5.0);
    QVERIFY(found.at(0).box.contains({1, 2, 3, 4}) && Box({1, 2, 3, 4}).contains(found.at(0).box));
}

void TestBoxIndex::boxesThatReachOutsideAreNotFound()
{
    const BoxIndex index({{{0, 0, 10, 10}, 1.0, 0}});
    for (const Box &box : {Box{0.5, 0, 10, 10}, Box{0, 0.5, 10, 10}, Box{0, 0, 9.5, 10}, Box{0, 0, 10, 9.5}})
        QVERIFY(idsInside(index, box, anyArea).isEmpty());
}

void TestBoxIndex::onlySmallerAreasAreFound()
{
    const BoxIndex index({{{0, 0, 1, 1}, 5.0, 0}, {{1, 1, 2, 2}, 6.0, 1}});
    const Box all{0, 0, 10, 10};
    QCOMPARE(idsInside(index, all, 5.0), QVector<int>());
    QCOMPARE(idsInside(index, all, 5.5), QVector<int>{0});
    QCOMPARE(idsInside(index, all, 6.5), (QVector<int>{0, 1}));
}

void TestBoxIndex::aRemovedBoxIsNotFound()
{
    QVector<BoxEntry> entries;
    for (int i = 0; i < 100; ++i)
        entries.append({{i + 0.0, 0, i + 1.0, 1}, 1.0, i});
    BoxIndex index(entries);
    QVector<int> left;
    for (int i = 0; i < 100; ++i)
        left.append(i);
    std::mt19937 random(1);
    while (!left.isEmpty()) {
        index.remove(left.takeAt(static_cast<int>(random() % static_cast<unsigned int>(left.size()))));
        QCOMPARE(idsInside(index, {0, 0, 100, 1}, anyArea), left);
    }
}

void TestBoxIndex::exactlyTheBoxesInsideAreFound_data()
{
    QTest::addColumn<int>("boxes");
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"scattered", "of equal centre", "of no size", "at the limit"}) {
        for (int boxes : {1, 8, 9, 64, 65, 1000})
            QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(boxes).arg(QLatin1String(kind))))
                << boxes << QString::fromLatin1(kind);
    }
}

void TestBoxIndex::exactlyTheBoxesInsideAreFound()
{
    QFETCH(int, boxes);
    QFETCH(QString, kind);
    std::mt19937 random(7);
    QVector<BoxEntry> all;
    for (int i = 0; i < boxes; ++i)
        all.append({nextBox(kind, random), 1.0 + static_cast<double>(random() % 10), 3 * i});
    const BoxIndex index(all);
    int hits = 0;
    for (int query = 0; query < 200; ++query) {
        // Every second box starts from an existing one; each is made twice as wide and high.
        Box box = query % 2 == 0 ? nextBox(kind, random) : all.at(query % boxes).box;
        box.minX -= (box.maxX - box.minX);
        box.maxY += (box.maxY - box.minY);
        const double area = static_cast<double>(random() % 14);
        QVector<int> expected;
        for (const BoxEntry &entry : qAsConst(all)) {
            if (box.contains(entry.box) && entry.area < area)
                expected.append(entry.id);
        }
        QCOMPARE(idsInside(index, box, area), expected);
        hits += expected.size();
    }
    QVERIFY2(hits >= 20, qPrintable(QString::number(hits)));
}

RXMAP_TEST(TestBoxIndex, None)
#include "tst_boxindex.moc"
